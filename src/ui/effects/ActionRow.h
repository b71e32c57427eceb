#pragma once

#include <QWidget>

#include "ui/effects/EffectActions.h"

class QToolButton;

namespace tavrin {

/// The buttons of a row of actions. Those that can be in force show which one is.
class ActionRow : public QWidget {
    Q_OBJECT

  public:
    ActionRow(const EffectActionRow& row, Binder& binder, QWidget* parent = nullptr);

  private:
    void refresh();

    const EffectActionRow& row_;
    Binder& binder_;
    std::vector<QToolButton*> buttons_;
};

}  // namespace tavrin

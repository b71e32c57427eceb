#pragma once

#include <QWidget>

#include "ui/effects/EffectActions.h"

namespace tavrin {

/// The buttons of a row of actions.
class ActionRow : public QWidget {
    Q_OBJECT

  public:
    ActionRow(const EffectActionRow& row, Binder& binder, QWidget* parent = nullptr);
};

}  // namespace tavrin

#pragma once

#include <QDockWidget>

#include "ui/look/LookDesk.h"

class QListWidget;

namespace tavrin {

/// My looks by name, each with a small picture.
class LooksPanel : public QDockWidget {
    Q_OBJECT

  public:
    explicit LooksPanel(LookDesk& desk, QWidget* parent = nullptr);

    void refresh();

  private:
    QWidget* makeButtons();

    LookDesk& desk_;
    QListWidget* list_;
};

}  // namespace tavrin

#pragma once

#include <QDockWidget>

#include "ui/bind/Binder.h"

class QListWidget;

namespace tavrin {

/// Every step of the portrait at hand by its name. A click goes there; later steps are grey, and stay until something
/// else is changed.
class HistoryPanel : public QDockWidget {
    Q_OBJECT

  public:
    explicit HistoryPanel(Binder& binder, QWidget* parent = nullptr);

    void refresh();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    Binder& binder_;
    QListWidget* list_;
};

}  // namespace tavrin

#pragma once

#include <QWidget>

#include "ui/print/PrintDesk.h"

class QTableWidget;
class QToolButton;

namespace tavrin {

/// The sheets that are not known to be printed, each with its reason, to be sent again or discarded, one or several.
class WaitingSheets : public QWidget {
    Q_OBJECT

  public:
    explicit WaitingSheets(PrintDesk& desk, QWidget* parent = nullptr);

  private:
    QToolButton* addButton(const char* name, const QString& text, const QString& toolTip,
                           void (WaitingSheets::*clicked)());
    void show();
    void showButtons();
    std::vector<QueuedSheet> selected() const;
    void sendAgain();
    void askAbout(const std::vector<QueuedSheet>& unsure);
    void discard();

    PrintDesk& desk_;
    QTableWidget* table_;
    QToolButton *again_ = nullptr, *discard_ = nullptr;
};

}  // namespace tavrin

#pragma once

#include <vector>

#include <QWidget>

#include "delivery/mail/Outbox.h"

class QLabel;
class QListWidget;
class QToolButton;

namespace tavrin {

class MailDesk;

/// The mails that could not be sent, with the reasons, and what can be done about them.
class OutboxPanel : public QWidget {
    Q_OBJECT

  public:
    explicit OutboxPanel(MailDesk& desk, QWidget* parent = nullptr);

    void show(const std::vector<OutboxEntry>& entries);

  private:
    /// Those that are selected; all where none is.
    QStringList chosen() const;
    void showButtons();

    MailDesk& desk_;
    QListWidget* list_;
    QLabel* nothing_;
    QToolButton *send_, *discard_;
};

}  // namespace tavrin

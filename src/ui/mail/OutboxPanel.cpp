#include "ui/mail/OutboxPanel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QToolButton>

#include "core/files/NameText.h"
#include "ui/ReasonText.h"
#include "ui/bind/WordButton.h"
#include "ui/mail/MailDesk.h"

namespace tavrin {

namespace {

using State = OutboxEntry::State;

QString stateOf(const OutboxEntry& entry) {
    switch (entry.state) {
        case State::waiting:
            return OutboxPanel::tr("is sent again at %1")
                .arg(QLocale().toString(entry.nextTry.time(), QLocale::ShortFormat));
        case State::held:
            return OutboxPanel::tr("is not sent by itself");
        case State::maybeGone:
            return OutboxPanel::tr("may have gone, and is not sent by itself");
        default:
            return OutboxPanel::tr("is being sent");
    }
}

QString linesOf(const OutboxEntry& entry) {
    const QString title = QString::fromStdString(entry.mail.subject);
    return OutboxPanel::tr("%1: %2").arg(QString::fromStdString(entry.mail.to), stateOf(entry)) + '\n' +
           (title.isEmpty() ? "" : title + '\n') + reasonText(entry.reason);
}

}  // namespace

OutboxPanel::OutboxPanel(MailDesk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), list_(new QListWidget), nothing_(new QLabel(tr("Nothing waits."))) {
    setObjectName("outboxPanel");
    setAccessibleName(tr("Outbox"));
    list_->setObjectName("listOutbox");
    list_->setProperty("handler", "showOutbox");
    list_->setAccessibleName(tr("Mails that could not be sent"));
    list_->setToolTip(tr("Mails that could not be sent, each with its reason"));
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setWordWrap(true);
    list_->setSpacing(4);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setTabKeyNavigation(false);
    list_->setFixedHeight(9 * fontMetrics().lineSpacing());
    auto* keeps = new QCheckBox(tr("Keep what could not be sent, and try again"));
    keeps->setObjectName("checkboxOutbox");
    keeps->setProperty("handler", "setKeepsMails");
    keeps->setAccessibleName(keeps->text());
    keeps->setToolTip(tr("The pauses between the tries grow from a minute to four hours"));
    keeps->setChecked(MailDesk::keepsMails());
    connect(keeps, &QCheckBox::toggled, &desk_, &MailDesk::setKeepsMails);
    send_ = makeButton("buttonOutboxSend", "sendNow", tr("Send now"),
                       tr("Sends the selected mails; where none is selected, all but those that may have gone"));
    discard_ = makeButton("buttonOutboxDiscard", "discard", tr("Discard"),
                          tr("Removes the selected mails without sending them"));
    connect(send_, &QToolButton::clicked, this, [this] { desk_.sendNow(chosen()); });
    connect(discard_, &QToolButton::clicked, this, [this] { desk_.discard(chosen()); });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(nothing_, 0, 0, 1, 2);
    grid->addWidget(list_, 1, 0, 1, 2);
    grid->addWidget(send_, 2, 0);
    grid->addWidget(discard_, 2, 1);
    grid->addWidget(keeps, 3, 0, 1, 2);
    connect(&desk, &MailDesk::outboxRead, this, &OutboxPanel::show);
    connect(list_, &QListWidget::itemSelectionChanged, this, &OutboxPanel::showButtons);
    show({});
}

void OutboxPanel::show(const std::vector<OutboxEntry>& entries) {
    const bool hadSelection = !list_->selectedItems().isEmpty();
    const QStringList selected = chosen();
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const OutboxEntry& entry : entries) {
        auto* item = new QListWidgetItem(linesOf(entry), list_);
        item->setData(Qt::UserRole, textOfName(entry.id));
        item->setData(Qt::UserRole + 1, entry.state == State::maybeGone);
        item->setToolTip(item->text());
        item->setSelected(hadSelection && selected.contains(textOfName(entry.id)));
    }
    nothing_->setVisible(entries.empty());
    list_->setVisible(!entries.empty());
    send_->setVisible(!entries.empty());
    discard_->setVisible(!entries.empty());
    showButtons();
}

/// What may have gone goes again only if a person means it: selected by hand.
QStringList OutboxPanel::chosen() const {
    QStringList selected, all;
    for (int row = 0; row < list_->count(); ++row) {
        const QListWidgetItem* item = list_->item(row);
        const QString id = item->data(Qt::UserRole).toString();
        if (item->isSelected()) selected.append(id);
        if (!item->data(Qt::UserRole + 1).toBool()) all.append(id);
    }
    return list_->selectedItems().isEmpty() ? all : selected;
}

void OutboxPanel::showButtons() {
    send_->setEnabled(!chosen().isEmpty());
    discard_->setEnabled(!list_->selectedItems().isEmpty());
}

}  // namespace tavrin

#include "ui/frame/ActionSearch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/bind/WordSearch.h"

namespace tavrin {

ActionSearch::ActionSearch(std::vector<Entry> entries, QWidget* parent)
    : QDialog(parent), entries_(std::move(entries)), field_(new QLineEdit(this)), list_(new QListWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("actionSearch");
    setWindowTitle(tr("Find an Action"));
    setModal(true);
    field_->setObjectName("searchActions");
    field_->setProperty("handler", "find");
    field_->setPlaceholderText(tr("What to do, or which control"));
    field_->setAccessibleName(field_->placeholderText());
    field_->setToolTip(tr("Words in any order; arrows choose, Enter takes"));
    field_->installEventFilter(this);
    list_->setObjectName("foundActions");
    list_->setAccessibleName(tr("Commands and controls"));
    list_->setFocusPolicy(Qt::NoFocus);  // the arrows of the field choose
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(field_);
    layout->addWidget(list_);
    connect(field_, &QLineEdit::textChanged, this, &ActionSearch::find);
    connect(field_, &QLineEdit::returnPressed, this, &ActionSearch::take);
    connect(list_, &QListWidget::itemClicked, this, &ActionSearch::take);
    find({});
    resize(520, 420);
    move(parent->mapToGlobal(QPoint((parent->width() - width()) / 2, 60)));
}

/// Names that have the words; where there is none, names with slips of the fingers, and what is told of them.
void ActionSearch::find(const QString& typed) {
    const QStringList words = searchWords(typed);
    std::vector<std::size_t> found;
    std::vector<bool> taken(entries_.size());
    const auto add = [&](Slips slips, bool more) {
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            const Entry& entry = entries_[i];
            const QString text = entry.text + ' ' + entry.place + (more ? ' ' + entry.words : QString());
            if (taken[i] || !hasWords(text, words, slips)) continue;
            taken[i] = true;
            found.push_back(i);
        }
    };
    add(Slips::none, false);
    if (found.empty()) add(Slips::none, true);
    if (found.empty()) add(Slips::some, false);
    if (found.empty()) add(Slips::some, true);
    list_->clear();
    for (const std::size_t i : found) {
        const Entry& entry = entries_[i];
        const QString end = entry.key.isEmpty() ? QString() : "    " + entry.key;
        auto* item = new QListWidgetItem(tr("%1   (%2)").arg(entry.text, entry.place) + end, list_);
        item->setData(Qt::UserRole, static_cast<qulonglong>(i));
        if (!entry.enabled) item->setFlags(Qt::NoItemFlags);
    }
    for (int row = 0; row < list_->count() && !list_->currentItem(); ++row)
        if (list_->item(row)->flags() & Qt::ItemIsEnabled) list_->setCurrentRow(row);
    if (found.empty()) (new QListWidgetItem(tr("Nothing has these words."), list_))->setFlags(Qt::NoItemFlags);
}

void ActionSearch::take() {
    const QListWidgetItem* item = list_->currentItem();
    if (!item || !(item->flags() & Qt::ItemIsEnabled)) return;
    const auto run = entries_[item->data(Qt::UserRole).toULongLong()].run;
    accept();
    QTimer::singleShot(0, parent(), run);  // when the focus is back with the window
}

bool ActionSearch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
                QCoreApplication::sendEvent(list_, event);
                return true;
            default:
                break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace tavrin

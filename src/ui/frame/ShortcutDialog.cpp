#include "ui/frame/ShortcutDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QToolButton>

#include "ui/bind/WordButton.h"
#include "ui/bind/WordSearch.h"
#include "ui/frame/KeyField.h"

namespace tavrin {

namespace {

enum Column { kText, kKey, kColumns };

QString nameOf(const Command& command) {
    return QString(command.text).remove('&').remove("...");
}

/// Only what differs from the usual is a choice.
void put(ChosenKeys& keys, const Command& command, const QKeySequence& key) {
    if (key == command.shortcut)
        keys.erase(command.id);
    else
        keys[command.id] = key;
}

}  // namespace

ShortcutDialog::ShortcutDialog(Commands& commands, QWidget* parent)
    : QDialog(parent),
      commands_(commands),
      list_(new QTableWidget(0, kColumns, this)),
      search_(new QLineEdit(this)),
      key_(new KeyField(this)),
      told_(new QLabel(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("shortcuts");
    setWindowTitle(tr("Keyboard Shortcuts"));
    nameParts();
    layOut();
    connect(search_, &QLineEdit::textChanged, this, &ShortcutDialog::find);
    connect(list_, &QTableWidget::currentCellChanged, this, &ShortcutDialog::showCurrent);
    connect(key_, &KeyField::pressed, this, &ShortcutDialog::wish);
    before_ = commands_.chosenKeys();
    fill();
    list_->setCurrentCell(0, kText);
    resize(560, 620);
}

void ShortcutDialog::nameParts() {
    search_->setObjectName("shortcutSearch");
    search_->setProperty("handler", "find");
    search_->setPlaceholderText(tr("Search by words or by a key"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setToolTip(tr("Words in any order, or a key such as Ctrl+K"));
    list_->setObjectName("shortcutList");
    list_->setAccessibleName(windowTitle());
    list_->setHorizontalHeaderLabels({tr("What it does"), tr("Shortcut")});
    list_->horizontalHeader()->setSectionResizeMode(kText, QHeaderView::Stretch);
    list_->verticalHeader()->hide();
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setTabKeyNavigation(false);
    list_->setWordWrap(false);
    key_->setObjectName("shortcutKey");
    key_->setProperty("handler", "wish");
    key_->setToolTip(tr("Click here and press the new key"));
    key_->setAccessibleName(tr("New key"));
    told_->setObjectName("shortcutTold");
    told_->setWordWrap(true);
}

void ShortcutDialog::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(list_);
    layout->addWidget(told_);
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(tr("&New key:"), this);
    label->setBuddy(key_);
    row->addWidget(label);
    row->addWidget(key_, 1);
    layout->addLayout(row);
    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    take_ = addButton("shortcutTake", tr("Take It"), tr("The other command has no key then"),
                      &ShortcutDialog::takeFromOther);
    none_ = addButton("shortcutNone", tr("No Key"), tr("Takes the key from the command that is chosen"), nullptr);
    connect(none_, &QToolButton::clicked, this, [this] { give(*current(), {}); });
    usual_ = addButton("shortcutUsual", tr("Usual Key"), tr("The command that is chosen has the key it came with"),
                       &ShortcutDialog::useDefault);
    back_ = addButton("shortcutBack", tr("Take Back"), tr("Takes the last change in this list back"), nullptr);
    connect(back_, &QToolButton::clicked, this, [this] { choose(ChosenKeys(before_), tr("Taken back.")); });
    allUsual_ = addButton("shortcutAllUsual", tr("All Usual Keys"), tr("Every command has the key it came with"),
                          &ShortcutDialog::useAllDefaults);
    for (QToolButton* button : {take_, none_, usual_, back_, allUsual_})
        buttons->addWidget(button);
    buttons->insertStretch(4);
}

QToolButton* ShortcutDialog::addButton(const char* id, const QString& text, const QString& toolTip,
                                       void (ShortcutDialog::*run)()) {
    QToolButton* button = makeButton(id, id, text, toolTip);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    if (run) connect(button, &QToolButton::clicked, this, run);
    return button;
}

void ShortcutDialog::addLine(const QString& text, const QString& key, const Command* command) {
    const int row = list_->rowCount();
    list_->insertRow(row);
    auto* name = new QTableWidgetItem(text);
    name->setData(Qt::UserRole, command ? QString(command->id) : QString());
    name->setToolTip(command ? command->toolTip : text);
    auto* shown = new QTableWidgetItem(key);
    if (!command) shown->setToolTip(key);
    const bool isChosen = command && commands_.keyOf(*command) != command->shortcut;
    QFont font = shown->font();
    font.setBold(isChosen);
    shown->setFont(font);
    if (isChosen) {
        const QString usual = command->shortcut.toString(QKeySequence::NativeText);
        shown->setToolTip(usual.isEmpty() ? tr("Usually without a key") : tr("Usually %1").arg(usual));
    }
    list_->setItem(row, kText, name);
    list_->setItem(row, kKey, shown);
}

void ShortcutDialog::fill() {
    const int row = list_->currentRow();
    const QSignalBlocker quiet(list_);
    list_->setRowCount(0);
    for (const Command& command : commands_.table())
        addLine(nameOf(command), commands_.keyOf(command).toString(QKeySequence::NativeText), &command);
    // Those of the controls, which stay.
    addLine(tr("Move a slider; with Shift finer, with Ctrl coarser"), tr("Arrows"), nullptr);
    addLine(tr("Put the default of a slider back"), tr("Delete"), nullptr);
    addLine(tr("Move what is shown; with Shift by a point"), tr("Arrows on the picture"), nullptr);
    addLine(tr("Move the line"), tr("Arrows on the line between before and after"), nullptr);
    addLine(tr("Zoom about the pointer"), tr("Wheel"), nullptr);
    addLine(tr("On the strip, or on a picture that is seen whole: open the portrait before, or the next one"),
            tr("Left, Right"), nullptr);
    addLine(tr("Hold and drag to move the picture"), tr("Space or middle button"), nullptr);
    list_->resizeColumnToContents(kKey);
    list_->setColumnWidth(kKey, std::min(list_->columnWidth(kKey), 200));
    find(search_->text());
    list_->setCurrentCell(row, kText);
    showCurrent();
}

void ShortcutDialog::find(const QString& typed) {
    const QStringList words = searchWords(typed);
    const QString key = typed.trimmed();
    for (int row = 0; row < list_->rowCount(); ++row) {
        const bool isKey = !key.isEmpty() && !list_->item(row, kKey)->text().compare(key, Qt::CaseInsensitive);
        list_->setRowHidden(row, !isKey && !hasWords(list_->item(row, kText)->text(), words));
    }
}

const Command* ShortcutDialog::current() const {
    const QTableWidgetItem* item = list_->item(list_->currentRow(), kText);
    if (!item) return nullptr;
    for (const Command& command : commands_.table())
        if (command.id == item->data(Qt::UserRole).toString()) return &command;
    return nullptr;
}

void ShortcutDialog::showCurrent() {
    const Command* command = current();
    wished_ = {};
    take_->hide();
    key_->setEnabled(command);
    const QKeySequence key = command ? commands_.keyOf(*command) : QKeySequence();
    key_->setText(key.toString(QKeySequence::NativeText));
    none_->setEnabled(!key.isEmpty());
    usual_->setEnabled(command && key != command->shortcut);
    back_->setEnabled(before_ != commands_.chosenKeys());
    allUsual_->setEnabled(!commands_.chosenKeys().empty());
    told_->setText(command ? tr("Choose a command, click below and press its new key.")
                           : tr("This key belongs to the controls and stays."));
}

void ShortcutDialog::wish(QKeyCombination pressed) {
    const Command* command = current();
    if (!command) return;
    showCurrent();  // an older question is over
    const QKeySequence key(pressed);
    const QString name = key.toString(QKeySequence::NativeText);
    const Command* user = commands_.userOf(key);
    if (user == command) return;
    if (const QString reason = whyNoKey(*command, pressed); !reason.isEmpty())
        told_->setText(name + ": " + reason);
    else if (user)
        askForOther(*command, *user, key);
    else
        give(*command, key);
}

void ShortcutDialog::askForOther(const Command& command, const Command& user, const QKeySequence& key) {
    wished_ = key;
    key_->setText(key.toString(QKeySequence::NativeText));
    told_->setText(
        tr("%1 is the key of \"%2\". Take it for \"%3\"?").arg(key_->text(), nameOf(user), nameOf(command)));
    take_->show();
}

void ShortcutDialog::give(const Command& command, const QKeySequence& key) {
    ChosenKeys keys = commands_.chosenKeys();
    put(keys, command, key);
    choose(keys, key.isEmpty() ? tr("It has no key now.")
                               : tr("It has the key %1 now.").arg(key.toString(QKeySequence::NativeText)));
}

void ShortcutDialog::takeFromOther() {
    const Command* command = current();
    const Command* user = commands_.userOf(wished_);
    if (!command || !user) return;
    ChosenKeys keys = commands_.chosenKeys();
    put(keys, *user, {});
    put(keys, *command, wished_);
    choose(keys, tr("\"%1\" has no key now.").arg(nameOf(*user)));
}

void ShortcutDialog::useDefault() {
    const Command* command = current();
    if (!command) return;
    const Command* user = commands_.userOf(command->shortcut);
    if (user && user != command) return askForOther(*command, *user, command->shortcut);
    give(*command, command->shortcut);
}

void ShortcutDialog::useAllDefaults() {
    choose({}, tr("Every command has its usual key again."));
}

void ShortcutDialog::choose(const ChosenKeys& keys, const QString& told) {
    before_ = commands_.chosenKeys();
    commands_.chooseKeys(keys);
    fill();
    told_->setText(told);
}

}  // namespace tavrin

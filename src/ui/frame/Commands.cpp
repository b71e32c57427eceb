#include "ui/frame/Commands.h"

#include <algorithm>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include "ui/frame/Icons.h"

namespace tavrin {

namespace {

// The menus as the tables name them.
[[maybe_unused]] constexpr const char* kMenus[] = {
    QT_TRANSLATE_NOOP("Menu", "&File"),    QT_TRANSLATE_NOOP("Menu", "&Edit"), QT_TRANSLATE_NOOP("Menu", "&View"),
    QT_TRANSLATE_NOOP("Menu", "&Picture"), QT_TRANSLATE_NOOP("Menu", "&Help"),
};

}  // namespace

Commands::Commands(QMainWindow& window, std::vector<Command> table)
    : QObject(&window), window_(window), table_(std::move(table)) {
    for (const Command& command : table_)
        add(command);
    window_.installEventFilter(this);
    showKeys();
    refresh();
}

QMenu* Commands::menuFor(const QString& title) {
    QMenu*& menu = menus_[title];
    if (!menu) {
        menu = window_.menuBar()->addMenu(QCoreApplication::translate("Menu", title.toUtf8()));
        menu->setToolTipsVisible(true);
        connect(menu, &QMenu::aboutToShow, this, &Commands::refresh);
    }
    return menu;
}

void Commands::add(const Command& command) {
    const QString title = command.menu;
    QMenu* menu = title.isEmpty() ? nullptr : menuFor(title.startsWith('|') ? title.mid(1) : title);
    if (title.startsWith('|')) menu->addSeparator();
    auto* action = new QAction(command.text, &window_);
    action->setObjectName(command.id);
    if (*command.icon) action->setIcon(lineIcon(command.icon));
    if (!command.toolTip.isEmpty()) action->setToolTip(command.toolTip);
    action->setCheckable(command.kind == Command::Kind::checked);
    if (command.kind == Command::Kind::held) {
        connect(action, &QAction::triggered, this, [this, run = command.run] {  // which nobody holds
            run(true);
            QTimer::singleShot(2000, this, [run] { run(false); });
        });
    } else {
        const auto run = command.run;
        if (action->isCheckable()) {
            connect(action, &QAction::toggled, this, [this, run](bool on) {
                if (!refreshing_) run(on);
            });
        } else {
            connect(action, &QAction::triggered, this, [run] { run(true); });
        }
    }
    if (menu) menu->addAction(action);
    if (command.kind == Command::Kind::onPicture) {
        action->setShortcutContext(Qt::WidgetShortcut);
        window_.findChild<QWidget*>("mainQLXView")->addAction(action);
    } else {
        window_.addAction(action);  // the shortcut holds also where the menu bar is hidden
    }
    actions_[command.id] = action;
}

QAction* Commands::action(const QString& id) const {
    const auto found = actions_.find(id);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* Commands::menu(const QString& title) const {
    const auto found = menus_.find(title);
    return found == menus_.end() ? nullptr : found->second;
}

void Commands::refresh() {
    refreshing_ = true;
    for (const Command& command : table_) {
        if (command.enabledWhen) action(command.id)->setEnabled(command.enabledWhen());
        if (command.checkedWhen) action(command.id)->setChecked(command.checkedWhen());
    }
    refreshing_ = false;
}

bool Commands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) {  // the release goes to another window
        for (const Command& command : table_)
            if (command.kind == Command::Kind::held) command.run(false);
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->isAutoRepeat() || key->modifiers() != Qt::NoModifier) return QObject::eventFilter(watched, event);
    for (const Command& command : table_) {
        if (command.kind != Command::Kind::held || keyOf(command) != QKeySequence(key->key())) continue;
        command.run(event->type() == QEvent::KeyPress);
        return true;
    }
    return false;
}

QKeySequence Commands::keyOf(const Command& command) const {
    if (const auto chosen = chosenKeys_.find(command.id); chosen != chosenKeys_.end()) return chosen->second;
    const bool isTaken = std::ranges::any_of(table_, [&](const Command& other) {
        const auto chosen = chosenKeys_.find(other.id);
        return chosen != chosenKeys_.end() && chosen->second == command.shortcut;
    });
    return isTaken ? QKeySequence() : command.shortcut;
}

const Command* Commands::userOf(const QKeySequence& key) const {
    const auto user = std::ranges::find_if(table_, [&](const Command& command) { return keyOf(command) == key; });
    return user == table_.end() || key.isEmpty() ? nullptr : &*user;
}

void Commands::chooseKeys(const ChosenKeys& keys) {
    chosenKeys_ = keys;
    keepKeys(keys);
    showKeys();
}

void Commands::showKeys() {
    for (const Command& command : table_) {
        const QKeySequence key = keyOf(command);
        // A shortcut knows no release; there the key stands for people to read.
        if (command.kind == Command::Kind::held)
            action(command.id)->setText(command.text + '\t' + key.toString(QKeySequence::NativeText));
        else
            action(command.id)->setShortcut(key);
    }
}

}  // namespace tavrin

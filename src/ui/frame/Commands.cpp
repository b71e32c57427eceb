#include "ui/frame/Commands.h"

#include <QCoreApplication>
#include <QDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

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
        // A shortcut knows no release; here the key stands for people to read.
        action->setText(command.text + '\t' + command.shortcut.toString(QKeySequence::NativeText));
        connect(action, &QAction::triggered, this, [this, run = command.run] {  // which nobody holds
            run(true);
            QTimer::singleShot(2000, this, [run] { run(false); });
        });
    } else {
        action->setShortcut(command.shortcut);
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
        if (command.kind != Command::Kind::held || command.shortcut != QKeySequence(key->key())) continue;
        command.run(event->type() == QEvent::KeyPress);
        return true;
    }
    return false;
}

void Commands::showShortcuts() {
    auto* dialog = new QDialog(&window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("shortcuts");
    dialog->setWindowTitle(tr("Keyboard Shortcuts"));
    auto* list = new QTableWidget(0, 2, dialog);
    list->setAccessibleName(dialog->windowTitle());
    list->setHorizontalHeaderLabels({tr("Shortcut"), tr("What it does")});
    list->horizontalHeader()->setStretchLastSection(true);
    list->verticalHeader()->hide();
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const auto line = [list](const QString& key, const QString& text) {
        const int row = list->rowCount();
        list->insertRow(row);
        list->setItem(row, 0, new QTableWidgetItem(key));
        list->setItem(row, 1, new QTableWidgetItem(QString(text).remove('&')));
    };
    for (const Command& command : table_)
        if (!command.shortcut.isEmpty()) line(command.shortcut.toString(QKeySequence::NativeText), command.text);
    line(tr("Arrows"), tr("Move a slider; with Shift finer, with Ctrl coarser"));
    line(tr("Delete"), tr("Put the default of a slider back"));
    line(tr("Arrows on the picture"), tr("Move what is shown; with Shift by a point"));
    line(tr("Arrows on the line between before and after"), tr("Move the line"));
    line(tr("Wheel"), tr("Zoom about the pointer"));
    line(tr("Left, Right"),
         tr("On the strip, or on a picture that is seen whole: open the portrait before, or the next one"));
    line(tr("Space or middle button"), tr("Hold and drag to move the picture"));
    list->resizeColumnToContents(0);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(list);
    dialog->resize(520, 560);
    dialog->show();
}

}  // namespace tavrin

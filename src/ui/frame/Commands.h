#pragma once

#include <map>
#include <vector>

#include <QAction>
#include <QObject>

#include "ui/bind/Command.h"

class QMainWindow;
class QMenu;

namespace tavrin {

/// The actions of a window, made from its table.
class Commands : public QObject {
    Q_OBJECT

  public:
    Commands(QMainWindow& window, std::vector<Command> table);

    const std::vector<Command>& table() const { return table_; }
    QAction* action(const QString& id) const;
    QMenu* menu(const QString& title) const;
    /// Looks anew which of them can be used now.
    void refresh();
    /// A dialog with every shortcut there is.
    void showShortcuts();

  protected:
    /// Keys that are held for as long as something lasts.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QMenu* menuFor(const QString& title);
    void add(const Command& command);

    QMainWindow& window_;
    const std::vector<Command> table_;
    std::map<QString, QMenu*> menus_;
    std::map<QString, QAction*> actions_;
    bool refreshing_ = false;
};

}  // namespace tavrin

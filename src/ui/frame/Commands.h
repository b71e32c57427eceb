#pragma once

#include <map>
#include <vector>

#include <QAction>
#include <QObject>

#include "ui/bind/Command.h"
#include "ui/frame/ChosenKeys.h"

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

    /// The key of a command: what a person chose for it, or what its table says while nobody chose that for another.
    QKeySequence keyOf(const Command& command) const;
    /// The command of a key, or null.
    const Command* userOf(const QKeySequence& key) const;
    /// Gives keys from now on and at every later start; an empty one takes a command's key away. No other command
    /// loses its chosen key by it.
    void chooseKeys(const ChosenKeys& keys);
    /// What a person chose, by names of commands.
    const ChosenKeys& chosenKeys() const { return chosenKeys_; }

  protected:
    /// Keys that are held for as long as something lasts.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QMenu* menuFor(const QString& title);
    void add(const Command& command);
    void showKeys();

    QMainWindow& window_;
    const std::vector<Command> table_;
    std::map<QString, QMenu*> menus_;
    std::map<QString, QAction*> actions_;
    ChosenKeys chosenKeys_ = keptKeys();
    bool refreshing_ = false;
};

}  // namespace tavrin

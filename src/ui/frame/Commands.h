#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QAction>
#include <QKeySequence>
#include <QObject>

class QMainWindow;
class QMenu;

namespace tavrin {

/// One thing that the window does by itself, without a control of a panel. Menus, tool bars, shortcuts and their list
/// in Help are made from a table of these.
struct Command {
    /// `held` lasts as long as its key is down; the key of `onPicture` means something else elsewhere.
    enum class Kind { plain, checked, held, onPicture };
    const char* id;    ///< name of the action
    const char* menu;  ///< title of its menu; a separator comes before it when it begins with '|'
    QString text, toolTip;
    const char* icon;  ///< name in the icon theme; "" for none
    QKeySequence shortcut;
    std::function<bool()> enabledWhen;  ///< empty: always
    /// `on` is the new state of a checked one, and whether the key of a held one is down.
    std::function<void(bool on)> run;
    Kind kind = Kind::plain;
    std::function<bool()> checkedWhen = {};  ///< for a checked one that shows something of the state
};

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

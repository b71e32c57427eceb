#pragma once

#include <functional>

#include <QKeySequence>
#include <QString>

namespace tavrin {

/// One thing that the window does by itself, without a control of a panel. Menus, tool bars, shortcuts and their list
/// in Help are made from a table of these.
struct Command {
    /// `held` lasts as long as its key is down; the key of `onPicture` means something else elsewhere.
    enum class Kind { plain, checked, held, onPicture };
    const char* id;  ///< name of the action
    /// Title of its menu; a separator comes before it when it begins with '|'. "" for a command that only its key and
    /// the search reach.
    const char* menu;
    QString text, toolTip;
    const char* icon;  ///< as `lineIcon` takes it; "" for none
    QKeySequence shortcut;
    std::function<bool()> enabledWhen;  ///< empty: always
    /// `on` is the new state of a checked one, and whether the key of a held one is down.
    std::function<void(bool on)> run;
    Kind kind = Kind::plain;
    std::function<bool()> checkedWhen = {};  ///< for a checked one that shows something of the state
};

}  // namespace tavrin

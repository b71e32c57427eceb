#pragma once

#include <string>
#include <vector>

#include <QString>

#include "session/SettingEditor.h"
#include "ui/bind/Mapping.h"

namespace tavrin {

/// Whose setting a control drives. `active` is the layer that the panels edit (`iActiveBitmap`), `item` the text or
/// picture item that is selected (`iSelectedFontObject`).
enum class Owner { state, active, combined, item };

/// What a change of a control is called, and what it does besides writing the setting.
struct Handler {
    const char* name;
    /// @param owner what the names of the owner's settings begin with, such as "foreground."
    void (*then)(SettingEditor& editor, const std::string& owner) = nullptr;
    /// Whether a change asks for a picture; null: always.
    bool (*asksWhen)(const SystemInfo& info) = nullptr;
};

/// One of a few values to choose from, a button.
struct Choice {
    const char* control;  ///< name of the button
    const char* key;      ///< its key equivalent
    double value;         ///< of the setting
    const char* label;
};

/// A control that drives one setting. Texts are translated in the context "Panel". What must be made anew follows
/// from the setting (ChangeFlags.h).
struct Binding {
    const char* control;  ///< name of the control, for which people search
    const Handler* handler;
    Owner owner;
    const char* setting;  ///< key of its leaf
    const Mapping* mapping;
    double minimum, maximum;  ///< of the control
    double reset;             ///< of the setting
    const char *label, *toolTip;
    std::vector<Choice> choices = {};
    bool (*enabledWhen)(const SystemInfo& info) = nullptr;  ///< null: always
};

/// A setting that switches something on, with its value for off.
struct OnSetting {
    const char* setting;
    const char* off = "0";
};

/// What a group of controls is beyond them: a panel that is opened and closed, and an effect on the picture at hand.
struct PanelActs {
    const char* openAndClose;  ///< names of these operations
    const char* update;        ///< name of the operation that shows the settings
    std::vector<OnSetting> switches;
    QString (*word)(const SystemInfo& info) = nullptr;  ///< what is on; null: the choice in force of a switch
    void (*closed)(SettingEditor& editor) = nullptr;    ///< what closing does besides
};

/// Controls that belong together and fold away together.
struct BindingGroup {
    const char* name;
    const char* title;
    const Handler* reset;  ///< null: the group has no reset
    std::vector<Binding> bindings;
    bool foldedAtFirst = false;
    const PanelActs* acts = nullptr;
};

inline std::string ownerPrefix(const SystemInfo& info, Owner owner) {
    if (owner == Owner::state) return "";
    if (owner == Owner::combined) return "combined.";
    if (owner == Owner::item) return "text" + std::to_string(info.iSelectedFontObject) + '.';
    return info.iActiveBitmap == 0 ? "foreground." : "background.";
}

}  // namespace tavrin

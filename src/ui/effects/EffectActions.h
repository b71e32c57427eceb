#pragma once

#include <string>
#include <vector>

#include "ui/bind/Binder.h"

namespace tavrin {

/// What a button of an effect group does that is no plain binding: it starts an effect by writing several settings,
/// as one step. Texts are translated in the context "Panel".
struct EffectAction {
    const char* control;  ///< name of its button
    const char* handler;
    const char *label, *toolTip;
    std::vector<std::string> settings;  ///< all that it writes
    void (*write)(SystemInfo& info);
};

/// The buttons of a row above the controls of a group.
struct EffectActionRow {
    const char* group;  ///< name of the group
    const char* name;   ///< of the row
    std::vector<EffectAction> actions;
};

const std::vector<EffectActionRow>& effectActions();

/// Does it, as one step with a new picture.
void runEffectAction(Binder& binder, const EffectAction& action);

}  // namespace tavrin

#pragma once

#include <functional>

#include <QString>

#include "session/SettingEditor.h"
#include "ui/HeldLoop.h"

namespace tavrin {

/// A change of the lists of sizes and pages.
struct ListStep {
    QString label;                                     ///< what is done, in the user's words
    std::function<std::string()> work;                 ///< returns what is wrong with keeping the list, or ""
    std::function<void(const std::string&)> finished;  ///< takes that, also when it was taken back or done again
};

/// Changes the lists while nobody else walks them, as one step of undo. The loop outlives the history.
void changeLists(SettingEditor& editor, HeldLoop& loop, ListStep step);

}  // namespace tavrin

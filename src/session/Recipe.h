#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "formats/ImageState.h"
#include "session/SettingEditor.h"

namespace tavrin {

/// Settings by name with their values, as `listFields` has them; and `iFontObjectCount`, the length of the list of
/// text and picture items, where they speak of it.
using SettingValues = std::vector<std::pair<std::string, std::string>>;

/// How a picture is made, with its files, and by which steps it came to that.
struct Recipe {
    SettingValues settings;
    SettingEditor::History history;
    /// Looks that were pasted while another portrait was shown: each becomes a step when this one is opened.
    std::vector<std::pair<std::string, SettingValues>> pasted;
    std::string edits = {};  ///< strokes of the airbrush, as the text of a file of edits; "" without any

    std::string portrait() const;  ///< its file, "" when the recipe does not say
};

/// The output size that settings tell.
StoredSize sizeIn(const SettingValues& settings);

/// Everything that a state holds.
SettingValues settingsOf(const SystemInfo& info);

/// The present recipe, for the thread on which the editor lives, while no job replaces the list of items.
Recipe presentRecipe(const SettingEditor& editor);

/// Gives the state these settings and raises the flags that follow; settings that are not among them stay. The list
/// of text and picture items becomes as long as `iFontObjectCount` says, so call it on the loop's thread. What the
/// pass finds out about a file is left to it, and the output size is chosen as a state file's is.
/// @return "" or one line for what could not be taken; all the rest was
std::string useSettings(SystemInfo& info, const SettingValues& settings);

/// A recipe as the bytes of a file, and back. What steps did elsewhere is not in it.
std::string bytesOf(const Recipe& recipe);
std::optional<Recipe> recipeOf(const std::string& bytes);

}  // namespace tavrin

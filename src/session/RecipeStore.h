#pragma once

#include <optional>
#include <string>

#include "session/Recipe.h"

namespace tavrin {

// The recipes of portraits, in the account: a file for each portrait that somebody worked on. A portrait is known by
// its path, size and time of change, so another picture under an old name is a new portrait.

/// The file that holds, or would hold, the recipe of a portrait; "" when there is no such portrait.
std::string recipeFile(const std::string& portrait);

/// Nothing when there is none. A damaged one is set aside.
std::optional<Recipe> loadRecipe(const std::string& portrait);

/// @return "" when done; otherwise one line, and the old recipe stays
std::string saveRecipe(const std::string& portrait, const Recipe& recipe);

/// Removes the oldest recipes beyond a number.
void pruneRecipes(std::size_t most = 5000);

/// Writes a whole file or leaves the old one, and makes its folder when it is missing.
/// @return "" when done; otherwise one line
std::string writeWhole(const std::string& path, const std::string& bytes);

/// Recipes and looks are never longer.
inline constexpr std::size_t kMostBytes = std::size_t{64} << 20;

/// Reads a recipe's file; a damaged one is set aside, and the log is told.
std::optional<Recipe> readRecipeFile(const std::string& path);

}  // namespace tavrin

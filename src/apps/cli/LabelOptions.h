#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin::cli {

// What --title and --note write besides their texts. A setting of the label by name always wins.

/// A note that nobody has styled is legible: white with a shadow on dark ground and black on light.
void styleNote(SystemInfo& info, const std::string& text, const std::vector<std::string>& set);

/// A title becomes smaller until it fits the picture's width, unless its size was asked for.
/// @param points the size that was asked for; 0: none was
/// @param inches width of the picture
void fitTitle(SystemInfo& info, int points, const std::vector<std::string>& set, double inches);

}  // namespace tavrin::cli

#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavrin {

class SystemInfo;
struct FontObject;

// Settings by name, for the command line. A setting of the central state has its own name; one of an object has that
// object's name and a full stop before it:
//   foreground. background. combined.      the three records
//   label0. label1. label2.                the built-in labels
//   text0. text1. ...                      the items of the text and picture list; the first that isn't there yet
//                                          is added by setting one of its fields
//   texture. reflectionTexture.            texture of the picture and of the reflection
//   frame. frameOverlay.                   the frames, and frame.texture. frameOverlay.texture. inside them

/// The length of the list of text and picture items, 0 to 200: a setting like the others, but in no list of them.
inline constexpr const char* kItemCount = "iFontObjectCount";

/// Gives a setting a new value. Integers and decimals are written the C way whatever the locale; a boolean is one of
/// 0 1 true false yes no on off.
/// @return "" when done; otherwise one plain line that names the field and what it takes, and nothing is changed
std::string setField(SystemInfo& info, const std::string& name, const std::string& value);

/// Every setting with its value, in the order of the state file; the ones that the file does not hold included. What
/// stands there is what `setField` takes: decimals have as many digits as they need.
std::vector<std::pair<std::string, std::string>> listFields(const SystemInfo& info);

/// The settings of one item or label, likewise, by their names behind the full stop.
std::vector<std::pair<std::string, std::string>> listFields(const FontObject& item);

/// The value of one setting, as `listFields` has it; nothing when there is no such setting.
std::optional<std::string> fieldValue(const SystemInfo& info, const std::string& name);

}  // namespace tavrin

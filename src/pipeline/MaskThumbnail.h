#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Saves a small picture of the mask (black is the subject) beside a result: "Thumbs/TQTQ" and its name in its
/// folder, of the same type. The preview of the combined picture is as before afterwards. For the loop's thread.
/// @param picture path of the result
/// @return false after an alert with the reason
bool saveMaskThumbnail(SystemInfo& info, const std::string& picture, int theFileType);

}  // namespace tavrin

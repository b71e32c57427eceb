#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What is said where `whyNoFonts` has a reason.
inline constexpr const char* kTextMissing = "The text cannot be drawn";

/// "", or why text cannot be laid out: that needs a QGuiApplication and a font.
std::string whyNoFonts();

/// "", or the family that is drawn where text asks for one that is not there. A font with the measures of the usual
/// one counts as that.
std::string fontInsteadOf(const std::string& family);

/// Whether text can be laid out. Where it cannot, the pass under work fails, so that no picture goes out without its
/// text; the first such call shows an alert of `info`.
bool canDrawText(SystemInfo& info);

}  // namespace tavrin

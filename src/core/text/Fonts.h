#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What is said where `whyNoFonts` has a reason.
inline constexpr const char* kTextMissing = "The text cannot be drawn";

/// "", or why text cannot be laid out: that needs a QGuiApplication and a font.
std::string whyNoFonts();

/// Whether text can be laid out. The first call that finds it cannot shows an alert of `info`.
bool canDrawText(SystemInfo& info);

}  // namespace tavrin

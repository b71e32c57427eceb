#pragma once

#include <string>

namespace tavrin {

/// What a printer or a job reports, in plain words: keywords with commas between them ("media-empty-error,
/// marker-supply-low-warning"). Only what can keep it from printing; empty where nothing does.
/// @param warnings whether those count that need not stop it: one empty tray of two
std::string wordsOf(const std::string& keywords, bool warnings);

/// What a printer says of itself, if that is trouble and not the course of its work; else "".
std::string troubleIn(const std::string& message);

}  // namespace tavrin

#pragma once

#include <string>

namespace tavrin {

/// What a printer or a job reports, in plain words: keywords with commas between them ("media-empty-error,
/// marker-supply-low-warning"). Only what keeps it from printing; empty where nothing does.
std::string wordsOf(const std::string& keywords);

}  // namespace tavrin

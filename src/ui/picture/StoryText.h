#pragma once

#include <vector>

#include <QString>

#include "pipeline/PixelStory.h"

namespace tavrin {

/// A line of a pixel's story: what it is about, what there is to say, and a colour to show beside it.
struct StoryLine {
    QString title, text;
    std::optional<Rgb> color = std::nullopt;  ///< 0 to 255
};

/// A pixel's story in a photographer's words, from the portrait to the result. Every number is the engine's.
std::vector<StoryLine> storyLines(const PixelStory& story);

/// One line for the status line: place, colour, alpha and the spill that was taken away.
QString readOut(const PixelStory& story);

}  // namespace tavrin

#pragma once

#include <QImage>

namespace tavrin {

/// Lines along the sides of a source that break off from the screen beside them, in pixels of the source: what
/// sharpening, a crop or a scanner left there. Up to
/// 0.8 percent of the longer side, and 0 where a side has none or shows little of the screen.
struct SourceRim {
    int left = 0, top = 0, right = 0, bottom = 0;
};

/// @param source RGBA
/// @param blue the screen is blue
SourceRim findRim(const QImage& source, bool blue);

}  // namespace tavrin

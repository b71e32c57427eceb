#pragma once

#include <QImage>
#include <QRectF>

namespace tavrin {

/// Draws a picture reduced, or as large as it is, over another of four bytes a pixel: each pixel becomes the mean of
/// the area that it stands for, with pixels at that area's borders counted by the share that lies inside. What the
/// picture covers in part keeps as much of what was there. Colours are averaged as they stand, so they should be
/// opaque, or multiplied by their alpha and on whole pixels. Rows go to all cores; the result is the same on every
/// machine.
/// @param place where the whole picture goes, in pixels of `onto`, at most as large as the picture; what lies beyond
///        `onto` is left out
void drawReduced(const QImage& picture, const QRectF& place, QImage& onto);

}  // namespace tavrin

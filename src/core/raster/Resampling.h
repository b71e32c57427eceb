#pragma once

#include <QImage>
#include <QRectF>

#include "core/raster/Rows.h"

namespace tavrin {

/// Draws a picture at any size over another of four bytes a pixel. Where it is reduced each pixel becomes the mean of
/// the area that it stands for, with pixels at that area's borders counted by the share that lies inside; where it is
/// enlarged it is interpolated between the two nearest pixels; along and down by themselves. What the picture covers
/// in part keeps as much of what was there. Colours are averaged as they stand, so they should be opaque, or
/// multiplied by their alpha and on whole pixels. Rows go to all cores; the result is the same on every machine.
/// @param place where the whole picture goes, in pixels of `onto`; what lies beyond `onto` is left out
/// @return false when the run was superseded, so that some rows are missing
bool drawResampled(const QImage& picture, const QRectF& place, QImage& onto, const RunContext& run = {});

}  // namespace tavrin

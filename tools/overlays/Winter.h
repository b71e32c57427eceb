#pragma once

#include <QImage>

namespace tavrin::overlays {

/// Frost that grows in from the edges, with large crystals in two corners.
QImage drawWinterFrame();
/// Snow in front of the subject, mostly beside it.
QImage drawWinterSnow();
/// Snow far behind, out of focus.
QImage drawWinterHaze();

}  // namespace tavrin::overlays

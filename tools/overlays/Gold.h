#pragma once

#include <QImage>

namespace tavrin::overlays {

/// A double golden line along the edge with a scroll in each corner.
QImage drawGoldFrame();

}  // namespace tavrin::overlays

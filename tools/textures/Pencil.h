#pragma once

#include <QImage>

namespace tavrin::textures {

/// Graphite strokes on white paper, as a hand shades a dark area: one diagonal direction.
QImage drawPencilDense();
/// The same with a second layer of strokes crossing the first, for the darkest areas.
QImage drawPencilDenseCross();

}  // namespace tavrin::textures

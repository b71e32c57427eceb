#pragma once

#include <QImage>

namespace tavrin::textures {

/// Grey reliefs around middle grey, lit from above and a little from the left; opposite edges fit together.
QImage weaveCanvas();
/// A finer cloth of uneven threads.
QImage weaveLinen();
/// The grain of cold-pressed paper.
QImage pressPaper();

}  // namespace tavrin::textures

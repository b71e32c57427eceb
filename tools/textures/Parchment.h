#pragma once

#include <QImage>

namespace tavrin::textures {

/// A sheet of light, warm parchment: soft blotches, fibres, darker towards the edges.
QImage paintParchment();

}  // namespace tavrin::textures

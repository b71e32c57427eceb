#pragma once

#include <QImage>

namespace tavrin::textures {

/// Icons for the corners of a selected text, 64 x 64 with a transparent ground. They can be drawn with their alpha or
/// as plain points wherever it isn't 0: a pixel that is less than half covered is left out altogether.
QImage drawEditIcon();
QImage drawDeleteIcon();

}  // namespace tavrin::textures

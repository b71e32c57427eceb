#pragma once

#include <QImage>

namespace tavrin::overlays {

/// A navy and gold edge with a ribbon and a graduation cap in the lower left corner.
QImage drawGraduationFrame();
/// Small golden stars falling at the sides and the top.
QImage drawGraduationStars();
/// Warm lights out of focus, for the background.
QImage drawGraduationLights();

}  // namespace tavrin::overlays

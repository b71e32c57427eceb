#pragma once

#include <QImage>

namespace tavrin::sample {

/// Hills and a lake in evening light, out of focus, as a picture to put a portrait on.
QImage paintLandscape(int width, int height);

}  // namespace tavrin::sample

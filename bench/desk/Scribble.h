#pragma once

#include "desk/StripFigures.h"

namespace tavrin::bench {

/// A hand that scribbles with a tool at 60 moves a second, whatever the window does meanwhile: how long each move
/// waits for the paint that shows it.
void measureScribble(const Desk& desk, int brush, double seconds);

}  // namespace tavrin::bench

#pragma once

#include "desk/StripFigures.h"

namespace tavrin::bench {

/// From the command to the page on the disk: the gallery of twelve adjustments of the present portrait, five times.
void measureGallery(const Desk& desk);

}  // namespace tavrin::bench

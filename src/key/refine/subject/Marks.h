#pragma once

#include "key/refine/subject/Core.h"

namespace tavrin::refine {

/// Small things on the screen that are no subject: marks for a camera's tracking, specks, spots of light. They have
/// the screen's hue in some light, and bare screen lies all around them.
/// @param open the pixels that are neither inside nor surely screen
/// @return those of `open` that belong to one
Mask findMarks(const RunContext& context, const Shot& shot, const Plate& plate, const Core& core, const Mask& open);

}  // namespace tavrin::refine

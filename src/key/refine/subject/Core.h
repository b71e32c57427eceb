#pragma once

#include "key/refine/screen/Plate.h"

namespace tavrin::refine {

/// What is known for sure of the subject before its colours are.
struct Core {
    Mask solid;  ///< the inside: nothing of the screen shows through
    Mask sure;   ///< good samples of the subject's colours, the inside among them
    Mask deep;   ///< far from any bare screen and not surely inside: there alone the key is asked
    Mask keyed;  ///< what the key has of that
};

/// Solid is what lies well inside the simple alpha, as far as that goes in the inside around; parts far from any bare
/// screen whose colour no shade of it has (cloth near the screen's hue) and the plate's cloth; and the gaps of these
/// that hold no screen.
Core findCore(const RunContext& context, const Shot& shot, const Plate& plate);

/// Whether another key of the same picture, with the same plate, has the same core.
bool isStill(const Core& core, const RunContext& context, const Shot& shot);

}  // namespace tavrin::refine

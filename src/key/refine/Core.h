#pragma once

#include "key/refine/Plate.h"

namespace tavrin::refine {

/// What is known for sure of the subject before its colours are.
struct Core {
    Mask solid;  ///< the inside: nothing of the screen shows through
    Mask sure;   ///< good samples of the subject's colours, the inside among them
};

/// Solid is what lies well inside the simple alpha; calm parts far from any bare screen whose colour no shade of it
/// has (cloth near the screen's hue); and the gaps of these that hold no screen.
Core findCore(const RunContext& context, const Shot& shot, const Plate& plate);

}  // namespace tavrin::refine

#pragma once

#include "key/refine/subject/Core.h"

namespace tavrin::refine {

/// The screen's pixels that fine hair, a veil or a blur dims although the key has nothing there: beside the plate of
/// the screen farther away, their colour goes towards that of the subject nearby, and no light does that. A plate
/// made of them would take the subject's tint for the screen's own.
Mask hazyScreen(const RunContext& context, const Shot& shot, const Plate& plate, const Core& core);

}  // namespace tavrin::refine

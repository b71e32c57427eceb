#pragma once

#include "key/refine/subject/FitAlpha.h"

namespace tavrin::refine {

/// How far the fitted alpha strays from its mean around on bare screen beside the subject, as a deviation. There a
/// JPEG file has noise that it has nowhere else on its screen, and alpha cannot be less than nothing: what the fit
/// has below that tells the noise, whatever hair there is.
/// @param open the pixels to look at; where there are many, a sample of them
float noiseBesideSubject(const RunContext& context, const Shot& shot, const Plate& plate,
                         const Separation& separation, const Mask& open);

}  // namespace tavrin::refine

#pragma once

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/Mask.h"
#include "key/refine/screen/Plate.h"

namespace tavrin::refine {

/// What pixels are told by: the least alpha that any subject may have there, and how it compares with a limit
/// (`above` or `below` of `rowLoops`).
struct CoverRule {
    void (*compare)(const float* values, float limit, int count, std::uint8_t* flags);
    float limit;
};

/// Writes which pixels of an area are so, by their colour over the plate's in whatever light.
void maskByCover(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area,
                 const CoverRule& rule, Mask& mask);

}  // namespace tavrin::refine

#pragma once

#include "key/refine/grid/Mask.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// Which pixels of a finished matte have anything, and which of these have so much that they are no noise.
struct Traces {
    Mask any, clear;

    explicit Traces(const Mask& solid) : any(solid), clear(solid) {}
    /// Notes `count` RGBA pixels of row `y` from the column `left` on, a multiple of 8. Different rows may be noted
    /// at the same time.
    /// @param scratch room for `2 * (count + 8)`
    void note(int y, int left, int count, const std::uint32_t* pixels, std::uint8_t* scratch);
};

/// Clears the faint islands of a few pixels, which are noise: a hair is longer, and what is a thing has something
/// clear.
/// @param result RGBA, rows packed: what `traces` were noted of
/// @return false when the run was superseded
bool clearSpecks(const RunContext& context, const Shot& shot, const Traces& traces, std::uint8_t* result);

}  // namespace tavrin::refine

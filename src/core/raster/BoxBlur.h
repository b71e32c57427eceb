#pragma once

#include <cstdint>

#include "core/raster/Rows.h"

namespace tavrin {

/// A Gaussian blur approximated by three box blurs of one radius `r` in pixels (P. Kovesi, "Fast almost-Gaussian
/// filtering", 2010; here all three passes have the radius that is given). Near the border the window shrinks to
/// what exists; nothing is replicated or wrapped. The cost does not depend on the radius. A negative radius counts
/// as 0, a radius beyond the line takes the mean of the whole line.
///
/// All buffers hold `w` * `h` elements, rows packed, and `src` and `dst` must not overlap; `src` is overwritten. A
/// size below 1 or a null buffer makes a call do nothing. All return false when the run was superseded, and both
/// buffers are in between.

/// RGBA bytes; alpha is carried along.
bool gaussBlur_4(const RunContext& run, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);
/// 32-bit integers: masks and maps. Every row's run keeps inside its row.
bool gaussBlur_Int(const RunContext& run, std::int32_t* src, std::int32_t* dst, int w, int h, int r);
/// One box blur of the three: the rows of `src` in place, then the columns from `src` to `dst`.
bool boxBlur_Int(const RunContext& run, std::int32_t* src, std::int32_t* dst, int w, int h, int r);

}  // namespace tavrin

#pragma once

#include <cstdint>

#include "core/raster/Rows.h"

namespace tavrin {

class SystemInfo;

/// A Gaussian blur approximated by three box blurs of one radius `r` in pixels (P. Kovesi, "Fast almost-Gaussian
/// filtering", 2010; here all three passes have the radius that is given). Near the border the window shrinks to
/// what exists; nothing is replicated or wrapped. The cost does not depend on the radius. A negative radius counts
/// as 0, a radius beyond the line takes the mean of the whole line.
///
/// All buffers hold `w` * `h` elements, rows packed, and `src` and `dst` must not overlap. A size below 1 or a null
/// buffer makes a call do nothing.

/// For RGBA bytes and for 32-bit integers, for who throws away what is not finished.
/// @return false when the run was superseded, and both buffers are in between
bool gaussBlur_4(const RunContext& run, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);
bool gaussBlur_Int(const RunContext& run, std::int32_t* src, std::int32_t* dst, int w, int h, int r);

/// RGBA bytes. The result is in `dst`, `src` is overwritten. Alpha is carried along. `info` is not read: these
/// always finish.
void gaussBlur_4(const SystemInfo* info, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);
/// One box blur: blurs the rows of `src` in place, and the columns from `src` to `dst`.
void boxBlur_4(const SystemInfo* info, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);
/// One direction, rows (H) or columns (T); bytes 0 to 2 are written, the alpha of `dst` stays.
void boxBlurH_4(const SystemInfo* info, const std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);
void boxBlurT_4(const SystemInfo* info, const std::uint8_t* src, std::uint8_t* dst, int w, int h, int r);

/// 32-bit integers, the masks of the skin stages; same shape. With `info` given, and unless its
/// `bLightingForceCompute` is set, a stale state stops them within a few lines and the buffers hold a partial result.
/// Every row's run keeps inside its row.
void gaussBlur_Int(const SystemInfo* info, std::int32_t* src, std::int32_t* dst, int w, int h, int r);
void boxBlur_Int(const SystemInfo* info, std::int32_t* src, std::int32_t* dst, int w, int h, int r);
void boxBlurH_Int(const SystemInfo* info, const std::int32_t* src, std::int32_t* dst, int w, int h, int r);
void boxBlurT_Int(const SystemInfo* info, const std::int32_t* src, std::int32_t* dst, int w, int h, int r);

}  // namespace tavrin

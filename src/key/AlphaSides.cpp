#include "key/AlphaSides.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "core/raster/Pixels.h"

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/AlphaSides.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR
void sidesOf(const std::uint8_t* pixels, int level, AlphaSides& sides) {
    sides = {};
    for (int i = 0; i < kSidesPixels; ++i) {
        const int alpha = pixels[i * kPixelBytes + 3];
        sides.below |= static_cast<std::uint64_t>(alpha < level) << i;
        sides.above |= static_cast<std::uint64_t>(alpha > level) << i;
    }
}
#else
// The lanes' answers are stored as bits, the first lane's in the lowest bit of the first byte.
static_assert(std::endian::native == std::endian::little);

void sidesOf(const std::uint8_t* pixels, int level, AlphaSides& sides) {
    const HWY_CAPPED(std::uint8_t, kSidesPixels) d;
    const auto same = hn::Set(d, static_cast<std::uint8_t>(level));
    auto* below = reinterpret_cast<std::uint8_t*>(&sides.below);
    auto* above = reinterpret_cast<std::uint8_t*>(&sides.above);
    for (std::size_t i = 0; i < kSidesPixels; i += hn::Lanes(d)) {
        auto red = hn::Undefined(d), green = red, blue = red, alpha = red;
        hn::LoadInterleaved4(d, pixels + i * kPixelBytes, red, green, blue, alpha);
        hn::StoreMaskBits(d, hn::Lt(alpha, same), below + i / 8);
        hn::StoreMaskBits(d, hn::Gt(alpha, same), above + i / 8);
    }
}
#endif

void findSides(const std::uint8_t* pixels, int width, int level, AlphaSides* sides, std::size_t step) {
    int left = width;
    for (; left >= kSidesPixels; left -= kSidesPixels, sides += step) {
        sidesOf(pixels, level, *sides);
        pixels += kSidesPixels * kPixelBytes;
    }
    if (left == 0) return;
    std::uint8_t last[kSidesPixels * kPixelBytes];
    std::fill(std::begin(last), std::end(last), static_cast<std::uint8_t>(level));
    std::memcpy(last, pixels, static_cast<std::size_t>(left) * kPixelBytes);
    sidesOf(last, level, *sides);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(findSides);

void findAlphaSides(const std::uint8_t* pixels, int width, int level, AlphaSides* sides, std::size_t step) {
    HWY_DYNAMIC_DISPATCH(findSides)(pixels, width, level, sides, step);
}

}  // namespace tavrin
#endif

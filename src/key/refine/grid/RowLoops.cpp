#include "key/refine/grid/RowLoops.h"

#include <algorithm>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/refine/grid/RowLoops.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

namespace {

float channel(std::uint32_t pixel, int bits) {
    return static_cast<float>(static_cast<std::int32_t>(pixel >> bits & 255));
}

void loadColors(const std::uint32_t* HWY_RESTRICT pixels, int count, bool blue, float* HWY_RESTRICT r,
                float* HWY_RESTRICT g, float* HWY_RESTRICT b) {
    const int greenBits = blue ? 16 : 8, blueBits = blue ? 8 : 16;
    for (int x = 0; x < count; ++x) {
        r[x] = channel(pixels[x], 0);
        g[x] = channel(pixels[x], greenBits);
        b[x] = channel(pixels[x], blueBits);
    }
}

void loadLuma(const std::uint32_t* HWY_RESTRICT pixels, int count, float* HWY_RESTRICT luma) {
    for (int x = 0; x < count; ++x) {
        const std::uint32_t red = pixels[x] & 255, green = pixels[x] >> 8 & 255, blue = pixels[x] >> 16 & 255;
        luma[x] =
            static_cast<float>(static_cast<std::int32_t>((red * 4899 + green * 9617 + blue * 1868 + 8192) >> 14));
    }
}

void seeds(const std::uint32_t* HWY_RESTRICT pixels, const std::uint8_t* HWY_RESTRICT key, int count, bool blue,
           int usual, std::uint8_t* HWY_RESTRICT flags) {
    const int greenBits = blue ? 16 : 8, blueBits = blue ? 8 : 16;
    for (int x = 0; x < count; ++x) {
        const auto at = [&](int bits) { return static_cast<std::int32_t>(pixels[x] >> bits & 255); };
        const std::int32_t lead = at(greenBits) - std::max(at(0), at(blueBits));
        flags[x] = static_cast<std::uint8_t>((key[x] == 0) & (2 * lead > usual));
    }
}

void mix(const float* HWY_RESTRICT a, const float* HWY_RESTRICT b, float share, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] = a[x] + (b[x] - a[x]) * share;
}

// Several small cells to a vector, or several vectors to a cell; what a cell has too many the next one writes over.
void spread(const float* values, const float* shares, int size, int count, float* to) {
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::CappedTag<float, refine::kSpreadBeyond> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    if (lanes % size == 0) {
        std::int32_t cells[refine::kSpreadBeyond];
        float steps[refine::kSpreadBeyond];
        for (int i = 0; i < lanes; ++i) {
            cells[i] = i / size;
            steps[i] = shares[i % size];
        }
        const auto places = hn::SetTableIndices(d, cells);
        const auto share = hn::LoadU(d, steps);
        for (int c = 0; c < count; c += lanes / size, to += lanes) {
            const auto from = hn::LoadU(d, values + c), next = hn::LoadU(d, values + c + 1);
            const auto step = hn::TableLookupLanes(hn::Sub(next, from), places);
            hn::StoreU(hn::Add(hn::TableLookupLanes(from, places), hn::Mul(step, share)), d, to);
        }
        return;
    }
    for (int c = 0; c < count; ++c, to += size) {
        const auto from = hn::Set(d, values[c]), step = hn::Set(d, values[c + 1] - values[c]);
        for (int i = 0; i < size; i += lanes)
            hn::StoreU(hn::Add(from, hn::Mul(step, hn::LoadU(d, shares + i))), d, to + i);
    }
}

void addLead(const std::uint32_t* HWY_RESTRICT pixels, const float* HWY_RESTRICT weight, int count, bool blue,
             float* HWY_RESTRICT leads, float* HWY_RESTRICT weights) {
    const int greenBits = blue ? 16 : 8, blueBits = blue ? 8 : 16;
    for (int x = 0; x < count; ++x) {
        const float others = channel(pixels[x], 0) + channel(pixels[x], blueBits);
        leads[x] += weight[x] * std::max(channel(pixels[x], greenBits) - others * 0.5f, 0.0f);
        weights[x] += weight[x];
    }
}

void above(const float* HWY_RESTRICT values, float limit, int count, std::uint8_t* HWY_RESTRICT flags) {
    for (int x = 0; x < count; ++x)
        flags[x] = static_cast<std::uint8_t>(values[x] > limit);
}

void below(const float* HWY_RESTRICT values, float limit, int count, std::uint8_t* HWY_RESTRICT flags) {
    for (int x = 0; x < count; ++x)
        flags[x] = static_cast<std::uint8_t>(values[x] < limit);
}

void atMost(const std::uint8_t* values, std::uint8_t most, int count, std::uint64_t* bits) {
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::ScalableTag<std::uint8_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    int x = 0;
    if (lanes % 8 == 0) {
        auto* const to = reinterpret_cast<std::uint8_t*>(bits);
        const auto limit = hn::Set(d, most);
        for (; x + lanes <= count; x += lanes) {
            const auto value = hn::LoadU(d, values + x);
            hn::StoreMaskBits(d, hn::Eq(hn::Min(value, limit), value), to + x / 8);
        }
    }
    for (; x < count; ++x) {
        const std::uint64_t bit = std::uint64_t{1} << (x % 64);
        bits[x / 64] = values[x] <= most ? bits[x / 64] | bit : bits[x / 64] & ~bit;
    }
}

// Joined to itself in steps that double, until it spans the window.
void joinRange(int r, int count, float* least, float* greatest) {
    int have = 1;
    while (have < 2 * r + 1) {
        const int step = std::min(have, 2 * r + 1 - have), end = count - (have + step - 1);
        for (int x = 0; x < end; ++x)
            least[x] = std::min(least[x], least[x + step]);
        for (int x = 0; x < end; ++x)
            greatest[x] = std::max(greatest[x], greatest[x + step]);
        have += step;
    }
}

void windowRange(const float* const* rows, int r, int count, float* least, float* greatest) {
    const int all = count + 2 * r;
    float *const HWY_RESTRICT low = least - r, *const HWY_RESTRICT high = greatest - r;
    std::copy_n(rows[0] - r, all, low);
    std::copy_n(low, all, high);
    for (int i = 1; i <= 2 * r; ++i) {
        const float* const HWY_RESTRICT row = rows[i] - r;
        for (int x = 0; x < all; ++x) {
            low[x] = std::min(low[x], row[x]);
            high[x] = std::max(high[x], row[x]);
        }
    }
    joinRange(r, all, low, high);
}

}  // namespace

const refine::RowLoops& rowLoopsHere() {
    static constexpr refine::RowLoops loops{&loadColors, &loadLuma, &seeds, &mix,    &spread,
                                            &addLead,    &above,    &below, &atMost, &windowRange};
    return loops;
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin::refine {

HWY_EXPORT(rowLoopsHere);

const RowLoops& rowLoops() {
    return HWY_DYNAMIC_DISPATCH(rowLoopsHere)();
}

}  // namespace tavrin::refine
#endif

#include "key/refine/RowLoops.h"

#include <algorithm>
#include <bit>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/refine/RowLoops.cpp"
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

void spread(const float* HWY_RESTRICT values, const float* HWY_RESTRICT shares, int size, int count,
            float* HWY_RESTRICT to) {
    for (int c = 0; c < count; ++c, to += size) {
        const float from = values[c], step = values[c + 1] - from;
        for (int i = 0; i < size; i += 4) {
            for (int k = 0; k < 4; ++k)
                to[i + k] = from + step * shares[i + k];
        }
    }
}

// Rows, then columns, each in order.
void boxSums(const float* const* rows, int r, int count, float* HWY_RESTRICT columns, float* HWY_RESTRICT sums) {
    const int all = count + 2 * r;
    float* const HWY_RESTRICT first = columns - r;
    if (r == 1) {
        const float *const HWY_RESTRICT a = rows[0] - r, *const HWY_RESTRICT b = rows[1] - r,
                                        *const HWY_RESTRICT c = rows[2] - r;
        for (int x = 0; x < all; ++x)
            first[x] = (a[x] + b[x]) + c[x];
    } else {
        const float *const HWY_RESTRICT a = rows[0] - r, *const HWY_RESTRICT b = rows[1] - r;
        for (int x = 0; x < all; ++x)
            first[x] = a[x] + b[x];
        for (int i = 2; i <= 2 * r - 1; i += 2) {
            const float *const HWY_RESTRICT c = rows[i] - r, *const HWY_RESTRICT d = rows[i + 1] - r;
            for (int x = 0; x < all; ++x)
                first[x] = (first[x] + c[x]) + d[x];
        }
        const float* const HWY_RESTRICT last = rows[2 * r] - r;
        for (int x = 0; x < all; ++x)
            first[x] += last[x];
    }
    if (r == 1) {
        for (int x = 0; x < count; ++x)
            sums[x] = (first[x] + first[x + 1]) + first[x + 2];
    } else if (r == 2) {
        for (int x = 0; x < count; ++x)
            sums[x] = (((first[x] + first[x + 1]) + first[x + 2]) + first[x + 3]) + first[x + 4];
    } else {
        for (int x = 0; x < count; ++x)
            sums[x] = first[x];
        for (int i = 1; i <= 2 * r; i += 2) {
            for (int x = 0; x < count; ++x)
                sums[x] = (sums[x] + first[x + i]) + first[x + i + 1];
        }
    }
}

void add(const float* HWY_RESTRICT a, const float* HWY_RESTRICT weight, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] += a[x] * weight[x];
}

void addProduct(const float* a, const float* b, const float* HWY_RESTRICT weight, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] += a[x] * b[x] * weight[x];
}

void above(const float* HWY_RESTRICT values, float limit, int count, std::uint8_t* HWY_RESTRICT flags) {
    for (int x = 0; x < count; ++x)
        flags[x] = static_cast<std::uint8_t>(values[x] > limit);
}

void below(const float* HWY_RESTRICT values, float limit, int count, std::uint8_t* HWY_RESTRICT flags) {
    for (int x = 0; x < count; ++x)
        flags[x] = static_cast<std::uint8_t>(values[x] < limit);
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

// Most words are empty or full.
void countBits(const std::uint64_t* words, int size, int width, int* counts) {
    constexpr std::uint64_t kAll = ~std::uint64_t{0};
    for (int c = 0; c * size < width; ++c) {
        int x = c * size;
        const std::uint64_t word = words[x / 64];
        if (word == 0 || word == kAll) {
            for (const int end = std::min(x / 64 * 64 + 64, width); x + size <= end; x += size)
                counts[c++] += word == 0 ? 0 : size;
            if (c * size >= width) return;
        }
        for (const int end = std::min((c + 1) * size, width); x < end;) {
            const int bits = std::min(end - x, 64 - x % 64);
            counts[c] += std::popcount((words[x / 64] >> (x % 64)) & (kAll >> (64 - bits)));
            x += bits;
        }
    }
}

void sumGroups(const float* HWY_RESTRICT values, int size, int count, float* HWY_RESTRICT to) {
    if (size == 4) {
        for (int c = 0; c < count; ++c)
            to[c] = (values[4 * c] + values[4 * c + 1]) + (values[4 * c + 2] + values[4 * c + 3]);
        return;
    }
    for (int c = 0; c < count; ++c) {
        float sum = 0.0f;
        for (int i = 0; i < size; ++i)
            sum += values[c * size + i];
        to[c] = sum;
    }
}

}  // namespace

const refine::RowLoops& rowLoopsHere() {
    static constexpr refine::RowLoops loops{&loadColors, &loadLuma, &seeds, &mix,         &spread,    &boxSums,  &add,
                                            &addProduct, &above,    &below, &windowRange, &countBits, &sumGroups};
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

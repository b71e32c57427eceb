#include "key/refine/grid/SumLoops.h"

#include <algorithm>
#include <bit>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/refine/grid/SumLoops.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

namespace {

// Rows, then columns, each in order.
void boxSums(const float* const* rows, int r, int count, float* HWY_RESTRICT columns, float* HWY_RESTRICT sums) {
    const int all = count + 2 * r;
    float* const HWY_RESTRICT first = columns - r;
    if (r == 1) {
        const float *const HWY_RESTRICT a = rows[0] - r, *const HWY_RESTRICT b = rows[1] - r,
                                        *const HWY_RESTRICT c = rows[2] - r;
        for (int x = 0; x < all; ++x)
            first[x] = (a[x] + b[x]) + c[x];
    } else if (r == 4) {
        const float *const HWY_RESTRICT a = rows[0] - r, *const HWY_RESTRICT b = rows[1] - r,
                                        *const HWY_RESTRICT c = rows[2] - r, *const HWY_RESTRICT d = rows[3] - r,
                                        *const HWY_RESTRICT e = rows[4] - r, *const HWY_RESTRICT f = rows[5] - r,
                                        *const HWY_RESTRICT g = rows[6] - r, *const HWY_RESTRICT h = rows[7] - r,
                                        *const HWY_RESTRICT i = rows[8] - r;
        for (int x = 0; x < all; ++x)
            first[x] = a[x] + b[x] + c[x] + d[x] + e[x] + f[x] + g[x] + h[x] + i[x];
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
    } else if (r == 4) {
        for (int x = 0; x < count; ++x)
            sums[x] = first[x] + first[x + 1] + first[x + 2] + first[x + 3] + first[x + 4] + first[x + 5] +
                      first[x + 6] + first[x + 7] + first[x + 8];
    } else {
        for (int x = 0; x < count; ++x)
            sums[x] = first[x];
        for (int i = 1; i <= 2 * r; i += 2) {
            for (int x = 0; x < count; ++x)
                sums[x] = (sums[x] + first[x + i]) + first[x + i + 1];
        }
    }
}

// One lane wide or as wide as the machine.
template <bool kProducts, class D>
HWY_INLINE void sumColumns(D d, const refine::WeighedRows& from, bool blue, int x, float* HWY_RESTRICT sums) {
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::RebindToSigned<D> di;
    const hn::RebindToUnsigned<D> du;
    const auto low = hn::Set(du, 255);
    const auto number = [&](auto bits) { return hn::ConvertTo(d, hn::BitCast(di, hn::And(bits, low))); };
    auto r1 = hn::Zero(d), g1 = r1, b1 = r1, rr = r1, rg = r1, rb = r1, gg = r1, gb = r1, bb = r1, all = r1;
    for (int y = 0; y < from.rows; ++y) {
        const auto pixels = hn::LoadU(du, from.pixels + y * from.pitch + x);
        const auto weight = hn::LoadU(d, from.weights + std::ptrdiff_t{y} * from.count + x);
        const auto middle = number(hn::ShiftRight<8>(pixels)), last = number(hn::ShiftRight<16>(pixels));
        const auto r = number(pixels), g = blue ? last : middle, b = blue ? middle : last;
        const auto wr = hn::Mul(weight, r), wg = hn::Mul(weight, g), wb = hn::Mul(weight, b);
        r1 = hn::Add(r1, wr);
        g1 = hn::Add(g1, wg);
        b1 = hn::Add(b1, wb);
        all = hn::Add(all, weight);
        if constexpr (kProducts) {
            rr = hn::Add(rr, hn::Mul(wr, r));
            rg = hn::Add(rg, hn::Mul(wr, g));
            rb = hn::Add(rb, hn::Mul(wr, b));
            gg = hn::Add(gg, hn::Mul(wg, g));
            gb = hn::Add(gb, hn::Mul(wg, b));
            bb = hn::Add(bb, hn::Mul(wb, b));
        }
    }
    float* to = sums + x;
    const auto store = [&](auto sum) {
        hn::StoreU(sum, d, to);
        to += from.count;
    };
    store(all), store(r1), store(g1), store(b1);
    if constexpr (kProducts) store(rr), store(rg), store(rb), store(gg), store(gb), store(bb);
}

template <bool kProducts>
void sumAllColumns(const refine::WeighedRows& from, bool blue, float* HWY_RESTRICT sums) {
    const hwy::HWY_NAMESPACE::ScalableTag<float> wide;
    const int lanes = static_cast<int>(hwy::HWY_NAMESPACE::Lanes(wide));
    if (from.count < lanes) {
        for (int x = 0; x < from.count; ++x)
            sumColumns<kProducts>(hwy::HWY_NAMESPACE::CappedTag<float, 1>(), from, blue, x, sums);
        return;
    }
    for (int x = 0; x < from.count; x += lanes)
        sumColumns<kProducts>(wide, from, blue, std::min(x, from.count - lanes), sums);
}

void sumColors(const refine::WeighedRows& from, bool blue, float* sums) {
    sumAllColumns<false>(from, blue, sums);
}

void sumProducts(const refine::WeighedRows& from, bool blue, float* sums) {
    sumAllColumns<true>(from, blue, sums);
}

// Whole words of cells that divide them: neighbouring bits are joined to sums that double in width.
void countDivided(const std::uint64_t* words, int size, int width, int* counts) {
    const int cells = 64 / size;
    const std::uint64_t part = (std::uint64_t{1} << size) - 1;
    for (int i = 0; i < width / 64; ++i, counts += cells) {
        std::uint64_t sums = words[i];
        if (sums == 0) continue;
        sums -= sums >> 1 & 0x5555555555555555u;
        if (size >= 4) sums = (sums & 0x3333333333333333u) + (sums >> 2 & 0x3333333333333333u);
        if (size >= 8) sums = (sums + (sums >> 4)) & 0x0F0F0F0F0F0F0F0Fu;
        for (int c = 0; c < cells; ++c)
            counts[c] += static_cast<int>(sums >> (c * size) & part);
    }
}

// Most words are empty or full.
void countAny(const std::uint64_t* words, int size, int width, int* counts) {
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

void countBits(const std::uint64_t* words, int size, int width, int* counts) {
    if (size != 2 && size != 4 && size != 8) return countAny(words, size, width, counts);
    const int whole = width / 64;
    countDivided(words, size, width, counts);
    countAny(words + whole, size, width - whole * 64, counts + whole * (64 / size));
}

void sumGroups(const float* HWY_RESTRICT values, int size, int count, float* HWY_RESTRICT to) {
    if (size == 4) {
        for (int c = 0; c < count; ++c)
            to[c] = (values[4 * c] + values[4 * c + 1]) + (values[4 * c + 2] + values[4 * c + 3]);
        return;
    }
    for (int c = 0; c < count; ++c, values += size) {
        float even = 0.0f, odd = 0.0f;
        for (int i = 0; i + 1 < size; i += 2) {
            even += values[i];
            odd += values[i + 1];
        }
        to[c] = even + odd + (size % 2 != 0 ? values[size - 1] : 0.0f);
    }
}

}  // namespace

const refine::SumLoops& sumLoopsHere() {
    static constexpr refine::SumLoops loops{&boxSums, &sumColors, &sumProducts, &countBits, &sumGroups};
    return loops;
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin::refine {

HWY_EXPORT(sumLoopsHere);

const SumLoops& sumLoops() {
    return HWY_DYNAMIC_DISPATCH(sumLoopsHere)();
}

}  // namespace tavrin::refine
#endif

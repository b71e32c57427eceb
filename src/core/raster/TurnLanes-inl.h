// Rows of words made columns, four by four. Included once for each vector target.

#if defined(TAVRIN_RASTER_TURN_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_RASTER_TURN_LANES_INL_H
#undef TAVRIN_RASTER_TURN_LANES_INL_H
#else
#define TAVRIN_RASTER_TURN_LANES_INL_H
#endif

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Four rows of four words of 32 bits, of any kind. Steps are in words, from a row to the next.
#if HWY_TARGET == HWY_SCALAR
struct WordBlock {
    std::uint32_t words[4][4];

    static WordBlock load(const void* from, std::ptrdiff_t step) {
        WordBlock block;
        for (int row = 0; row < 4; ++row)
            std::memcpy(block.words[row], static_cast<const char*>(from) + row * step * 4, 16);
        return block;
    }
    WordBlock turned() const {
        WordBlock block;
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column)
                block.words[column][row] = words[row][column];
        }
        return block;
    }
    // Writes the bits of `mask` and leaves the others.
    void store(void* to, std::ptrdiff_t step, std::uint32_t mask = ~std::uint32_t{0}) const {
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                char* const at = static_cast<char*>(to) + (row * step + column) * 4;
                std::uint32_t word;
                std::memcpy(&word, at, 4);
                word = (words[row][column] & mask) | (word & ~mask);
                std::memcpy(at, &word, 4);
            }
        }
    }
};
#else
struct WordBlock {
    using Words = hn::Simd<std::uint32_t, 4, 0>;
    hn::Vec<Words> a, b, c, d;

    HWY_INLINE static WordBlock load(const void* from, std::ptrdiff_t step) {
        const Words words;
        const auto* const first = static_cast<const std::uint32_t*>(from);
        return {hn::LoadU(words, first), hn::LoadU(words, first + step), hn::LoadU(words, first + 2 * step),
                hn::LoadU(words, first + 3 * step)};
    }
    HWY_INLINE WordBlock turned() const {
        const Words words;
        const hn::RepartitionToWide<Words> pairs;
        const auto ab = hn::BitCast(pairs, hn::InterleaveLower(words, a, b)),
                   cd = hn::BitCast(pairs, hn::InterleaveLower(words, c, d)),
                   abUpper = hn::BitCast(pairs, hn::InterleaveUpper(words, a, b)),
                   cdUpper = hn::BitCast(pairs, hn::InterleaveUpper(words, c, d));
        return {hn::BitCast(words, hn::InterleaveLower(pairs, ab, cd)),
                hn::BitCast(words, hn::InterleaveUpper(pairs, ab, cd)),
                hn::BitCast(words, hn::InterleaveLower(pairs, abUpper, cdUpper)),
                hn::BitCast(words, hn::InterleaveUpper(pairs, abUpper, cdUpper))};
    }
    // Writes the bits of `mask` and leaves the others.
    HWY_INLINE void store(void* to, std::ptrdiff_t step, std::uint32_t mask = ~std::uint32_t{0}) const {
        const Words words;
        auto* const first = static_cast<std::uint32_t*>(to);
        const auto put = [&](hn::Vec<Words> row, std::ptrdiff_t at) HWY_ATTR {
            const auto bits = hn::Set(words, mask);
            if (mask != ~std::uint32_t{0})
                row = hn::Or(hn::And(bits, row), hn::AndNot(bits, hn::LoadU(words, first + at)));
            hn::StoreU(row, words, first + at);
        };
        put(a, 0);
        put(b, step);
        put(c, 2 * step);
        put(d, 3 * step);
    }
};
#endif

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif

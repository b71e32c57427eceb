#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin {

/// Lines of samples that lie side by side, on their way through a box blur. Steps are in samples.
template <class Sample>
struct BoxLines {
    const Sample* from;
    std::ptrdiff_t step;  ///< from a sample to the next one of its line, in `from` and `kept`
    int lanes, count;     ///< lines, and samples in each
    Sample* to;           ///< must not overlap `from`
    std::ptrdiff_t toStep;
    const Sample* kept = nullptr;  ///< every fourth lane takes its samples over unblurred; null blurs all
};

/// Writes the means of the window of `radius` samples to either side, with the vectors of this machine. Near the ends
/// the window shrinks to what exists. `radius` is from 0 to `count`.
void boxMeans(const BoxLines<std::uint8_t>& lines, int radius);
void boxMeans(const BoxLines<std::int32_t>& lines, int radius);

/// Turns `rows` rows of `width` words of 32 bits so that they lie side by side: word x of row y to
/// `turned[x * rows + y]`. `rowStep` is in words.
void turnRows(const void* words, std::ptrdiff_t rowStep, int width, int rows, void* turned);
/// The way back, for the bits of `mask`; the others of `words` stay.
void turnRowsBack(const void* turned, int width, int rows, std::uint32_t mask, void* words, std::ptrdiff_t rowStep);

}  // namespace tavrin

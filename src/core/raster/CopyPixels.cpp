#include "core/raster/CopyPixels.h"

#include <cstring>

#include "core/raster/Pixels.h"

namespace tavrin {

bool copyPixels(const RunContext& run, const std::uint8_t* from, std::uint8_t* to, int width, int height) {
    constexpr int kGrainRows = 32;
    return runRowRanges(run, height, kGrainRows, [&](int first, int last) {
        const std::size_t start = pixelOffset(width, 0, first);
        std::memcpy(to + start, from + start, pixelBytes(width, last - first));
    });
}

}  // namespace tavrin

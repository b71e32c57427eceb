#include "core/raster/BlurBitmap.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <vector>

#include "core/Log.h"
#include "core/raster/QuadraticWindow.h"

namespace tavrin {

namespace {

void blurRows(const std::uint8_t* buffer, std::uint8_t* copy, int width, int height, int reach) {
    const std::vector<std::uint64_t> weights = windowWeightSums(width, reach);
    runRowRanges({}, height, 16, [&](int first, int last) {
        QuadraticWindow<std::uint8_t> window;
        for (int y = first; y < last; ++y) {
            std::uint8_t* out = copy + pixelOffset(width, 0, y);
            window.run({buffer + pixelOffset(width, 0, y), kPixelBytes, 1, 3, width}, reach, weights,
                       [&](int x, int lane, std::uint8_t mean) { out[x * kPixelBytes + lane] = mean; });
        }
    });
}

// Takes the blurred colour where red and green change little enough; blue takes no part in the test.
void takeWhereClose(std::uint8_t* pixel, const std::uint8_t* blurred, int threshold) {
    const int change = std::abs(pixel[0] - blurred[0]) + std::abs(pixel[1] - blurred[1]);
    if (change >= threshold) return;
    pixel[0] = blurred[0];
    pixel[1] = blurred[1];
    pixel[2] = blurred[2];
}

void blurColumns(const std::uint8_t* copy, std::uint8_t* buffer, int width, int height, int reach, int threshold) {
    constexpr int kColumns = 32;  // a block's moments stay in the first-level cache
    const std::vector<std::uint64_t> weights = windowWeightSums(height, reach);
    const std::ptrdiff_t stride = static_cast<std::ptrdiff_t>(pixelOffset(width, 0, 1));
    runRowRanges({}, width, kColumns, [&](int first, int last) {
        const int lanes = (last - first) * kPixelBytes;
        QuadraticWindow<std::uint8_t> window;
        std::vector<std::uint8_t> row(static_cast<std::size_t>(lanes));
        const std::size_t offset = pixelOffset(width, first, 0);
        window.run({copy + offset, stride, 1, lanes, height}, reach, weights,
                   [&](int y, int lane, std::uint8_t mean) {
                       row[lane] = mean;
                       if (lane % kPixelBytes != 3) return;
                       takeWhereClose(buffer + offset + y * stride + lane - 3, &row[lane - 3], threshold);
                   });
    });
}

}  // namespace

void BlurBitmap(SystemInfo& info, std::uint8_t* buffer, int width, int height, int dpi, int threshold,
                double radius) {
    if (!buffer || width < 1 || height < 1) return;
    std::vector<std::uint8_t> copy;
    try {
        copy.resize(pixelBytes(width, height));
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
        return;
    }
    const int reach = windowReach(dpi, radius);
    if (!info.isStale()) blurRows(buffer, copy.data(), width, height, reach);
    blurColumns(copy.data(), buffer, width, height, reach, threshold);
}

}  // namespace tavrin

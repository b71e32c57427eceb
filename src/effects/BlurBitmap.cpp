#include "effects/BlurBitmap.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "core/raster/Pixels.h"
#include "core/raster/QuadraticWindow.h"
#include "core/raster/WindowBlur.h"

namespace tavrin {

namespace {

// Takes the blurred colour where red and green change little enough; blue takes no part in the test.
void takeWhereClose(std::uint8_t* pixel, const std::uint8_t* blurred, int threshold) {
    const int change = std::abs(pixel[0] - blurred[0]) + std::abs(pixel[1] - blurred[1]);
    if (change >= threshold) return;
    pixel[0] = blurred[0];
    pixel[1] = blurred[1];
    pixel[2] = blurred[2];
}

}  // namespace

void BlurBitmap(SystemInfo& info, std::uint8_t* buffer, int width, int height, int dpi, int threshold, double radius,
                const RunContext& run) {
    if (run.isSuperseded() || !buffer || width < 1 || height < 1) return;
    const PixelBuffer copy(width, height);
    if (!copy.data()) throw std::bad_alloc();
    const int reach = windowReach(dpi, radius);
    const SampleGrid<std::uint8_t> grid = {buffer, width, height, kPixelBytes, 3};
    const auto take = [threshold](std::uint8_t* pixels, const std::uint8_t* blurred, int count) {
        for (int i = 0; i < count; ++i, pixels += kPixelBytes, blurred += kPixelBytes)
            takeWhereClose(pixels, blurred, threshold);
    };
    if (info.isStale()) {
        std::memset(copy.data(), 0, pixelBytes(width, height));
    } else {
        if (!blurRowsWithWindow(run, grid, reach, copy.data())) return;
    }
    blurColumnsWithWindow(run, copy.data(), grid, reach, take);
}

}  // namespace tavrin

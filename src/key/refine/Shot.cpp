#include "key/refine/Shot.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/raster/Pixels.h"

namespace tavrin::refine {

namespace {

constexpr double kUsualPixels = 5e6;

const std::uint32_t* words(const Shot& shot, int y) {
    return reinterpret_cast<const std::uint32_t*>(shot.pixels + pixelOffset(shot.width, 0, y));
}

}  // namespace

int Shot::px(double length) const {
    const double scale = std::sqrt(static_cast<double>(width) * height / kUsualPixels);
    return std::max(1, static_cast<int>(std::lround(length * scale)));
}

void loadColors(const Shot& shot, int y, float* r, float* g, float* b) {
    const std::uint32_t* from = words(shot, y);
    const int greenBits = shot.blue ? 16 : 8, blueBits = shot.blue ? 8 : 16;
    for (int x = 0; x < shot.width; ++x) {
        r[x] = static_cast<float>(static_cast<std::int32_t>(from[x] & 255));
        g[x] = static_cast<float>(static_cast<std::int32_t>(from[x] >> greenBits & 255));
        b[x] = static_cast<float>(static_cast<std::int32_t>(from[x] >> blueBits & 255));
    }
}

void loadLuma(const Shot& shot, int y, float* luma) {
    const std::uint32_t* from = words(shot, y);
    for (int x = 0; x < shot.width; ++x) {
        const std::uint32_t red = from[x] & 255, green = from[x] >> 8 & 255, blue = from[x] >> 16 & 255;
        luma[x] =
            static_cast<float>(static_cast<std::int32_t>((red * 4899 + green * 9617 + blue * 1868 + 8192) >> 14));
    }
}

bool runBlocks(const RunContext& context, int rows, int blockRows, const std::function<void(int, int)>& block) {
    return runRows(context, (rows + blockRows - 1) / blockRows, 1,
                   [&](int index) { block(index * blockRows, std::min((index + 1) * blockRows, rows)); });
}

}  // namespace tavrin::refine

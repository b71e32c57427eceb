#include "key/spill/DarkHair.h"

#include <algorithm>

#include "core/raster/Pixels.h"

namespace tavrin {

double DarkHair::darkAreas(int x, int y, double green, double chroma) const {
    const double slider = sliderRestoredDarkAreasSlider;
    if (!(green < kDarkGreen && isLookedFor())) return slider;
    const bool matters = (chroma < slider * 0.15) != (chroma < kDarkAreasOfHair * 0.15) ||
                         (chroma > slider * 2.0) != (chroma > kDarkAreasOfHair * 2.0);
    return matters && isBusy(x, y) ? kDarkAreasOfHair : slider;
}

// The variance is exact in whole numbers.
bool DarkHair::isBusy(int x, int y) const {
    std::int64_t sum = 0, squares = 0;
    for (int dy = -kTextureRadius; dy <= kTextureRadius; ++dy) {
        const std::uint8_t* row = pixels + pixelOffset(width, 0, std::clamp(y + dy, 0, height - 1));
        for (int dx = -kTextureRadius; dx <= kTextureRadius; ++dx) {
            const std::uint8_t* p = row + pixelOffset(width, std::clamp(x + dx, 0, width - 1), 0);
            const int level = p[0] + p[1] + p[2];
            sum += level;
            squares += level * level;
        }
    }
    const auto scatter = static_cast<double>(kTexturePixels * squares - sum * sum);
    return scatter / kScatterToVariance > leastVariance();
}

}  // namespace tavrin

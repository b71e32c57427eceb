#pragma once

#include <cstdint>

namespace tavrin {

/// Hair among the dark pixels of a picture. The key at one pixel treats dark, busy places as `kDarkAreasOfHair` of
/// its slider for dark areas, so that hair is kept.
struct DarkHair {
    static constexpr double kDarkAreasOfHair = 120.0;
    static constexpr double kDarkGreen = 127.0;  ///< from this green on a pixel is not dark

    static constexpr int kTextureRadius = 2;  ///< hair shows in a square of 5 x 5 pixels
    static constexpr int kTexturePixels = 25;
    /// From `kTexturePixels` times the sum of squares less the square of the sum to the sample variance.
    static constexpr double kScatterToVariance = kTexturePixels * (kTexturePixels - 1);

    const std::uint8_t* pixels = nullptr;  ///< RGBA, rows packed, width x height
    int width = 0, height = 0;
    double sliderRestoredDarkAreasSlider = 0.0, sliderProtectHair = 0.0;

    /// Off for every pixel below a certain protection.
    bool isLookedFor() const { return sliderProtectHair > 5.0; }

    /// A busy place varies more than this.
    double leastVariance() const { return 4000.0 - 20.0 * sliderProtectHair; }

    /// The slider for the dark areas at (x, y), for a pixel of that green (as measured) and chroma. The surroundings
    /// are only looked at where they would change the outcome of a test.
    double darkAreas(int x, int y, double green, double chroma) const;

    /// Whether the brightness varies around (x, y) as it does in hair, by the sample variance of 5 x 5 pixels.
    bool isBusy(int x, int y) const;
};

}  // namespace tavrin

#pragma once

#include <cstdint>

#include "core/raster/Pixels.h"
#include "key/skin/Skin.h"

namespace tavrin {

/// How far a pixel may be from the face colour to be skin. The defaults are those of a `iRedRequired` of 60, which
/// the hair search uses.
struct SkinMaskLimits {
    double teeth = 240.0;  ///< nearness to the green share of the face above which a bright neutral pixel is a tooth
    double bright = 48.0;  ///< distance to the face in bright light below which a pixel is skin in any case
    double reach = 84.0;   ///< distance to the face beyond which a pixel is no skin ...
    double reachFrom = 0.0;  ///< ... once it is at least this
};

/// How much a pixel is skin, 0 to 255, by its place in a cone of colours: hue is the direction, saturation times
/// level the radius, and the height falls with the level.
class SkinMask {
  public:
    SkinMask(const SkinColor& skin, bool measured, const SkinMaskLimits& limits);

    /// @param r,g,b bytes of the pixel, real channels
    int at(int r, int g, int b) const;

  private:
    struct Point {
        double x, y, z;
    };
    static Point conePoint(double radius, double degrees, double height);
    static double distance(const Point& a, const Point& b);
    bool isTooth(int r, int g, int sum) const;

    SkinTest isSkin_;
    SkinMaskLimits limits_;
    Point face_, brightFace_;
    double faceLevel_, faceGreenPercent_;
};

/// The mask of a whole picture, blurred with radius 5; one integer a pixel, 0 to 255.
/// @return without data when the run was superseded
PixelBuffer blurredSkinMask(const SystemInfo& info, const SkinMask& mask, const std::uint8_t* rgba, int width,
                            int height);

}  // namespace tavrin

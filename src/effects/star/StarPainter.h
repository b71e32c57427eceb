#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/raster/Pixels.h"

namespace tavrin {

/// The light that a star is drawn over.
struct StarLight {
    int cx, cy;           ///< its centre, inside the picture
    std::int64_t length;  ///< of an arm, pixels, not negative
    int width;            ///< of the light, pixels
};

/// Draws stars into a picture. Every star is seen against the picture without any, so overlapping ones do not add up:
/// the brighter one stays.
class StarPainter {
  public:
    /// `source` is a copy of the picture from before the first star. An arm is `widthPercent` of a light's
    /// width to each side; the first of `points` arms stands at `startAngle` + 360 / `points` degrees, measured from
    /// straight down and turning to the left. No points, no star.
    StarPainter(PixelView picture, const std::uint8_t* source, int widthPercent, int points, int startAngle);

    /// Draws one star: arms that are thin triangles and fade from their middle line sideways.
    /// @return false when all stars so far would need more work than a picture of this size is worth (settings far
    ///         beyond a panel's); nothing is drawn then
    bool DrawStar(const StarLight& light);

  private:
    struct Arm {
        double cosine, sine;
    };
    struct Ink {
        int cx, cy, opacity;
        std::array<int, 3> colour;
    };
    // Points and lines are in star space: x across an arm, y along it, the light in the origin.
    void DrawStarLine(const Ink& ink, double x0, double length);
    void DrawStarPoints(const Ink& ink, double x, double y);

    const PixelView picture_;
    const std::uint8_t* source_;
    int widthPercent_;
    std::int64_t far_;  // what lies farther from a light is outside the picture
    double workLeft_;   // points that may still be drawn
    std::vector<Arm> arms_;
};

}  // namespace tavrin

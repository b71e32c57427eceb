#include "effects/star/StarPainter.h"

#include <algorithm>
#include <cmath>

#include "core/BackgroundThread.h"

namespace tavrin {

namespace {

constexpr double kRadians = 0.0174533;  // a degree; the digits decide where the points of an arm fall
constexpr int kMostArms = 3600;         // more would fill the disc again and again
constexpr double kPointsPerPixel = 512.0;

}  // namespace

StarPainter::StarPainter(PixelView picture, const std::uint8_t* source, int widthPercent, int points, int startAngle)
    : picture_(picture),
      source_(source),
      widthPercent_(widthPercent),
      far_(2 * (static_cast<std::int64_t>(picture.width) + picture.height)),
      workLeft_(kPointsPerPixel * picture.width * picture.height) {
    points = std::min(points, kMostArms);
    for (int k = 1; k <= points; ++k) {
        const double angle = (startAngle + k * 360.0 / points) * kRadians;
        arms_.push_back({std::cos(angle), std::sin(angle)});
    }
}

bool StarPainter::DrawStar(const StarLight& light) {
    const std::int64_t wide = static_cast<std::int64_t>(widthPercent_) * light.width / 100;
    const int half = static_cast<int>(std::clamp<std::int64_t>(wide, 2, far_));
    const double steps = static_cast<double>(std::min(std::max<std::int64_t>(light.length, half), far_)) + 1.0;
    workLeft_ -= (4.0 * half + 1.0) * steps * static_cast<double>(arms_.size());
    if (workLeft_ < 0.0) return false;

    const std::uint8_t* centre = source_ + pixelOffset(picture_.width, light.cx, light.cy);
    Ink ink = {light.cx, light.cy, 0, {centre[0], centre[1], centre[2]}};
    for (int i = -2 * half; i <= 2 * half; ++i) {
        const double offset = i * 0.5;
        const int strength = static_cast<int>(255.0 - std::abs(offset) * 255.0 / half);
        ink.opacity = static_cast<int>(strength * 0.5);
        GivingWay::ask();
        if (ink.opacity > 0) DrawStarLine(ink, offset, static_cast<double>(light.length));
    }
    return true;
}

// From (x0, 0) to (0, length), a point for each whole step along the longer axis, the end included.
void StarPainter::DrawStarLine(const Ink& ink, double x0, double length) {
    const double last = std::min(length, static_cast<double>(far_));
    if (x0 == 0.0) {
        for (double y = 0.0; y <= last; y += 1.0)
            DrawStarPoints(ink, 0.0, y);
        return;
    }
    const double m = length / -x0, b = -m * x0;
    if (length > std::abs(x0)) {
        for (double y = 0.0; y <= last; y += 1.0)
            DrawStarPoints(ink, (y - b) / m, y);
        return;
    }
    const double step = x0 < 0.0 ? 1.0 : -1.0;
    double x = x0;
    for (; x * step <= 0.0; x += step)
        DrawStarPoints(ink, x, m * x + b);
    if (x != step) DrawStarPoints(ink, 0.0, length);  // half a step beyond the last one
}

void StarPainter::DrawStarPoints(const Ink& ink, double x, double y) {
    for (const Arm& arm : arms_) {
        const int column = static_cast<int>(x * arm.cosine - y * arm.sine + 0.5) + ink.cx;
        const int row = static_cast<int>(x * arm.sine + y * arm.cosine + 0.5) + ink.cy;
        if (column < 0 || row < 0 || column >= picture_.width || row >= picture_.height) continue;
        const std::size_t at = pixelOffset(picture_.width, column, row);
        std::array<int, 3> mixed;
        bool brighter = true;
        for (std::size_t c = 0; c < 3; ++c) {
            mixed[c] = (255 - ink.opacity) * source_[at + c] / 255 + ink.opacity * ink.colour[c] / 255;
            brighter = brighter && mixed[c] > picture_.bytes[at + c];
        }
        if (!brighter) continue;
        for (std::size_t c = 0; c < 3; ++c)
            picture_.bytes[at + c] = static_cast<std::uint8_t>(mixed[c]);
    }
}

}  // namespace tavrin

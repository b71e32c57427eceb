#include "key/skin/SkinMask.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "core/raster/BoxBlur.h"

namespace tavrin {

SkinMask::Point SkinMask::conePoint(double radius, double degrees, double height) {
    const double angle = degrees * 3.14159265 / 180.0;
    return {radius * std::cos(angle), radius * std::sin(angle), height};
}

double SkinMask::distance(const Point& a, const Point& b) {
    const double x = a.x - b.x, y = a.y - b.y, z = a.z - b.z;
    return std::sqrt(x * x + y * y + z * z);
}

SkinMask::SkinMask(const SkinColor& skin, bool measured, const SkinMaskLimits& limits)
    : isSkin_(skin, measured), limits_(limits), faceLevel_(skin.dFaceInt) {
    face_ = conePoint(skin.dFaceSat * skin.dFaceInt / 100.0, skin.dFaceHue, 255.0 - skin.dFaceInt);
    const double brightLevel = skin.dFaceInt + (255.0 - skin.dFaceInt) * 0.5;
    brightFace_ = conePoint(brightLevel * 20.0 / 100.0, skin.dFaceHue, 255.0 - brightLevel);
    faceGreenPercent_ = 100.0 - skin.dFaceGreen / skin.dFaceRed * 100.0;
}

bool SkinMask::isTooth(int r, int g, int sum) const {
    const double q = g < r ? faceGreenPercent_ - (100.0 - static_cast<double>(g) / r * 100.0) : -255.0;
    const int nearness = std::min(std::abs(static_cast<int>(q * 15.0)), 255);
    return nearness > limits_.teeth && sum < 80 && r + 20 > faceLevel_ && r > 180;
}

int SkinMask::at(int r, int g, int b) const {
    const int sum = std::abs(r - g) + std::abs(b - g);
    if (sum == 0 || r < 81 || r - g <= -10 || g - b <= -10) return 0;

    const double g2 = g >= r ? r - 1.0 : g;
    const double b2 = g2 > 15.0 && g2 <= b ? g2 - 1.0 : b;
    const double hue = r <= b2 ? 0.95 : (g2 - b2) / (r - b2);
    const double sat = 100.0 - b2 / r * 100.0;
    const Point point = conePoint(sat * r / 100.0, hue * 100.0, 255.0 - r);
    const double toFace = distance(point, face_), toBright = distance(point, brightFace_);
    const double nearBright = toBright > toFace ? 1000.0 : toBright;
    const double nearFace = std::min(toFace, 255.0);

    const bool tooth = isTooth(r, g, sum);
    if (nearBright < limits_.bright && !tooth) return 255;
    const bool pale = (r > 100 && sat < 20.0) || sum < 35;
    const bool tooFar = nearFace >= limits_.reachFrom && nearFace > limits_.reach;
    if (tooth || pale || tooFar || sat > 90.0 || !isSkin_(r, g, b)) return 0;
    return static_cast<int>(255.0 - nearFace);
}

PixelBuffer blurredSkinMask(const SystemInfo& info, const SkinMask& mask, const std::uint8_t* rgba, int width,
                            int height) {
    const PixelBuffer sharp(width, height);
    PixelBuffer blurred(width, height);
    if (!sharp.data() || !blurred.data()) throw std::bad_alloc();
    const RunContext context = info.rowsWhileWanted();
    const bool finished = runRows(context, height, 8, [&](int y) {
        const std::uint8_t* row = rgba + pixelOffset(width, 0, y);
        std::int32_t* out = sharp.numbers() + pixelOffset(width, 0, y) / kPixelBytes;
        for (int x = 0; x < width; ++x, row += kPixelBytes)
            out[x] = mask.at(row[0], row[1], row[2]);
    });
    if (!finished || !gaussBlur_Int(context, sharp.numbers(), blurred.numbers(), width, height, 5)) return {};
    return blurred;
}

}  // namespace tavrin

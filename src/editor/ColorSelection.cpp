#include "editor/ColorSelection.h"

#include <algorithm>

#include "core/raster/Rows.h"

namespace tavrin {

namespace {

constexpr int kGrain = 16;
constexpr int kCell = 10;     // pixels of a cell of the pattern
constexpr int kPattern = 50;  // levels by which it is darker or brighter

// The largest whole square distance within the limit. Square roots of whole numbers are compared by it exactly.
int largestWithin(double limit) {
    int square = static_cast<int>(limit * limit) + 2;
    while (square >= 0 && std::sqrt(static_cast<double>(square)) > limit)
        --square;
    return square;
}

class ColorRange {
  public:
    ColorRange(const HsvColor& picked, double tolerance)
        : h_(static_cast<int>(picked.h)),
          s_(static_cast<int>(100.0 * picked.s)),
          v_(static_cast<int>(picked.v / 2.0)),
          square_(largestWithin(tolerance * 255.0)) {}

    bool holds(const QLXPixel& color) const {
        const HsvColor c = toHsv(color.red, color.green, color.blue);
        int h = std::abs(static_cast<int>(c.h) - h_);
        if (h >= 181) h = 360 - h;
        const int ds = static_cast<int>(100.0 * c.s) - s_, dv = static_cast<int>(c.v / 2.0) - v_;
        return 4 * h * h + ds * ds + dv * dv <= square_;
    }

  private:
    int h_, s_, v_, square_;
};

void drawPattern(std::uint8_t* p, int x, int y) {
    const int by = (x / kCell + y / kCell) % 2 == 0 ? -kPattern : kPattern;
    for (int channel = 0; channel < 3; ++channel)
        p[channel] = static_cast<std::uint8_t>(std::clamp(p[channel] + by, 0, 255));
}

bool isSame(const QLXPixel& a, const QLXPixel& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

}  // namespace

bool ColorSelection::SelectColorRange(EditorPixels& pixels, const EditorKey& key, bool invert) {
    if (bSelected || iSelectionMode == kNone) return false;
    bSelected = true;
    const ColorRange range(selectColor, dSelectTolerance);
    const auto colorAt = [&](int x, int y) -> QLXPixel {
        if (iSelectionMode == kForegroundColor) return key.spill.adjustedForeground(x, y);
        if (iSelectionMode != kCombinedColor) return {};
        const std::uint8_t* p = pixels.pC + pixels.index(x, y) * kPixelBytes;
        return {p[0], p[1], p[2], 0, 0};
    };
    const bool blackHolds = range.holds({});
    runRows({}, pixels.iHeight, kGrain, [&](int y) {
        QLXPixel last;  // neighbours often have one colour
        bool lastHolds = blackHolds;
        for (int x = 0; x < pixels.iWidth; ++x) {
            const std::size_t i = pixels.index(x, y);
            if (pixels.pMaskSelection[i] == 0) pixels.putBack(i);
            pixels.pMaskSelection[i] = 1;
            const QLXPixel color = colorAt(x, y);
            if (!isSame(color, last)) {
                last = color;
                lastHolds = range.holds(color);
            }
            if (lastHolds == invert) continue;
            QLXPixel& s = pixels.oSnapShot[i];
            std::uint8_t* p = pixels.pS + i * kPixelBytes;
            s = {p[0], p[1], p[2], pixels.pB[i * kPixelBytes + 3], s.percent};
            pixels.pMaskSelection[i] = 0;
            drawPattern(p, x, y);
        }
    });
    return true;
}

bool ColorSelection::DeselectColorRange(EditorPixels& pixels) {
    if (!bSelected) return false;
    bSelected = false;
    runRows({}, pixels.iHeight, kGrain, [&](int y) {
        for (std::size_t i = pixels.index(0, y), end = pixels.index(0, y + 1); i < end; ++i) {
            if (pixels.pMaskSelection[i] == 0) pixels.putBack(i);
            pixels.pMaskSelection[i] = 1;
        }
    });
    return true;
}

}  // namespace tavrin

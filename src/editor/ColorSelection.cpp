#include "editor/ColorSelection.h"

#include <algorithm>
#include <array>
#include <cstring>

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

// The squares of the distances that a colour's steps have, by which it is within the limit or not.
class ColorRange {
  public:
    ColorRange(const HsvColor& picked, double tolerance) : square_(largestWithin(tolerance * 255.0)) {
        const int h = static_cast<int>(picked.h), s = static_cast<int>(100.0 * picked.s);
        const int v = static_cast<int>(picked.v / 2.0);
        for (int i = 0; i < static_cast<int>(hues_.size()); ++i) {
            const int away = std::abs(i - h), folded = away >= 181 ? 360 - away : away;
            hues_[static_cast<std::size_t>(i)] = 4 * folded * folded;
        }
        for (int i = 0; i < static_cast<int>(saturations_.size()); ++i)
            saturations_[static_cast<std::size_t>(i)] = (i - s) * (i - s);
        for (int i = 0; i < static_cast<int>(values_.size()); ++i)
            values_[static_cast<std::size_t>(i)] = (i - v) * (i - v);
    }

    bool holds(const ColorSteps& c) const { return hues_[c.h] + saturations_[c.s] + values_[c.v] <= square_; }

  private:
    std::array<int, 360> hues_;
    std::array<int, 101> saturations_;
    std::array<int, 128> values_;
    int square_;
};

void drawPattern(std::uint8_t* p, int x, int y) {
    const int by = (x / kCell + y / kCell) % 2 == 0 ? -kPattern : kPattern;
    for (int channel = 0; channel < 3; ++channel)
        p[channel] = static_cast<std::uint8_t>(std::clamp(p[channel] + by, 0, 255));
}

// All pixels of a row that are protected come back from the snapshot and are set free.
void freeRow(EditorPixels& pixels, int y) {
    std::uint8_t* mask = pixels.pMaskSelection.data();
    const std::size_t end = pixels.index(0, y + 1);
    for (std::size_t i = pixels.index(0, y); i < end; ++i) {
        const void* found = std::memchr(mask + i, 0, end - i);
        if (!found) return;
        i = static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - mask);
        pixels.putBack(i);
        mask[i] = 1;
    }
}

std::vector<ColorSteps> foregroundSteps(const EditorPixels& pixels, const EditorKey& key) {
    std::vector<ColorSteps> steps(pixels.pMaskSelection.size());
    const ColorStepTables& tables = ColorStepTables::get();
    runRows({}, pixels.iHeight, kGrain, [&](int y) {
        for (int x = 0; x < pixels.iWidth; ++x) {
            const std::size_t i = pixels.index(x, y);
            const std::uint8_t* p = pixels.pFOrg + i * kPixelBytes;
            QLXPixel c{p[0], p[1], p[2], 255, 0};
            if (key.adjustsForeground) c = key.spill.adjustedForeground(x, y);
            steps[i] = tables.of(c.red, c.green, c.blue);
        }
    });
    return steps;
}

}  // namespace

bool ColorSelection::SelectColorRange(EditorPixels& pixels, const EditorKey& key, bool invert) {
    if (bSelected || iSelectionMode == kNone) return false;
    bSelected = true;
    if (iSelectionMode == kForegroundColor && foreground_.empty()) foreground_ = foregroundSteps(pixels, key);
    const ColorRange range(toHsv(iSelectRed, iSelectGreen, iSelectBlue), dSelectTolerance);
    const ColorStepTables& tables = ColorStepTables::get();
    const auto stepsAt = [&](std::size_t i) -> ColorSteps {
        if (iSelectionMode == kForegroundColor) return foreground_[i];
        if (iSelectionMode != kCombinedColor) return {};
        const std::uint8_t* p = pixels.pC + i * kPixelBytes;
        return tables.of(p[0], p[1], p[2]);
    };
    pixels.oRowsToPutBack.assign(pixels.oRowsToPutBack.size(), 1);
    runRows({}, pixels.iHeight, kGrain, [&](int y) {
        freeRow(pixels, y);
        for (int x = 0; x < pixels.iWidth; ++x) {
            const std::size_t i = pixels.index(x, y);
            if (range.holds(stepsAt(i)) == invert) continue;
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
    runRows({}, pixels.iHeight, kGrain, [&](int y) { freeRow(pixels, y); });
    return true;
}

void ColorSelection::beginVisit() {
    bSelected = false;
    foreground_ = {};
}

}  // namespace tavrin

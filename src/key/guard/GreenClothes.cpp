#include "key/guard/GreenClothes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/guard/FloodFill.h"

namespace tavrin {

namespace {

constexpr int kStep = 2;           // every second pixel of every second row is enough for patches
constexpr double kFarAway = 60.0;  // from the screen's colour, in the guard's measure
constexpr int kWidth = 2;          // what is nearer than this to something else is an edge, in steps

struct Hsv {
    double hue = 0.0, saturation = 0.0, value = 0.0;
};

Hsv hsvOf(double red, double green, double blue) {
    Hsv color;
    double delta = 0.0;
    rgb_to_hsv(color.hue, color.saturation, color.value, delta, red, green, blue);
    return color;
}

double distanceOf(const Hsv& a, const Hsv& b) {
    const int turn = std::abs(wholeSteps(a.hue - b.hue));
    const int hue = turn > 180 ? 360 - turn : turn;
    const int saturation = std::abs(wholeSteps(100.0 * a.saturation - 100.0 * b.saturation));
    const int value = std::abs(wholeSteps(a.value - b.value)) >> 2;
    return std::sqrt(static_cast<double>(saturation * saturation + 4 * hue * hue + value * value));
}

/// The pixels in question, one byte each.
struct Patches {
    int width = 0, height = 0;
    std::vector<std::uint8_t> bytes;

    std::uint8_t& at(int x, int y) {
        return bytes[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    // As the flood fill wants it: filling takes a patch away.
    bool contains(int x, int y) { return at(x, y) != 0; }
    void fill(int x, int y) { at(x, y) = 0; }
    static bool stopped() { return false; }
};

Patches findPatches(const SystemInfo& info) {
    const PassGeometry size = info.geometry(Resolution::preview);
    const std::uint8_t* pixels = info.pForegroundBitmapInfo->pBitmapDataLowRes;
    const std::size_t green = info.bUseBlueLogic ? 2 : 1, blue = 3 - green;
    const Hsv base = hsvOf(info.baseRed, info.baseGreen, info.baseBlue);
    std::vector<Hsv> cells;
    for (std::size_t i = 0; i < info.iBaseRedArray.size(); ++i)
        cells.push_back(hsvOf(info.iBaseRedArray[i], info.iBaseGreenArray[i], info.iBaseBlueArray[i]));
    Patches patches{size.width / kStep, size.height / kStep, {}};
    patches.bytes.resize(static_cast<std::size_t>(patches.width) * static_cast<std::size_t>(patches.height));
    for (int y = 0; y < patches.height; ++y) {
        for (int x = 0; x < patches.width; ++x) {
            const std::uint8_t* p = pixels + pixelOffset(size.width, x * kStep, y * kStep);
            if (p[green] <= p[0] + 5 || p[green] <= p[blue] + 5 || p[green] <= 30) continue;
            const Hsv color = hsvOf(p[0], p[green], p[blue]);
            const auto cell = static_cast<std::size_t>(y * 20 / patches.height * 20 + x * 20 / patches.width);
            patches.at(x, y) = color.saturation > 0.15 && distanceOf(color, base) >= kFarAway &&
                               distanceOf(color, cells[cell]) >= kFarAway;
        }
    }
    return patches;
}

/// What reaches the upper or side edges is a part of the room.
void removeRoom(Patches& patches) {
    SeedStack seeds;
    const auto remove = [&](int x, int y) {
        if (patches.contains(x, y)) floodFill(patches, seeds, x, y, SeedStack::kEntries);
    };
    for (int x = 0; x < patches.width; ++x)
        remove(x, 0);
    for (int y = 0; y < patches.height; ++y) {
        remove(0, y);
        remove(patches.width - 1, y);
    }
}

bool isInside(Patches& patches, int x, int y) {
    for (int dy = -kWidth; dy <= kWidth; ++dy) {
        for (int dx = -kWidth; dx <= kWidth; ++dx) {
            if (!patches.contains(x + dx, y + dy)) return false;
        }
    }
    return true;
}

}  // namespace

double greenClothes(const SystemInfo& info) {
    const PassGeometry size = info.geometry(Resolution::preview);
    if (!info.pForegroundBitmapInfo->pBitmapDataLowRes || size.width < kStep || size.height < kStep) return 0.0;
    Patches patches = findPatches(info);
    removeRoom(patches);
    int inside = 0;
    for (int y = kWidth; y < patches.height - kWidth; ++y) {
        for (int x = kWidth; x < patches.width - kWidth; ++x)
            inside += patches.contains(x, y) && isInside(patches, x, y);
    }
    return inside / static_cast<double>(patches.bytes.size());
}

}  // namespace tavrin

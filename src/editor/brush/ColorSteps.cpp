#include "editor/brush/ColorSteps.h"

#include <algorithm>

#include "key/pixel/ColorDistance.h"

namespace tavrin {

namespace {

constexpr int kLevels = 256;
constexpr int kSectors = 6;

// Places of pairs (a, b) with b from 0 to a.
constexpr std::size_t pairAt(int a, int b) {
    return static_cast<std::size_t>(a * (a + 1) / 2 + b);
}
constexpr std::size_t kPairs = pairAt(kLevels, 0);

// A colour's hue lies in one of six sectors, by the largest channel and by which of the two others is the smallest;
// within it goes by the range of the channels, and by how far the middle one is from the largest.
std::size_t hueAt(int sector, int range, int toMiddle) {
    return static_cast<std::size_t>(sector) * kPairs + pairAt(range, toMiddle);
}

}  // namespace

const ColorStepTables& ColorStepTables::get() {
    static const ColorStepTables tables;
    return tables;
}

ColorStepTables::ColorStepTables() : hues_(kSectors * kPairs), saturations_(kPairs) {
    for (int range = 0; range < kLevels; ++range) {
        for (int toMiddle = 0; toMiddle <= range; ++toMiddle) {
            const double largest = 255.0, middle = 255 - toMiddle, smallest = 255 - range;
            const double colors[kSectors][3] = {{largest, middle, smallest}, {largest, smallest, middle},
                                                {smallest, largest, middle}, {middle, largest, smallest},
                                                {middle, smallest, largest}, {smallest, middle, largest}};
            for (int sector = 0; sector < kSectors; ++sector) {
                const double* c = colors[sector];
                hues_[hueAt(sector, range, toMiddle)] = static_cast<std::uint16_t>(toHsv(c[0], c[1], c[2]).h);
            }
        }
    }
    for (int largest = 0; largest < kLevels; ++largest) {
        for (int smallest = 0; smallest <= largest; ++smallest)
            saturations_[pairAt(largest, smallest)] =
                static_cast<std::uint8_t>(100.0 * toHsv(largest, smallest, smallest).s);
    }
}

ColorSteps ColorStepTables::of(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const {
    const int r = red, g = green, b = blue;
    const int largest = std::max({r, g, b}), smallest = std::min({r, g, b});
    int sector, one, other;  // one of the two is the smallest
    if (r == largest) {
        sector = 0, one = g, other = b;
    } else if (g == largest) {
        sector = 2, one = b, other = r;
    } else {
        sector = 4, one = r, other = g;
    }
    const bool otherIsMiddle = one == smallest;
    const int middle = otherIsMiddle ? other : one;
    return {hues_[hueAt(sector + (otherIsMiddle ? 1 : 0), largest - smallest, largest - middle)],
            saturations_[pairAt(largest, smallest)], static_cast<std::uint8_t>(largest / 2)};
}

}  // namespace tavrin

#include "key/screen/BaseGreen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <mutex>

#include "core/raster/ColorMath.h"
#include "key/screen/ScreenFilter.h"
#include "key/screen/ScreenHue.h"

namespace tavrin {

namespace {

constexpr int kCells = 20;                     // cells a side of the grid
constexpr int kLeastGreen = 30;                // pixels up to this level are too dark to have a hue
constexpr int kFirstHue = 60, kLastHue = 180;  // all that green leads
constexpr int kFallbackHue = 107, kFallbackSaturationBin = 127;
constexpr double kFallbackGreen = 100.0;

// The picture to measure and where a pixel's bytes play their roles.
struct Source {
    const std::uint8_t* pixels = nullptr;
    int width = 0, height = 0;
    int step = 1;  // rows from one row of the statistics to the next
    bool blueLogic = false;

    std::int64_t steps() const { return height < 1 ? 0 : (std::int64_t{height} + step - 1) / step; }
};

Source sourceOf(const SystemInfo& info, int mode) {
    const BitmapInfo& record = *info.pForegroundBitmapInfo;
    Source source;
    if (mode == 0) {
        source.pixels = record.pBitmapDataLowRes;
        source.width = info.iOutputPixelLowResWidth;
        source.height = info.iOutputPixelLowResHeight;
    } else {
        source.pixels = record.orgBitmapData;
        source.width = record.iOrgWidth;
        source.height = record.iOrgHeight;
        source.step = std::max(1, std::min(source.height / 500, source.width / 500));
    }
    source.blueLogic = info.bUseBlueLogic;
    return source;
}

// Calls `pixel(total, p)` for those of so many pixels from the head of the buffer that green leads with a saturation
// above 0.2 and a hue from `firstHue` to `lastHue`. Adds up the totals, which hold whole numbers, so that their order
// does not count.
template <class Total, class Pixel>
Total gather(const Source& source, std::int64_t pixels, int firstHue, int lastHue, Pixel pixel) {
    constexpr std::int64_t kAtATime = 1 << 16;
    const ScreenFilter filter{source.blueLogic, 1, 0, 1, 5, firstHue, lastHue, true};
    Total sum;
    std::mutex mutex;
    runRows({}, static_cast<int>((pixels + kAtATime - 1) / kAtATime), 1, [&](int piece) {
        Total part;
        const std::int64_t first = piece * kAtATime, count = std::min(kAtATime, pixels - first);
        forScreenLike(filter, source.pixels + first * kPixelBytes, static_cast<std::size_t>(count),
                      [&](int r, int g, int b) {
                          const ScreenPixel p{r, g, b};
                          if (p.greenLeads()) pixel(part, p);
                      });
        std::lock_guard lock(mutex);
        sum += part;
    });
    return sum;
}

template <std::size_t kCount>
struct Bins {
    std::array<std::int64_t, kCount> count{};

    void operator+=(const Bins& other) {
        for (std::size_t i = 0; i < kCount; ++i)
            count[i] += other.count[i];
    }

    // The lowest bin, from `first` on, of those with the largest count; `fallback` where all are empty.
    int peak(int first, int fallback) const {
        const auto found = std::max_element(count.begin() + first, count.end());
        return *found == 0 ? fallback : static_cast<int>(found - count.begin());
    }
};

// Reads pixels one after the other from the head of the buffer, a fifth of a row's length for each row of the
// statistics: the top of the picture, where the screen is free of the subject.
int findHuePeak(const Source& source) {
    const FullBrightness& full = FullBrightness::tables();
    const std::int64_t pixels = source.steps() * ((std::int64_t{source.width} + 4) / 5);
    const auto hues =
        gather<Bins<360>>(source, pixels, kFirstHue, kLastHue, [&](Bins<360>& part, const ScreenPixel& p) {
            if (p.g > kLeastGreen && full.greenLeads(p))
                ++part.count[static_cast<std::size_t>(FullBrightness::wholeHue(p))];
        });
    return hues.peak(0, kFallbackHue);
}

// Of the pixels near the peak of the hue: their saturations at full brightness, and the greens of those that are not
// dark.
struct NearPeak {
    Bins<200> saturations;
    std::int64_t greens = 0, count = 0;

    void operator+=(const NearPeak& other) {
        saturations += other.saturations;
        greens += other.greens;
        count += other.count;
    }

    double saturation() const { return saturations.peak(15, kFallbackSaturationBin) / 200.0; }
    double green() const {
        return count == 0 ? kFallbackGreen : static_cast<double>(greens) / static_cast<double>(count);
    }
};

NearPeak lookNearPeak(const Source& source, int huePeak) {
    const FullBrightness& full = FullBrightness::tables();
    const HueWindow window(huePeak);
    return gather<NearPeak>(source, source.steps() * source.width, window.first, window.end,
                            [&](NearPeak& part, const ScreenPixel& p) {
                                if (full.greenLeads(p) && window.holdsFull(p))
                                    ++part.saturations.count[static_cast<std::size_t>(full.saturationBin(p))];
                                if (p.g > kLeastGreen && window.holds(p)) {
                                    part.greens += p.g;
                                    ++part.count;
                                }
                            });
}

// The colour of that hue, saturation and green level.
Rgb screenColour(double hue, double saturation, double green) {
    const double low = green - green * saturation;
    const double middle = low + std::abs(120.0 - hue) * (green - low) / 60.0;
    Rgb base{low, green, low};
    (hue <= 120.0 ? base.r : base.b) = middle;
    return {atLeast(base.r, 1.0), atLeast(base.g, 1.0), atLeast(base.b, 1.0)};
}

struct Cell {
    std::int64_t r = 0, g = 0, b = 0;
    std::int32_t count = 0;

    void operator+=(const Cell& other) {
        r += other.r;
        g += other.g;
        b += other.b;
        count += other.count;
    }
};
using CellRow = std::array<Cell, kCells>;

// The pixels that count in the grid: they have a hue less than 20 degrees from that of the base colour, as whole
// degrees, a saturation above 0.5 and some brightness.
ScreenFilter cellFilter(const Source& source, const Rgb& base) {
    double h, s, v, delta;
    rgb_to_hsv(h, s, v, delta, base.r, base.g, base.b);
    const int hue = static_cast<int>(h), leastGreen = static_cast<int>(base.g * 0.2);
    return {source.blueLogic, 0, leastGreen, 10, 2, hue - 19, hue + 20, false};
}

// Adds up the screen-coloured pixels of the rows that fall into one row of cells.
CellRow sumCellRow(const Source& source, const ScreenFilter& filter, int cellRow) {
    const auto firstOf = [](std::int64_t cell, int length) {
        return static_cast<int>((cell * length + kCells - 1) / kCells);
    };
    CellRow cells{};
    for (int y = firstOf(cellRow, source.height); y < firstOf(cellRow + 1, source.height); ++y) {
        const std::uint8_t* row = source.pixels + pixelOffset(source.width, 0, y);
        for (int column = 0; column < kCells; ++column) {
            Cell cell;
            const int first = firstOf(column, source.width), end = firstOf(column + 1, source.width);
            forScreenLike(filter, row + pixelBytes(first, 1), static_cast<std::size_t>(end - first),
                          [&](int r, int g, int b) {
                              cell += {r, g, b, 1};
                          });
            cells[static_cast<std::size_t>(column)] += cell;
        }
    }
    return cells;
}

// A cell that is mostly screen shows its own mean; the more of it is covered, the more it leans on the global
// colour. In a picture of fewer than 400 pixels the weight of a cell has no value and neither has the colour.
double cellChannel(std::int64_t sum, std::int32_t count, double area, double base) {
    if (count < 6) return base;
    const double mean = static_cast<double>(sum) / count;
    const double weight = count / area;
    const double value = mean * weight + base * (1.0 - weight);
    return std::isnan(value) ? 1.0 : value;
}

void measureGrid(const Source& source, const Rgb& base, ScreenColor& result) {
    const double area = static_cast<double>(std::int64_t{source.width} * source.height / (kCells * kCells));
    const ScreenFilter filter = cellFilter(source, base);
    runRows({}, kCells, 1, [&](int row) {
        const CellRow cells = sumCellRow(source, filter, row);
        for (std::size_t column = 0; column < kCells; ++column) {
            const Cell& cell = cells[column];
            const std::size_t index = static_cast<std::size_t>(row) * kCells + column;
            result.iBaseArrayCount[index] = cell.count;
            result.iBaseRedArray[index] = cellChannel(cell.r, cell.count, area, base.r);
            result.iBaseGreenArray[index] = cellChannel(cell.g, cell.count, area, base.g);
            result.iBaseBlueArray[index] = cellChannel(cell.b, cell.count, area, base.b);
        }
    });
}

/// The picture to measure; false when there are pixels to look at but no buffer.
bool findSource(const SystemInfo& info, int mode, Source& source) {
    source = sourceOf(info, mode);
    if (source.width < 1 || source.height < 1) source.width = source.height = 0;
    return source.pixels || source.width == 0;
}

Rgb measureColour(SystemInfo& info, const Source& source) {
    const int hue = findHuePeak(source);
    const NearPeak near = lookNearPeak(source, hue);
    const Rgb base = screenColour(hue, near.saturation(), near.green());
    info.baseRed = base.r;
    info.baseGreen = base.g;
    info.baseBlue = base.b;
    return base;
}

}  // namespace

void ComputeBaseGreen(SystemInfo& info, int /*ignored*/, int mode) {
    Source source;
    if (findSource(info, mode, source)) measureGrid(source, measureColour(info, source), info);
}

void ComputeBaseColor(SystemInfo& info, int mode) {
    Source source;
    if (findSource(info, mode, source)) measureColour(info, source);
}

}  // namespace tavrin

#include "key/BaseGreen.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <mutex>

#include "core/raster/ColorMath.h"

namespace tavrin {

namespace {

constexpr int kCells = 20;  // cells a side of the grid
constexpr double kFallbackHue = 107.0, kFallbackSaturationBin = 127.0, kFallbackGreen = 100.0;

// The picture to measure and where a pixel's bytes play their roles.
struct Source {
    const std::uint8_t* pixels = nullptr;
    int width = 0, height = 0;
    int step = 1;  // rows from one row of the statistics to the next
    int green = 1, blue = 2;

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
    if (info.bUseBlueLogic) std::swap(source.green, source.blue);
    return source;
}

// A pixel in roles. A channel of 0 counts as 1 so that every colour has a hue and a saturation below 1.
Rgb screenPixel(const Source& source, const std::uint8_t* p) {
    const auto channel = [](std::uint8_t byte) { return byte == 0 ? 1.0 : static_cast<double>(byte); };
    return {channel(p[0]), channel(p[source.green]), channel(p[source.blue])};
}

struct HueSat {
    double hue, saturation;
};

HueSat hueSatOf(const Rgb& c) {
    double h, s, v, delta;
    rgb_to_hsv(h, s, v, delta, c.r, c.g, c.b);
    return {h, s};
}

// Hues are compared as whole degrees. Above 180 the half circle is taken off, which is not the shorter way round;
// the screen's neighbourhood is chosen by exactly this rule.
bool nearHue(double hue, double peak) {
    int distance = std::abs(static_cast<int>(hue) - static_cast<int>(peak));
    if (distance >= 181) distance -= 180;
    return distance < 5;
}

// Green must lead both others by 10 levels on the scale on which the pixel is at full brightness.
// On success the pixel is brought to that scale.
bool normaliseGreenLed(Rgb& c) {
    if (c.g <= c.r || c.g <= c.b) return false;
    const double m = c.g;
    const Rgb full{c.r * 255.0 / m, c.g * 255.0 / m, c.b * 255.0 / m};
    const double lead = 2550.0 / m;
    if (!(full.g > full.b + lead && full.g > full.r + lead)) return false;
    c = full;
    return true;
}

// Reads pixels one after the other from the head of the buffer, a fifth of a row's length for each row of the
// statistics: the top of the picture, where the screen is free of the subject.
double findHuePeak(const Source& source) {
    const std::int64_t count = source.steps() * ((std::int64_t{source.width} + 4) / 5);
    std::array<std::int64_t, 360> bins{};
    for (std::int64_t i = 0; i < count; ++i) {
        Rgb c = screenPixel(source, source.pixels + i * kPixelBytes);
        if (!(c.g > 30.0) || !normaliseGreenLed(c)) continue;
        const HueSat hs = hueSatOf(c);
        if (hs.saturation > 0.2) ++bins[static_cast<std::size_t>(hs.hue)];
    }
    const auto peak = std::max_element(bins.begin(), bins.end());
    return *peak == 0 ? kFallbackHue : static_cast<double>(peak - bins.begin());
}

// Calls `pixel(total, pointer)` for `steps` rows of pixels from the head of the buffer, and adds up the totals,
// which hold whole numbers, so that their order does not count.
template <class Total, class Pixel>
Total gather(const Source& source, Pixel pixel) {
    Total sum;
    std::mutex mutex;
    runRowRanges({}, static_cast<int>(source.steps()), 64, [&](int first, int last) {
        Total part;
        const std::uint8_t* end = source.pixels + pixelOffset(source.width, 0, last);
        for (const std::uint8_t* p = source.pixels + pixelOffset(source.width, 0, first); p != end;
             p += kPixelBytes) {
            pixel(part, p);
        }
        std::lock_guard lock(mutex);
        sum += part;
    });
    return sum;
}

struct SaturationBins {
    std::array<std::int64_t, 200> count{};
    void operator+=(const SaturationBins& other) {
        for (std::size_t i = 0; i < count.size(); ++i)
            count[i] += other.count[i];
    }
};

double findSaturationPeak(const Source& source, double huePeak) {
    const auto bins = gather<SaturationBins>(source, [&](SaturationBins& part, const std::uint8_t* p) {
        Rgb c = screenPixel(source, p);
        if (!normaliseGreenLed(c)) return;
        const HueSat hs = hueSatOf(c);
        if (nearHue(hs.hue, huePeak) && hs.saturation > 0.2)
            ++part.count[static_cast<std::size_t>(hs.saturation * 200.0)];
    });
    const auto peak = std::max_element(bins.count.begin() + 15, bins.count.end());
    return *peak == 0 ? kFallbackSaturationBin : static_cast<double>(peak - bins.count.begin());
}

struct GreenSum {
    std::int64_t sum = 0, count = 0;
    void operator+=(const GreenSum& other) {
        sum += other.sum;
        count += other.count;
    }
};

double findGreenLevel(const Source& source, double huePeak) {
    const auto total = gather<GreenSum>(source, [&](GreenSum& part, const std::uint8_t* p) {
        const Rgb c = screenPixel(source, p);
        if (!(c.g > 30.0 && c.g > c.b && c.g > c.r)) return;
        const HueSat hs = hueSatOf(c);
        if (!nearHue(hs.hue, huePeak) || !(hs.saturation > 0.2)) return;
        part.sum += static_cast<std::int64_t>(c.g);
        ++part.count;
    });
    return total.count == 0 ? kFallbackGreen : static_cast<double>(total.sum) / static_cast<double>(total.count);
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
};
using CellRow = std::array<Cell, kCells>;

// Adds up the screen-coloured pixels of the rows that fall into one row of cells.
CellRow sumCellRow(const Source& source, const Rgb& base, int cellRow) {
    const int baseHue = static_cast<int>(hueSatOf(base).hue);
    const double least = base.g * 0.2;
    const auto firstRowOf = [&](std::int64_t row) {
        return static_cast<int>((row * source.height + kCells - 1) / kCells);
    };
    CellRow cells{};
    for (int y = firstRowOf(cellRow); y < firstRowOf(cellRow + 1); ++y) {
        const std::uint8_t* p = source.pixels + pixelOffset(source.width, 0, y);
        for (int x = 0; x < source.width; ++x, p += kPixelBytes) {
            const int r = p[0], g = p[source.green], b = p[source.blue];
            const int mx = std::max({r, g, b}), mn = std::min({r, g, b});
            // The saturation (mx - mn) / mx has to be above 0.5.
            if (mx - mn < 10 || 2 * (mx - mn) <= mx || !(g > least)) continue;
            const HueSat hs = hueSatOf({static_cast<double>(r), static_cast<double>(g), static_cast<double>(b)});
            if (std::abs(static_cast<int>(hs.hue) - baseHue) >= 20) continue;
            Cell& cell = cells[static_cast<std::size_t>(std::int64_t{x} * kCells / source.width)];
            cell.r += r;
            cell.g += g;
            cell.b += b;
            ++cell.count;
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
    runRows({}, kCells, 1, [&](int row) {
        const CellRow cells = sumCellRow(source, base, row);
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
    const double hue = findHuePeak(source);
    const double saturation = findSaturationPeak(source, hue) / 200.0;
    const Rgb base = screenColour(hue, saturation, findGreenLevel(source, hue));
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

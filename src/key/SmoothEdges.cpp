#include "key/SmoothEdges.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "core/Log.h"
#include "core/raster/ColorMath.h"

namespace tavrin {

namespace {

constexpr int kBlockColumns = 64;
constexpr int kLevel = 200;  // alpha that parts subject from screen
constexpr int kReach = 2;    // pixels to each side that the search for an edge looks at

// A row or a column of the picture. Steps are in bytes.
struct Line {
    const std::uint8_t* alpha;   // of the first pixel
    const std::uint8_t* colors;  // the picture before the pass
    std::uint8_t* out;
    std::ptrdiff_t step;
    int length;
};

struct Step {
    bool rising, falling;
    bool any() const { return rising || falling; }
};

// The two directions look for an edge with tests of their own; `a` is the alpha at the pixel.
Step stepInRow(const std::uint8_t* a, std::ptrdiff_t step) {
    Step found;
    found.falling = a[-step] >= 201 && a[step] < 200;
    found.rising = a[-step] < 200 && a[step] > 200;
    if (a[-2 * step] < 200 && a[2 * step] >= 201) found.rising = true;
    if (a[-2 * step] > 200 && a[2 * step] < 200) found.falling = true;
    return found;
}

Step stepInColumn(const std::uint8_t* a, std::ptrdiff_t step) {
    Step found;
    found.falling = a[-step] >= 201 && (a[step] < 200 || a[2 * step] < 200);
    found.rising = a[step] > 200 && (a[-step] < 200 || a[-2 * step] < 200);
    return found;
}

// On which sides of the level alphas lie. Where all are on one side, as nearly everywhere, there is no edge.
struct Sides {
    bool below = false, above = false;

    bool mixed() const { return below && above; }
    void add(const Sides& other) {
        below |= other.below;
        above |= other.above;
    }
};

Sides sidesOf(const std::uint8_t* alpha, int count) {
    Sides sides;
    for (int i = 0; i < count; ++i) {
        sides.below |= alpha[i * kPixelBytes] < kLevel;
        sides.above |= alpha[i * kPixelBytes] > kLevel;
    }
    return sides;
}

// The side that should be solid must be solid all along.
bool isVetoed(const Line& line, const Step& edge, int at, std::int64_t reach) {
    const auto hasHole = [&](int first, int last) {
        for (int i = first; i <= last; ++i) {
            if (line.alpha[i * line.step] < 127) return true;
        }
        return false;
    };
    const int first = static_cast<int>(std::max<std::int64_t>(at - reach, 0));
    const int last = static_cast<int>(std::min<std::int64_t>(at + reach, line.length - 1));
    return (edge.falling && hasHole(first, at - 1)) || (edge.rising && hasHole(at + 1, last));
}

// Mean of the pixels from `first` to `last`, each with its distance from `at` as its weight: on purpose the mean is
// taken mainly away from the edge.
Rgb sideMean(const Line& line, int at, int first, int last) {
    std::int64_t r = 0, g = 0, b = 0, weights = 0;
    for (int i = first; i <= last; ++i) {
        const std::uint8_t* p = line.colors + i * line.step;
        const std::int64_t weight = std::abs(i - at);
        r += weight * p[0];
        g += weight * p[1];
        b += weight * p[2];
        weights += weight;
    }
    const double total = static_cast<double>(weights);
    return {static_cast<double>(r) / total, static_cast<double>(g) / total, static_cast<double>(b) / total};
}

void drawRamp(const Line& line, int at, std::int64_t half) {
    const int before = static_cast<int>(std::max<std::int64_t>(at - 2 * half, 0));
    const int after = static_cast<int>(std::min<std::int64_t>(at + 2 * half, line.length - 1));
    const Rgb left = sideMean(line, at, before, at - 1), right = sideMean(line, at, at + 1, after);
    const int first = static_cast<int>(std::max<std::int64_t>(at - half, 0));
    const int last = static_cast<int>(std::min<std::int64_t>(at + half, line.length - 1));
    for (int i = first; i <= last; ++i) {
        const double t = static_cast<double>(i - at + half) / static_cast<double>(2 * half);
        std::uint8_t* p = line.out + i * line.step;
        p[0] = toByte(left.r * (1.0 - t) + right.r * t);
        p[1] = toByte(left.g * (1.0 - t) + right.g * t);
        p[2] = toByte(left.b * (1.0 - t) + right.b * t);
    }
}

struct Picture {
    const std::uint8_t* key;  // RGBA, of which the alpha counts
    std::uint8_t* pixels;
    std::uint8_t* scratch;
    int width, height;
    std::int64_t half;  // half width of a ramp

    Line line(int x, int y, std::ptrdiff_t step, int length) const {
        const std::size_t at = pixelOffset(width, x, y);
        return {key + at + 3, scratch + at, pixels + at, step, length};
    }
};

// Ramps of one row may overlap; the last one stands.
void smoothRow(const Picture& picture, int y) {
    const std::size_t first = pixelOffset(picture.width, 0, y);
    const Line line = picture.line(0, y, kPixelBytes, picture.width);
    const int end = picture.width - kReach;
    bool copied = false;
    for (int block = kReach; block < end; block += kBlockColumns) {
        const int last = std::min(block + kBlockColumns, end);
        const int from = block - kReach;
        if (!sidesOf(line.alpha + from * line.step, last + kReach - from).mixed()) continue;
        if (!copied) std::memcpy(picture.scratch + first, picture.pixels + first, pixelBytes(picture.width, 1));
        copied = true;
        for (int x = block; x < last; ++x) {
            const Step edge = stepInRow(line.alpha + x * line.step, line.step);
            if (edge.any() && !isVetoed(line, edge, x, 2 * picture.half)) drawRamp(line, x, picture.half);
        }
    }
}

void copyColumns(const Picture& picture, int first, int columns) {
    const std::size_t bytes = static_cast<std::size_t>(columns) * kPixelBytes;
    for (int y = 0; y < picture.height; ++y) {
        const std::size_t at = pixelOffset(picture.width, first, y);
        std::memcpy(picture.scratch + at, picture.pixels + at, bytes);
    }
}

// A column's ramps lie within the column, so columns are independent; neighbouring ones go down together.
void smoothColumns(const Picture& picture, int first, int columns) {
    const std::ptrdiff_t step = static_cast<std::ptrdiff_t>(pixelBytes(picture.width, 1));
    const std::uint8_t* alpha = picture.key + pixelOffset(picture.width, first, 0) + 3;
    std::array<Sides, 2 * kReach + 1> rows;  // those around the row under work, in turn
    for (int y = 0; y < 2 * kReach; ++y)
        rows[static_cast<std::size_t>(y)] = sidesOf(alpha + y * step, columns);
    bool copied = false;
    for (int y = kReach; y < picture.height - kReach; ++y) {
        rows[static_cast<std::size_t>(y + kReach) % rows.size()] = sidesOf(alpha + (y + kReach) * step, columns);
        Sides around;
        for (const Sides& row : rows)
            around.add(row);
        if (!around.mixed()) continue;
        if (!copied) copyColumns(picture, first, columns);
        copied = true;
        for (int x = first; x < first + columns; ++x) {
            const Line line = picture.line(x, 0, step, picture.height);
            const Step edge = stepInColumn(line.alpha + y * step, step);
            if (edge.any() && !isVetoed(line, edge, y, 2 * picture.half)) drawRamp(line, y, picture.half);
        }
    }
}

std::int64_t rampHalf(const SystemInfo& info) {
    const std::int64_t half = static_cast<std::int64_t>(info.iBlendEdges) * (info.iOutputImageDPI / 100) / 30;
    return half < 3 ? 2 : half;
}

}  // namespace

void SmoothHiResEdges(SystemInfo& info) {
    const int width = info.iOutputPixelWidth, height = info.iOutputPixelHeight;
    const std::uint8_t* key = info.pBackgroundBitmapInfo->pBitmapData;
    std::uint8_t* pixels = info.pCombinedBitmapInfo->pBitmapData;
    if (info.bOutputTransparency || !key || !pixels || width < 1 || height < 1) return;
    const PixelBuffer scratch(width, height);
    if (!scratch.data()) return logError("Memory not allocated!");

    const Picture picture = {key, pixels, scratch.data(), width, height, rampHalf(info)};
    if (width >= 5) runRows({}, height, 8, [&](int y) { smoothRow(picture, y); });
    if (height < 5) return;
    runRows({}, (width - 1) / kBlockColumns + 1, 1, [&](int block) {
        const int first = block * kBlockColumns;
        smoothColumns(picture, first, std::min(kBlockColumns, width - first));
    });
}

}  // namespace tavrin

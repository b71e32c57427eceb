#include "key/SmoothEdges.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/AlphaSides.h"

namespace tavrin {

namespace {

constexpr int kLevel = 200;  // alpha that parts subject from screen
constexpr int kReach = 2;    // pixels to each side that the search for an edge looks at

// A row or a column of the picture. Steps are in bytes.
struct Line {
    const std::uint8_t* alpha;  // of the first pixel
    std::uint8_t* out;
    std::ptrdiff_t step;
    const std::uint8_t* colors;  // the picture before the pass
    std::ptrdiff_t colorStep;
    int length;
};

struct Step {
    bool rising, falling;
};

// The steps at 64 neighbouring pixels of a row, one bit each.
struct Steps {
    std::uint64_t rising, falling;

    // Calls `step(i, ...)` from left to right.
    template <class Call>
    void forEach(Call step) const {
        for (std::uint64_t left = rising | falling; left != 0; left &= left - 1) {
            const int i = std::countr_zero(left);
            step(i, Step{(rising >> i & 1) != 0, (falling >> i & 1) != 0});
        }
    }
};

// The sides of all alphas, in columns of 64 pixels width with a blank one at either end of the picture.
class SideTable {
  public:
    SideTable(int width, int height)
        : columns((width - 1) / kSidesPixels + 1),
          height_(static_cast<std::size_t>(height)),
          sides_((static_cast<std::size_t>(columns) + 2) * height_) {}

    const AlphaSides* at(int column, int y) const { return &sides_[index(column, y)]; }
    void find(const std::uint8_t* row, int width, int y) {
        findAlphaSides(row, width, kLevel, &sides_[index(0, y)], height_);
    }

    const int columns;

  private:
    std::size_t index(int column, int y) const {
        return static_cast<std::size_t>(column + 1) * height_ + static_cast<std::size_t>(y);
    }

    std::size_t height_;
    std::vector<AlphaSides> sides_;
};

// The two directions look for an edge with tests of their own.
Steps stepsInRow(const SideTable& table, int column, int y) {
    const AlphaSides &here = *table.at(column, y), &before = *table.at(column - 1, y),
                     &after = *table.at(column + 1, y);
    const auto left = [&](int by) {
        return AlphaSides{here.below << by | before.below >> (kSidesPixels - by),
                          here.above << by | before.above >> (kSidesPixels - by)};
    };
    const auto right = [&](int by) {
        return AlphaSides{here.below >> by | after.below << (kSidesPixels - by),
                          here.above >> by | after.above << (kSidesPixels - by)};
    };
    const AlphaSides left1 = left(1), left2 = left(2), right1 = right(1), right2 = right(2);
    return {(left1.below & right1.above) | (left2.below & right2.above),
            (left1.above & right1.below) | (left2.above & right2.below)};
}

Steps stepsInColumn(const AlphaSides* here) {
    return {here[1].above & (here[-1].below | here[-2].below), here[-1].above & (here[1].below | here[2].below)};
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
        const std::uint8_t* p = line.colors + i * line.colorStep;
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
    int width, height;
    std::int64_t half;  // half width of a ramp
};

// What a pass reads: pixels as they were, each copied before a ramp can change it. A pass goes on along its lines and
// asks for what it reads around it, so that whatever lies beyond what it has asked for is still unchanged.
class Unchanged {
  public:
    // `pieces` of the picture, the pixels of a row or runs of pixels one below the other.
    Unchanged(const std::uint8_t* first, std::size_t bytes, std::size_t step, int pieces)
        : first_(first),
          bytes_(bytes),
          step_(step),
          pieces_(pieces),
          copy_(new std::uint8_t[bytes * static_cast<std::size_t>(pieces)]) {}

    void restart(const std::uint8_t* first) {
        first_ = first;
        copied_ = 0;
    }

    const std::uint8_t* data() const { return copy_.get(); }

    void copyAround(int at, std::int64_t reach) {
        const int end = static_cast<int>(std::min<std::int64_t>(at + reach + 1, pieces_));
        for (int i = static_cast<int>(std::max<std::int64_t>(at - reach, copied_)); i < end; ++i) {
            const std::size_t piece = static_cast<std::size_t>(i);
            std::memcpy(copy_.get() + piece * bytes_, first_ + piece * step_, bytes_);
        }
        copied_ = std::max(copied_, end);
    }

  private:
    const std::uint8_t* first_;
    std::size_t bytes_, step_;
    int pieces_;
    int copied_ = 0;
    std::unique_ptr<std::uint8_t[]> copy_;
};

// Ramps of one row may overlap; the last one stands.
void smoothRow(const Picture& picture, const SideTable& table, int y, Unchanged& row) {
    const std::size_t first = pixelOffset(picture.width, 0, y);
    const Line line = {
        picture.key + first + 3, picture.pixels + first, kPixelBytes, row.data(), kPixelBytes, picture.width};
    row.restart(picture.pixels + first);
    for (int column = 0; column < table.columns; ++column) {
        stepsInRow(table, column, y).forEach([&](int i, const Step& edge) {
            const int x = column * kSidesPixels + i;
            if (x < kReach || x >= picture.width - kReach || isVetoed(line, edge, x, 2 * picture.half)) return;
            row.copyAround(x, 2 * picture.half);
            drawRamp(line, x, picture.half);
        });
    }
}

// A column's ramps lie within the column, so columns are independent; neighbouring ones go down together.
void smoothColumns(const Picture& picture, const SideTable& table, int column) {
    const int first = column * kSidesPixels;
    const int columns = std::min(kSidesPixels, picture.width - first);
    const std::size_t start = pixelOffset(picture.width, first, 0);
    const std::size_t bytes = pixelBytes(columns, 1), step = pixelBytes(picture.width, 1);
    Unchanged rows(picture.pixels + start, bytes, step, picture.height);
    for (int y = kReach; y < picture.height - kReach; ++y) {
        stepsInColumn(table.at(column, y)).forEach([&](int x, const Step& edge) {
            const std::size_t at = static_cast<std::size_t>(x) * kPixelBytes;
            const Line line = {picture.key + start + at + 3,       picture.pixels + start + at,
                               static_cast<std::ptrdiff_t>(step),  rows.data() + at,
                               static_cast<std::ptrdiff_t>(bytes), picture.height};
            if (isVetoed(line, edge, y, 2 * picture.half)) return;
            rows.copyAround(y, 2 * picture.half);
            drawRamp(line, y, picture.half);
        });
    }
}

void smooth(const RunContext& run, const Picture& picture) {
    SideTable table(picture.width, picture.height);
    const bool finished = runRowRanges(run, picture.height, 16, [&](int first, int last) {
        Unchanged row(picture.pixels, kPixelBytes, kPixelBytes, picture.width);
        for (int y = first; y < last; ++y) {
            table.find(picture.key + pixelOffset(picture.width, 0, y), picture.width, y);
            smoothRow(picture, table, y, row);
        }
    });
    if (finished) runRows(run, table.columns, 1, [&](int column) { smoothColumns(picture, table, column); });
}

std::int64_t rampHalf(const SystemInfo& info) {
    const std::int64_t half = static_cast<std::int64_t>(info.iBlendEdges) * (info.iOutputImageDPI / 100) / 30;
    return half < 3 ? 2 : half;
}

}  // namespace

void SmoothHiResEdges(SystemInfo& info, const RunContext& run) {
    const int width = info.iOutputPixelWidth, height = info.iOutputPixelHeight;
    const std::uint8_t* key = info.pBackgroundBitmapInfo->pBitmapData;
    std::uint8_t* pixels = info.pCombinedBitmapInfo->pBitmapData;
    if (info.bOutputTransparency || !key || !pixels || width < 1 || height < 1) return;
    smooth(run, {key, pixels, width, height, rampHalf(info)});
}

}  // namespace tavrin

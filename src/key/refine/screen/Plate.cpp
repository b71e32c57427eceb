#include "key/refine/screen/Plate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numeric>

#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"
#include "key/refine/grid/Areas.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/SumLoops.h"
#include "key/refine/screen/Garments.h"

namespace tavrin::refine {

namespace {

constexpr double kSeedReach = 4.0;     // pixels of 5 megapixels, as all lengths without a name of their own
constexpr double kLeastScreen = 0.02;  // of the picture
constexpr int kLeastDifference = 15;   // of the screen's colour
constexpr float kLeastShare = 0.3f;    // of the usual difference, for a plate that has lost its colour
constexpr double kSamples = 40'000;    // of a median
constexpr float kDeviation = 1.4826f;  // of a normal distribution, from the median of the distances

// Every so many columns and rows, for measuring a middle.
int sampleStep(const Shot& shot) {
    return std::max(1, static_cast<int>(std::sqrt(static_cast<double>(shot.width) * shot.height / kSamples)));
}

// The lead of the screen's channel over the larger of the others.
int colorDifference(const Shot& shot, int x, int y) {
    const std::uint8_t* const p = shot.pixels + pixelOffset(shot.width, x, y);
    const ChannelRoles roles(shot.blue);
    return p[roles.green] - std::max(p[0], p[roles.blue]);
}

// The middle of the clear pixels' differences; 0 where there is none.
int usualDifference(const Shot& shot) {
    std::array<std::int64_t, 511> counts{};
    std::int64_t all = 0;
    const int step = sampleStep(shot);
    for (int y = 0; y < shot.height; y += step) {
        for (int x = y / step % step; x < shot.width; x += step) {
            if (shot.keyRow(y)[x] != 0) continue;
            ++counts[static_cast<std::size_t>(colorDifference(shot, x, y) + 255)];
            ++all;
        }
    }
    std::int64_t below = 0;
    for (std::size_t i = 0; i < counts.size() && all > 0; ++i) {
        below += counts[i];
        if (2 * below > all) return static_cast<int>(i) - 255;
    }
    return 0;
}

// How far alpha is from 0 on a sample of the screen's pixels, in scan order.
std::vector<float> strayAlphas(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& screen) {
    const int step = sampleStep(shot), count = (shot.height + step - 1) / step;
    std::vector<std::vector<float>> found(static_cast<std::size_t>(count));
    runRowRanges(context, count, 16, [&](int first, int last) {
        std::vector<float> alpha(static_cast<std::size_t>(shot.width));
        StartRows rows({shot, 0, shot.width}, plate);
        for (int i = first, y = i * step; i < last; ++i, y += step) {
            if (screen.isClear(y, 0, shot.width)) continue;
            rows.go(y);
            rows.alpha(alpha.data());
            std::vector<float>& strays = found[static_cast<std::size_t>(i)];
            strays.resize(static_cast<std::size_t>((shot.width + step - 1) / step));
            std::size_t count = 0;
            for (int x = i % step; x < shot.width; x += step) {
                strays[count] = std::abs(alpha[static_cast<std::size_t>(x)]);
                count += screen.at(x, y) ? 1 : 0;
            }
            strays.resize(count);
        }
    });
    std::vector<float> all;
    for (const std::vector<float>& row : found)
        all.insert(all.end(), row.begin(), row.end());
    return all;
}

// The middle one of numbers from 0 to 1.3, at least one: those around it are found by counting.
float middleOf(const std::vector<float>& values) {
    constexpr float kSteps = 2048.0f;
    std::array<std::uint32_t, 4096> counts{};
    const auto step = [&](float value) {
        return std::min(static_cast<std::size_t>(value * kSteps), counts.size() - 1);
    };
    for (const float value : values)
        ++counts[step(value)];
    std::size_t place = values.size() / 2, middle = 0;
    for (; place >= counts[middle]; ++middle)
        place -= counts[middle];
    std::vector<float> near;
    near.reserve(counts[middle]);
    for (const float value : values) {
        if (step(value) == middle) near.push_back(value);
    }
    const auto at = near.begin() + static_cast<std::ptrdiff_t>(place);
    std::nth_element(near.begin(), at, near.end());
    return *at;
}

float measureSpread(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& screen) {
    const std::vector<float> distances = strayAlphas(context, shot, plate, screen);
    if (distances.empty()) return 0.0f;
    return kDeviation * middleOf(distances);
}

// Sums of a mask's pixels in some columns of one row of cells.
void sumCells(const Shot& shot, const Mask& mask, int size, int row, int left, int count, Cells& cells) {
    const auto length = static_cast<std::size_t>(count);
    const auto lines = std::make_unique_for_overwrite<float[]>((4 + static_cast<std::size_t>(size)) * length);
    float *const sums = lines.get(), *const weights = sums + 4 * length;
    const int first = row * size, last = std::min(first + size, shot.height);
    for (int y = first; y < last; ++y)
        mask.unpack(y, left, count, weights + std::ptrdiff_t{y - first} * count);
    sumLoops().sumColors({shot.pixelRow(first) + left, shot.width, weights, last - first, count}, shot.blue, sums);
    const int whole = count / size, rest = count % size;
    for (std::size_t plane = 0; plane < 4; ++plane) {
        const float* const from = sums + (plane + 1) % 4 * length;  // the weight comes last in the cells
        float* const to = cells.row(row, static_cast<int>(plane)) + left / size;
        sumLoops().sumGroups(from, size, whole, to);
        for (int c = 0; c < whole; ++c)
            to[c] /= static_cast<float>(size * (last - first));
        if (rest > 0)
            to[whole] =
                std::accumulate(from + whole * size, from + count, 0.0f) / static_cast<float>(rest * (last - first));
    }
}

// The same, for all columns that have any.
void sumCells(const Shot& shot, const Mask& mask, int size, int row, Cells& cells) {
    const int first = row * size, last = std::min(first + size, shot.height);
    forColumns(mask, first, last,
               [&](int left, int right) { sumCells(shot, mask, size, row, left, right - left, cells); });
}

}  // namespace

std::optional<Plate> findScreen(const RunContext& context, const Shot& shot) {
    const int usual = usualDifference(shot);
    if (usual < kLeastDifference) return std::nullopt;
    Mask seeds(shot.width, shot.height);
    const bool finished = runRowRanges(context, shot.height, 32, [&](int first, int last) {
        std::vector<std::uint8_t> flags(static_cast<std::size_t>(shot.width) + 8);
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y) {
            rowLoops().seeds(shot.pixelRow(y), shot.keyRow(y), shot.width, shot.blue, usual, flags.data());
            seeds.pack(y, flags.data());
        }
    });
    if (!finished) return std::nullopt;
    Plate plate;
    plate.screen = shrunk(context, seeds, shot.px(kSeedReach));
    dropStrangers(context, shot, plate.screen);
    plate.difference = static_cast<float>(usual);
    Garments garments = findGarments(context, shot, plate.difference, plate.screen);
    if (garments.solid.width() > 0) {
        garments.strange |= garments.solid;
        plate.screen &= garments.strange.inverted();
        plate.cloth = std::move(garments.solid);
        plate.dyed = std::move(garments.dyed);
    }
    if (static_cast<double>(plate.screen.count()) < kLeastScreen * shot.width * shot.height) return std::nullopt;
    return plate;
}

Cells colorsOn(const RunContext& context, const Shot& shot, const Mask& mask, int size) {
    Cells cells = Cells::over(shot.width, shot.height, size, 4);
    runRows(context, cells.rows(), 8, [&](int row) { sumCells(shot, mask, size, row, cells); });
    return cells;
}

Mask paintColors(const RunContext& context, const Shot& shot, const Mask& frame, Plate& plate) {
    Mask painted = plate.screen;
    if (frame.width() > 0) painted &= frame.inverted();
    plate.colors = pushPull(context, colorsOn(context, shot, painted, kPlateCell));
    return painted;
}

void paintPlate(const RunContext& context, const Shot& shot, const Mask& frame, Plate& plate) {
    const Mask painted = paintColors(context, shot, frame, plate);
    plate.spread = measureSpread(context, shot, plate, painted);
}

StartRows::StartRows(const Strip& strip, const Plate& plate)
    : strip_(strip),
      least_(kLeastShare * plate.difference),
      plate_(plate.colors, kPlateCell, strip.left, strip.width),
      lines_(std::make_unique_for_overwrite<float[]>(6 * static_cast<std::size_t>(strip.width))) {}

void StartRows::load(int y, float* const* planes) {
    loadColors(strip_, y, planes[0], planes[1], planes[2]);
    for (int plane = 0; plane < 3; ++plane)
        plate_.fill(y, plane, planes[3 + plane]);
}

void StartRows::go(int y) {
    float* const planes[] = {line(0), line(1), line(2), line(3), line(4), line(5)};
    load(y, planes);
}

void StartRows::alpha(float* to) const {
    matteLoops().startAlpha(own(), screen(), least_, strip_.width, to);
}

}  // namespace tavrin::refine

#include "key/refine/Core.h"

#include <algorithm>
#include <cmath>

#include "key/refine/RowRing.h"
#include "key/refine/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr double kCoreReach = 20.0, kCoreNear = 10.0;  // looked at around a pixel; left between it and lower ones
constexpr double kFirstReach = 3.0, kDepthReach = 60.0, kRoughReach = 10.0, kPartCell = 8.0, kGapCell = 4.0;
constexpr float kCoreAlpha = 0.65f, kSureAlpha = 0.92f;
constexpr float kDepthAlpha = 0.08f, kDepthLight = 1.2f, kOtherRatio = 15.0f;
constexpr std::uint8_t kDepthKey = 13;  // the key's alpha above 0.05
constexpr float kCalm = 2.5f, kCalmFactor = 1.2f;
constexpr double kLeastPart = 0.005;  // of all cells
constexpr float kWholeCell = 0.999f;

// What one look at every pixel finds.
struct Look {
    Mask high;        // alpha over `kCoreAlpha`
    Mask sure;        // alpha over `kSureAlpha`
    Mask cloth;       // may be cloth, were it far from the screen
    Mask screenlike;  // has nearly the plate's colour
    Cells rough;      // how much the luma strays from its mean of 5 x 5 pixels, cells of `kPartCell`

    Look(const Shot& shot)
        : high(shot.width, shot.height),
          sure(high),
          cloth(high),
          screenlike(high),
          rough(Cells::over(shot.width, shot.height, shot.px(kPartCell), 1)) {}
};

class LookRows {
    using Maker = std::function<void(int, float**)>;

  public:
    LookRows(const Shot& shot, const Plate& plate, Look& look)
        : shot_(shot),
          screenColor_(8.0f + 150.0f * plate.spread),
          look_(look),
          start_(shot, plate),
          ratio_(shot, plate),
          alphas_(shot.width, shot.height, 1,
                  [this](int y, float** planes) {
                      start_.go(y);
                      start_.alpha(planes[0]);
                      for (int x = 0; x < shot_.width; ++x)
                          planes[0][x] = std::max(planes[0][x], 0.0f);
                  }),
          lumas_(shot.width, shot.height, 2, [this](int y, float** planes) { loadLuma(shot_, y, planes[0]); }),
          scratch_(shot.width, 5),
          flags_(static_cast<std::size_t>(shot.width) + 8) {}

    void work(int y) {
        float *const mean = scratch_.row(0), *const light = scratch_.row(1), *const off = scratch_.row(2),
                     *const columns = scratch_.row(3);
        const int width = shot_.width;
        std::uint8_t* const flags = flags_.data();
        const std::uint8_t* const key = shot_.keyRow(y);
        boxSums(alphas_.around(y, 0, 1), 1, width, columns, mean);
        for (int x = 0; x < width; ++x) {
            mean[x] /= 9.0f;
            flags[x] = mean[x] > kCoreAlpha;
        }
        look_.high.pack(y, flags);
        const float* const alpha = alphas_.at(y, 0);
        for (int x = 0; x < width; ++x)
            flags[x] = alpha[x] > kSureAlpha;
        look_.sure.pack(y, flags);
        ratio_.fill(y, light, off);
        for (int x = 0; x < width; ++x)
            flags[x] =
                (mean[x] > kDepthAlpha) & (key[x] >= kDepthKey) & (light[x] < kDepthLight) & (off[x] > kOtherRatio);
        look_.cloth.pack(y, flags);
        ratio_.distance(off);
        for (int x = 0; x < width; ++x)
            flags[x] = off[x] < screenColor_;
        look_.screenlike.pack(y, flags);
        addRoughness(y);
    }

  private:
    // Rows of a cell come one after the other.
    void addRoughness(int y) {
        float *const mean = scratch_.row(4), *const columns = scratch_.row(3);
        const int width = shot_.width, size = shot_.px(kPartCell);
        boxSums(lumas_.around(y, 0, 2), 2, width, columns, mean);
        const float* const luma = lumas_.at(y, 0);
        for (int x = 0; x < width; ++x)
            mean[x] = std::abs(luma[x] - mean[x] / 25.0f);
        float* const cells = look_.rough.row(y / size, 0);
        const int rows = std::min((y / size + 1) * size, shot_.height) - y / size * size;
        for (int c = 0; c < look_.rough.columns(); ++c) {
            float sum = 0.0f;
            const int end = std::min((c + 1) * size, width);
            for (int x = c * size; x < end; ++x)
                sum += mean[x];
            cells[c] += sum / static_cast<float>((end - c * size) * rows);
        }
    }

    const Shot& shot_;
    float screenColor_;
    Look& look_;
    StartRows start_;
    ScreenRatio ratio_;
    RowRing<1, Maker> alphas_, lumas_;
    PaddedRows scratch_;
    std::vector<std::uint8_t> flags_;
};

// The middle of the cells that are mostly screen.
float middleOn(const Cells& values, const Cells& screen) {
    std::vector<float> found;
    for (std::size_t i = 0; i < values.count(); ++i) {
        if (screen.row(0, 0)[i] > 0.5f) found.push_back(values.row(0, 0)[i]);
    }
    if (found.empty()) return 0.0f;
    const auto middle = found.begin() + static_cast<std::ptrdiff_t>(found.size() / 2);
    std::nth_element(found.begin(), middle, found.end());
    return *middle;
}

// Connected parts of `far` that are as calm as cloth, not hair.
Mask calmParts(const RunContext& context, const Mask& far, const Mask& screen, const Cells& rough, int size,
               double roughReach) {
    const Cells shares = sharesOf(context, far, size), smooth = blurred(rough, roughReach / size);
    const float most = kCalm + kCalmFactor * middleOn(smooth, sharesOf(context, screen, size));
    std::vector<std::uint8_t> set(shares.count());
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = shares.row(0, 0)[i] > 0.5f;
    const Parts parts = findParts(shares.columns(), shares.rows(), set, Neighbours::four);
    std::vector<double> sums(static_cast<std::size_t>(parts.count) + 1), counts(sums);
    for (std::size_t i = 0; i < set.size(); ++i) {
        const auto part = static_cast<std::size_t>(parts.labels[i]);
        sums[part] += static_cast<double>(smooth.row(0, 0)[i]);
        counts[part] += 1.0;
    }
    const double least = kLeastPart * static_cast<double>(shares.count());
    return maskOf(far.width(), far.height(), size, [&](int c, int row) {
        const auto part =
            static_cast<std::size_t>(parts.labels[static_cast<std::size_t>(row * shares.columns() + c)]);
        return part != 0 && counts[part] > least && sums[part] < static_cast<double>(most) * counts[part];
    });
}

// Gaps of the solid inside that hold no screen: embroidery, reflections in glasses, prints.
Mask enclosedGaps(const RunContext& context, const Mask& solid, const Mask& screenlike, int size) {
    const Cells shares = sharesOf(context, solid, size), bare = sharesOf(context, screenlike, size);
    // A frame of gap around the picture, so that what reaches its border is one part.
    const int columns = shares.columns() + 2, rows = shares.rows() + 2;
    std::vector<std::uint8_t> gap(static_cast<std::size_t>(columns * rows), 1);
    const auto framed = [columns](int c, int row) { return static_cast<std::size_t>((row + 1) * columns + c + 1); };
    for (int row = 0; row < shares.rows(); ++row) {
        for (int c = 0; c < shares.columns(); ++c)
            gap[framed(c, row)] = shares.row(row, 0)[c] < kWholeCell;
    }
    const Parts parts = findParts(columns, rows, gap, Neighbours::eight);
    std::vector<std::uint8_t> fill(static_cast<std::size_t>(parts.count) + 1, 1);
    fill[0] = fill[static_cast<std::size_t>(parts.labels[0])] = 0;
    for (int row = 0; row < shares.rows(); ++row) {
        for (int c = 0; c < shares.columns(); ++c) {
            if (bare.row(row, 0)[c] > 0.0f) fill[static_cast<std::size_t>(parts.labels[framed(c, row)])] = 0;
        }
    }
    return maskOf(solid.width(), solid.height(), size,
                  [&](int c, int row) { return fill[static_cast<std::size_t>(parts.labels[framed(c, row)])] != 0; });
}

}  // namespace

Core findCore(const RunContext& context, const Shot& shot, const Plate& plate) {
    Look look(shot);
    const int cell = shot.px(kPartCell);
    runBlocks(context, shot.height, cell * std::max(1, 64 / cell), [&](int first, int last) {
        LookRows rows(shot, plate, look);
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y)
            rows.work(y);
    });
    const int reach = shot.px(kCoreReach);
    Core core{shrunk(context, look.high, reach), shrunk(context, look.sure, shot.px(kFirstReach))};
    Mask far = shrunk(context, plate.screen.inverted(), shot.px(kDepthReach));
    far &= look.cloth;
    far &= core.solid.inverted();
    core.solid |= calmParts(context, far, plate.screen, look.rough, cell, shot.px(kRoughReach));
    core.solid = grown(context, core.solid, std::max(1, reach - shot.px(kCoreNear)));
    core.solid |= enclosedGaps(context, core.solid, look.screenlike, shot.px(kGapCell));
    core.sure |= core.solid;
    return core;
}

}  // namespace tavrin::refine

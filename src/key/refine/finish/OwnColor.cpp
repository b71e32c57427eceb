#include "key/refine/finish/OwnColor.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

#include "core/raster/Pixels.h"
#include "key/refine/finish/UsualColor.h"
#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr double kOwnCell = 8.0, kDeepReach = 10.0, kInnerReach = 8.0;
constexpr float kWhole = 0.98f;
constexpr double kFewCells = 20.0;
constexpr float kMaybeCloth = 0.3f, kSurelyCloth = 0.6f;  // of the screen's difference
constexpr float kMostOwn = 0.45f;                         // of the screen's difference
constexpr double kFarReach = 60.0;                        // from edges, where next to no light of the screen comes

// Adds some columns of one row of cells.
void sumGreen(const Mask& deep, int row, int size, const Strip& strip, Cells& cells) {
    const auto length = static_cast<std::size_t>(strip.width);
    std::vector<float> lines(3 * length);
    float *const weight = lines.data(), *const leads = weight + length, *const weights = leads + length;
    const int first = row * size, last = std::min(first + size, deep.height());
    for (int y = first; y < last; ++y) {
        deep.unpack(y, strip.left, strip.width, weight);
        rowLoops().addLead(strip.shot.pixelRow(y) + strip.left, weight, strip.width, strip.shot.blue, leads, weights);
    }
    for (int begin = 0; begin < strip.width; begin += size) {
        const int end = std::min(begin + size, strip.width), cell = (strip.left + begin) / size;
        const auto pixels = static_cast<float>((end - begin) * (last - first));
        cells.row(row, 0)[cell] = std::accumulate(leads + begin, leads + end, 0.0f) / pixels;
        cells.row(row, 1)[cell] = std::accumulate(weights + begin, weights + end, 0.0f) / pixels;
    }
}

// Means over the deep inside of how far the screen's channel is above the mean of the others.
Cells ownGreen(const RunContext& context, const Findings& findings, int size) {
    const Shot& shot = findings.shot;
    const Mask deep = shrunk(context, findings.solid, shot.px(kDeepReach));
    Cells cells = Cells::over(shot.width, shot.height, size, 2);
    runRows(context, cells.rows(), 4, [&](int row) {
        forColumns(deep, row * size, std::min((row + 1) * size, shot.height), [&](int left, int right) {
            sumGreen(deep, row, size, {shot, left, right - left}, cells);
        });
    });
    return cells;
}

// What there is on cells far from all edges; all 0 where none of them has more than `least`.
Cells farGreen(const RunContext& context, const Shot& shot, Cells green, int size, float least) {
    Mask inside(green.columns(), green.rows());
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(green.columns()) + 8);
    for (int y = 0; y < green.rows(); ++y) {
        rowLoops().above(green.row(y, 1), 0.99f, green.columns(), flags.data());
        inside.pack(y, flags.data());
    }
    const Mask far = shrunk(context, inside, std::max(1, shot.px(kFarReach - kDeepReach) / size));
    bool any = false;
    std::vector<float> share(static_cast<std::size_t>(green.columns()));
    for (int y = 0; y < green.rows(); ++y) {
        float *const lead = green.row(y, 0), *const weight = green.row(y, 1);
        far.unpack(y, 0, green.columns(), share.data());
        for (int x = 0; x < green.columns(); ++x) {
            lead[x] *= share[static_cast<std::size_t>(x)];
            weight[x] *= share[static_cast<std::size_t>(x)];
            any = any || lead[x] > least;
        }
    }
    if (!any || green.sums()[1] <= kFewCells) return Cells(green.columns(), green.rows(), 1);
    return pushPull(context, green);
}

// What the subject has of the pixels of an area, summed over cells: the area's own ones, since these are parts of a
// grain of columns and of a block of rows.
class AroundSums {
  public:
    AroundSums(const Strip& strip, const Plate& plate, Cells& cells)
        : strip_(strip),
          start_(strip, plate),
          cells_(cells),
          lines_(4 * static_cast<std::size_t>(strip.width)),
          sums_(lines_.size()) {}

    /// Adds row `y`, if it is one of those that are looked at.
    void add(int y, const float* alpha) {
        constexpr int kRowStep = 4;
        if (y % kRowStep != 0) return;
        start_.go(y);
        finishLoops().remainder(start_.own(), start_.screen(), alpha, strip_.width, line(0), line(1), line(2));
        std::copy_n(alpha, strip_.width, line(3));
        for (std::size_t i = 0; i < sums_.size(); ++i)
            sums_[i] += lines_[i] * (static_cast<float>(kRowStep) / (kUsualCell * kUsualCell));
    }

    /// Ends the cells of row `y`.
    void end(int y) {
        for (int plane = 0; plane < 4; ++plane) {
            float* const to = cells_.row(y / kUsualCell, plane) + strip_.left / kUsualCell;
            const float* const from = sums_.data() + plane * std::ptrdiff_t{strip_.width};
            for (int x = 0; x < strip_.width; ++x)
                to[x / kUsualCell] += from[x];
        }
        std::fill(sums_.begin(), sums_.end(), 0.0f);
    }

  private:
    float* line(int i) { return lines_.data() + i * std::ptrdiff_t{strip_.width}; }

    Strip strip_;
    StartRows start_;
    Cells& cells_;
    std::vector<float> lines_, sums_;
};

// The pixels that are nearly whole before the detail, and what is around the open ones.
Mask wholePixels(const RunContext& context, const Findings& findings, Cells& around) {
    const Shot& shot = findings.shot;
    Mask whole = findings.solid;
    runAreas(context, findings.open, [&](const Area& area) {
        const Strip strip = area.strip(shot, 0);
        std::vector<float> alpha(static_cast<std::size_t>(strip.width)), scratch(alpha);
        std::vector<std::uint8_t> flags(alpha.size() + 8);
        AroundSums sums(strip, findings.plate, around);
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            plainAlpha(findings, strip, y, scratch.data(), alpha.data());
            rowLoops().above(alpha.data(), kWhole, strip.width, flags.data());
            whole.pack(y, area.left, area.width(), flags.data());
            sums.add(y, alpha.data());
            if ((y + 1) % kUsualCell == 0 || y + 1 == area.bottom) sums.end(y);
        }
    });
    return whole;
}

// Whether cloth near the screen's hue is near; no cells where there is none.
Cells clothAround(const RunContext& context, const Mask& cloth, int size) {
    return cloth.width() > 0 ? sharesOf(context, grown(context, cloth, 2 * size), size) : Cells();
}

// Raises the limits of row `y` to what cloth near the screen's hue has.
void keepDye(const GreenLimits& limits, const Strip& strip, int y, float* own) {
    const Mask& dyed = *limits.dyed;
    if (dyed.width() == 0 || dyed.isClear(y, strip.left, strip.left + strip.width)) return;
    const auto width = static_cast<std::size_t>(strip.width);
    std::vector<float> lines(3 * width);
    float *const r = lines.data(), *const g = r + width, *const b = g + width;
    loadColors(strip, y, r, g, b);
    for (int x = 0; x < strip.width; ++x) {
        if (dyed.at(strip.left + x, y)) own[x] = std::max(own[x], limits.dye * (g[x] - (r[x] + b[x]) * 0.5f));
    }
}

}  // namespace

GreenLimits findLimits(const RunContext& context, const Findings& findings) {
    const Shot& shot = findings.shot;
    GreenLimits limits;
    limits.size = shot.px(kOwnCell) < 6 ? 4 : 8;  // parts of a grain of columns
    limits.dyed = &findings.plate.dyed;
    limits.dye = findings.taste.ownGreen;
    const Cells green = ownGreen(context, findings, limits.size);
    limits.own = limits.cloth = Cells(green.columns(), green.rows(), 1);
    if (green.sums()[1] > kFewCells && !context.isSuperseded()) {
        const float usual = findings.plate.difference;
        Cells least = least5(context, pushPull(context, green)), cloth = least;
        for (std::size_t i = 0; i < cloth.count(); ++i)
            cloth.row(0, 0)[i] = smoothStep(cloth.row(0, 0)[i], kMaybeCloth * usual, kSurelyCloth * usual) *
                                 std::min(findings.taste.ownGreen, 1.0f);
        limits.cloth = blurred(context, cloth, 3.0);
        // Much and smooth, or it is spill: on black that stays below. What is cloth near the screen's hue has all of
        // it. Far from all edges less is enough: a dark suit of the screen's hue.
        const float leastFar = std::max(0.08f * usual, 12.0f);
        const Cells far = farGreen(context, shot, green, limits.size, leastFar),
                    dyed = clothAround(context, findings.plate.dyed, limits.size);
        for (std::size_t i = 0; i < least.count(); ++i) {
            float& own = least.row(0, 0)[i];
            const float deep = std::min(own, far.row(0, 0)[i]);
            const float share = dyed.count() > 0 ? dyed.row(0, 0)[i] : 0.0f;
            own = std::min(own, (kMostOwn + share) * usual);
            own = std::max(own * smoothStep(own, std::max(0.12f * usual, 18.0f), std::max(0.25f * usual, 32.0f)),
                           deep * smoothStep(deep, leastFar, std::max(0.16f * usual, 20.0f)));
            own *= findings.taste.ownGreen;
        }
        limits.own = blurred(context, least, 3.0);
    }

    limits.usual = usualLead(context, shot, findings.solid);
    limits.leadKept = std::min(findings.taste.ownGreen, 1.0f);
    const int reach = std::max(2, shot.px(kInnerReach));
    constexpr int kSize = GreenLimits::kInnerCell;
    limits.around = Cells::over(shot.width, shot.height, kUsualCell, 4);
    const Mask whole = wholePixels(context, findings, limits.around);
    limits.inner = blurred(context, sharesOf(context, shrunk(context, whole, reach), kSize),
                           std::max(0.0, (2.0 * reach + 1.0) / kSize - 1.0) / 2.0);
    return limits;
}

GreenLimitRows::GreenLimitRows(const GreenLimits& limits, const Strip& strip)
    : limits_(limits),
      strip_(strip),
      own_(limits.own, limits.size, strip.left, strip.width),
      cloth_(limits.cloth, limits.size, strip.left, strip.width),
      inner_(limits.inner, GreenLimits::kInnerCell, strip.left, strip.width),
      usual_(limits.usual, kUsualCell, strip.left, strip.width),
      lines_(strip.width, 6) {}

GreenRows GreenLimitRows::at(int y) {
    const auto line = [this](int i) { return lines_.row(i); };
    own_.fill(y, 0, line(0));
    keepDye(limits_, strip_, y, line(0));
    inner_.fill(y, 0, line(1));
    cloth_.fill(y, 0, line(2));
    finishLoops().raise(line(2), strip_.width, line(1));
    for (int plane = 0; plane < 3; ++plane)
        usual_.fill(y, plane, line(3 + plane));
    return {line(0), line(1), {line(3), line(4), line(5)}, limits_.leadKept};
}

ColorRows::ColorRows(const Findings& findings, const GreenLimits& limits, FinishRows& finish, const Strip& strip)
    : strip_(strip),
      plain_(static_cast<std::size_t>(finish.strip().width)),
      start_(strip, findings.plate),
      scratch_(strip.width, 13),
      shares_(strip.width, findings.shot.height, 1,
              [this, &finish](int y, float** planes) {
                  start_.load(y, planes + 4);
                  finish.fillPlain(y, plain_.data());
                  std::copy_n(plain_.data() + (strip_.left - finish.strip().left), strip_.width, planes[3]);
                  finishLoops().remainder({planes[4], planes[5], planes[6]}, {planes[7], planes[8], planes[9]},
                                          planes[3], strip_.width, planes[0], planes[1], planes[2]);
              }),
      subject_(findings.separation.subject, findings.separation.size, strip.left, strip.width),
      around_(limits.around, kUsualCell, strip.left, strip.width),
      green_(limits, strip) {}

void ColorRows::fill(int y, const float* alpha, std::uint32_t* to) {
    const int width = strip_.width;
    for (int plane = 0; plane < 4; ++plane)
        sumLoops().boxSums(shares_.around(y, plane, 1), 1, width, scratch_.row(12), scratch_.row(plane));
    for (int c = 0; c < 3; ++c)
        subject_.fill(y, c, scratch_.row(4 + c));
    for (int plane = 0; plane < 4; ++plane)
        around_.fill(y, plane, scratch_.row(8 + plane));
    loadLuma(strip_, y, scratch_.row(7));
    const auto here = [&](int plane) -> ChannelRow {
        return {shares_.at(y, plane), shares_.at(y, plane + 1), shares_.at(y, plane + 2)};
    };
    const LumaWeights luma(strip_.shot.blue);
    finishLoops().colors({here(4), here(7), rowsFrom(0), scratch_.row(3), rowsFrom(4), rowsFrom(8), scratch_.row(11),
                          green_.at(y), scratch_.row(7), alpha, luma.r, luma.g, luma.b},
                         strip_.shot.blue, width, to);
}

void writeSolid(const Shot& shot, const Plate& plate, const GreenLimits& limits, const Area& area,
                std::uint8_t* picture) {
    GreenLimitRows green(limits, {shot, area.left, area.width()});
    CellRows screen(plate.colors, kPlateCell, area.left, area.width());
    const auto width = static_cast<std::size_t>(area.width());
    std::vector<float> lines(3 * width);
    const ChannelRow behind = {lines.data(), lines.data() + width, lines.data() + 2 * width};
    std::vector<std::uint32_t> pixels(width);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int plane = 0; plane < 3; ++plane)
            screen.fill(y, plane, lines.data() + static_cast<std::size_t>(plane) * width);
        finishLoops().solid(shot.pixelRow(y) + area.left, behind, green.at(y), shot.blue, area.width(),
                            pixels.data());
        std::memcpy(picture + pixelOffset(shot.width, area.left, y), pixels.data(), width * kPixelBytes);
    }
}

}  // namespace tavrin::refine

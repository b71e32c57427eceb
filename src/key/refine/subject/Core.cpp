#include "key/refine/subject/Core.h"

#include <algorithm>
#include <cmath>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/Middle.h"
#include "key/refine/grid/Parts.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"
#include "key/refine/screen/Garments.h"
#include "key/refine/screen/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr int kHalo = 4;                               // columns beyond an area that its windows look at
constexpr double kCoreReach = 20.0, kCoreNear = 10.0;  // looked at around a pixel; left between it and lower ones
constexpr double kFirstReach = 3.0, kDepthReach = 60.0, kRoughReach = 10.0, kPartCell = 8.0, kGapCell = 4.0;
constexpr float kCoreAlpha = 0.65f, kWholeAlpha = 0.8f, kSureAlpha = 0.92f;
constexpr float kWholeShare = 0.95f;  // of an inside that is whole
constexpr float kDepthAlpha = 0.08f, kDepthLight = 1.2f;
constexpr float kOtherCover = 0.16f, kClothCover = 0.4f;  // least alphas: no shade of the screen; cloth for sure
constexpr std::uint8_t kNoKey = 12;                       // the key's alpha up to 0.05
constexpr float kCalm = 2.5f, kCalmFactor = 1.2f;
constexpr double kLeastPart = 0.005;  // of all cells
// Share of a cell from which on it has no gap, and how many of a part's cells must have none: of hair and veils
// fewer.
constexpr float kCellWithoutGap = 0.98f;
constexpr double kWholeOfCloth = 0.65, kWholeOfCalm = 0.92;
constexpr float kWholeCell = 0.999f;
constexpr std::uint8_t kCalmPart = 1, kRoughPart = 2;

// Where the simple alpha is high, where it may well be whole, and where it surely is.
struct Look {
    Mask high, whole, sure;
};

void lookAt(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area, Look& look) {
    const Strip strip = area.strip(shot, kHalo);
    StartRows start(strip, plate);
    RowRing<1, std::function<void(int, float**)>> alphas(strip.width, shot.height, 1, [&](int y, float** planes) {
        start.go(y);
        start.alpha(planes[0]);
        for (int x = 0; x < strip.width; ++x)
            planes[0][x] = std::max(planes[0][x], 0.0f);
    });
    PaddedRows scratch(strip.width, 2);
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(strip.width) + 8);
    const std::uint8_t* const own = flags.data() + (area.left - strip.left);
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        sumLoops().boxSums(alphas.around(y, 0, 1), 1, strip.width, scratch.row(0), scratch.row(1));
        rowLoops().above(scratch.row(1), kCoreAlpha * 9.0f, strip.width, flags.data());
        look.high.pack(y, area.left, area.width(), own);
        rowLoops().above(scratch.row(1), kWholeAlpha * 9.0f, strip.width, flags.data());
        look.whole.pack(y, area.left, area.width(), own);
        rowLoops().above(alphas.at(y, 0), kSureAlpha, strip.width, flags.data());
        look.sure.pack(y, area.left, area.width(), own);
    }
}

// Pixels that may be cloth, since no shade of the screen has their colour, and of these the ones that must be.
struct Cloth {
    Mask likely, sure;
};

// `cloth.likely` holds the pixels to look at, and keeps those that may be cloth.
void findCloth(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area, Cloth& cloth) {
    const Strip strip = area.strip(shot, kHalo);
    StartRows start(strip, plate);
    RowRing<1, std::function<void(int, float**)>> alphas(strip.width, shot.height, 1, [&](int y, float** planes) {
        start.go(y);
        start.alpha(planes[0]);
    });
    ScreenRatio ratio(strip, plate);
    PaddedRows scratch(strip.width, 4);
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(area.width()) + 8), sure(flags);
    const int inset = area.left - strip.left;
    const float *const sum = scratch.row(1) + inset, *const light = scratch.row(2) + inset,
                       *const cover = scratch.row(3) + inset;
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        sumLoops().boxSums(alphas.around(y, 0, 1), 1, strip.width, scratch.row(0), scratch.row(1));
        ratio.cover(y, scratch.row(2), scratch.row(3));
        for (int x = 0; x < area.width(); ++x) {
            const auto at = static_cast<std::size_t>(x);
            flags[at] = cloth.likely.at(area.left + x, y) & (sum[x] > kDepthAlpha * 9.0f) & (light[x] < kDepthLight) &
                        (cover[x] > kOtherCover);
            sure[at] = flags[at] & (cover[x] > kClothCover);
        }
        cloth.likely.pack(y, area.left, area.width(), flags.data());
        cloth.sure.pack(y, area.left, area.width(), sure.data());
    }
}

// How much the luma strays from its mean of 5 x 5 pixels, on cells.
Cells roughness(const RunContext& context, const Shot& shot, int size) {
    Cells rough = Cells::over(shot.width, shot.height, size, 1);
    runRows(context, rough.rows(), 4, [&](int row) {
        const Strip strip{shot, 0, shot.width};
        RowRing<1, std::function<void(int, float**)>> lumas(
            shot.width, shot.height, 2, [&](int y, float** planes) { loadLuma(strip, y, planes[0]); });
        PaddedRows scratch(shot.width, 2);
        float* const mean = scratch.row(1);
        const int first = row * size, last = std::min(first + size, shot.height);
        for (int y = first; y < last; ++y) {
            sumLoops().boxSums(lumas.around(y, 0, 2), 2, shot.width, scratch.row(0), mean);
            const float* const luma = lumas.at(y, 0);
            for (int x = 0; x < shot.width; ++x)
                mean[x] = std::abs(luma[x] - mean[x] / 25.0f);
            for (int c = 0; c < rough.columns(); ++c) {
                float sum = 0.0f;
                const int end = std::min((c + 1) * size, shot.width);
                for (int x = c * size; x < end; ++x)
                    sum += mean[x];
                rough.row(row, 0)[c] += sum / static_cast<float>((end - c * size) * (last - first));
            }
        }
    });
    return rough;
}

// The middle of the cells that are mostly screen.
float middleOn(const Cells& values, const Cells& screen) {
    std::vector<float> found;
    for (std::size_t i = 0; i < values.count(); ++i) {
        if (screen.row(0, 0)[i] > 0.5f) found.push_back(values.row(0, 0)[i]);
    }
    return middleOf(found);
}

// Connected parts that are surely cloth, or mostly as calm as cloth, and without the many gaps of hair and veils. A
// few folds make no part rough.
// Parts that are cloth, and those of them that are as rough as dense hair, in whose gaps there may be screen.
struct ClothParts {
    Mask all, rough;
};

ClothParts clothParts(const RunContext& context, const Shot& shot, const Cloth& cloth, const Mask& screen) {
    const int size = shot.cell(kPartCell);
    const Cells shares = sharesOf(context, cloth.likely, size), sure = sharesOf(context, cloth.sure, size),
                smooth = blurred(context, roughness(context, shot, size),
                                 static_cast<double>(shot.px(kRoughReach)) / size);
    const float most = kCalm + kCalmFactor * middleOn(smooth, sharesOf(context, screen, size));
    std::vector<std::uint8_t> set(shares.count());
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = shares.row(0, 0)[i] > 0.5f;
    const Parts parts = findParts(shares.columns(), shares.rows(), set, Neighbours::four);
    std::vector<std::vector<float>> roughs(static_cast<std::size_t>(parts.count) + 1), covers(roughs);
    std::vector<int> whole(roughs.size());  // cells without a gap
    for (std::size_t i = 0; i < set.size(); ++i) {
        const auto part = static_cast<std::size_t>(parts.labels[i]);
        if (part == 0) continue;
        roughs[part].push_back(smooth.row(0, 0)[i]);
        covers[part].push_back(sure.row(0, 0)[i]);
        whole[part] += shares.row(0, 0)[i] > kCellWithoutGap;
    }
    const double least = kLeastPart * static_cast<double>(shares.count());
    std::vector<std::uint8_t> kept(roughs.size());
    for (std::size_t part = 1; part < kept.size(); ++part) {
        const auto cells = static_cast<double>(roughs[part].size());
        const bool sureCloth = middleOf(covers[part]) > 0.5f;
        const bool calm = middleOf(roughs[part]) < most;
        const bool isCloth =
            cells > least && whole[part] > (sureCloth ? kWholeOfCloth : kWholeOfCalm) * cells && (sureCloth || calm);
        kept[part] = !isCloth ? 0 : calm ? kCalmPart : kRoughPart;
    }
    const auto partsOf = [&](int least) {
        return maskOf(context, shot.width, shot.height, size, [&](int c, int row) {
            return kept[static_cast<std::size_t>(
                       parts.labels[static_cast<std::size_t>(row * shares.columns() + c)])] >= least;
        });
    };
    return {partsOf(kCalmPart), partsOf(kRoughPart)};
}

// The pixels of an area whose surroundings have nearly the plate's colour.
void findBare(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area, Mask& bare) {
    const Strip strip = area.strip(shot, kHalo);
    ScreenRatio ratio(strip, plate);
    std::vector<float> far(static_cast<std::size_t>(strip.width));
    std::vector<std::uint8_t> flags(far.size() + 8);
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        ratio.distance(y, far.data());
        rowLoops().below(far.data(), 8.0f + 150.0f * plate.spread, strip.width, flags.data());
        bare.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
    }
}

// The parts of cells that are not wholly solid, each with a frame of gap around the picture, so that what reaches its
// border is one part.
struct Gaps {
    int columns, size;
    Parts parts;

    int at(int c, int row) const { return parts.labels[static_cast<std::size_t>((row + 1) * columns + c + 1)]; }
};

Gaps findGaps(const Cells& solid, int size) {
    const int columns = solid.columns() + 2, rows = solid.rows() + 2;
    std::vector<std::uint8_t> gap(static_cast<std::size_t>(columns * rows), 1);
    for (int row = 0; row < solid.rows(); ++row) {
        for (int c = 0; c < solid.columns(); ++c)
            gap[static_cast<std::size_t>((row + 1) * columns + c + 1)] = solid.row(row, 0)[c] < kWholeCell;
    }
    return {columns, size, findParts(columns, rows, gap, Neighbours::eight)};
}

// Gaps of the solid inside that hold no screen: embroidery, reflections in glasses, prints.
Mask enclosedGaps(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& solid) {
    const int size = shot.cell(kGapCell);
    const Gaps gaps = findGaps(sharesOf(context, solid, size), size);
    std::vector<std::uint8_t> fill(static_cast<std::size_t>(gaps.parts.count) + 1, 1);
    fill[0] = fill[static_cast<std::size_t>(gaps.parts.labels[0])] = 0;
    const auto filled = [&] {
        if (std::count(fill.begin(), fill.end(), 0) == std::ssize(fill)) return Mask(shot.width, shot.height);
        return maskOf(context, shot.width, shot.height, size,
                      [&](int c, int row) { return fill[static_cast<std::size_t>(gaps.at(c, row))] != 0; });
    };
    const Mask inside = filled();
    Mask bare(shot.width, shot.height);
    runAreas(context, inside, [&](const Area& area) { findBare(context, shot, plate, area, bare); });
    bare &= inside;
    const Cells shares = sharesOf(context, bare, size);
    for (int row = 0; row < shares.rows(); ++row) {
        for (int c = 0; c < shares.columns(); ++c) {
            if (shares.row(row, 0)[c] > 0.0f) fill[static_cast<std::size_t>(gaps.at(c, row))] = 0;
        }
    }
    return filled();
}

// The pixels of `wanted` to which the key gave something.
Mask keyedOf(const RunContext& context, const Shot& shot, const Mask& wanted) {
    Mask none(shot.width, shot.height);
    runRows(context, shot.height, 32,
            [&](int y) { rowLoops().atMost(shot.keyRow(y), kNoKey, shot.width, none.row(y)); });
    Mask keyed = none.inverted();
    keyed &= wanted;
    return keyed;
}

// Parts far from any bare screen that are no screen by their colour.
ClothParts deepCloth(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& keyed) {
    Cloth cloth{keyed, Mask(shot.width, shot.height)};
    runAreas(context, keyed, [&](const Area& area) { findCloth(context, shot, plate, area, cloth); });
    // A part that counts has more than half of its cells' pixels.
    const double pixels = static_cast<double>(shot.width) * shot.height;
    if (static_cast<double>(cloth.likely.count()) < 0.4 * kLeastPart * pixels)
        return {Mask(shot.width, shot.height), Mask(shot.width, shot.height)};
    return clothParts(context, shot, cloth, plate.screen);
}

// Where the inside is not whole by the simple alpha: cloth near the screen's hue, or that its light falls on.
Mask paleInside(const RunContext& context, const Shot& shot, const Mask& inside, const Mask& whole) {
    Mask both = inside;
    both &= whole;
    const int size = shot.cell(kPartCell);
    const Cells all = sharesOf(context, inside, size), some = sharesOf(context, both, size);
    Cells cells(all.columns(), all.rows(), 2);
    std::copy_n(some.row(0, 0), some.count(), cells.row(0, 0));
    std::copy_n(all.row(0, 0), all.count(), cells.row(0, 1));
    const Cells share = pushPull(context, cells);
    return maskOf(context, shot.width, shot.height, size,
                  [&](int c, int row) { return share.row(row, 0)[c] < kWholeShare; });
}

// Adds deep parts and the plate's cloth, and grows the inside nearly to its ends.
// @param inside all that may be, by which gaps are enclosed
void addCloth(const RunContext& context, const Shot& shot, const Plate& plate, Core& core, Mask& inside) {
    const int reach = shot.px(kCoreReach), near = std::max(1, reach - shot.px(kCoreNear));
    const ClothParts parts = deepCloth(context, shot, plate, core.keyed);
    // Dense hair is as sure a colour as cloth.
    Mask gaps = core.keyed.inverted();
    gaps &= parts.rough;
    gaps &= core.solid.inverted();
    core.solid |= parts.all;
    core.solid = grown(context, core.solid, near);
    core.solid &= grown(context, gaps, reach).inverted();
    inside |= parts.all;
    inside = grown(context, inside, near);
    if (plate.cloth.width() == 0) return;
    core.solid |= plate.cloth;
    core.solid |= findSeams(context, shot, plate, core.solid);
    inside |= core.solid;
}

}  // namespace

Core findCore(const RunContext& context, const Shot& shot, const Plate& plate) {
    const Mask open = plate.screen.inverted();
    Look look{Mask(shot.width, shot.height), Mask(shot.width, shot.height), Mask(shot.width, shot.height)};
    runAreas(context, open, [&](const Area& area) { lookAt(context, shot, plate, area, look); });
    look.high &= open;  // a screen that has become another
    const int reach = shot.px(kCoreReach);
    Mask inside = shrunk(context, look.high, reach);
    if (context.isSuperseded()) return {};
    // Soft hair before an inside that is whole is no inside.
    look.whole |= paleInside(context, shot, inside, look.whole);
    look.high &= look.whole;
    Core core{shrunk(context, look.high, reach), shrunk(context, look.sure, shot.px(kFirstReach)), {}, {}};
    core.deep = shrunk(context, open, shot.px(kDepthReach));
    core.deep &= core.solid.inverted();
    core.keyed = keyedOf(context, shot, core.deep);
    addCloth(context, shot, plate, core, inside);
    core.solid |= enclosedGaps(context, shot, plate, inside);
    core.sure |= core.solid;
    return core;
}

bool isStill(const Core& core, const RunContext& context, const Shot& shot) {
    return keyedOf(context, shot, core.deep) == core.keyed;
}

}  // namespace tavrin::refine

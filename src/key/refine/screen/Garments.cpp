#include "key/refine/screen/Garments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "key/refine/grid/Areas.h"
#include "key/refine/screen/ClothCells.h"
#include "key/refine/screen/ScreenRatio.h"
#include "key/refine/screen/Strange.h"

namespace tavrin::refine {

namespace {

constexpr int kHalo = 4;  // columns beyond an area that its windows look at
constexpr double kCell = 8.0, kSeamReach = 6.0;
constexpr double kLeastSamples = 0.6;                        // of what such cloth must have of the picture
constexpr int kNear = 3, kPieceReach = 10, kLeastPiece = 6;  // cells
constexpr int kRounds = 3;
constexpr int kBeyond = 3;                          // cells from the border, where the screen must look otherwise
constexpr float kBorderCell = 0.5f;                 // share of a cell that the key took for screen
constexpr float kLeastStep = 12.0f;                 // levels of a channel
constexpr double kMostOpen = 0.15, kFewOpen = 3.0;  // of the border beside the screen, without a step; cells
constexpr std::size_t kMostDyes = 16;
constexpr double kLeastOfDye = 0.02;  // of the cloth
constexpr float kLeastLight = 0.4f;   // of the plate's, in a shade of it

using Dyes = std::vector<Dye>;

// The place of the first dye that a cell has, or that of none.
std::size_t dyeOf(const ClothCells& cells, std::size_t cell, const Dyes& dyes) {
    const auto dye = std::find_if(dyes.begin(), dyes.end(), [&](const Dye& one) {
        return one.has(cells.own(cell), cells.behind(cell), kCellHue);
    });
    return static_cast<std::size_t>(dye - dyes.begin());
}

// The hues of cloth, in the order of their first cells.
Dyes findDyes(const ClothCells& cells, const Mask& cloth) {
    Dyes dyes;
    cells.forCells([&](int c, int row) {
        if (!cloth.at(c, row)) return;
        const std::size_t i = cells.at(c, row), dye = dyeOf(cells, i, dyes);
        if (dye == dyes.size() && dyes.size() < kMostDyes) dyes.emplace_back();
        if (dye < dyes.size()) dyes[dye].add(cells.own(i), cells.behind(i), 0.0f);
    });
    const double least = kLeastOfDye * static_cast<double>(cloth.count());
    std::erase_if(dyes, [&](const Dye& dye) { return dye.cells < least; });
    return dyes;
}

// Grey in the screen's light is solid as well, but its colour does not tell how much of it that light is.
void dropGrey(const ClothCells& cells, const Dyes& dyes, Mask& cloth) {
    Mask grey(cells.columns(), cells.rows());
    cells.forCells([&](int c, int row) {
        if (!cloth.at(c, row)) return;
        const std::size_t i = cells.at(c, row), dye = dyeOf(cells, i, dyes);
        Dye rare;
        rare.add(cells.own(i), cells.behind(i), 0.0f);
        if (!(dye < dyes.size() ? dyes[dye] : rare).isOwn()) grey.set(row, c, c + 1);
    });
    cloth &= grey.inverted();
}

// Whether a colour is one of the dyes that cannot be the screen's light.
bool hasOwn(const Dyes& dyes, const Color& own, const Color& behind, const HueLimits& limits) {
    return std::any_of(dyes.begin(), dyes.end(),
                       [&](const Dye& dye) { return dye.isOwn() && dye.has(own, behind, limits); });
}

// Dyes that were found first, and the same under whatever light.
struct Palette {
    const Dyes &first, &dyes;
};

// What else nearby has the same dye, however small, such as the other side of a strap: parts of whole cells that
// touch what is known, or are more than a few.
Mask findPieces(const RunContext& context, const ClothCells& cells, const Palette& palette, const Mask& known) {
    const Mask near = grown(context, known, kPieceReach);
    std::vector<std::uint8_t> set(static_cast<std::size_t>(cells.columns() * cells.rows()));
    cells.forCells([&](int c, int row) {
        const std::size_t i = cells.at(c, row);
        if (!cells.isWhole(i) || !near.at(c, row)) return;
        Dye alone;
        alone.add(cells.own(i), cells.behind(i), 0.0f);
        set[i] = alone.isOwn() && hasOwn(palette.first, cells.own(i), cells.behind(i), kLitHue) &&
                 hasOwn(palette.dyes, cells.own(i), cells.behind(i), kCellHue);
    });
    const Parts parts = findParts(cells.columns(), cells.rows(), set, Neighbours::four);
    std::vector<int> sizes(static_cast<std::size_t>(parts.count) + 1);
    const auto partAt = [&](int c, int row) { return static_cast<std::size_t>(parts.labels[cells.at(c, row)]); };
    cells.forCells([&](int c, int row) { sizes[partAt(c, row)] += known.at(c, row) ? kLeastPiece : 1; });
    sizes[0] = 0;  // what is no part
    Mask pieces(cells.columns(), cells.rows());
    cells.forCells([&](int c, int row) {
        if (sizes[partAt(c, row)] >= kLeastPiece) pieces.set(row, c, c + 1);
    });
    return pieces;
}

// How much of the border of a part lies beside the key's screen, and how much of that without a step of colour.
struct Border {
    int cells = 0, open = 0;

    bool isOpen() const { return open > std::max(kMostOpen * cells, kFewOpen); }
};

float largestStep(const Color& from, const Color& to) {
    return std::max({std::abs(from[0] - to[0]), std::abs(from[1] - to[1]), std::abs(from[2] - to[2])});
}

// Looks from a cell of cloth in one direction.
void lookBeyond(const ClothCells& cells, const OuterScreen& outer, const Mask& cloth, const std::array<int, 4>& way,
                Border& border) {
    const auto [c, row, dx, dy] = way;
    const int x = c + kBeyond * dx, y = row + kBeyond * dy;
    if (x < 0 || y < 0 || x >= cells.columns() || y >= cells.rows()) return;
    if (cloth.at(c + dx, row + dy) || cloth.at(x, y) || outer.screen.row(y, 0)[x] < kBorderCell) return;
    ++border.cells;
    border.open += largestStep(cells.own(cells.at(c, row)), cells.own(cells.at(x, y))) < kLeastStep;
}

// The parts that go over into the key's screen without an outline.
Mask openParts(const ClothCells& cells, const OuterScreen& outer, const Mask& cloth) {
    std::vector<std::uint8_t> set(outer.look.count());
    cells.forCells([&](int c, int row) { set[cells.at(c, row)] = cloth.at(c, row); });
    const Parts parts = findParts(cells.columns(), cells.rows(), set, Neighbours::four);
    std::vector<Border> borders(static_cast<std::size_t>(parts.count) + 1);
    const auto borderAt = [&](int c, int row) -> Border& {
        return borders[static_cast<std::size_t>(parts.labels[cells.at(c, row)])];
    };
    cells.forCells([&](int c, int row) {
        if (!cloth.at(c, row)) return;
        for (const auto& [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
            lookBeyond(cells, outer, cloth, {c, row, dx, dy}, borderAt(c, row));
    });
    Mask open(cells.columns(), cells.rows());
    cells.forCells([&](int c, int row) {
        if (cloth.at(c, row) && borderAt(c, row).isOpen()) open.set(row, c, c + 1);
    });
    return open;
}

// Drops these and all of their dyes: another paint, or light, of a floor.
void dropUnbounded(const ClothCells& cells, const OuterScreen& outer, Mask& cloth) {
    Mask open = openParts(cells, outer, cloth);
    if (open.count() == 0) return;
    const Dyes paints = findDyes(cells, open);
    cells.forCells([&](int c, int row) {
        if (cloth.at(c, row) && dyeOf(cells, cells.at(c, row), paints) < paints.size()) open.set(row, c, c + 1);
    });
    cloth &= open.inverted();
}

// Pixels of `wanted` of a dye that cannot be the screen's light.
Mask dyedPixels(const RunContext& context, const Shot& shot, const OuterScreen& outer, const Dyes& dyes,
                const Mask& wanted) {
    Mask dyed(shot.width, shot.height);
    runAreas(context, wanted, [&](const Area& area) {
        const Strip strip = area.strip(shot, kHalo);
        ScreenRatio ratio(strip, outer.behind, outer.size);
        std::vector<std::uint8_t> flags(static_cast<std::size_t>(area.width()) + 8);
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            const auto [sums, plate] = ratio.colors(y);
            for (int x = 0; x < area.width(); ++x) {
                const int at = x + area.left - strip.left;
                const Color own{sums.r[at], sums.g[at], sums.b[at]}, behind{plate.r[at], plate.g[at], plate.b[at]};
                flags[static_cast<std::size_t>(x)] = hasOwn(dyes, own, behind, kPixelHue);
            }
            dyed.pack(y, area.left, area.width(), flags.data());
        }
    });
    dyed &= wanted;
    return dyed;
}

}  // namespace

Garments findGarments(const RunContext& context, const Shot& shot, float difference, const Mask& screen) {
    const int size = shot.cell(kCell);
    if (!mayHoldCloth(shot, difference, screen, size, kLeastSamples * kLeastCloth)) return {};
    const OuterScreen outer = findOuterScreen(context, shot, screen, size);
    if (context.isSuperseded()) return {};
    const ClothCells cells(context, shot, difference, outer);
    Mask cloth = cells.find();
    const Dyes first = findDyes(cells, cloth);
    Dyes dyes = first;
    dropGrey(cells, first, cloth);
    if (cloth.count() == 0 || context.isSuperseded()) return {};
    cloth = grown(context, cloth, 1);
    dropGrey(cells, first, cloth);  // a gap's screen in another light is not far from being cloth, but for that
    for (int round = 0; round < kRounds && !context.isSuperseded(); ++round) {
        cloth |= findPieces(context, cells, {first, dyes}, cloth);
        dyes = findDyes(cells, cloth);  // the same cloth under other light
    }
    dropUnbounded(cells, outer, cloth);
    if (cloth.count() == 0) return {};
    const Mask near = grown(context, cloth, kNear);
    const auto pixelsOf = [&](const auto& isSet) { return maskOf(context, shot.width, shot.height, size, isSet); };
    const Mask solid = pixelsOf([&](int c, int row) { return cloth.at(c, row); });
    return {shrunk(context, solid, std::max(1, size / 2)),
            dyedPixels(context, shot, outer, dyes, grown(context, solid, size)),
            pixelsOf([&](int c, int row) { return cells.isStrange(cells.at(c, row)) && near.at(c, row); })};
}

Mask findSeams(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& solid) {
    const int reach = shot.px(kSeamReach);
    Mask seams = shrunk(context, grown(context, solid, reach), reach);
    seams &= solid.inverted();
    seams &= grown(context, plate.cloth, 2 * reach);
    const StrangeLimits limits{leastStrangeness(plate.difference), kLeastLight};
    seams &= strangePixels(context, shot, plate.colors, kPlateCell, limits, seams);
    return seams;
}

}  // namespace tavrin::refine

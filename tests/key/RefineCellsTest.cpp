// What the second look at the key stands on: masks of pixels, and cells that are spread to rows.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>

#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Mask.h"

namespace tavrin {
namespace {

TEST(RefineMask, ShrinksAndGrowsBySquares) {
    std::mt19937 random(3);
    for (const auto& [width, height, r] :
         std::vector<std::array<int, 3>>{{1, 1, 1}, {64, 5, 2}, {131, 40, 7}, {70, 9, 80}}) {
        refine::Mask mask(width, height);
        std::vector<std::uint8_t> flags(static_cast<std::size_t>(width) + 8);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                flags[static_cast<std::size_t>(x)] = random() % 60 != 0;
            mask.pack(y, flags.data());
        }
        const refine::Mask shrunk = refine::shrunk({}, mask, r), grown = refine::grown({}, mask.inverted(), r);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                bool all = true;
                for (int j = std::max(y - r, 0); j <= std::min(y + r, height - 1); ++j) {
                    for (int i = std::max(x - r, 0); i <= std::min(x + r, width - 1); ++i)
                        all = all && mask.at(i, j);
                }
                ASSERT_EQ(shrunk.at(x, y), all) << x << ' ' << y;
                ASSERT_EQ(grown.at(x, y), !all) << x << ' ' << y;
            }
        }
    }
}

TEST(RefineCells, HolesTakeWhatLiesAroundAndRowsAreStraightLines) {
    refine::Cells cells(20, 10, 2);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool known = x < 4 || x >= 16;
            cells.row(y, 0)[x] = known ? (x < 4 ? 10.0f : 30.0f) : 0.0f;
            cells.row(y, 1)[x] = known ? 1.0f : 0.0f;
        }
    }
    const refine::Cells filled = refine::pushPull({}, cells);
    EXPECT_FLOAT_EQ(filled.row(5, 0)[0], 10.0f);
    EXPECT_FLOAT_EQ(filled.row(5, 0)[19], 30.0f);
    for (int x = 1; x < 20; ++x)
        EXPECT_GE(filled.row(5, 0)[x], filled.row(5, 0)[x - 1] - 0.01f);

    refine::Cells ramp(5, 1, 1);
    for (int x = 0; x < 5; ++x)
        ramp.row(0, 0)[x] = static_cast<float>(x);
    refine::CellRows rows(ramp, 3, 0, 14);
    std::vector<float> row(14);
    rows.fill(1, 0, row.data());
    EXPECT_FLOAT_EQ(row[0], 0.0f);
    EXPECT_FLOAT_EQ(row[1], 0.0f);
    EXPECT_NEAR(row[5], 4.0f / 3.0f, 1e-6);
    EXPECT_FLOAT_EQ(row[13], 4.0f);
    for (int left = 0; left < 14; ++left) {
        refine::CellRows part(ramp, 3, left, 14 - left);
        std::vector<float> rest(row.size() - static_cast<std::size_t>(left));
        part.fill(1, 0, rest.data());
        EXPECT_TRUE(std::equal(rest.begin(), rest.end(), row.begin() + left)) << left;
    }
}

// Each of the ways to spread a row: several cells to a vector, one, or several vectors to a cell.
TEST(RefineCells, RowsAreTheSameForEverySizeAndStrip) {
    std::mt19937 random(5);
    refine::Cells cells(7, 3, 1);
    for (int i = 0; i < 21; ++i)
        cells.row(0, 0)[i] = static_cast<float>(random() % 1000);
    for (const int size : {2, 3, 4, 5, 8, 10, 16, 21}) {
        for (const int left : {0, 1, 3 * size, 6 * size + size / 2, 9 * size}) {
            refine::CellRows rows(cells, size, left, 40);
            std::vector<float> row(40);
            for (int y = 0; y < 3 * size; ++y) {
                rows.fill(y, 0, row.data());
                for (int x = 0; x < 40; ++x) {
                    const auto place = [size](int at, int count) {
                        return std::clamp((at + 0.5) / size - 0.5, 0.0, count - 1.0);
                    };
                    const double c = place(left + x, 7), r = place(y, 3);
                    const int column = std::min(static_cast<int>(c), 5), line = std::min(static_cast<int>(r), 1);
                    const auto along = [&](int at) {
                        const float* const from = cells.row(at, 0) + column;
                        return from[0] + (from[1] - from[0]) * (c - column);
                    };
                    const double wanted = along(line) + (along(line + 1) - along(line)) * (r - line);
                    ASSERT_NEAR(row[static_cast<std::size_t>(x)], wanted, 1e-2) << size << ' ' << left << ' ' << x;
                }
            }
        }
    }
}

TEST(RefineCells, SomeCellsAreFilledAsAllAre) {
    std::mt19937 random(7);
    refine::Cells cells(90, 50, 3);
    refine::Mask wanted(90, 50);
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 90; ++x) {
            const bool known = random() % 4 == 0;
            for (int plane = 0; plane < 3; ++plane)
                cells.row(y, plane)[x] = known ? (plane == 2 ? 1.0f : static_cast<float>(random() % 256)) : 0.0f;
        }
        if (y > 20 && y < 40) wanted.set(y, 3 * y - 60, 3 * y - 30);
    }
    const refine::Cells all = refine::pushPull({}, cells), some = refine::pushPull({}, cells, wanted);
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 90; ++x) {
            if (!wanted.at(x, y)) continue;
            ASSERT_EQ(some.row(y, 1)[x], all.row(y, 1)[x]) << x << ' ' << y;
        }
    }
    EXPECT_EQ(some.row(0, 0)[0], 0.0f);
    EXPECT_NE(all.row(0, 0)[0], 0.0f);
}

}  // namespace
}  // namespace tavrin

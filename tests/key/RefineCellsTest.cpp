// What the second look at the key stands on: masks of pixels, and cells that are spread to rows.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>

#include "key/refine/CellRows.h"
#include "key/refine/Cells.h"
#include "key/refine/Mask.h"

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

}  // namespace
}  // namespace tavrin

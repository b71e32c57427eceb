// What the second look at the key counts, sums and looks at, beside the plain way of doing so.
#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/Cells.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/Parts.h"
#include "key/refine/grid/SumLoops.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

refine::Mask noiseMask(int width, int height, unsigned share, unsigned seed) {
    std::mt19937 random(seed);
    refine::Mask mask(width, height);
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(width) + 8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            flags[static_cast<std::size_t>(x)] = random() % 100 < share;
        mask.pack(y, flags.data());
    }
    return mask;
}

TEST(RefineLoops, SharesOfCellsAreCountedPixelByPixel) {
    test::onEveryTarget([] {
        for (const int size : {1, 2, 3, 4, 5, 8, 11}) {
            for (const int width : {3, 64, 150, 201}) {
                const refine::Mask mask = noiseMask(width, 23, 40, static_cast<unsigned>(size));
                const refine::Cells shares = refine::sharesOf({}, mask, size);
                for (int row = 0; row < shares.rows(); ++row) {
                    for (int c = 0; c < shares.columns(); ++c) {
                        int set = 0, all = 0;
                        for (int y = row * size; y < std::min((row + 1) * size, 23); ++y) {
                            for (int x = c * size; x < std::min((c + 1) * size, width); ++x, ++all)
                                set += mask.at(x, y);
                        }
                        ASSERT_FLOAT_EQ(shares.row(row, 0)[c], static_cast<float>(set) / static_cast<float>(all))
                            << size << ' ' << width << ' ' << c << ' ' << row;
                    }
                }
            }
        }
    });
}

TEST(RefineLoops, PartsHangTogetherAndNoOthersDo) {
    for (const auto neighbours : {refine::Neighbours::four, refine::Neighbours::eight}) {
        for (const unsigned share : {20u, 45u, 60u, 100u}) {
            constexpr int kColumns = 37, kRows = 29;
            std::mt19937 random(share);
            std::vector<std::uint8_t> set(kColumns * kRows);
            for (std::uint8_t& one : set)
                one = random() % 100 < share;
            std::vector<int> wanted(set.size());
            int count = 0;
            const std::function<void(int, int)> flood = [&](int x, int y) {
                if (x < 0 || y < 0 || x >= kColumns || y >= kRows) return;
                const auto at = static_cast<std::size_t>(y * kColumns + x);
                if (!set[at] || wanted[at] != 0) return;
                wanted[at] = count;
                for (int dy = -1; dy <= 1; ++dy) {
                    for (int dx = -1; dx <= 1; ++dx) {
                        if (neighbours == refine::Neighbours::eight || dx == 0 || dy == 0) flood(x + dx, y + dy);
                    }
                }
            };
            for (int y = 0; y < kRows; ++y) {
                for (int x = 0; x < kColumns; ++x) {
                    const auto at = static_cast<std::size_t>(y * kColumns + x);
                    if (!set[at] || wanted[at] != 0) continue;
                    ++count;
                    flood(x, y);
                }
            }
            const refine::Parts parts = refine::findParts(kColumns, kRows, set, neighbours);
            EXPECT_EQ(parts.count, count) << share;
            EXPECT_EQ(parts.labels, wanted) << share;
        }
    }
}

TEST(RefineLoops, AreasCoverWhatIsWantedOnceAndLittleElse) {
    refine::Mask wanted(700, 100);
    std::vector<std::uint8_t> one(8);
    one[3] = 1;
    for (const auto& [x, y] : std::vector<std::array<int, 2>>{{0, 0}, {696, 99}, {64, 40}, {64, 41}, {328, 50}})
        wanted.pack(y, x, std::min(8, 700 - x), one.data());
    refine::Mask seen(700, 100);
    std::int64_t pixels = 0;
    const std::vector<std::uint8_t> ones(720, 1);
    const ThreadLimit limit(1);
    ASSERT_TRUE(refine::runAreas({}, wanted, [&](const refine::Area& area) {
        EXPECT_EQ(area.left % refine::kGrainColumns, 0);
        for (int y = area.top; y < area.bottom; ++y) {
            EXPECT_TRUE(seen.isClear(y, area.left, area.right));
            seen.pack(y, area.left, area.width(), ones.data());
        }
        pixels += std::int64_t{area.width()} * (area.bottom - area.top);
    }));
    EXPECT_EQ(seen.count(), pixels);
    EXPECT_LE(pixels, 5 * refine::kGrainColumns);
    seen &= wanted;
    EXPECT_EQ(seen.count(), wanted.count());
    EXPECT_EQ(wanted.count(), 5);
}

TEST(RefineLoops, SumsOfColoursAreExactOnEveryTarget) {
    std::mt19937 random(11);
    constexpr int kPitch = 90, kRows = 5;
    std::vector<std::uint32_t> pixels(kPitch * kRows);
    for (std::uint32_t& pixel : pixels)
        pixel = static_cast<std::uint32_t>(random());
    test::onEveryTarget([&] {
        for (const int count : {1, 7, 16, 37, 90}) {
            for (const bool blue : {false, true}) {
                const auto width = static_cast<std::size_t>(count);
                std::vector<float> weights(kRows * width), sums(10 * width), wanted(10 * width);
                for (float& weight : weights)
                    weight = random() % 2 ? 1.0f : 0.0f;
                for (std::size_t i = 0; i < weights.size(); ++i) {
                    const std::uint32_t pixel = pixels[i / width * kPitch + i % width];
                    std::array<int, 3> c{};
                    for (std::size_t k = 0; k < 3; ++k)
                        c[k] = static_cast<int>(pixel >> (8 * k) & 255);
                    if (blue) std::swap(c[1], c[2]);
                    const int terms[] = {1,           c[0],        c[1],        c[2],        c[0] * c[0],
                                         c[0] * c[1], c[0] * c[2], c[1] * c[1], c[1] * c[2], c[2] * c[2]};
                    for (std::size_t k = 0; k < 10; ++k)
                        wanted[k * width + i % width] += weights[i] * static_cast<float>(terms[k]);
                }
                refine::sumLoops().sumProducts({pixels.data(), kPitch, weights.data(), kRows, count}, blue,
                                               sums.data());
                EXPECT_EQ(sums, wanted) << count << blue;
                std::fill(sums.begin(), sums.end(), 0.0f);
                std::fill(wanted.begin() + static_cast<std::ptrdiff_t>(4 * width), wanted.end(), 0.0f);
                refine::sumLoops().sumColors({pixels.data(), kPitch, weights.data(), kRows, count}, blue,
                                             sums.data());
                EXPECT_EQ(sums, wanted) << count << blue;
            }
        }
    });
}

// A pixel that is no mixture with the screen is no screen whatever the fit says, as far as the key has anything.
TEST(RefineLoops, TheFitHasAFloorWhereTheColoursAllowNoScreen) {
    struct Case {
        std::array<float, 3> own;
        std::uint8_t key;
        float least, most;
    };
    const Case cases[] = {{{17, 167, 132}, 255, 0.95f, 1.0f},  // cloth near the screen's hue
                          {{17, 167, 132}, 6, 0.45f, 0.55f},   // the key has a little
                          {{17, 167, 132}, 0, 0.0f, 0.0f},    {{92, 163, 110}, 255, 0.0f, 0.0f},  // the screen
                          {{46, 82, 55}, 255, 0.0f, 0.0f},     // half of it black hair, or a shadow on it
                          {{140, 163, 110}, 255, 0.0f, 0.3f},  // too bright in one channel, by a little
                          {{250, 163, 110}, 255, 0.8f, 1.0f}};
    const float none = 0.0f, all = 1.0f;
    const std::array<float, 3> screen{92, 163, 110};
    for (const Case& test : cases) {
        float alpha = 0.0f;
        refine::matteLoops().fit({&test.own[0], &test.own[1], &test.own[2]}, {&screen[0], &screen[1], &screen[2]},
                                 {&none, &none, &none}, &all, &none, &test.key, 1, &alpha);
        EXPECT_GE(alpha, test.least) << test.own[0] << ' ' << int{test.key};
        EXPECT_LE(alpha, test.most) << test.own[0] << ' ' << int{test.key};
    }
}

}  // namespace
}  // namespace tavrin

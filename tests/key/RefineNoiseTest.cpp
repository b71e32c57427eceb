// What the second look at the key takes for noise of the screen beside a subject, on drawn pictures.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "key/KeyScene.h"
#include "key/refine/RefineKey.h"
#include "key/refine/finish/Specks.h"

namespace tavrin {
namespace {

using test::KeyScene;

constexpr int kWidth = 800, kHeight = 600;
constexpr Rgb kScreen{52.0, 160.0, 74.0}, kHair{60.0, 45.0, 35.0};

Rgb mix(const Rgb& subject, const Rgb& screen, double alpha) {
    return {subject.r * alpha + screen.r * (1.0 - alpha), subject.g * alpha + screen.g * (1.0 - alpha),
            subject.b * alpha + screen.b * (1.0 - alpha)};
}

double body(int x, int y) {
    return std::clamp((80.0 - std::hypot(x - 400, y - 320)) / 3.0 + 0.5, 0.0, 1.0);
}

// A picture of a body, with more or less noise here and there.
struct NoisyScene : KeyScene {
    using Paint = std::function<Rgb(int x, int y)>;
    using Noise = std::function<int(int x, int y)>;

    explicit NoisyScene(
        const Paint& paint, const Noise& noise = [](int, int) { return 1; })
        : KeyScene(kWidth, kHeight) {
        std::mt19937 random(7);
        std::vector<unsigned> strays(kWidth * 3);
        for (int y = 0; y < kHeight; ++y) {
            for (std::size_t i = 0; i < strays.size() && y % 2 == 0; ++i)
                strays[i] = static_cast<unsigned>(random());
            for (int x = 0; x < kWidth; ++x) {
                std::size_t place = static_cast<std::size_t>(x / 2) * 3;  // of the noise, two by two pixels
                const auto stray = [&](double value) {
                    const int most = noise(x, y);
                    return toByte(value + static_cast<int>(strays[place++] % static_cast<unsigned>(2 * most + 1)) -
                                  most);
                };
                const Rgb color = mix(kHair, paint(x, y), body(x, y));
                at(foreground, x, y) = {stray(color.r), stray(color.g), stray(color.b), 255};
            }
        }
        info.baseRed = kScreen.r;
        info.baseGreen = kScreen.g;
        info.baseBlue = kScreen.b;
        info.bRefineKey = true;
        Combine(info, 1, 1);
    }

    // Mean alpha of the pixels that are so.
    double mean(const std::function<bool(int x, int y)>& isOne) {
        double sum = 0.0;
        int count = 0;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                if (!isOne(x, y)) continue;
                sum += alpha(x, y);
                ++count;
            }
        }
        return sum / count;
    }
};

bool isBesideBody(int x, int y) {
    return x >= 480 && x < 640 && y >= 240 && y < 400;
}

// Hairs beside the body, one each 14 rows.
int rowsBelowHair(int x, int y) {
    return (y + x / 3) % 14;
}
bool isHair(int x, int y) {
    return isBesideBody(x, y) && rowsBelowHair(x, y) < 2;
}

TEST(RefineNoise, FaintSpecksBetweenHairsGo) {
    const auto isSpeck = [](int x, int y) {
        return isBesideBody(x, y) && x % 14 < 2 && rowsBelowHair(x / 14 * 14, y) / 2 == 4;
    };
    NoisyScene scene([&](int x, int y) {
        return mix(kHair, kScreen, isHair(x, y) ? 0.8 : isSpeck(x, y) ? 0.24 : 0.0);
    });
    EXPECT_LT(scene.mean(isSpeck), 2.0);
    EXPECT_GT(scene.mean(isHair), 180.0);
}

// The colour of a JPEG file has noise where something is in its squares, two pixels wide.
TEST(RefineNoise, NoiseBetweenHairsIsNoHair) {
    NoisyScene scene([](int x, int y) { return mix(kHair, kScreen, isHair(x, y) ? 0.8 : 0.0); },
                     [](int x, int y) { return isBesideBody(x, y) ? 20 : 1; });
    const auto isBetween = [](int x, int y) {
        return isBesideBody(x, y) && rowsBelowHair(x, y) >= 5 && rowsBelowHair(x, y) < 11;
    };
    EXPECT_LT(scene.mean(isBetween), 0.5);
    EXPECT_GT(scene.mean(isHair), 180.0);
}

// Islands as they are found by walking from pixel to pixel, corners too.
TEST(RefineNoise, SmallFaintIslandsAreClearedAndNothingElse) {
    constexpr int kColumns = 150, kRows = 90, kFew = 4;
    for (const unsigned share : {5u, 15u, 30u}) {
        std::mt19937 random(share);
        std::vector<std::uint32_t> pixels(kColumns * kRows);
        for (std::uint32_t& pixel : pixels) {
            const bool any = random() % 100 < share, clear = random() % 12 == 0;
            pixel = 0x00808080u | (any ? clear ? 200u : 30u : 0u) << 24;
        }
        refine::Shot shot;
        shot.width = kColumns;
        shot.height = kRows;
        refine::Traces traces{refine::Mask(kColumns, kRows)};
        std::vector<std::uint8_t> scratch(2 * (kColumns + 8));
        for (int y = 0; y < kRows; ++y)
            traces.note(y, 0, kColumns, pixels.data() + y * kColumns, scratch.data());
        std::vector<std::uint32_t> wanted = pixels;
        std::vector<bool> seen(pixels.size());
        for (std::size_t first = 0; first < pixels.size(); ++first) {
            std::vector<std::size_t> island;
            const auto meet = [&](std::size_t at) {
                if (pixels[at] >> 24 == 0 || seen[at]) return;
                seen[at] = true;
                island.push_back(at);
            };
            meet(first);
            bool clear = false;
            for (std::size_t i = 0; i < island.size(); ++i) {
                const int x = static_cast<int>(island[i]) % kColumns, y = static_cast<int>(island[i]) / kColumns;
                clear |= pixels[island[i]] >> 24 == 200;
                for (int row = std::max(y - 1, 0); row <= std::min(y + 1, kRows - 1); ++row) {
                    for (int column = std::max(x - 1, 0); column <= std::min(x + 1, kColumns - 1); ++column)
                        meet(static_cast<std::size_t>(row * kColumns + column));
                }
            }
            for (const std::size_t at : island)
                wanted[at] = clear || island.size() > kFew ? pixels[at] : 0;
        }
        ASSERT_NE(wanted, pixels);
        ASSERT_TRUE(refine::clearSpecks({}, shot, traces, reinterpret_cast<std::uint8_t*>(pixels.data())));
        EXPECT_EQ(wanted, pixels) << share;
    }
}

TEST(RefineNoise, LittleIsLeftOfTheLineWhereWallAndFloorMeet) {
    const Rgb wall{38.0, 117.0, 54.1};
    NoisyScene scene([&](int, int y) { return mix(kScreen, wall, std::clamp(0.5 + (y - 349.7) / 2.0, 0.0, 1.0)); });
    const double left = scene.mean([](int x, int y) { return std::abs(y - 350) <= 5 && x > 500 && x < 570; });
    EXPECT_LT(left, 6.5) << "of 255, eleven rows";
    EXPECT_EQ(scene.alpha(400, 350), 255);
}

}  // namespace
}  // namespace tavrin

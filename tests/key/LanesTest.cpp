#include <functional>
#include <gtest/gtest.h>

#include "key/AlphaSides.h"
#include "key/CombineRow.h"
#include "key/KeyScene.h"
#include "key/screen/ScreenFilter.h"
#include "support/Sanitized.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

// Runs the rows of the scene by the vectors of one target, or one pixel at a time, and returns what is written.
using RowForm = void (*)(const CombineParams&, const KeyOverrides&, int);

std::vector<Pixel> written(const KeyScene& original, RowForm form) {
    KeyScene scene(original.width, original.height);
    scene.foreground = original.foreground;
    scene.background = original.background;
    CombineParams params = makeCombineParams(original.info, Resolution::full);
    params.foreground = scene.foreground.front().data();
    params.background = scene.background.front().data();
    params.combined = scene.combined.front().data();
    const KeyOverrides overrides(original.info, params, Resolution::full);
    for (int y = 0; y < scene.height; ++y)
        form(params, overrides, y);
    scene.combined.insert(scene.combined.end(), scene.background.begin(), scene.background.end());
    return scene.combined;
}

void expectOneResult(const KeyScene& scene, const char* what) {
    const std::vector<Pixel> plain = written(scene, combineRowPlain);
    test::onEveryTarget([&] { EXPECT_TRUE(written(scene, combineRow) == plain) << what; });
}

struct Variant {
    const char* name;
    void (*set)(SystemInfo&);
};

constexpr Variant kVariants[] = {
    {"default", [](SystemInfo&) {}},
    {"local screen",
     [](SystemInfo& i) {
         i.bUseAdaptiveBackgroundGreen = true;
         for (std::size_t k = 0; k < 400; ++k) {
             i.iBaseRedArray[k] = 25.0 + static_cast<double>(k % 37);
             i.iBaseGreenArray[k] = 150.0 + static_cast<double>(k % 71);
             i.iBaseBlueArray[k] = 40.0 + static_cast<double>(k % 29);
         }
     }},
    {"blue", [](SystemInfo& i) { i.bUseBlueLogic = true; }},
    {"bright kept", [](SystemInfo& i) { i.bShowBright = true; }},
    {"tint and dark areas",
     [](SystemInfo& i) {
         i.pCombinedBitmapInfo->sliderGreenTintAreas = 140;
         i.pCombinedBitmapInfo->sliderRestoredDarkAreas = 5;
         i.pCombinedBitmapInfo->sliderWhiteBalance = 112;
     }},
    {"margins and the original",
     [](SystemInfo& i) {
         i.iSliderClipLeft = i.iSliderClipRight = 20;
         i.iSliderClipTop = 15;
         i.bShowOrgImage = true;
     }},
    {"transparent sepia",
     [](SystemInfo& i) {
         i.bOutputTransparency = true;
         i.iForegroundOutputMode = 2;
     }},
    {"tone and deltas",
     [](SystemInfo& i) {
         i.pForegroundBitmapInfo->iContrast = 70;
         i.pForegroundBitmapInfo->iGreenDelta = 40;
         i.pBackgroundBitmapInfo->iBrightness = -30;
         i.iBackgroundOutputMode = 1;
     }},
    {"filters, sharpening, shadows and highlights",
     [](SystemInfo& i) {
         for (BitmapInfo* record : {i.pForegroundBitmapInfo.get(), i.pBackgroundBitmapInfo.get()}) {
             record->iEnhanseShadows = 60;
             record->iReduceHighlights = 30;
             record->iBrightnessSat = 25;
             record->iBrightnessSharpen = 40;
             record->iCooling = 90;
             record->iWarming = 20;
         }
     }},
    {"light on a sharpened background",
     [](SystemInfo& i) {
         i.pBackgroundBitmapInfo->iBrightnessSharpen = 70;
         i.iLightingMode = 1;
         i.iLightingApplyTo = 2;
         i.oLightingMap.resize(static_cast<std::size_t>(i.iOutputPixelWidth) *
                               static_cast<std::size_t>(i.iOutputPixelHeight));
         for (std::size_t k = 0; k < i.oLightingMap.size(); ++k)
             i.oLightingMap[k] = static_cast<std::int32_t>(k % 1700) - 700;
     }},
    {"hair",
     [](SystemInfo& i) {
         i.bAdvancedHairDetectionON = i.bFoundHair = true;
         i.iHairColorCount = 1;
         i.iHairColorBinRed[0] = 90;
         i.iHairColorBinGreen[0] = 60;
         i.iHairColorBinBlue[0] = 40;
     }},
};

TEST(Lanes, EveryTargetWritesTheBytesOfThePlainForm) {
    unsigned seed = 1;
    for (const int width : {1, 7, 8, 131, 300}) {
        for (const Variant& variant : kVariants) {
            KeyScene scene(width, 23);
            test::fillWithNoise(scene.foreground, seed++);
            test::fillWithNoise(scene.background, seed++);
            variant.set(scene.info);
            expectOneResult(scene, variant.name);
        }
    }
}

// Colours around those where a test of the key turns over, where a rounding that differs would show.
TEST(Lanes, EveryTargetAgreesOnEveryGreenishColour) {
    KeyScene scene(256, 256);
    for (int blue = 10; blue < 256; blue += test::kSanitized ? 210 : 35) {
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                scene.at(scene.foreground, x, y) = {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                                                    static_cast<std::uint8_t>(blue), 255};
            }
        }
        expectOneResult(scene, "colours");
    }
}

TEST(Lanes, EveryTargetFindsTheSidesOfALevel) {
    std::vector<Pixel> row(300);
    test::fillWithNoise(row, 7);
    for (std::size_t x = 0; x < row.size(); x += 3)
        row[x][3] = static_cast<std::uint8_t>(199 + x % 4);
    const std::size_t step = 2;
    for (const int width : {1, 63, 64, 65, 300}) {
        test::onEveryTarget([&] {
            std::vector<AlphaSides> sides(static_cast<std::size_t>((width + 63) / 64) * step);
            findAlphaSides(row.front().data(), width, 200, sides.data(), step);
            for (int x = 0; x < static_cast<int>(sides.size() / step) * 64; ++x) {
                const AlphaSides& found = sides[static_cast<std::size_t>(x) / 64 * step];
                const int alpha = x < width ? row[static_cast<std::size_t>(x)][3] : 200;
                EXPECT_EQ(found.below >> x % 64 & 1, alpha < 200 ? 1u : 0u) << x << " of " << width;
                EXPECT_EQ(found.above >> x % 64 & 1, alpha > 200 ? 1u : 0u) << x << " of " << width;
            }
        });
    }
}

bool isScreenLike(const ScreenFilter& filter, const Pixel& c) {
    const int mx = std::max({c[0], c[1], c[2]}), span = mx - std::min({c[0], c[1], c[2]});
    double h, s, v, delta;
    rgb_to_hsv(h, s, v, delta, c[0], c[1], c[2]);
    const bool hue = (h >= filter.firstHue && h < filter.endHue) || (filter.endToo && h == filter.endHue);
    return hue && span >= filter.leastSpan && s > 1.0 / filter.ratio && c[1] > filter.leastGreen;
}

TEST(Lanes, EveryTargetKeepsTheColoursThatTheHueFormulaKeeps) {
    const ScreenFilter filters[] = {{false, 1, 0, 1, 5, 60, 180, true},
                                    {true, 1, 0, 1, 5, 103, 112, true},
                                    {false, 0, 31, 10, 2, 40, 79, false},
                                    {true, 0, 17, 10, 2, 114, 153, false},
                                    {false, 0, 0, 10, 2, 161, 200, false}};
    for (const ScreenFilter& filter : filters) {
        std::vector<Pixel> row, expected;
        for (int blue = 0; blue < 256; blue += test::kSanitized ? 75 : 15) {
            for (int i = 0; i < 0x10000; ++i) {
                const Pixel p{static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8),
                              static_cast<std::uint8_t>(blue), static_cast<std::uint8_t>(i * 7)};
                row.push_back(p);
                Pixel roles{p[0], p[filter.blue ? 2 : 1], p[filter.blue ? 1 : 2], 0};
                for (std::size_t c = 0; c < 3; ++c)
                    roles[c] = std::max(roles[c], static_cast<std::uint8_t>(filter.floor));
                if (isScreenLike(filter, roles)) expected.push_back(roles);
            }
        }
        ASSERT_GT(expected.size(), 1000u);
        test::onEveryTarget([&] {
            std::vector<Pixel> kept;
            const std::size_t odd = 5;  // so that the last vector is not full
            const auto keep = [&](int r, int g, int b) {
                kept.push_back(
                    {static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g), static_cast<std::uint8_t>(b), 0});
            };
            forScreenLike(filter, row.front().data(), row.size() - odd, keep);
            forScreenLike(filter, row[row.size() - odd].data(), odd, keep);
            EXPECT_TRUE(kept == expected);
        });
    }
}

// The curve of a background that nothing covers, against the chain for one colour.
TEST(Lanes, TheBackgroundsCurveIsThatOfItsChain) {
    const std::function<void(BitmapInfo&)> variants[] = {
        [](BitmapInfo& b) { b.iContrast = 80; },
        [](BitmapInfo& b) { b.iBrightness = 60, b.iReduceHighlights = 40; },
        [](BitmapInfo& b) { b.iEnhanseShadows = 90, b.iBrightnessSat = 30, b.iRedDelta = -90; },
        [](BitmapInfo& b) { b.iContrast = 10, b.iBrightness = -80, b.iGreenDelta = 400; },
    };
    for (const auto& set : variants) {
        KeyScene scene(64, 64);
        test::fillWithNoise(scene.background, 11);
        scene.background[0] = {0, 0, 0, 255};
        BitmapInfo& back = *scene.info.pBackgroundBitmapInfo;
        set(back);
        const ToneConstants tone = makeTone(back, ToneLayer::kBackground, {back.pBitmapData, 64, 64});
        std::vector<Pixel> plain;
        for (const Pixel& p : scene.background) {
            Rgb c{clampTo(p[0] + back.iRedDelta, 0.0, 255.0), clampTo(p[1] + back.iGreenDelta, 0.0, 255.0),
                  clampTo(p[2] + back.iBlueDelta, 0.0, 255.0)};
            adjustTone(tone, c, 0, 0, 1.0);
            plain.push_back({toByte(c.r), toByte(c.g), toByte(c.b), 255});
        }
        test::onEveryTarget([&] {
            Combine(scene.info, 1, 1);
            EXPECT_TRUE(scene.combined == plain);
        });
    }
}

}  // namespace
}  // namespace tavrin

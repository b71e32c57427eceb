#include <functional>
#include <gtest/gtest.h>

#include "key/CombineRow.h"
#include "key/KeyScene.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using test::KeyScene;
using test::Pixel;

// Runs the rows of the scene by the vectors of one target, or one pixel at a time, and returns what is written.
using RowForm = void (*)(const CombineParams&, const KeyJoins&, int);

std::vector<Pixel> written(const KeyScene& original, RowForm form) {
    KeyScene scene(original.width, original.height);
    scene.foreground = original.foreground;
    scene.background = original.background;
    CombineParams params = makeCombineParams(original.info, 1);
    params.foreground = scene.foreground.front().data();
    params.background = scene.background.front().data();
    params.combined = scene.combined.front().data();
    const KeyJoins joins(original.info, params, true);
    for (int y = 0; y < scene.height; ++y)
        form(params, joins, y);
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
    for (int blue = 10; blue < 256; blue += 35) {
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                scene.at(scene.foreground, x, y) = {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                                                    static_cast<std::uint8_t>(blue), 255};
            }
        }
        expectOneResult(scene, "colours");
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
        const ToneConstants tone = makeTone(back, ToneLayer::kBackground, back.pBitmapData, 64, 64);
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

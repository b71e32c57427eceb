// The second look at the key: on drawn pictures whose alpha is known.
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "key/DiscScene.h"
#include "key/refine/RefineKey.h"

namespace tavrin {
namespace {

using test::discAlpha;
using test::DiscScene;
using test::KeyScene;
using test::kHeight;
using test::kWidth;
using test::mixed;
using test::Pixel;
using test::rgbOf;

TEST(RefineKey, IsNearerToTheTruthOnGreenAndOnBlue) {
    for (const bool blue : {false, true}) {
        DiscScene scene(blue);
        scene.key(false);
        const double plain = scene.alphaError();
        scene.key(true);
        EXPECT_LT(scene.alphaError(), 0.5 * plain) << blue;
        EXPECT_LT(scene.alphaError(), 0.006) << blue;
        EXPECT_EQ(scene.alpha(2, 2), 0);
        EXPECT_EQ(scene.alpha(kWidth / 2, kHeight / 2), 255);
        EXPECT_EQ(scene.at(scene.combined, 2, 2), (Pixel{90, 110, 70, 255}));
        // No screen in what is left of the subject at its rim.
        scene.info.bOutputTransparency = true;
        scene.key(true);
        const Pixel rim = scene.at(scene.combined, kWidth / 2 + 59, kHeight / 2);
        EXPECT_NEAR(rim[0], 170, 25) << blue;
        EXPECT_LT(rim[blue ? 2 : 1], 145) << blue;
    }
}

TEST(RefineKey, LeavesThePlainKeyWhereItHasNothingToGoBy) {
    const Pixel screen{40, 200, 60, 255}, skin{220, 140, 110, 255};
    const auto compare = [](KeyScene& scene, const char* what) {
        Combine(scene.info, 1, 1);
        const auto plain = scene.combined;
        scene.info.bRefineKey = true;
        Combine(scene.info, 1, 1);
        EXPECT_TRUE(scene.combined == plain) << what;
    };
    KeyScene bare(64, 48, screen), covered(64, 48, skin);
    compare(bare, "nothing but screen");
    compare(covered, "no screen");
    for (const auto& [width, height] : std::vector<std::pair<int, int>>{{1, 1}, {1, 9}, {9, 1}, {2, 2}, {5, 3}}) {
        KeyScene tiny(width, height, screen);
        tiny.at(tiny.foreground, width / 2, height / 2) = skin;
        compare(tiny, "tiny");
    }
}

TEST(RefineKey, WorksOnNarrowPicturesAndAtTheirEdges) {
    for (const auto& [width, height] : std::vector<std::pair<int, int>>{{3, 400}, {400, 3}, {65, 63}, {1, 300}}) {
        KeyScene scene(width, height);
        // The lower right part is subject, up to the edges.
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (2 * x >= width - 1 && 2 * y >= height - 1)
                    scene.at(scene.foreground, x, y) = {190, 120, 100, 255};
            }
        }
        scene.info.bRefineKey = true;
        Combine(scene.info, 1, 1);
        EXPECT_EQ(scene.alpha(width - 1, height - 1), 255) << width;
        EXPECT_EQ(scene.alpha(0, 0), 0) << width;
    }
}

TEST(RefineKey, MarginsHaveTheLastWordAndViewsGoPast) {
    DiscScene scene;
    scene.info.iSliderClipLeft = 50;
    scene.key(true);
    EXPECT_EQ(scene.alpha(kWidth / 2 - 5, kHeight / 2), 0);
    EXPECT_EQ(scene.alpha(kWidth / 2 + 5, kHeight / 2), 255);
    const int soft = scene.alpha(kWidth / 2 + 60, kHeight / 2);
    scene.info.iSliderClipLeft = 0;
    scene.key(true);
    EXPECT_EQ(scene.alpha(kWidth / 2 + 60, kHeight / 2), soft);

    for (Field<bool>* view : {&scene.info.bShowOrgImage, &scene.sliders().bShowSelectedAreas}) {
        *view = true;
        scene.key(false);
        const auto plain = scene.combined;
        scene.key(true);
        EXPECT_TRUE(scene.combined == plain);
        *view = false;
    }
}

TEST(RefineKey, EverySliderActs) {
    DiscScene scene;
    scene.key(true);
    const auto neutral = scene.background;
    const auto changes = [&](Field<std::int32_t>& slider, int value) {
        const int before = slider;
        slider = value;
        scene.key(true);
        slider = before;
        return scene.background != neutral;
    };
    EXPECT_TRUE(changes(scene.info.iSliderRefineSoftness, -60));
    EXPECT_TRUE(changes(scene.info.iSliderRefineSoftness, 60));
    EXPECT_TRUE(changes(scene.sliders().sliderTransparentcyAdjustment, 110));
    EXPECT_TRUE(changes(scene.sliders().sliderGreenTintAreas, 80));
    EXPECT_FALSE(changes(scene.info.iSliderRefineSoftness, 0));
}

TEST(RefineKey, ARimOfAColourThatTheInsideLacksIsNoScreen) {
    // Brown hair whose last pixels brought the grey light of an old backdrop along and take up the screen's.
    const Rgb screen{50.0, 145.0, 72.0}, hair{80.0, 48.0, 14.0}, rim{95.0, 105.0, 80.0};
    KeyScene scene(400, 300, {50, 145, 72, 255});
    scene.info.baseRed = screen.r;
    scene.info.baseGreen = screen.g;
    scene.info.baseBlue = screen.b;
    const auto truth = [](int x) { return std::clamp((x - 197.5) / 5.0, 0.0, 1.0); };
    for (int y = 0; y < 300; ++y) {
        for (int x = 198; x < 400; ++x) {
            const double lit = std::clamp((208.0 - x) / 8.0, 0.0, 1.0);
            const Pixel own = mixed(rim, hair, lit);
            scene.at(scene.foreground, x, y) = mixed(rgbOf(own), screen, truth(x));
        }
    }
    const auto error = [&](bool refined) {
        scene.info.bRefineKey = refined;
        Combine(scene.info, 1, 1);
        double sum = 0.0;
        for (int x = 0; x < 400; ++x)
            sum += std::abs(scene.alpha(x, 150) / 255.0 - truth(x));
        return sum;
    };
    const double plain = error(false), refined = error(true);
    EXPECT_LT(refined, 1.4 * plain) << "the fit alone is at 1.7";
}

TEST(RefineKey, WhereAMixtureExplainsThePixelTheKeyIsHeardLess) {
    // A wide soft edge that the key takes for whole too early: as a mixture, and lit up beyond any mixture.
    const Rgb screen{50.0, 145.0, 72.0}, fur{110.0, 100.0, 90.0};
    const auto gain = [&](double light) {
        KeyScene scene(400, 300, {50, 145, 72, 255});
        std::vector<std::uint8_t> key(400 * 300);
        const auto truth = [](int x) { return std::clamp((x - 196.0) / 8.0, 0.0, 1.0); };
        for (int y = 0; y < 300; ++y) {
            for (int x = 180; x < 400; ++x) {
                Pixel& pixel = scene.at(scene.foreground, x, y) = mixed(fur, screen, truth(x));
                const double lit = light * truth(x) * (1.0 - truth(x));
                for (std::size_t c = 0; c < 3; ++c)
                    pixel[c] = toByte(pixel[c] + lit);
                key[static_cast<std::size_t>(y * 400 + x)] = toByte(255.0 * std::min(1.0, 1.7 * truth(x)));
            }
        }
        const refine::Shot shot{400, 300, scene.foreground.front().data(), key.data(), false};
        EXPECT_EQ(refine::refineKey({}, shot, {}, scene.combined.front().data()), refine::Refined::done);
        double sum = 0.0, most = 0.0;
        for (int x = 197; x < 201; ++x) {
            sum += scene.at(scene.combined, x, 150)[3] / 255.0 - truth(x);
            most += key[static_cast<std::size_t>(150 * 400 + x)] / 255.0 - truth(x);
        }
        return sum / most;
    };
    EXPECT_LT(gain(0.0), 0.45);
    EXPECT_GT(gain(160.0), gain(0.0) + 0.3);
}

TEST(RefineKey, TheGuardHasTheLastWordAndAnEvenGridChangesNothing) {
    DiscScene scene;
    const auto alphas = [&scene](bool refined, int guard) {
        scene.info.iGreenProtectMode = guard;
        scene.key(refined);
        std::vector<int> alpha;
        for (const Pixel& pixel : scene.background)
            alpha.push_back(pixel[3]);
        return alpha;
    };
    scene.info.iSliderProtectionRadius = 2;
    const auto plain = alphas(false, 0), guarded = alphas(false, 1), refined = alphas(true, 0),
               both = alphas(true, 1);
    int held = 0;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const bool holds = guarded[i] == 255 && plain[i] != 255;
        held += holds;
        if (holds) {
            ASSERT_EQ(both[i], 255) << i;
        } else if (plain[i] != 255) {
            ASSERT_EQ(both[i], refined[i]) << i;
        }
    }
    EXPECT_GT(held, 0);

    scene.info.iGreenProtectMode = 0;
    scene.key(true);
    const auto neutral = scene.background;
    DiscScene adaptive;
    adaptive.info.bUseAdaptiveBackgroundGreen = true;
    adaptive.info.iBaseRedArray.fill(40.0);
    adaptive.info.iBaseGreenArray.fill(200.0);
    adaptive.info.iBaseBlueArray.fill(60.0);
    adaptive.key(true);
    EXPECT_TRUE(adaptive.background == neutral);
}

TEST(RefineKey, ADeepShadowInAGapIsScreenWhereTheKeyHasNothing) {
    // Between two arms, too dark for a seed.
    KeyScene scene(480, 480);
    std::vector<std::uint8_t> key(480 * 480);
    for (int y = 120; y < 480; ++y) {
        for (int x = 120; x < 360; ++x) {
            const bool gap = y > 300 && y < 400 && x > 200 && x < 280;
            scene.at(scene.foreground, x, y) = gap ? Pixel{18, 88, 26, 255} : Pixel{190, 120, 100, 255};
            key[static_cast<std::size_t>(y * 480 + x)] = gap ? 0 : 255;
        }
    }
    const refine::Shot shot{480, 480, scene.foreground.front().data(), key.data(), false};
    ASSERT_EQ(refine::refineKey({}, shot, {}, scene.combined.front().data()), refine::Refined::done);
    EXPECT_EQ(scene.at(scene.combined, 240, 350)[3], 0);
    EXPECT_EQ(scene.at(scene.combined, 160, 350)[3], 255);
}

TEST(RefineKey, AGapBetweenGreenSleevesIsScreenAlsoWhereItsLightIsAnother) {
    // The gap is a little lighter and paler than the screen elsewhere, and the key leaves a little in it.
    constexpr int kSize = 480;
    KeyScene scene(kSize, kSize, {100, 170, 116, 255});
    std::vector<std::uint8_t> key(kSize * kSize);
    for (int y = 100; y < kSize; ++y) {
        for (int x = 100; x < 380; ++x) {
            const bool gap = y > 200 && y < 420 && x > 210 && x < 260, head = y < 180;
            const auto noise = static_cast<std::uint8_t>((x * 7 + y * 13) % 3);
            scene.at(scene.foreground, x, y) = gap    ? Pixel{107, 176, 122, 255}
                                               : head ? Pixel{190, 120, 100, 255}
                                                      : Pixel{17, static_cast<std::uint8_t>(150 + noise), 122, 255};
            key[static_cast<std::size_t>(y * kSize + x)] = gap ? 10 : head ? 255 : 60;
        }
    }
    const refine::Shot shot{kSize, kSize, scene.foreground.front().data(), key.data(), false};
    ASSERT_EQ(refine::refineKey({}, shot, {}, scene.combined.front().data()), refine::Refined::done);
    int left = 0, lost = 0;
    for (int y = 210; y < 410; ++y) {
        for (int x = 120; x < 360; ++x) {
            const int alpha = scene.at(scene.combined, x, y)[3];
            if (x > 214 && x < 256) left += alpha > 20;
            if (x < 205 || x > 265) lost += alpha < 240;
        }
    }
    EXPECT_EQ(left, 0);
    EXPECT_EQ(lost, 0);
}

TEST(RefineKey, DarkHairThatTheKeyTookAwayIsNoShadowInASmallPicture) {
    // Strands beside a dark head, before a screen of the purest green: their colours are those of its shadows.
    constexpr int kSize = 480;
    for (const int period : {7, 8, 10}) {
        KeyScene scene(kSize, kSize, {0, 255, 0, 255});
        std::vector<std::uint8_t> key(kSize * kSize);
        const auto strands = [period](int x) { return 0.3 + 0.2 * std::sin(x * 2.0 * M_PI / period); };
        for (int y = 200; y < kSize; ++y) {
            for (int x = y < 320 ? 60 : 160; x < 320; ++x) {
                const double alpha = x < 160 ? strands(x) : 1.0;
                scene.at(scene.foreground, x, y) = mixed({40, 30, 20}, {0, 255, 0}, alpha);
                if (x >= 160) key[static_cast<std::size_t>(y * kSize + x)] = 255;
            }
        }
        const refine::Shot shot{kSize, kSize, scene.foreground.front().data(), key.data(), false};
        ASSERT_EQ(refine::refineKey({}, shot, {}, scene.combined.front().data()), refine::Refined::done);
        double error = 0.0;
        for (int y = 210; y < 310; ++y) {
            for (int x = 70; x < 150; ++x)
                error += std::abs(scene.at(scene.combined, x, y)[3] / 255.0 - strands(x));
        }
        EXPECT_LT(error / 8000.0, 0.03) << period;
    }
}

TEST(RefineKey, TakesFineDetailFromTheBrightness) {
    // Dark hairs of two pixels whose colour has half the resolution, as JPEG files have it.
    DiscScene scene;
    for (int y = 20; y < kHeight - 20; ++y) {
        for (int x = 20; x < kWidth - 20; ++x) {
            Pixel& pixel = scene.at(scene.foreground, x, y);
            const double light = x / 2 % 3 == 0 ? 0.7 : 1.1;
            const double alpha = discAlpha(x, y);
            if (alpha > 0.0 && alpha < 1.0)
                for (std::size_t c = 0; c < 3; ++c)
                    pixel[c] = toByte(pixel[c] * light);
        }
    }
    scene.key(true);
    const auto usual = scene.background;
    scene.info.iSliderRefineDetail = -100;
    scene.key(true);
    EXPECT_FALSE(scene.background == usual);
}

TEST(RefineKey, GlowTakesItsAlpha) {
    DiscScene scene;
    scene.info.iLightingMode = 4;
    scene.info.iLightingSliderSize = 30;
    scene.info.iLightingSliderEndLight = 90;
    scene.key(true);
    const auto refined = scene.combined;
    // The alpha left for the glow is that of the picture without it.
    const auto alpha = scene.background;
    scene.info.iLightingMode = 0;
    scene.key(true);
    EXPECT_TRUE(scene.background == alpha);
    EXPECT_FALSE(scene.combined == refined);
}

}  // namespace
}  // namespace tavrin

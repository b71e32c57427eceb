// The second look at the key as work: the same bytes however it runs, nothing done twice, and its end for a newer
// request.
#include <atomic>
#include <gtest/gtest.h>
#include <random>

#include "core/raster/Rows.h"
#include "key/DiscScene.h"
#include "key/refine/KeptResult.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using test::discAlpha;
using test::DiscScene;
using test::kHeight;
using test::kWidth;
using test::Pixel;

TEST(RefineRun, GivesTheSameBytesForAnyNumberOfThreads) {
    std::vector<std::vector<Pixel>> results;
    for (const int threads : {1, 2, 5}) {
        const ThreadLimit limit(threads);
        DiscScene scene;
        scene.info.iSliderRefineSoftness = 30;
        scene.key(true);
        scene.combined.insert(scene.combined.end(), scene.background.begin(), scene.background.end());
        results.push_back(scene.combined);
    }
    EXPECT_TRUE(results[1] == results[0]);
    EXPECT_TRUE(results[2] == results[0]);
}

TEST(RefineRun, GivesTheSameBytesOnEveryVectorTarget) {
    for (const bool blue : {false, true}) {
        DiscScene plain(blue);
        plain.info.iSliderRefineSoftness = -20;
        plain.key(true);
        test::onEveryTarget([&] {
            DiscScene scene(blue);
            scene.info.iSliderRefineSoftness = -20;
            scene.key(true);
            EXPECT_TRUE(scene.combined == plain.combined) << blue;
            EXPECT_TRUE(scene.background == plain.background) << blue;
        });
    }
}

TEST(RefineRun, PreviewAndFullPictureOfOneSizeAreAlike) {
    DiscScene full, preview;
    full.key(true);
    preview.info.bRefineKey = true;
    Combine(preview.info, 1, 0);
    EXPECT_TRUE(full.combined == preview.combined);
}

/// What the second look makes of a shot, and how often it asked for a newer request on its way.
struct LookedAt {
    std::vector<std::uint8_t> result = std::vector<std::uint8_t>(kWidth * kHeight * 4);
    refine::Refined outcome;
    std::atomic<int> asked = 0;

    template <class Look>
    LookedAt(const Look& look, const refine::Shot& shot, const refine::RefineTaste& taste, int threads = 1) {
        RunContext context;
        context.superseded = [this] { return ++asked < 0; };
        const ThreadLimit limit(threads);
        outcome = look(context, shot, taste, result.data());
    }
};

TEST(RefineRun, APreviewThatIsAskedForAgainCostsNothingAndIsNeverStale) {
    DiscScene scene;
    scene.key(false);
    std::vector<std::uint8_t> key;
    for (const Pixel& pixel : scene.background)
        key.push_back(pixel[3]);
    refine::Shot shot{kWidth, kHeight, scene.foreground.front().data(), key.data(), false};
    refine::RefineTaste taste;
    taste.softness = 0.37f;  // as in no other test
    const auto expectFresh = [&](const char* change) {
        SCOPED_TRACE(change);
        const LookedAt first(refine::refinePreview, shot, taste), again(refine::refinePreview, shot, taste);
        EXPECT_GT(first.asked, 0);
        EXPECT_EQ(again.asked, 0);
        const LookedAt fresh(refine::refineKey, shot, taste);
        EXPECT_EQ(first.outcome, fresh.outcome);
        EXPECT_EQ(again.outcome, fresh.outcome);
        EXPECT_TRUE(first.result == fresh.result);
        EXPECT_TRUE(again.result == fresh.result);
    };
    expectFresh("nothing kept yet");
    EXPECT_EQ(LookedAt(refine::refinePreview, shot, taste).outcome, refine::Refined::done);
    scene.at(scene.foreground, kWidth / 2 + 60, kHeight / 2) = {10, 20, 250, 255};
    expectFresh("a pixel");
    key[static_cast<std::size_t>(kWidth * (kHeight / 2) + kWidth / 2 - 60)] ^= 64;
    expectFresh("the key of a pixel");
    taste.shift = 0.1f;
    expectFresh("what the settings ask for");
    std::swap(shot.width, shot.height);
    expectFresh("the shape of the same bytes, in which there is no screen");
}

/// A disc of skin, or mostly of cloth near the screen's hue, and what the key made of it.
struct KeyedDisc {
    explicit KeyedDisc(bool cloth) {
        scene.info.iGreenProtectMode = 0;
        for (std::size_t i = 0; i < scene.foreground.size(); ++i) {
            const int x = static_cast<int>(i) % kWidth, y = static_cast<int>(i) / kWidth;
            const double alpha = cloth && x > kWidth / 2 - 30 ? discAlpha(x, y) : 0.0;
            const double fold = x / 4 % 2 * 4.0;
            if (alpha > 0.0)
                scene.foreground[i] = test::mixed({17.0, 172.0 + fold, 112.0 + fold}, {40.0, 200.0, 60.0}, alpha);
        }
        key();
    }
    void key() {
        scene.key(false);
        alpha.clear();
        for (const Pixel& pixel : scene.background)
            alpha.push_back(pixel[3]);
    }
    refine::Shot shot() const { return {kWidth, kHeight, scene.foreground.front().data(), alpha.data(), false}; }

    DiscScene scene;
    std::vector<std::uint8_t> alpha;
};

// What a hand may do between two previews: a slider of the key or of the refinement, some pixels' key, the portrait.
void changeAtRandom(std::mt19937& random, KeyedDisc (&discs)[2], std::size_t& shown, refine::RefineTaste& taste) {
    const auto below = [&random](unsigned count) { return static_cast<int>(random() % count); };
    KeyedDisc& disc = discs[shown];
    switch (below(8)) {
        case 0:
            disc.scene.sliders().sliderRestoredDarkAreas = below(100);
            return disc.key();
        case 1:
            disc.scene.sliders().sliderTransparentcyAdjustment = 90 + below(20);
            return disc.key();
        case 2:
            disc.scene.sliders().sliderGreenTintAreas = 90 + below(20);
            return disc.key();
        case 3:
            disc.alpha[random() % disc.alpha.size()] = static_cast<std::uint8_t>(random());
            return;
        case 4: {
            const std::uint8_t levels[] = {0, 8, 40, 255};
            const std::uint8_t level = levels[below(4)];
            for (int y = 60, end = y + below(70); y < end; ++y)
                std::fill_n(disc.alpha.begin() + y * kWidth + kWidth / 2 - 20, 50, level);
            return;
        }
        case 5:
            taste.ownGreen = static_cast<float>(below(3));
            return;
        case 6:
            taste.softness = static_cast<float>(below(5) - 2) / 4.0f;
            return;
        default:
            shown = 1 - shown;
    }
}

TEST(RefineRun, PreviewsOneAfterTheOtherAreThoseThatKnowNothingOfEachOther) {
    KeyedDisc discs[] = {KeyedDisc(false), KeyedDisc(true)};
    std::mt19937 random(3);
    std::size_t shown = 0;
    refine::RefineTaste taste;
    int fewer = 0, done = 0;
    for (int i = 0; i < 120; ++i) {
        changeAtRandom(random, discs, shown, taste);
        const refine::Shot shot = discs[shown].shot();
        const LookedAt preview(refine::refinePreview, shot, taste, 1 + i % 3), fresh(refine::refineKey, shot, taste);
        ASSERT_EQ(preview.outcome, fresh.outcome) << i;
        ASSERT_TRUE(preview.result == fresh.result) << i;
        fewer += preview.asked < fresh.asked;
        done += fresh.outcome == refine::Refined::done;
    }
    EXPECT_GT(fewer, 45) << "steps were kept";
    EXPECT_GT(done, 90);
    refine::forgetPreview();
    EXPECT_EQ(LookedAt(refine::refinePreview, discs[shown].shot(), taste).asked,
              LookedAt(refine::refineKey, discs[shown].shot(), taste).asked);
}

TEST(RefineRun, ANewerRequestEndsItWithinARow) {
    // The state is overtaken at one moment after the other; what a run leaves is either untouched or not announced.
    DiscScene whole;
    whole.key(true);
    int asked = 0;
    for (int stop = 1; stop < 4000; stop += 97) {
        DiscScene scene;
        asked = 0;
        RunContext context;
        context.superseded = [&] { return ++asked >= stop; };
        const ThreadLimit limit(1);
        const refine::Shot shot{kWidth, kHeight, scene.foreground.front().data(), whole.background.front().data(),
                                false};
        std::vector<std::uint8_t> key(static_cast<std::size_t>(kWidth * kHeight));
        for (std::size_t i = 0; i < key.size(); ++i)
            key[i] = whole.background[i][3];
        refine::Shot keyed = shot;
        keyed.key = key.data();
        const refine::Refined result = refine::refineKey(context, keyed, {}, scene.combined.front().data());
        if (asked < stop) break;
        EXPECT_EQ(result, refine::Refined::superseded) << stop;
        EXPECT_LT(asked, stop + 40) << "it went on for many rows";
    }
}

TEST(RefineRun, ANewerRequestEndsIt) {
    DiscScene scene;
    const auto before = scene.combined;
    scene.info.iNewThreadCount = scene.info.iCurrentThreadCount + 1;
    scene.key(true);
    EXPECT_TRUE(scene.combined == before);
}

}  // namespace
}  // namespace tavrin

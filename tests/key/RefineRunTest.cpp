// The second look at the key as work: the same bytes however it runs, nothing done twice, and its end for a newer
// request.
#include <gtest/gtest.h>

#include "core/raster/Rows.h"
#include "key/DiscScene.h"
#include "key/refine/KeptResult.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

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
    int asked = 0;

    template <class Look>
    LookedAt(const Look& look, const refine::Shot& shot, const refine::RefineTaste& taste) {
        RunContext context;
        context.superseded = [this] { return ++asked < 0; };
        const ThreadLimit limit(1);
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

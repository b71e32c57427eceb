#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <thread>

#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "effects/Presets.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

class PresetsTest : public testing::Test {
  protected:
    PresetsTest() { Places::current().setPicturesFolder(folder_.path().string()); }
    ~PresetsTest() override { Places::current().setPicturesFolder(pictures_); }

    static std::string apply(SystemInfo& info, const std::string& group, const std::string& name) {
        return applyPreset(info, *findPresetGroup(group), name);
    }

    test::TempFolder folder_;
    const std::string pictures_ = Places::current().picturesFolder();
};

TEST_F(PresetsTest, AnOverlayIsNamedBeforeItIsSwitchedOnSinceAPassMayMeetHalfOfIt) {
    SystemInfo info;
    std::atomic<int> nameless = 0, turn = 0;  // odd while the look is being taken, and until it goes
    const std::jthread pass([&](const std::stop_token& ended) {
        while (!ended.stop_requested()) {
            const int now = turn;
            const bool half = info.bHaveFrameOverlay && info.sFrameOverlay.load().empty();
            if (half && now % 2 == 1 && turn == now) ++nameless;
        }
    });
    for (int i = 0; i < 300; ++i) {
        for (const char* look : {"winter", "none"}) {
            ++turn;
            EXPECT_EQ(apply(info, "overlays", look), "");
        }
    }
    EXPECT_EQ(nameless, 0);
}

TEST_F(PresetsTest, EveryLookDiffersFromTheOthersAndNoneTakesItAway) {
    std::set<std::string> groups;
    for (const PresetGroup& group : presetGroups()) {
        EXPECT_TRUE(groups.insert(group.name).second) << group.name;
        std::set<std::vector<std::pair<std::string, std::string>>> looks;
        for (const Preset& preset : group.presets) {
            SystemInfo info;
            preset.apply(info);
            EXPECT_TRUE(looks.insert(listFields(info)).second) << group.name << " " << preset.name;
        }
    }
    SystemInfo info;
    for (const PresetGroup& group : presetGroups()) {
        EXPECT_EQ(applyPreset(info, group, group.presets.back().name), "");
        applyPreset(info, group, "none");
    }
    EXPECT_EQ(info.iHaveShadow, 1);
    EXPECT_FALSE(info.bHaveReflection || info.bStarFilerTurnOn || info.oImageTexture->bHaveTexture);
    EXPECT_EQ(info.iLightingMode + info.iGlobalSmoothingMode + info.iCartoonEffectType + info.oFrame->iFrameType, 0);
}

TEST_F(PresetsTest, AShadowMakesTheBackgroundAnew) {
    SystemInfo info;
    EXPECT_EQ(apply(info, "shadow", "floor-wall"), "");
    EXPECT_EQ(info.iHaveShadow, 3);
    EXPECT_EQ(info.iSliderFloorSkew, 700);
    EXPECT_EQ(info.bCheckShowBaseline, 1);
    EXPECT_TRUE(info.pBackgroundBitmapInfo->bScaleChange.exchange(false));
    EXPECT_EQ(apply(info, "shadow", "none"), "");
    EXPECT_TRUE(info.pBackgroundBitmapInfo->bScaleChange);
    EXPECT_FALSE(info.pForegroundBitmapInfo->bScaleChange);
}

TEST_F(PresetsTest, ShippedTexturesLieInTheUsersFolderAndOwnFilesAreTaken) {
    SystemInfo info;
    EXPECT_EQ(apply(info, "texture", "linen"), "");
    EXPECT_EQ(info.oImageTexture->sTextureFileName.load(), folder_.file("Texture/Linen.jpg"));
    EXPECT_GT(std::filesystem::file_size(folder_.file("Texture/Linen.jpg")), 1000U);
    // A user's own file of that name stays.
    test::writeFile(folder_.file("Texture/Canvas.jpg"), "mine");
    EXPECT_EQ(apply(info, "texture", "canvas"), "");
    EXPECT_EQ(test::readFile(folder_.file("Texture/Canvas.jpg")), "mine");

    EXPECT_EQ(apply(info, "frame-fill", folder_.file("Texture/Linen.jpg")), "");
    EXPECT_EQ(info.oFrame->iFrameMode, 4);
    EXPECT_EQ(info.oFrame->sFrameImagePath.load(), folder_.file("Texture/Linen.jpg"));
}

TEST_F(PresetsTest, AnUnknownNameChangesNothingAndTellsWhatThereIs) {
    SystemInfo info;
    const auto before = listFields(info);
    EXPECT_EQ(apply(info, "shadow", "flor"),
              "There is no shadow \"flor\"; did you mean floor? It takes none, wall, floor, floor-wall.");
    EXPECT_NE(apply(info, "texture", folder_.file("gone.jpg")).find("or a picture file"), std::string::npos);
    EXPECT_NE(apply(info, "frame", folder_.path().string()), "");
    EXPECT_EQ(listFields(info), before);
    EXPECT_EQ(findPresetGroup("shadows"), nullptr);
}

}  // namespace
}  // namespace tavrin

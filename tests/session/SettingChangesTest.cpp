// A change through the door against a state that began with it: the same picture in every byte.
#include <algorithm>
#include <gtest/gtest.h>

#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "pipeline/CombineThread.h"
#include "session/OutputSizes.h"
#include "session/SettingChanges.h"
#include "session/Sources.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Settings = std::vector<std::pair<std::string, std::string>>;

constexpr int kWidth = 60, kHeight = 40, kDpi = 40;

/// A state with its loop, for a view of few pixels.
struct Desk {
    Desk(const std::string& foreground, const std::string& background) {
        setForeground(*info, foreground);
        setBackground(*info, background);
    }

    /// The loop's own preview has 300,000 pixels whatever the output, too many for hundreds of passes.
    void shrinkPreview() {
        info->iOutputPixelLowResWidth = 45;
        info->iOutputPixelLowResHeight = 30;
        info->iOutputImageLowResDPI = 30;
        info->hairDetectPixels = PixelBuffer(45, 30);
        info->pHairDetectBitmap = info->hairDetectPixels.data();
        for (BitmapInfo* record : {info->pForegroundBitmapInfo.get(), info->pBackgroundBitmapInfo.get(),
                                   info->pCombinedBitmapInfo.get()}) {
            record->allocateBuffers(kWidth, kHeight, 45, 30);
        }
    }

    void set(const Settings& settings) {
        for (const auto& [name, value] : settings)
            ASSERT_EQ(changeSetting(*info, name, value), "");
    }

    void pass() {
        info->randomSeeds.startAt(5);
        info->StartUpdate();
        loop.runUntilIdle();
    }

    Bytes pixels() const {
        const PassGeometry low = info->geometry(Resolution::preview), full = info->geometry(Resolution::full);
        const BitmapInfo& combined = *info->pCombinedBitmapInfo;
        Bytes bytes(combined.pBitmapData, combined.pBitmapData + pixelBytes(full.width, full.height));
        bytes.insert(bytes.end(), combined.pBitmapDataLowRes,
                     combined.pBitmapDataLowRes + pixelBytes(low.width, low.height));
        return bytes;
    }

    std::unique_ptr<SystemInfo> info = test::stateForOutput(kWidth, kHeight, kDpi);
    CombineThread loop{*info};
};

class SettingChangesTest : public testing::Test {
  protected:
    /// Every layer's own work: empty sides, a shadow, a blur, an overlay and items of both kinds on the background.
    Settings rich() const {
        return {{"iHaveShadow", "3"},
                {"iSliderShadowBase", "520"},
                {"iSliderFloorBaseAngle", "500"},
                {"iSliderShadowRightLeft", "560"},
                {"iSliderShadowUpDown", "480"},
                {"iSliderFloorSkew", "525"},
                {"iSliderShadowScale", "500"},
                {"iSliderShadowBlur", "300"},
                {"iSliderShadowBlack", "20"},
                {"iSliderShadowTransparency", "500"},
                {"iSliderVRoomRight", "300"},
                {"iSliderVRoomLeft", "300"},
                {"iSliderVRoomTransparency", "200"},
                {"dSliderBlur", "0.03"},
                {"bShowGreenProtection", "0"},
                {"bHaveBackgroundOverlay", "1"},
                {"sBackgroundOverlay", overlay_},
                {"background.fScale", "0.7"},
                {"foreground.fScale", "0.9"},
                {"text0.sText", overlay_},
                {"text0.isImage", "1"},
                {"text0.imageSizeWidth", "20"},
                {"text0.imageSizeHeight", "9"},
                {"text0.xPos", "0.1"},
                {"text0.yPos", "0.1"},
                {"text0.sLevel", "Background Layer"},
                {"text1.sText", overlay_},
                {"text1.isImage", "1"},
                {"text1.imageSizeWidth", "12"},
                {"text1.imageSizeHeight", "9"},
                {"text1.sLevel", "Foreground"}};
    }

    static QImage veil() {
        QImage picture(7, 5, QImage::Format_ARGB32);
        picture.fill(QColor(200, 40, 90, 90));
        return picture;
    }

    /// Another value for a setting, one that shows where any does.
    std::string otherValue(const std::string& name, const std::string& value) const {
        if (name.ends_with("sLevel")) return value.starts_with("Background") ? "Frame Layer" : "Background";
        if (name.ends_with("sSourceImageFullPath")) return other_;
        if (name.ends_with("fRotate")) return "90";
        if (name.starts_with("iSliderClip")) return "30";
        if (name == "iHaveShadow") return "1";
        const bool number = !value.empty() && value.find_first_not_of("-.0123456789") == std::string::npos;
        if (!number) return value == overlay_ ? other_ : overlay_;
        if (value == "0") return name.find(".f") != std::string::npos ? "0.4" : "1";
        if (value == "1" && name.find(".f") == std::string::npos) return "0";
        return value.find('.') == std::string::npos ? std::to_string(std::stoi(value) + 60) : "0.41";
    }

    /// The picture of a fresh state with these settings.
    Bytes fresh(Settings settings, const std::string& name, const std::string& value) const {
        Desk desk(foreground_, background_);
        settings.emplace_back(name, value);
        desk.set(settings);
        desk.shrinkPreview();
        desk.pass();
        return desk.pixels();
    }

    /// Changes each setting that `wanted` takes, and puts it back.
    /// @param shows how many of the values show in the picture, at least
    void changeEach(const Settings& settings, bool (*wanted)(const std::string& name), int shows);

    test::TempFolder folder_;
    // One colour of screen, so that the estimates from the source and from the preview are one.
    const std::string foreground_ =
        test::savePng(test::discOnScreen(kWidth, kHeight, QColor(40, 160, 60)), folder_.file("fg.png"));
    const std::string background_ = test::savePng(test::noisePicture(90, 40, 9), folder_.file("bg.png"));
    const std::string other_ = test::savePng(
        test::discOnScreen(kWidth, kHeight, QColor(50, 170, 40), QColor(90, 80, 200)), folder_.file("other.png"));
    const std::string overlay_ = test::savePng(veil(), folder_.file("overlay.png"));
};

/// The pixels of the output follow from its size and cannot be set.
bool isOutput(const std::string& name) {
    const auto leaves = OutputGeometry::leaves();
    return std::any_of(leaves.begin(), leaves.end(), [&](const auto& leaf) { return name == leaf.key; });
}

// Whoever forgets a setting in the table of the flags shows the layer of before.
void SettingChangesTest::changeEach(const Settings& settings, bool (*wanted)(const std::string& name), int shows) {
    Desk desk(foreground_, background_);
    desk.set(settings);
    desk.shrinkPreview();
    desk.pass();
    const Bytes before = desk.pixels();
    const Settings start = listFields(*desk.info);
    int differ = 0;
    for (std::size_t i = 0; i < start.size(); i += test::kTimesFewer) {
        const auto& [name, value] = start[i];
        if (isOutput(name) || !wanted(name)) continue;
        const std::string other = otherValue(name, value);
        ASSERT_EQ(changeSetting(*desk.info, name, other), "") << name;
        desk.pass();
        EXPECT_TRUE(desk.pixels() == fresh(settings, name, other)) << name << " = " << other << " after " << value;
        differ += desk.pixels() != before;
        ASSERT_EQ(changeSetting(*desk.info, name, value), "") << name;
        desk.pass();
        EXPECT_TRUE(desk.pixels() == before) << name << " = " << value << " after " << other;
    }
    EXPECT_GE(differ, shows / test::kTimesFewer);
}

TEST_F(SettingChangesTest, EachShowsAsInAFreshState) {
    changeEach(
        rich(), [](const std::string&) { return true; }, 70);
}

// The screen is measured in the smoothed preview, so no layer has empty sides of its colour here.
TEST_F(SettingChangesTest, EachShowsAsInAFreshStateWithASmoothedForegroundAndAReflection) {
    const auto wanted = [](const std::string& name) {
        return name.starts_with("foreground.") || name.find("Smoothing") != std::string::npos ||
               name.find("Reflection") != std::string::npos;
    };
    changeEach({{"iGlobalSmoothingMode", "1"}, {"iGlobalSmoothingLambda", "60"}, {"bHaveReflection", "1"}}, wanted,
               15);
}

TEST_F(SettingChangesTest, ALookTakenOverShowsAsInAFreshState) {
    const std::string pictures = Places::current().picturesFolder();
    Places::current().setPicturesFolder(folder_.path().string());
    Desk desk(foreground_, background_);
    desk.shrinkPreview();
    desk.pass();
    for (const PresetGroup& group : presetGroups()) {
        for (const Preset& look : group.presets) {
            Desk fresh(foreground_, background_);
            for (const auto& [name, value] : listFields(*desk.info)) {
                if (isOutput(name)) continue;
                ASSERT_EQ(changeSetting(*fresh.info, name, value), "");
            }
            for (Desk* either : {&desk, &fresh})
                ASSERT_EQ(takeLook(*either->info, group, look.name), "");
            fresh.shrinkPreview();
            desk.pass();
            fresh.pass();
            EXPECT_TRUE(desk.pixels() == fresh.pixels()) << group.name << ' ' << look.name;
        }
    }
    Places::current().setPicturesFolder(pictures);
}

TEST_F(SettingChangesTest, AListsSwitchesShowForThePortraitOfBefore) {
    for (const KeySwitches& switches : {KeySwitches{false, false, true}, {false, true, false}, {true, false, true}}) {
        Desk desk(foreground_, background_), fresh(foreground_, background_);
        desk.set({{"foreground.fScale", "0.6"}});
        fresh.set({{"foreground.fScale", "0.6"}});
        desk.shrinkPreview();
        desk.pass();
        useSwitches(*desk.info, switches);
        useSwitches(*fresh.info, switches);
        fresh.shrinkPreview();
        desk.pass();
        fresh.pass();
        EXPECT_TRUE(desk.pixels() == fresh.pixels()) << switches.blueScreenProcessing;
    }
}

TEST_F(SettingChangesTest, WhoOpensAPictureSeesItKeyed) {
    Desk desk(foreground_, background_);
    desk.shrinkPreview();
    for (const bool portrait : {true, false}) {
        desk.set({{"bShowOrgImage", "1"}});
        desk.pass();
        portrait ? openPortrait(*desk.info, other_) : openBackground(*desk.info, overlay_);
        desk.pass();
        Desk fresh(other_, portrait ? background_ : overlay_);
        fresh.shrinkPreview();
        fresh.pass();
        EXPECT_TRUE(desk.pixels() == fresh.pixels()) << portrait;
    }
}

TEST_F(SettingChangesTest, TheInchesAreThoseOfTheNextPicture) {
    Desk desk(foreground_, background_), fresh(foreground_, background_);
    chooseOwnSize(*desk.info, "own", 1.5, 1.0, 40);
    desk.pass();
    desk.set({{"dOutputImageHeightInInches", "0.5"}});
    chooseOwnSize(*fresh.info, "own", 1.5, 0.5, 40);
    desk.pass();
    fresh.pass();
    EXPECT_EQ(desk.info->iOutputPixelHeight, 20);
    EXPECT_TRUE(desk.pixels() == fresh.pixels());
}

}  // namespace
}  // namespace tavrin

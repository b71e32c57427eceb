// A pass that takes the keyed picture up again against one that does everything anew: the same in every byte.
#include <algorithm>
#include <gtest/gtest.h>

#include "core/state/SettingNames.h"
#include "pipeline/CombineThread.h"
#include "pipeline/KeyInputs.h"
#include "pipeline/WholePicture.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

constexpr int kWidth = 61, kHeight = 43;

/// The full key publishes its rows in parts, a picture that is taken up again comes whole.
class View : public Interface {
  public:
    explicit View(bool keeps) : keeps_(keeps) {}
    bool wantsPixels() const override { return keeps_; }
    void repaint(const PublishedRows& rows) override {
        if (!rows.isPreview() && rows.rowCount < rows.height) ++parts;
        if (onRepaint) onRepaint(rows);
    }
    void showAlert(const std::string& message, const std::string&) override { alerts.push_back(message); }

    int parts = 0;
    std::vector<std::string> alerts;
    std::function<void(const PublishedRows&)> onRepaint;

  private:
    const bool keeps_;
};

/// A state with its loop, which keeps pictures or never does.
struct Side {
    explicit Side(bool keeps) : view(keeps) {
        info->pInterface = &view;
        shrinkPreview();
    }

    void pass() {
        view.parts = 0;
        info->randomSeeds.startAt(5);
        info->StartUpdate();
        loop.runUntilIdle();
    }
    bool keyed() const { return view.parts > 0; }

    // The loop's own has 300,000 pixels whatever the output, too many for thousands of passes.
    void shrinkPreview() {
        info->iOutputPixelLowResWidth = 47;
        info->iOutputPixelLowResHeight = 33;
        info->iOutputImageLowResDPI = 115;
        info->hairDetectPixels = PixelBuffer(47, 33);
        info->pHairDetectBitmap = info->hairDetectPixels.data();
        for (BitmapInfo* record : {info->pForegroundBitmapInfo.get(), info->pBackgroundBitmapInfo.get(),
                                   info->pCombinedBitmapInfo.get()}) {
            record->allocateBuffers(kWidth, kHeight, 47, 33);
        }
    }

    View view;
    std::unique_ptr<SystemInfo> info = test::stateForOutput(kWidth, kHeight, 150);
    CombineThread loop{*info};
};

using Bytes = std::vector<std::uint8_t>;

Bytes bytesOf(const SystemInfo& info, const BitmapInfo& record) {
    const PassGeometry low = info.geometry(Resolution::preview), full = info.geometry(Resolution::full);
    Bytes bytes(record.pBitmapData, record.pBitmapData + pixelBytes(full.width, full.height));
    bytes.insert(bytes.end(), record.pBitmapDataLowRes, record.pBitmapDataLowRes + pixelBytes(low.width, low.height));
    return bytes;
}

class KeyedPictureTest : public testing::Test {
  protected:
    void SetUp() override {
        change([this](SystemInfo& info) {
            info.pForegroundBitmapInfo->sSourceImageFullPath = foreground_;
            info.pBackgroundBitmapInfo->sSourceImageFullPath = background_;
        });
    }

    template <class Change>
    void change(Change&& apply) {
        for (Side* side : {&reusing_, &whole_})
            apply(*side->info);
    }
    void set(const std::string& name, const std::string& value) {
        change([&](SystemInfo& info) { ASSERT_EQ(setField(info, name, value), "") << name; });
    }
    void setAll(const std::vector<std::pair<std::string, std::string>>& values) {
        for (const auto& [name, value] : values)
            set(name, value);
    }

    /// A pass on both sides; everything that a pass writes must be equal.
    void passAndCompare(const std::string& what) {
        reusing_.pass();
        whole_.pass();
        const SystemInfo &a = *reusing_.info, &b = *whole_.info;
        ASSERT_TRUE(whole_.keyed()) << what;
        EXPECT_TRUE(bytesOf(a, *a.pCombinedBitmapInfo) == bytesOf(b, *b.pCombinedBitmapInfo)) << what;
        EXPECT_TRUE(bytesOf(a, *a.pForegroundBitmapInfo) == bytesOf(b, *b.pForegroundBitmapInfo)) << what;
        EXPECT_TRUE(bytesOf(a, *a.pBackgroundBitmapInfo) == bytesOf(b, *b.pBackgroundBitmapInfo)) << what;
        EXPECT_TRUE(keyFindings(a) == keyFindings(b)) << what;
        EXPECT_EQ(a.dFaceHue, b.dFaceHue) << what;
        EXPECT_EQ(a.dFaceColorMatrix, b.dFaceColorMatrix) << what;
        EXPECT_EQ(listFields(a), listFields(b)) << what;
        EXPECT_EQ(a.bShowLowRes, b.bShowLowRes) << what;
        EXPECT_EQ(a.pCombinedBitmapInfo->bHaveBaseGreen, b.pCombinedBitmapInfo->bHaveBaseGreen) << what;
        EXPECT_EQ(reusing_.view.alerts, whole_.view.alerts) << what;
    }

    /// A person before a screen, more or less: skin, and beside it hair of a colour that is taken for skin unless the
    /// skin is measured.
    static QImage person(QColor screen) {
        QImage picture = test::discOnScreen(kWidth, kHeight, screen, QColor(215, 160, 130));
        for (int y = kHeight / 5; y < kHeight * 2 / 5; ++y) {
            for (int x = kWidth / 4; x < kWidth / 2; ++x)
                picture.setPixelColor(x, y, x < kWidth / 4 + 4 ? QColor(200, 180, 60) : QColor(170, 150, 50));
        }
        return picture;
    }

    /// Everything on that comes after the key, and a text on every level.
    std::vector<std::pair<std::string, std::string>> finishing() const {
        std::vector<std::pair<std::string, std::string>> values = {
            {"texture.bHaveTexture", "1"},
            {"texture.sTextureFileName", background_},
            {"iSmoothMode", "1"},
            {"iColorDelta", "60"},
            {"iNumberOfSamples", "60"},
            {"iRedRequired", "30"},
            {"iMakeup", "40"},
            {"iCartoonEffectType", "1"},
            {"dSliderForegroundBlur", "0.02"},
            {"iSliderForegroundThreshold", "90"},
            {"bHaveForegroundOverlay", "1"},
            {"sForegroundOverlay", overlay_},
            {"bHaveFrameOverlay", "1"},
            {"sFrameOverlay", "/nowhere/overlay.png"},
            {"frame.iFrameType", "1"},
            {"frame.iFrameMode", "3"},
            {"frame.texture.bHaveTexture", "1"},
            {"frame.texture.sTextureFileName", background_},
            {"frameOverlay.iFrameType", "2"},
            {"label0.sText", "Title"},
        };
        const char* const levels[] = {"Background", "Background Layer", "Foreground", "Foreground Layer",
                                      "Frame Layer"};
        for (int i = 0; i < 5; ++i) {
            const std::string item = "text" + std::to_string(i) + ".";
            values.insert(values.end(), {{item + "sText", i == 3 ? overlay_ : "Ag"},
                                         {item + "isImage", i == 3 ? "1" : "0"},
                                         {item + "imageSizeWidth", "20"},
                                         {item + "imageSizeHeight", "9"},
                                         {item + "iFontSize", "9"},
                                         {item + "xPos", "0.05"},
                                         {item + "yPos", "0.0" + std::to_string(i)},
                                         {item + "sLevel", levels[i]}});
        }
        return values;
    }

    void changeEachSetting();

    static QImage veil() {
        QImage picture(7, 5, QImage::Format_ARGB32);
        picture.fill(QColor(200, 40, 90, 60));
        return picture;
    }

    test::TempFolder folder_;
    const std::string foreground_ = test::savePng(person(QColor(40, 160, 60)), folder_.file("fg.png"));
    const std::string background_ = test::savePng(test::noisePicture(kWidth, kHeight, 9), folder_.file("bg.png"));
    const std::string overlay_ = test::savePng(veil(), folder_.file("overlay.png"));
    Side reusing_{true}, whole_{false};
};

/// A value that makes a difference where one can be seen.
std::string otherValue(const std::string& name, const std::string& value, const std::string& picture) {
    if (name.ends_with("sLevel")) return value == "Foreground" ? "Frame Layer" : "Foreground";
    if (name.ends_with("sLocation")) return "Bottom Left";
    const bool number = !value.empty() && value.find_first_not_of("-.0123456789") == std::string::npos;
    if (!number) return value == picture ? "/nowhere/else.png" : picture;
    if (value == "0") return "1";
    if (value == "1") return "0";
    return value.find('.') == std::string::npos ? std::to_string(std::stoi(value) + 11) : "0.37";
}

/// Fields of the buffers' own size are another matter.
bool isSize(const std::string& name) {
    return name.starts_with("iOutputPixel") || name.starts_with("iOutputImage");
}

bool isFinishing(const std::string& name) {
    const char* const starts[] = {
        "label",        "text",        "frame",       "iCartoon",         "iSliderCartoon",
        "bHaveF",       "sF",          "iMakeup",     "iGlobalSmoothing", "dSliderForegroundBlur",
        "iSliderForeg", "iSmooth",     "iColorDelta", "iNumberOfSamples", "iRedRequired",
        "bShowSkin",    "bSmoothBlend"};
    return std::ranges::any_of(starts, [&](const char* start) { return name.starts_with(start); });
}

// Whatever a single setting does, a pass that could take the keyed picture up again shows the same as one that could
// not, and what comes after the key never keys again.
void KeyedPictureTest::changeEachSetting() {
    for (int pass = 0; pass < 3; ++pass)
        passAndCompare("start");
    ASSERT_FALSE(reusing_.keyed());
    const auto fields = listFields(*whole_.info);
    for (std::size_t i = 0; i < fields.size(); i += test::kTimesFewer) {
        const auto& [name, value] = fields[i];
        if (isSize(name)) continue;
        for (const std::string& next : {otherValue(name, value, background_), value}) {
            set(name, next);
            passAndCompare(name + " = " + next);
            EXPECT_FALSE(isFinishing(name) && reusing_.keyed()) << name;
            passAndCompare(name + " = " + next + " again");
            if (HasFailure()) return;
        }
        // Let both settle, so that each setting is changed under a kept picture.
        for (int pass = 0; pass < 3 && reusing_.keyed(); ++pass)
            passAndCompare("after " + name);
        EXPECT_FALSE(reusing_.keyed()) << name;
    }
}

TEST_F(KeyedPictureTest, AnySettingWithHairLightAndStars) {
    setAll(finishing());
    setAll({{"bAdvancedHairDetectionON", "1"},
            {"iMacroHairColor", "6"},
            {"bShowGreenProtection", "0"},
            {"iLightingMode", "4"},
            {"bStarFilerTurnOn", "1"},
            {"iStarFilterBrightLightThreshold", "120"},
            {"iStarFilterMaxArea", "900"},
            {"iStarFilterWidth", "20"},
            {"iStarFilterSize", "60"},
            {"iStarFilterNumberOfPoints", "4"},
            {"foreground.bHaveColorChange", "1"},
            {"foreground.iBrightnessSharpen", "30"},
            {"background.bHaveColorChange", "1"},
            {"background.iBrightness", "20"}});
    changeEachSetting();
}

TEST_F(KeyedPictureTest, AnySettingWithTheRefinedKey) {
    setAll(
        {{"bRefineKey", "1"}, {"bHaveReflection", "1"}, {"iSliderReflectionScale", "100"}, {"iLightingMode", "4"}});
    changeEachSetting();
}

TEST_F(KeyedPictureTest, AnySettingWithReflectionGuardAndSilhouette) {
    setAll({{"bHaveReflection", "1"},
            {"iSliderReflectionScale", "100"},
            {"iGreenProtectMode", "1"},
            {"bShowGreenProtection", "0"},
            {"background.bHaveColorChange", "1"},
            {"background.iBrightnessSharpen", "40"},
            {"bOutputSilhouette", "1"},
            {"iSilhouetteRed", "90"},
            {"label0.sText", "Title"},
            {"text0.sText", "Ag"}});
    changeEachSetting();
}

TEST_F(KeyedPictureTest, WhatTheLayersGoThroughIsKeyedAgain) {
    setAll(finishing());
    passAndCompare("start");
    passAndCompare("nothing");
    EXPECT_FALSE(reusing_.keyed());
    const std::string other = test::savePng(test::noisePicture(kWidth, kHeight, 3), folder_.file("other.png"));
    const std::pair<const char*, std::function<void(SystemInfo&)>> changes[] = {
        {"foreground moved",
         [](SystemInfo& info) {
             info.pForegroundBitmapInfo->iOrgXoff = 120;
             info.pForegroundBitmapInfo->bScaleChange = true;
         }},
        {"file written anew, scaled", [](SystemInfo& info) { info.pForegroundBitmapInfo->bScaleChange = true; }},
        {"other background",
         [&](SystemInfo& info) {
             info.pBackgroundBitmapInfo->sSourceImageFullPath = other;
             info.pBackgroundBitmapInfo->bOrgFileChange = true;
         }},
        {"text on the background",
         [](SystemInfo& info) {
             info.oFontObject[0].sText = "Wg";
             info.pBackgroundBitmapInfo->bScaleChange = true;
         }},
        {"screen measured again", [](SystemInfo& info) { info.pCombinedBitmapInfo->bHaveBaseGreen = false; }},
        {"screen's colour picked", [](SystemInfo& info) { info.baseGreen = 120.0; }},
        {"frozen", [](SystemInfo& info) { FreezeToBackground(info); }},
        {"thawed",
         [](SystemInfo& info) {
             info.bBackgroundFrozen = false;
             info.pForegroundBitmapInfo->bScaleChange = info.pBackgroundBitmapInfo->bScaleChange = true;
         }},
        {"another size", [](SystemInfo& info) { chooseOwnSize(info, "other", 0.5, 0.4, 150); }},
    };
    for (const auto& [what, apply] : changes) {
        change(apply);
        passAndCompare(what);
        EXPECT_TRUE(reusing_.keyed()) << what;
        set("label0.sText", what);
        passAndCompare(std::string(what) + ", then a title");
        EXPECT_FALSE(reusing_.keyed()) << what;
    }
}

// Hair is looked for before the screen is measured, so the pass after that looks again, with the new colour.
TEST_F(KeyedPictureTest, WithANewScreenColourHairIsLookedForTwice) {
    setAll({{"bAdvancedHairDetectionON", "1"}, {"iMacroHairColor", "6"}, {"bComputeSkinColor", "1"}});
    passAndCompare("start");
    change([](SystemInfo& info) {
        info.baseRed = 185.0;
        info.baseGreen = 165.0;
        info.baseBlue = 55.0;
        info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    });
    passAndCompare("hair that looks like the screen");
    const auto reds = whole_.info->iHairColorBinRed;
    passAndCompare("after the measurement");
    EXPECT_NE(whole_.info->iHairColorBinRed, reds) << "the case does not arise";
    passAndCompare("settled");
    passAndCompare("kept");
    EXPECT_FALSE(reusing_.keyed());
}

TEST_F(KeyedPictureTest, AJobMayChangeTheBuffersThemselves) {
    passAndCompare("start");
    for (Side* side : {&reusing_, &whole_}) {
        side->loop.post([info = side->info.get()] {
            std::fill_n(info->pForegroundBitmapInfo->pBitmapData, pixelBytes(kWidth, kHeight), std::uint8_t{99});
        });
    }
    passAndCompare("painted");
    EXPECT_TRUE(reusing_.keyed());
}

// Files and random numbers differ from pass to pass without any setting.
TEST_F(KeyedPictureTest, WhatIsNewInEveryPassIsNeverKept) {
    const std::string silhouette = test::savePng(veil(), folder_.file("silhouette.png"));
    setAll({{"bOutputSilhouette", "1"}, {"sSilhouetteFileName", silhouette}});
    for (int i = 0; i < 3; ++i) {
        test::savePng(test::noisePicture(9, 9, 20 + i), silhouette);
        passAndCompare("silhouette");
        EXPECT_TRUE(reusing_.keyed());
    }
    setAll({{"bOutputSilhouette", "0"},
            {"bHaveReflection", "1"},
            {"reflectionTexture.bHaveTexture", "1"},
            {"reflectionTexture.sTextureFileName", background_},
            {"reflectionTexture.iTextureOffsetPercent", "900"}});
    for (int i = 0; i < 3; ++i) {
        passAndCompare("reflection");
        EXPECT_TRUE(reusing_.keyed());
    }
}

// A full key that was given up has left another alpha in part of the background; going back to the settings of the
// kept picture must not take it for good.
TEST_F(KeyedPictureTest, AKeyThatWasGivenUpIsNotTakenUp) {
    passAndCompare("start");
    passAndCompare("nothing");
    EXPECT_FALSE(reusing_.keyed());
    for (const int last : {1, 4, 8}) {
        int seen = 0;
        reusing_.view.onRepaint = [&](const PublishedRows& rows) {
            if (rows.isPreview() || rows.rowCount == rows.height || ++seen != last) return;
            reusing_.info->pCombinedBitmapInfo->sliderTransparentcyAdjustment = 100;
            reusing_.info->StartUpdate();
        };
        reusing_.info->pCombinedBitmapInfo->sliderTransparentcyAdjustment = 160;
        reusing_.info->StartUpdate();
        reusing_.loop.runUntilIdle();
        EXPECT_GT(seen, last);
        reusing_.view.onRepaint = nullptr;
        set("label0.sText", std::to_string(last));
        passAndCompare("given up");
        EXPECT_FALSE(reusing_.keyed());
    }
}

// The hand never rests: each move gets its preview, and the next one starts at once.
TEST_F(KeyedPictureTest, EveryMoveOfAHeldSliderGetsAPreview) {
    passAndCompare("start");
    int previews = 0, shown = 0, moves = 0;
    Field<std::int32_t>& slider = reusing_.info->pForegroundBitmapInfo->iBrightness;
    reusing_.view.onRepaint = [&](const PublishedRows& rows) {
        ASSERT_TRUE(rows.isPreview()) << "a full picture that was no longer wanted";
        ++previews;
        shown = slider;
        if (moves == 20) return reusing_.view.onRepaint = nullptr, void();
        slider = ++moves;
        reusing_.info->StartUpdate();
    };
    reusing_.info->StartUpdate();
    int turns = 0;
    for (; previews < 21 && turns < 200; ++turns)
        reusing_.loop.iterate();
    EXPECT_EQ(shown, 20);
    EXPECT_LE(turns, 42);  // a turn for the pass, one to count up
    reusing_.loop.runUntilIdle();
    whole_.info->pForegroundBitmapInfo->iBrightness = 20;
    passAndCompare("after the last move");
}

}  // namespace
}  // namespace tavrin

// A state file is not range-checked, so every stage has to bear every value of every field.
#include <gtest/gtest.h>
#include <random>

#include "core/state/SettingNames.h"
#include "formats/ImageState.h"
#include "pipeline/CombineThread.h"
#include "session/States.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

// Fields that name a file or the buffers' own size are another matter: they are tested where they are used.
bool isLeftAlone(const std::string& name) {
    return name.find("sSourceImageFullPath") != std::string::npos || name.rfind("iOutput", 0) == 0 ||
           name.find("ImageSize") != std::string::npos || name.find("OutputImage") != std::string::npos;
}

constexpr int kRounds = test::kSanitized ? 6 : 30;

class WildSettingsTest : public testing::Test {
  protected:
    std::unique_ptr<SystemInfo> freshState() const {
        auto info = test::stateForOutput(61, 43);
        info->pForegroundBitmapInfo->sSourceImageFullPath = foreground_;
        info->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
        info->bAdvancedHairDetectionON = true;
        info->iMacroHairColor = 6;
        info->oFontLabelObject[0].sText = "Title";
        info->oFontObject.resize(2);
        info->oFontObject[0].sText = "Text <<date>>";
        info->oFontObject[1].sText = background_;
        info->oFontObject[1].isImage = true;
        info->oFontObject[1].imageSizeWidth = info->oFontObject[1].imageSizeHeight = 20.0;
        info->sFrameOverlay = overlay_;
        info->bHaveFrameOverlay = true;
        return info;
    }

    test::TempFolder folder_;
    const std::string foreground_ = test::savePng(test::discOnScreen(50, 70), folder_.file("fg.png"));
    const std::string background_ = test::savePng(test::noisePicture(61, 43, 9), folder_.file("bg.png"));
    const std::string overlay_ = test::savePng(QImage(7, 5, QImage::Format_ARGB32), folder_.file("overlay.png"));
};

TEST_F(WildSettingsTest, AWholePassBearsExtremeValuesOfManyFieldsAtOnce) {
    const char* const values[] = {"-2147483648", "2147483647", "0", "1", "2", "-1", "100", "1000", "-1e300", "1e300"};
    std::mt19937 random(11);
    const auto names = listFields(*freshState());
    for (int round = 0; round < kRounds; ++round) {
        const auto info = freshState();
        // From a few fields at once, so that the others let their stages run, to nearly all.
        const auto share = 1 + random() % (round % 3 == 0 ? 2 : 40);
        for (const auto& [name, value] : names) {
            if (random() % share == 0 && !isLeftAlone(name))
                setField(*info, name, values[random() % std::size(values)]);
        }
        CombineThread(*info).runUntilIdle();
    }
}

TEST_F(WildSettingsTest, AStateThatLiesAboutItsSizesLeavesTheBuffersTheirs) {
    const auto info = freshState();
    CombineThread loop(*info);
    loop.runUntilIdle();
    const auto liar = freshState();
    for (const char* name : {"iOutputPixelWidth", "iOutputPixelHeight", "iOutputPixelLowResWidth",
                             "iOutputPixelLowResHeight", "foreground.iOrgWidth", "background.iOrgHeight"}) {
        ASSERT_EQ(setField(*liar, name, "100000"), "");
    }
    for (const char* size : {"test", "none of the list"}) {
        liar->sImageSizeName = size;
        liar->iSelecteImageSize = 77;
        ASSERT_EQ(saveImageStateToXML(*liar, folder_.file("liar.qlx")), "");
        std::string problem = "not run";
        loop.post([&] { problem = openState(*info, folder_.file("liar.qlx")); });
        loop.runUntilIdle();
        EXPECT_EQ(problem, "");
        EXPECT_EQ(info->iOutputPixelWidth, 61);
        EXPECT_EQ(info->pForegroundBitmapInfo->iOrgWidth, 50);
    }
}

}  // namespace
}  // namespace tavrin

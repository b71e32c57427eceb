#include <gtest/gtest.h>

#include "pipeline/CombineThread.h"
#include "session/Freeze.h"
#include "session/SettingChanges.h"
#include "session/Sources.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using Bytes = std::vector<std::uint8_t>;

class FreezeTest : public testing::Test {
  protected:
    FreezeTest() {
        setForeground(*info_, test::savePng(test::discOnScreen(60, 40), folder_.file("fg.png")));
        setBackground(*info_, test::savePng(test::noisePicture(60, 40, 4), folder_.file("bg.png")));
    }
    void set(const std::string& name, const std::string& value) { ASSERT_EQ(changeSetting(*info_, name, value), ""); }
    /// The colours of the picture after a pass.
    Bytes pass() {
        info_->StartUpdate();
        loop_.runUntilIdle();
        Bytes colours;
        const ConstPixelView picture = info_->pixels(*info_->pCombinedBitmapInfo, Resolution::full);
        for (std::size_t i = 0; i < pixelBytes(picture.width, picture.height); ++i) {
            if (i % kPixelBytes != 3) colours.push_back(picture.bytes[i]);
        }
        return colours;
    }
    std::string freeze() {
        std::string problem;
        loop_.edit([&]() -> std::vector<ChangedRows> {
            problem = freezeBackground(*info_);
            return {};
        });
        loop_.iterate();
        return problem;
    }

    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(60, 40, 40);
    CombineThread loop_{*info_};
};

TEST_F(FreezeTest, TheFrozenPictureStaysAsItIsAndIsNotBakedTwice) {
    set("background.iBrightness", "40");
    set("texture.bHaveTexture", "1");
    set("frame.iFrameType", "1");
    set("iLightingMode", "1");
    set("iHaveShadow", "2");
    const Bytes before = pass();
    ASSERT_EQ(freeze(), "");
    EXPECT_EQ(pass(), before);
    EXPECT_EQ(pass(), before);
    set("foreground.iOrgXoff", "100");
    EXPECT_NE(pass(), before) << "a portrait that is drawn again stands before it";
}

TEST_F(FreezeTest, ClearedTheLayersAreWhatTheirFilesAreAndNoShadowIsLeft) {
    const Bytes before = pass();
    ASSERT_EQ(freeze(), "");
    pass();
    clearFreeze(*info_);
    EXPECT_EQ(pass(), before);
    EXPECT_EQ(info_->iHaveShadow, 1);
}

TEST_F(FreezeTest, APictureThatIsNotFinishedIsNotFrozen) {
    set("iLightingMode", "1");
    EXPECT_NE(freezeBackground(*info_), "");
    EXPECT_FALSE(info_->bBackgroundFrozen);
    EXPECT_EQ(info_->iLightingMode, 1);
}

}  // namespace
}  // namespace tavrin

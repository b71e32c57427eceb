#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "core/state/SettingNames.h"
#include "core/state/SystemInfo.h"

namespace tavrin {
namespace {

using testing::HasSubstr;

TEST(SettingNames, ReachEveryObjectAndTheFieldsThatNoFileHolds) {
    SystemInfo info;
    info.oFontObject.resize(2);
    EXPECT_EQ(setField(info, "iBlendEdges", "35"), "");
    EXPECT_EQ(setField(info, "bUseAdaptiveBackgroundGreen", "off"), "");
    EXPECT_EQ(setField(info, "background.fTilt", "-2.5"), "");
    EXPECT_EQ(setField(info, "combined.sliderWhiteAdjust", "+7"), "");
    EXPECT_EQ(setField(info, "label1.sText", "two\nlines"), "");
    EXPECT_EQ(setField(info, "text1.lFontColor", "-9223372036854775808"), "");
    EXPECT_EQ(setField(info, "frameOverlay.iFrameThickness", "3"), "");
    EXPECT_EQ(setField(info, "frame.texture.bWhite", "YES"), "");
    EXPECT_EQ(setField(info, "reflectionTexture.iTextureType", "4"), "");
    EXPECT_EQ(info.iBlendEdges, 35);
    EXPECT_FALSE(info.bUseAdaptiveBackgroundGreen);
    EXPECT_EQ(info.pBackgroundBitmapInfo->fTilt, -2.5);
    EXPECT_EQ(info.pCombinedBitmapInfo->sliderWhiteAdjust, 7);
    EXPECT_EQ(info.oFontLabelObject[1].sText.load(), "two\nlines");
    EXPECT_EQ(info.oFontObject[1].lFontColor, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(info.oFrameOverlay->iFrameThickness, 3);
    EXPECT_TRUE(info.oFrame->oTexture.bWhite);
    EXPECT_EQ(info.oReflectionTexture->iTextureType, 4);
    EXPECT_FALSE(info.oImageTexture->bWhite);
}

TEST(SettingNames, WhatDoesNotFitIsRefusedInOneLineAndChangesNothing) {
    SystemInfo info;
    for (const char* wrong : {"", "abc", "12x", "1.5", "2147483648", " 1", "++1"}) {
        const std::string line = setField(info, "iBlendEdges", wrong);
        EXPECT_THAT(line, HasSubstr("iBlendEdges takes a whole number from -2147483648 to 2147483647")) << wrong;
        EXPECT_EQ(line.find('\n'), std::string::npos);
    }
    for (const char* wrong : {"", "nan", "inf", "1,5", "1e999"})
        EXPECT_THAT(setField(info, "foreground.fScale", wrong), HasSubstr("foreground.fScale takes a number"))
            << wrong;
    for (const char* wrong : {"", "2", "maybe"})
        EXPECT_THAT(setField(info, "bEZCombine", wrong), HasSubstr("bEZCombine takes 0 or 1")) << wrong;
    EXPECT_EQ(info.iBlendEdges, 20);
    EXPECT_EQ(info.pForegroundBitmapInfo->fScale, 1.0);
    EXPECT_TRUE(info.bEZCombine);
}

TEST(SettingNames, WrongNameSuggestsTheNearest) {
    SystemInfo info;
    EXPECT_THAT(setField(info, "iBlendEdge", "1"), HasSubstr("did you mean iBlendEdges?"));
    EXPECT_THAT(setField(info, "ishadowMode", "1"), HasSubstr("did you mean iShadowMode?"));
    EXPECT_THAT(setField(info, "iContrast", "1"), HasSubstr("did you mean foreground.iContrast?"));
    EXPECT_THAT(setField(info, "background.Brightness", "1"), HasSubstr("did you mean background.iBrightness?"));
    EXPECT_THAT(setField(info, "text1.sText", "x"), HasSubstr("There is no field text1.sText"));
    EXPECT_NE(setField(info, std::string(100'000, 'x'), "1"), "");
}

TEST(SettingNames, TheNextItemOfTheListIsAddedByNamingIt) {
    SystemInfo info;
    EXPECT_NE(setField(info, "text0.noSuch", "1"), "");
    EXPECT_NE(setField(info, "text0.iFontSize", "big"), "");
    EXPECT_EQ(info.iFontObjectCount(), 0) << "what cannot be set adds nothing";
    EXPECT_EQ(setField(info, "text0.sText", "one"), "");
    EXPECT_EQ(setField(info, "text0.iFontSize", "12"), "");
    EXPECT_EQ(setField(info, "text1.sText", "two"), "");
    EXPECT_NE(setField(info, "text3.sText", "four"), "") << "there is no third";
    ASSERT_EQ(info.iFontObjectCount(), 2);
    EXPECT_EQ(info.oFontObject[0].iFontSize, 12);
    info.oFontObject.resize(TextState::kMaxFontObjects);
    EXPECT_NE(setField(info, "text200.sText", "one too many"), "");
}

TEST(SettingNames, ListHoldsEveryNameOnceAndItsValuesCanBeSetAgain) {
    SystemInfo from, to;
    from.oFontObject.resize(1);
    to.oFontObject.resize(1);
    from.pForegroundBitmapInfo->fTilt = 0.1 + 0.2;
    from.oFontObject[0].sText = "a~b";
    from.bShowOrgImage = true;
    std::set<std::string> names;
    for (const auto& [name, value] : listFields(from)) {
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(setField(to, name, value), "") << name;
    }
    EXPECT_EQ(listFields(from), listFields(to));
    EXPECT_EQ(to.pForegroundBitmapInfo->fTilt, 0.1 + 0.2);
}

}  // namespace
}  // namespace tavrin

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "core/Places.h"
#include "formats/ImageState.h"
#include "formats/SettingsFile.h"
#include "pipeline/StartUp.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class StartUpTest : public testing::Test {
  protected:
    StartUpTest() : shared_(places_.sharedFolder()), pictures_(places_.picturesFolder()) {
        places_.setSharedFolder(folder_.file("shared"));
        places_.setPicturesFolder(folder_.file("pictures"));
    }
    ~StartUpTest() override {
        places_.setSharedFolder(shared_);
        places_.setPicturesFolder(pictures_);
    }

    test::TempFolder folder_;
    Places& places_ = Places::current();
    const std::string shared_, pictures_;
};

TEST_F(StartUpTest, AFreshAccountComesUpReadyToWork) {
    SystemInfo info;
    startSystem(info);
    EXPECT_EQ(info.iOutputPixelWidth, 1000);
    EXPECT_EQ(info.iOutputPixelHeight, 1400);
    EXPECT_NE(info.pCombinedBitmapInfo->pBitmapData, nullptr);
    EXPECT_TRUE(fs::exists(info.pForegroundBitmapInfo->sSourceImageFullPath.load()));
    EXPECT_TRUE(fs::exists(info.pBackgroundBitmapInfo->sSourceImageFullPath.load()));
    EXPECT_FALSE(info.bShowGreenProtection);  // the shipped state's, not the default
    for (const LoadedPicture* picture :
         {&info.TextEditIcon, &info.TextDeleteIcon, &info.PencilCross2, &info.PencilCross, &info.LightParchment}) {
        ASSERT_NE(picture->rawData, nullptr);
        EXPECT_EQ(picture->stride, picture->iWidth * 4);
    }
    EXPECT_EQ(info.iTextIconWidth, 64);
}

TEST_F(StartUpTest, TheDefaultStateRulesButForLabelTwoAndTheSources) {
    SystemInfo wanted;
    startSystem(wanted);
    wanted.iBlendEdges = 77;
    wanted.oFontLabelObject[2].xPos = 0.9;
    wanted.pForegroundBitmapInfo->sSourceImageFullPath = "/from/the/state.jpg";
    ASSERT_EQ(saveImageStateToXML(wanted, folder_.file("mine.qlx")), "");
    QLXInfo settings;
    settings.sDefaultQLXFilePath = folder_.file("mine.qlx");
    settings.sStartupFileForegroundPath = "~/portrait.jpg";
    ASSERT_EQ(SaveQLXFile(settings), "");

    SystemInfo info;
    startSystem(info);
    EXPECT_EQ(info.iBlendEdges, 77);
    EXPECT_EQ(info.oFontLabelObject[2].sLocation.load(), "ABSOLUTE");
    EXPECT_EQ(info.oFontLabelObject[2].xPos, 0.1);
    EXPECT_EQ(info.oFontLabelObject[2].yPos, 0.2);
    const std::string portrait = info.pForegroundBitmapInfo->sSourceImageFullPath;
    EXPECT_EQ(portrait.find('~'), std::string::npos);
    EXPECT_TRUE(portrait.ends_with("/portrait.jpg"));
    EXPECT_EQ(info.pBackgroundBitmapInfo->sSourceImageFullPath.load(), "");

    fs::remove(folder_.file("mine.qlx"));
    SystemInfo without;
    startSystem(without);
    EXPECT_EQ(without.iBlendEdges, 20);
    EXPECT_EQ(without.oFontLabelObject[2].xPos, 0.1);
}

TEST_F(StartUpTest, TheCommandLineLeavesTheAccountAlone) {
    SystemInfo info;
    startCommandLine(info);
    EXPECT_GT(info.iImageSizeCount(), 40);
    EXPECT_FALSE(fs::exists(folder_.file("shared")));
    EXPECT_FALSE(fs::exists(folder_.file("pictures")));
}

}  // namespace
}  // namespace tavrin

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/files/Places.h"
#include "formats/ImageState.h"
#include "formats/Installation.h"
#include "formats/Lists.h"
#include "formats/SettingsFile.h"
#include "session/StartUp.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using testing::AllOf;
using testing::HasSubstr;

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

TEST_F(StartUpTest, WhatIsDamagedIsToldOnceAndTheShippedTakesItsPlace) {
    {
        SystemInfo fresh;
        EXPECT_EQ(startSystem(fresh), "");
    }
    const std::string files[] = {places_.imageSizeFile(), places_.printerFile(), places_.settingsFile()};
    for (const std::string& file : files)
        test::writeFile(file, "<Damaged>");
    SystemInfo info;
    const std::string problems = startSystem(info);
    for (const std::string& file : files) {
        EXPECT_THAT(problems, HasSubstr(file + ": no XML"));
        EXPECT_THAT(problems, HasSubstr("as " + fs::path(file).filename().string() + ".damaged"));
        EXPECT_EQ(test::readFile(file + ".damaged"), "<Damaged>");
    }
    EXPECT_EQ(info.iImageSizeCount(), 52);
    EXPECT_EQ(info.iOutputPixelWidth, 1000);
    EXPECT_TRUE(fs::exists(info.pForegroundBitmapInfo->sSourceImageFullPath.load()));
    SystemInfo again;
    EXPECT_EQ(startSystem(again), "");
    EXPECT_EQ(again.iImageSizeCount(), 52);
    EXPECT_TRUE(fs::exists(again.pForegroundBitmapInfo->sSourceImageFullPath.load()));
}

TEST_F(StartUpTest, ADamagedListIsToldOnceOnTheCommandLineToo) {
    fs::create_directories(places_.xmlFolder());
    test::writeFile(places_.imageSizeFile(), "<Damaged>");
    SystemInfo info;
    startCommandLine(info);
    EXPECT_FALSE(fs::exists(folder_.file("pictures"))) << "nothing else is put into the account";
    EXPECT_EQ(info.iImageSizeCount(), 52);
    EXPECT_EQ(test::readFile(places_.imageSizeFile() + ".damaged"), "<Damaged>");
    EXPECT_EQ(test::readFile(places_.imageSizeFile()), shippedFile("ImageSize.xml"));
}

TEST_F(StartUpTest, AStateThatCannotBeHadStartsWithTheShippedSize) {
    SystemInfo wanted;
    startSystem(wanted);
    wanted.iBlendEdges = 77;
    wanted.sImageSizeName = "nobody's";
    wanted.iSelecteImageSize = 99;
    wanted.dOutputImageWidthInInches = 0.0;
    ASSERT_EQ(saveImageStateToXML(wanted, places_.defaultStateFile()), "");
    SystemInfo info;
    const std::string problems = startSystem(info);
    EXPECT_THAT(problems, AllOf(HasSubstr(places_.defaultStateFile()), HasSubstr("nobody's"),
                                HasSubstr("\"5x7 200 Vert\" is used")));
    EXPECT_EQ(info.iBlendEdges, 77);
    EXPECT_EQ(info.iOutputPixelWidth, 1000);
    EXPECT_EQ(info.sImageSizeName.load(), "5x7 200 Vert");

    test::writeFile(places_.defaultStateFile(), "<ImageState>");
    SystemInfo damaged;
    EXPECT_THAT(startSystem(damaged), HasSubstr(places_.defaultStateFile() + ": no XML"));
    EXPECT_EQ(damaged.iOutputPixelWidth, 1000);
    EXPECT_TRUE(fs::exists(places_.defaultStateFile())) << "the user's own file stays where it is";
}

TEST_F(StartUpTest, AListWithoutTheUsualSizeStartsWithItsFirst) {
    ASSERT_EQ(installMissingFiles(), "");
    std::vector<ImageSize> sizes(2);
    sizes[0].sName = "no size at all";
    sizes[1].sName = "mine";
    sizes[1].dWidth = sizes[1].dHeight = 2.0;
    sizes[1].dotsPerInch = 50;
    ASSERT_EQ(saveImageSizes(sizes, places_.imageSizeFile()), "");
    fs::remove(places_.defaultStateFile());
    ASSERT_EQ(SaveQLXFile(QLXInfo()), "");
    SystemInfo info;
    startSystem(info);
    EXPECT_EQ(info.sImageSizeName.load(), "mine");
    EXPECT_EQ(info.iOutputPixelWidth, 100);
}

TEST_F(StartUpTest, AnAccountThatCannotBeWrittenToStillWorks) {
    test::writeFile(folder_.file("file"), "");
    places_.setSharedFolder(folder_.file("file/shared"));
    places_.setPicturesFolder(folder_.file("file/pictures"));
    SystemInfo info;
    const std::string problems = startSystem(info);
    EXPECT_THAT(problems, HasSubstr("The folder " + folder_.file("file/shared/QLXXML/") + " cannot be made: "));
    EXPECT_THAT(problems, AllOf(HasSubstr("is not a folder"), HasSubstr("temporary folder")));
    EXPECT_LT(std::count(problems.begin(), problems.end(), '\n'), 3);
    EXPECT_EQ(info.iImageSizeCount(), 52);
    EXPECT_TRUE(fs::exists(info.pForegroundBitmapInfo->sSourceImageFullPath.load()));
    EXPECT_NE(info.TextEditIcon.rawData, nullptr);
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

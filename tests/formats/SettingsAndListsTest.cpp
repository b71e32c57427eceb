#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include "formats/ImageState.h"
#include "formats/Installation.h"
#include "formats/Lists.h"
#include "formats/SettingsFile.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::readFile;
using test::replaced;
using test::writeFile;
using testing::AllOf;
using testing::HasSubstr;
namespace fs = std::filesystem;

unsigned modeOf(const std::string& file) {
    struct stat info {};
    return stat(file.c_str(), &info) == 0 ? info.st_mode & 0777U : 0U;
}

/// An account of its own, with nothing in it.
class AccountTest : public testing::Test {
  protected:
    AccountTest() {
        Places::current().setSharedFolder(folder.file("shared"));
        Places::current().setPicturesFolder(folder.file("Pictures"));
    }
    ~AccountTest() override {
        Places::current().setSharedFolder(Places().sharedFolder());
        Places::current().setPicturesFolder(Places().picturesFolder());
    }
    void install() { ASSERT_EQ(installMissingFiles(), ""); }

    test::TempFolder folder;
    SystemInfo info;
};

using SettingsFileTest = AccountTest;
using ListsTest = AccountTest;
using InstallationTest = AccountTest;

TEST_F(SettingsFileTest, FirstStartWritesTheDefaultsForTheOwnerOnly) {
    install();
    QLXInfo settings;
    settings.sPrefix = "left from before";
    settings.bLastBatchCheckForNewFiles = false;
    ASSERT_EQ(LoadQLXFile(settings), "");
    EXPECT_TRUE(settings.sPrefix.empty());
    EXPECT_TRUE(settings.bLastBatchCheckForNewFiles);
    const std::string file = Places::current().settingsFile();
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_THAT(readFile(file), HasSubstr("<QLXSettings>\n    <sForegroundPath></sForegroundPath>\n"));
    EXPECT_THAT(readFile(file), HasSubstr("<bLastBatchCheckForNewFiles>1</bLastBatchCheckForNewFiles>"));

    settings.sSMTPAccoutPassword = "pass#word";
    settings.sEventModeEmailBody = "Dear guest,\n\nhere you are.";
    settings.iLastBatchLastOutputStyle = -7;
    settings.bWatchPrintFolder = false;
    ASSERT_EQ(SaveQLXFile(settings), "");
    EXPECT_EQ(modeOf(file), 0600U);
    QLXInfo again;
    ASSERT_EQ(LoadQLXFile(again), "");
    for (const auto& leaf : QLXInfo::leaves())
        std::visit([&](auto member) { EXPECT_EQ((again.*member).load(), (settings.*member).load()) << leaf.key; },
                   leaf.member);
    EXPECT_TRUE(again.bWatchPrintFolder) << "not in the file";
}

TEST_F(SettingsFileTest, MissingKeysAreEmptyAndBadFilesChangeNothing) {
    install();
    const std::string file = Places::current().settingsFile();
    writeFile(file, "<QLXSettings><sPrefix>p</sPrefix></QLXSettings>");
    fs::permissions(file, fs::perms(0644));
    QLXInfo settings;
    ASSERT_EQ(LoadQLXFile(settings), "");
    EXPECT_EQ(settings.sPrefix.load(), "p");
    EXPECT_FALSE(settings.bLastBatchCheckForNewFiles) << "not its default";
    EXPECT_EQ(modeOf(file), 0600U) << "a file from elsewhere is closed to others";
    int number = 0;
    for (const char* bad : {"<QLXSettings>", "<Other/>",
                            "<QLXSettings><iLastBatchLastOutputStyle>9999999999</iLastBatchLastOutputStyle>"
                            "</QLXSettings>"}) {
        const std::string kept = file + ".damaged" + (++number > 1 ? "-" + std::to_string(number) : "");
        writeFile(file, bad);
        EXPECT_THAT(LoadQLXFile(settings),
                    AllOf(HasSubstr(file + ": "),
                          HasSubstr("it is kept in its folder as " + fs::path(kept).filename().string())));
        EXPECT_EQ(settings.sPrefix.load(), "p");
        EXPECT_FALSE(fs::exists(file));
        EXPECT_EQ(readFile(kept), bad);
        EXPECT_EQ(modeOf(kept), 0600U);
    }
    fs::create_directory(file);
    EXPECT_THAT(LoadQLXFile(settings), HasSubstr("is no file"));
    EXPECT_TRUE(fs::is_directory(file)) << "only what could be read is called damaged";
}

TEST_F(ListsTest, ShippedListsHoldWhatAStateExpects) {
    install();
    ASSERT_EQ(LoadImageSizesFromXML(info), "");
    ASSERT_EQ(LoadPrinterTemplatesFromXML(info), "");
    ASSERT_GE(info.iSelecteImageSize, 0);
    const ImageSize& size = info.oImageSize.at(static_cast<std::size_t>(info.iSelecteImageSize));
    EXPECT_EQ(size.sName.load(), "5x7 200 Vert");
    EXPECT_EQ(size.dWidth, 5.0);
    EXPECT_EQ(size.dHeight, 7.0);
    EXPECT_EQ(size.dotsPerInch, 200);
    EXPECT_EQ(info.oQLXInfo->sSelectedPrinterTemplate.load(), "5x7 Vert");
    EXPECT_GT(info.oQLXInfo->iSelectedPrinterTemplate, 0);
    for (const ImageSize& entry : info.oImageSize) {
        const bool hasPage = std::any_of(
            info.oPrinterPages.begin(), info.oPrinterPages.end(),
            [&](const PrinterPage& page) { return page.sPageTitle.load() == entry.sDefaultPrinterPage.load(); });
        EXPECT_TRUE(hasPage) << entry.sName.load();
        EXPECT_EQ(entry.dWidth < entry.dHeight, entry.sName.load().ends_with("Vert"));
    }
    for (const PrinterPage& page : info.oPrinterPages) {
        EXPECT_GT(page.iPrinterPageImageCount(), 0U);
        for (const PrinterPageImage& image : page.oPrinterPageImages) {
            EXPECT_TRUE(image.iX >= 0 && image.iY >= 0 && image.iX + image.iWidth <= page.iPageWidth &&
                        image.iY + image.iHeight <= page.iPageHeight)
                << page.sPageTitle.load();
        }
    }
}

TEST_F(ListsTest, UsersSizesStandFirstAndUsersPagesLast) {
    install();
    ASSERT_EQ(LoadImageSizesFromXML(info), "");
    ASSERT_EQ(LoadPrinterTemplatesFromXML(info), "");
    const std::int32_t sizes = info.iImageSizeCount(), pages = info.iPrinterPageCount();
    EXPECT_EQ(info.oImageSize[0].sName.load(), "Wallet 200 Vert");

    ImageSize mine;
    mine.bCustom = true;
    mine.sName = "5x7 200 Vert";
    info.oImageSize.push_back(mine);
    mine.sName = "mine";
    mine.sDefaultPrinterPage = "my page";
    info.oImageSize.push_back(mine);
    ASSERT_EQ(SaveCustomImageSizesFromXML(info), "");
    PrinterPage page;
    page.bCustom = true;
    page.sPageTitle = "my page";
    page.oPrinterPageImages.resize(30);
    page.oPrinterPageImages[29].iX = -5;
    info.oPrinterPages.push_back(page);
    page.sPageTitle = "empty";
    page.oPrinterPageImages.clear();
    info.oPrinterPages.push_back(page);
    ASSERT_EQ(SaveCustomPrinterTemplates(info), "");

    ASSERT_EQ(LoadImageSizesFromXML(info), "");
    ASSERT_EQ(info.iImageSizeCount(), sizes + 2);
    EXPECT_TRUE(info.oImageSize[0].bCustom && info.oImageSize[1].bCustom && !info.oImageSize[2].bCustom);
    EXPECT_GT(info.iSelecteImageSize, 2) << "of one name in both files the shipped one counts, which is read last";
    info.sImageSizeName = "mine";
    ASSERT_EQ(LoadImageSizesFromXML(info), "");
    EXPECT_EQ(info.iSelecteImageSize, 1);
    ASSERT_EQ(LoadPrinterTemplatesFromXML(info), "");
    ASSERT_EQ(info.iPrinterPageCount(), pages + 2);
    EXPECT_EQ(info.oQLXInfo->iSelectedPrinterTemplate, pages);
    EXPECT_EQ(info.oPrinterPages[static_cast<std::size_t>(pages)].oPrinterPageImages.at(29).iX, -5);
    EXPECT_EQ(info.oPrinterPages.back().iPrinterPageImageCount(), 0U);
    EXPECT_TRUE(info.oPrinterPages.back().bCustom);

    info.oImageSize.erase(info.oImageSize.begin(), info.oImageSize.begin() + 2);
    ASSERT_EQ(SaveCustomImageSizesFromXML(info), "");
    EXPECT_THAT(readFile(Places::current().customImageSizeFile()),
                HasSubstr("?>\n<ImageSizeList>\n</ImageSizeList>\n"));
}

TEST_F(ListsTest, EntriesTooManyAreNamedAndTheShippedOnesStay) {
    install();
    std::vector<ImageSize> sizes(50);
    for (std::size_t i = 0; i < sizes.size(); ++i)
        sizes[i].sName = "mine " + std::to_string(i);
    ASSERT_EQ(saveImageSizes(sizes, Places::current().customImageSizeFile()), "");
    const std::string problem = LoadImageSizesFromXML(info);
    EXPECT_THAT(problem, AllOf(HasSubstr(Places::current().customImageSizeFile()), HasSubstr("room for 48 of its 50"),
                               HasSubstr(R"("mine 48", "mine 49")")));
    EXPECT_EQ(problem.find('\n'), std::string::npos);
    ASSERT_EQ(info.iImageSizeCount(), 100);
    EXPECT_EQ(info.oImageSize[47].sName.load(), "mine 47");
    EXPECT_EQ(info.oImageSize[48].sName.load(), "Wallet 200 Vert");
    EXPECT_TRUE(std::any_of(info.oImageSize.begin(), info.oImageSize.end(),
                            [](const ImageSize& size) { return size.sName.load() == "5x7 200 Vert"; }));

    std::vector<PrinterPage> many(99);
    for (PrinterPage& page : many)
        page.sPageTitle = "mine";
    ASSERT_EQ(savePrinterPages(many, Places::current().customPrinterFile()), "");
    EXPECT_THAT(LoadPrinterTemplatesFromXML(info), AllOf(HasSubstr("left out: \"mine\""), HasSubstr("more")));
    EXPECT_EQ(info.iPrinterPageCount(), 100);
    fs::remove(Places::current().customPrinterFile());

    ASSERT_EQ(LoadPrinterTemplatesFromXML(info), "");
    const std::int32_t shipped = info.iPrinterPageCount();
    std::vector<PrinterPage> pages(2);
    pages[1].sPageTitle = "crowded";
    pages[1].oPrinterPageImages.resize(31);
    ASSERT_EQ(savePrinterPages(pages, Places::current().customPrinterFile()), "");
    EXPECT_THAT(LoadPrinterTemplatesFromXML(info), AllOf(HasSubstr("crowded"), HasSubstr("31")));
    EXPECT_EQ(info.iPrinterPageCount(), shipped);
}

TEST_F(ListsTest, WhatAListDidNotTakeIsStillThereAfterItWasSaved) {
    install();
    const std::string file = Places::current().customImageSizeFile();
    const auto keptFiles = [&] {
        std::vector<std::string> kept;
        for (const auto& entry : fs::directory_iterator(Places::current().xmlFolder()))
            if (entry.path().filename().string().starts_with("CustomImageSize.xml.")) kept.push_back(entry.path());
        return kept;
    };
    std::vector<ImageSize> sizes(50);
    for (std::size_t i = 0; i < sizes.size(); ++i)
        sizes[i].sName = "mine " + std::to_string(i);
    ASSERT_EQ(saveImageSizes(sizes, file), "");
    EXPECT_NE(LoadImageSizesFromXML(info), "");
    EXPECT_THAT(SaveCustomImageSizesFromXML(info), HasSubstr("no room for all of it"));
    ASSERT_EQ(keptFiles().size(), 1u);
    EXPECT_THAT(readFile(keptFiles()[0]), HasSubstr("mine 49"));
    EXPECT_EQ(readFile(file).find("mine 49"), std::string::npos);
    EXPECT_EQ(SaveCustomImageSizesFromXML(info), "") << "now the file and the list agree";

    writeFile(file, "<ImageSizeList><ImageSize>");
    EXPECT_NE(LoadImageSizesFromXML(info), "");
    EXPECT_THAT(SaveCustomImageSizesFromXML(info), HasSubstr("is kept as"));
    EXPECT_EQ(keptFiles().size(), 2u);
}

TEST_F(ListsTest, WithoutFilesTheListsAreEmpty) {
    EXPECT_THAT(LoadImageSizesFromXML(info), HasSubstr("ImageSize.xml"));
    EXPECT_EQ(LoadPrinterTemplatesFromXML(info), "") << "page files may be missing";
    EXPECT_EQ(info.iImageSizeCount(), 0);
    EXPECT_EQ(info.iSelecteImageSize, -1);
    EXPECT_EQ(info.oQLXInfo->iSelectedPrinterTemplate, 0);
}

TEST_F(ListsTest, ADamagedShippedListIsSetAsideForAWholeOne) {
    install();
    const std::string file = Places::current().imageSizeFile();
    for (const char* bad : {"", "<ImageSizeList><ImageSize>", "<AllPages/>"}) {
        writeFile(file, bad);
        EXPECT_THAT(LoadImageSizesFromXML(info, shippedFile("ImageSize.xml")), HasSubstr("ImageSize.xml.damaged"));
        EXPECT_EQ(info.iImageSizeCount(), 52);
        EXPECT_FALSE(fs::exists(file));
    }
    EXPECT_EQ(readFile(file + ".damaged-2"), "<ImageSizeList><ImageSize>");
    EXPECT_EQ(LoadImageSizesFromXML(info, shippedFile("ImageSize.xml")), "") << "told once";
    EXPECT_EQ(info.iImageSizeCount(), 52);
    writeFile(Places::current().customImageSizeFile(), "my sizes, with a slip");
    EXPECT_NE(LoadImageSizesFromXML(info, shippedFile("ImageSize.xml")), "");
    EXPECT_TRUE(fs::exists(Places::current().customImageSizeFile())) << "nothing takes its place";
}

TEST_F(InstallationTest, FillsInWhatIsMissingAndNothingElse) {
    const Places& places = Places::current();
    std::vector<std::thread> programs;
    for (int i = 0; i < 3; ++i)
        programs.emplace_back([] { EXPECT_EQ(installMissingFiles(), ""); });
    for (std::thread& program : programs)
        program.join();
    EXPECT_TRUE(fs::is_directory(places.tempFilesFolder()));
    EXPECT_TRUE(fs::is_directory(places.picturesFolder()));
    for (const std::string& file :
         {places.imageSizeFile(), places.printerFile(), places.defaultStateFile(), places.settingsFile(),
          places.samplePortraitsFolder() + "portrait.jpg", places.textIconsFolder() + "Edit.png",
          places.sketchFolder() + "PencilDense.jpg", places.frameFolder() + "Walnut.jpg"})
        EXPECT_TRUE(fs::exists(file)) << file;
    QLXInfo settings;
    EXPECT_EQ(LoadQLXFile(settings), "");
    EXPECT_EQ(settings.sStartupFileForegroundPath.load(), places.samplePortraitsFolder() + "portrait.jpg");
    EXPECT_EQ(LoadImageStateFromXML(info, settings.sDefaultQLXFilePath, kLoadAll), "");

    writeFile(places.imageSizeFile(), "the user's own");
    fs::rename(places.printerFile(), places.printerFile() + ".set-aside");
    ASSERT_EQ(installMissingFiles(), "");
    EXPECT_EQ(readFile(places.imageSizeFile()), "the user's own");
    EXPECT_FALSE(fs::exists(places.printerFile())) << "one that a save set aside comes back when it is read";
    EXPECT_EQ(LoadPrinterTemplatesFromXML(info), "");
    EXPECT_GT(info.iPrinterPageCount(), 0);

    writeFile(folder.file("file"), "");
    Places::current().setSharedFolder(folder.file("file/shared"));
    EXPECT_THAT(installMissingFiles(), HasSubstr("cannot be made"));
}

TEST_F(InstallationTest, PrivateTemporaryFolderGoesWithItsOwner) {
    std::string mine;
    {
        Places places;
        const std::string shared = places.tempFilesFolder();
        ASSERT_EQ(places.usePrivateTempFiles(), "");
        mine = places.tempFilesFolder();
        EXPECT_NE(mine, shared);
        writeFile(mine + "x", "x");
        EXPECT_EQ(modeOf(mine), 0700U);
    }
    EXPECT_FALSE(fs::exists(mine));
}

TEST_F(InstallationTest, WithoutRoomForTemporaryFilesTheReasonIsToldAndTheSharedFolderStays) {
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc/nowhere");
    Places places;
    const std::string shared = places.tempFilesFolder();
    EXPECT_THAT(places.usePrivateTempFiles(), HasSubstr("TMPDIR"));
    EXPECT_EQ(places.tempFilesFolder(), shared);
    qputenv("TMPDIR", before);
}

}  // namespace
}  // namespace tavrin

// Output sizes and print pages of the user's own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/files/Places.h"
#include "formats/Installation.h"
#include "formats/Lists.h"
#include "session/OutputSizes.h"
#include "session/OwnSizes.h"
#include "session/PrintPages.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using testing::HasSubstr;

class OwnListsTest : public testing::Test {
  protected:
    OwnListsTest() {
        Places::current().setSharedFolder(folder_.file("shared/"));
        EXPECT_EQ(installMissingFiles(), "");
    }
    ~OwnListsTest() override { Places::current().setSharedFolder(shared_); }
    const ImageSize& size(std::size_t i) { return info_->oImageSize.at(i); }
    const PrinterPage& page(std::size_t i) { return info_->oPrinterPages.at(i); }
    std::string kept(const std::string& file) { return test::readFile(file); }

    const std::string shared_ = Places::current().sharedFolder();
    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(60, 40, 40);
};

TEST_F(OwnListsTest, AnEntryIsNamedByWhatWasTyped) {
    EXPECT_EQ(imageSizeName({"5", "7", false, 300, ""}), "5x7 300 Vert **");
    EXPECT_EQ(imageSizeName({"7", "5", false, 300, ""}), "7x5 300 Horz **");
    EXPECT_EQ(imageSizeName({"5", "5", false, 300, ""}), "5x5 300 Horz **") << "only what is higher stands";
    EXPECT_EQ(imageSizeName({"10", "15.5", true, 240, ""}), "10x15.5 240 Vert CM **");
    EXPECT_EQ(typedNumber("2,5 cm"), 2.5);
    EXPECT_EQ(typedNumber("wide"), 0.0);
}

TEST_F(OwnListsTest, ANewSizeComesToTheEndWithAPageThatItFills) {
    const SizeEntry wide{"15", "10", true, 100, kDefaultTemplate};
    ASSERT_EQ(whyNoImageSize(*info_, -1, wide), "");
    ASSERT_EQ(putImageSize(*info_, -1, wide), "");
    ASSERT_EQ(info_->iImageSizeCount(), 2);
    EXPECT_EQ(info_->iSelecteImageSize, 0);
    EXPECT_EQ(size(1).sName.load(), "15x10 100 Horz CM **");
    EXPECT_TRUE(size(1).bCustom && size(1).bCentimeters);
    EXPECT_EQ(size(1).dWidth, 15 / 2.54);
    EXPECT_EQ(size(1).sCMWidth.load(), "15");
    EXPECT_EQ(size(1).sInchWidth.load(), "");
    EXPECT_EQ(size(1).sDefaultPrinterPage.load(), "One 15x10 100 Horz CM **");
    ASSERT_EQ(info_->iPrinterPageCount(), 1);
    EXPECT_EQ(page(0).sPageTitle.load(), size(1).sDefaultPrinterPage.load());
    EXPECT_EQ(page(0).iPageWidth, 393) << "the shorter side lies below, cut to hundredths of an inch";
    EXPECT_EQ(page(0).iPageHeight, 590);
    EXPECT_EQ(page(0).sPageWidthCM.load(), "10");
    ASSERT_EQ(page(0).iPrinterPageImageCount(), 1u);
    EXPECT_EQ(page(0).oPrinterPageImages[0].iHeight, 590);
    EXPECT_EQ(page(0).oPrinterPageImages[0].sXInch.load(), "0");
    EXPECT_EQ(whyNoImageSize(*info_, -1, wide), "There is a size \"15x10 100 Horz CM **\" already.");
    EXPECT_THAT(whyNoImageSize(*info_, -1, {"15", "wide", true, 100, ""}), HasSubstr("makes no picture"));
    EXPECT_THAT(kept(Places::current().customImageSizeFile()), HasSubstr("<sName>15x10 100 Horz CM"));
    EXPECT_THAT(kept(Places::current().customPrinterFile()), HasSubstr("One 15x10"));
    info_->oImageSize.resize(kMaxListEntries);
    EXPECT_THAT(whyNoImageSize(*info_, -1, {"4", "6", false, 100, "Letter"}), HasSubstr("room for 100 sizes"));
}

TEST_F(OwnListsTest, TheSizeInForceFollowsItsEntryAndOutlivesIt) {
    info_->bChangeImageSize = false;
    SizeEntry entry = sizeEntryOf(size(0));
    EXPECT_EQ(entry.width, "1.5") << "one without texts gets them";
    entry.dotsPerInch = 80;
    entry.page = "Letter";
    ASSERT_EQ(putImageSize(*info_, 0, entry), "");
    EXPECT_EQ(info_->sImageSizeName.load(), "1.5x1 80 Horz **");
    EXPECT_TRUE(info_->bChangeImageSize);
    EXPECT_EQ(useChosenSize(*info_), "");
    EXPECT_EQ(info_->iOutputPixelWidth, 120);

    ASSERT_EQ(putImageSize(*info_, -1, {"2", "3", false, 50, "Letter"}), "");
    ASSERT_TRUE(chooseSize(*info_, 1));
    ASSERT_EQ(useChosenSize(*info_), "");
    info_->bChangeImageSize = false;
    ASSERT_EQ(deleteImageSize(*info_, 0), "");
    EXPECT_EQ(info_->iSelecteImageSize, 0) << "the same entry, a place further up";
    ASSERT_EQ(deleteImageSize(*info_, 0), "");
    EXPECT_EQ(info_->iImageSizeCount(), 0);
    EXPECT_EQ(info_->iSelecteImageSize, kOwnImageSize);
    EXPECT_EQ(useChosenSize(*info_), "");
    EXPECT_EQ(info_->iOutputPixelHeight, 150) << "the picture keeps its size";
    EXPECT_EQ(selectedSize(*info_)->dHeight, 3.0);
    EXPECT_EQ(kept(Places::current().customImageSizeFile()).find("<ImageSize>"), std::string::npos);
}

TEST_F(OwnListsTest, PagesAndTheirPlacesAreInHundredthsOfAnInch) {
    ASSERT_EQ(putPrinterPage(*info_, -1, PageEntry()), "");
    EXPECT_EQ(page(0).sPageTitle.load(), "Name of Template");
    EXPECT_EQ(page(0).iPageWidth, 800);
    EXPECT_EQ(page(0).iPageHeight, 1000);
    EXPECT_EQ(page(0).iPrinterPageImageCount(), 0u);
    EXPECT_THAT(whyNoPrinterPage(*info_, -1, PageEntry()), HasSubstr("already"));
    EXPECT_NE(whyNoPrinterPage(*info_, -1, {"", "8", "10", false}), "");
    EXPECT_NE(whyNoPrinterPage(*info_, -1, {"Long", "8", "101", false}), "");

    choosePrinterPage(*info_, 0);
    info_->iCurrentTemplateIndex = 0;
    ASSERT_EQ(putPrinterPage(*info_, 0, {"Mine", "21", "29.7", true}), "");
    EXPECT_EQ(page(0).iPageWidth, 826);
    EXPECT_EQ(page(0).iPageHeight, 1169);
    EXPECT_EQ(info_->oQLXInfo->sSelectedPrinterTemplate.load(), "Mine") << "the chosen page stays chosen";
    EXPECT_EQ(info_->iCurrentTemplateIndex, -1) << "its sheet is made anew";
    ASSERT_EQ(putSlot(*info_, 0, 0, {"1", "2,5", "10", "15"}), "");
    ASSERT_EQ(putSlot(*info_, 0, 1, {"0", "0", "5", "5"}), "");
    EXPECT_EQ(page(0).oPrinterPageImages[0].iX, 39);
    EXPECT_EQ(page(0).oPrinterPageImages[0].iY, 98);
    EXPECT_EQ(page(0).oPrinterPageImages[0].iWidth, 393);
    EXPECT_EQ(slotEntryOf(page(0), page(0).oPrinterPageImages[0]).y, "2,5");
    ASSERT_EQ(putPrinterPage(*info_, 0, {"Mine", "8", "10", false}), "");
    EXPECT_EQ(slotEntryOf(page(0), page(0).oPrinterPageImages[0]).width, "3.93") << "in the page's new unit";
    ASSERT_EQ(deleteSlot(*info_, 0, 0), "");
    EXPECT_EQ(page(0).oPrinterPageImages.at(0).iWidth, 196);

    SystemInfo later;
    ASSERT_EQ(LoadPrinterTemplatesFromXML(later), "");
    EXPECT_EQ(later.oPrinterPages.back().sPageTitle.load(), "Mine");
    EXPECT_EQ(later.oPrinterPages.back().iPrinterPageImageCount(), 1u);
    ASSERT_EQ(deletePrinterPage(*info_, 0), "");
    EXPECT_EQ(info_->oQLXInfo->iSelectedPrinterTemplate, 0);
    EXPECT_EQ(kept(Places::current().customPrinterFile()).find("Mine"), std::string::npos);
}

}  // namespace
}  // namespace tavrin

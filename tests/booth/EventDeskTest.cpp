// What the operator of the booth chooses: layouts, backgrounds with and without a recipe, a line of text.
#include <gtest/gtest.h>

#include "booth/EventDesk.h"
#include "core/files/Places.h"
#include "formats/ImageState.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

ImageSize sizeNamed(const std::string& name, double width, double height) {
    ImageSize size;
    size.sName = name;
    size.dWidth = width;
    size.dHeight = height;
    size.dotsPerInch = 40;
    return size;
}

class HeardAlerts : public Interface {
  public:
    void showAlert(const std::string& message, const std::string&) override { heard.push_back(message); }
    std::vector<std::string> heard;
};

class EventDeskTest : public testing::Test {
  protected:
    EventDeskTest() {
        Places::current().setPicturesFolder(folder_.file("pictures/"));
        EXPECT_EQ(Places::current().createFolders(), "");
        info_->oImageSize = {sizeNamed("4x6 Vert", 4, 6), sizeNamed("4x6 Horz", 6, 4), sizeNamed("5x5", 5, 5),
                             sizeNamed("2x3 Vert small", 2, 3)};
        info_->oQLXInfo->sEventModeBackgroundVertFolder = "/vert";
        info_->oQLXInfo->sEventModeBackgroundHorzFolder = "/horz";
        info_->pInterface = &alerts_;
        setForeground(*info_, guest_);
        EXPECT_TRUE(chooseSizeByName(*info_, "4x6 Vert"));
    }
    ~EventDeskTest() override {
        info_->pInterface = nullptr;
        Places::current().setPicturesFolder(pictures_);
    }

    std::string size() const { return selectedSizeName(*info_); }
    std::string button() const { return desk_.buttonEventLayout(); }
    std::string portrait() const { return info_->pForegroundBitmapInfo->sSourceImageFullPath; }
    std::string background() const { return info_->pBackgroundBitmapInfo->sSourceImageFullPath; }
    /// A background with a recipe of its own.
    std::string withRecipe(const std::string& name, const std::string& sizeName, int brightness) {
        SystemInfo other;
        other.oImageSize = info_->oImageSize;
        EXPECT_TRUE(chooseSizeByName(other, sizeName));
        setForeground(other, "/someone/else.jpg");
        setBackground(other, "/named/by/recipe.png");
        other.pBackgroundBitmapInfo->iBrightness = brightness;
        EXPECT_EQ(saveImageStateToXML(other, folder_.file(name + ".qlx")), "");
        return folder_.file(name + ".JPG");
    }

    const std::string pictures_ = Places::current().picturesFolder();
    test::TempFolder folder_;
    const std::string guest_ = "/in/guest.jpg";
    HeardAlerts alerts_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(60, 40, 40);
    EventDesk desk_{*info_};
};

TEST_F(EventDeskTest, TheLayoutFollowsTheSizeAndTheButtonTurnsIt) {
    EXPECT_EQ(desk_.batchButtonClicked(), "");
    EXPECT_EQ(button(), "Go to Landscape Layout");
    EXPECT_EQ(desk_.backgroundFolder(), "/vert");
    desk_.ChangeEventLayout();
    EXPECT_EQ(size(), "4x6 Horz");
    EXPECT_EQ(button(), "Go to Portrait Layout");
    EXPECT_EQ(desk_.backgroundFolder(), "/horz");
    EXPECT_EQ(desk_.batchButtonClicked(), "");
    EXPECT_EQ(button(), "Go to Portrait Layout") << "opened anew it shows the layout of the size";
    EXPECT_EQ(size(), "4x6 Horz");
}

TEST_F(EventDeskTest, ASizeOfNoLayoutStaysAndOneWithoutAPartnerIsTold) {
    ASSERT_TRUE(chooseSizeByName(*info_, "5x5"));
    EXPECT_EQ(desk_.batchButtonClicked(), "");
    const std::string folder = desk_.backgroundFolder();
    desk_.ChangeEventLayout();
    EXPECT_EQ(size(), "5x5");
    EXPECT_NE(desk_.backgroundFolder(), folder) << "the folder turns all the same";
    EXPECT_TRUE(alerts_.heard.empty());
    ASSERT_TRUE(chooseSizeByName(*info_, "2x3 Vert small"));
    EXPECT_EQ(desk_.batchButtonClicked(), "");
    desk_.ChangeEventLayout();  // to "2x3 Horz", which is not there
    EXPECT_EQ(size(), "2x3 Vert small");
    EXPECT_EQ(alerts_.heard, std::vector<std::string>{"Cound not find  image size"});
}

TEST_F(EventDeskTest, ABackgroundBringsItsRecipeAndTheNextOneWithoutTheUsualOne) {
    info_->pBackgroundBitmapInfo->iBrightness = 7;
    ASSERT_EQ(desk_.batchButtonClicked(), "");
    EXPECT_EQ(desk_.eventBackgroundSelected(withRecipe("beach", "4x6 Vert", 33)), "");
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iBrightness, 33);
    EXPECT_EQ(background(), "/named/by/recipe.png");
    EXPECT_EQ(portrait(), guest_);
    EXPECT_EQ(desk_.sEventLastQLXFile(), folder_.file("beach.qlx"));
    EXPECT_EQ(desk_.eventBackgroundSelected("/vert/plain.png"), "");
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iBrightness, 7);
    EXPECT_EQ(background(), "/vert/plain.png");
    info_->pBackgroundBitmapInfo->iBrightness = 9;
    EXPECT_EQ(desk_.eventBackgroundSelected("/vert/other.png"), "");
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iBrightness, 9) << "the usual recipe is in force and is not read again";
}

TEST_F(EventDeskTest, TheOperatorsLayoutOutlivesTheSizeOfARecipe) {
    ASSERT_EQ(desk_.batchButtonClicked(), "");
    EXPECT_EQ(desk_.eventBackgroundSelected(withRecipe("wide", "4x6 Horz", 1)), "");
    EXPECT_EQ(size(), "4x6 Vert");
    EXPECT_EQ(button(), "Go to Landscape Layout");
    desk_.ChangeEventLayout();
    EXPECT_EQ(desk_.eventBackgroundSelected(withRecipe("high", "4x6 Vert", 1)), "");
    EXPECT_EQ(size(), "4x6 Horz");
    EXPECT_EQ(button(), "Go to Portrait Layout");
}

TEST_F(EventDeskTest, ABrokenRecipeIsToldAndTheBackgroundIsLaid) {
    ASSERT_EQ(desk_.batchButtonClicked(), "");
    test::writeFile(folder_.file("bad.qlx"), "<no state");
    info_->pBackgroundBitmapInfo->iBrightness = 5;
    EXPECT_NE(desk_.eventBackgroundSelected(folder_.file("bad.tiff")), "");
    EXPECT_EQ(background(), folder_.file("bad.tiff"));
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iBrightness, 5);
    EXPECT_EQ(portrait(), guest_);
}

TEST(BaseOfPicture, TheFirstKnownExtensionEndsIt) {
    EXPECT_EQ(baseOfPicture("/a/Beach.TIFF"), "/a/Beach");
    EXPECT_EQ(baseOfPicture("/a/x.png.jpg"), "/a/x");
    EXPECT_EQ(baseOfPicture("/set.jpg/beach.png"), "/set.jpg/beach") << "types are tried in their order";
    EXPECT_EQ(baseOfPicture("/a/beach"), "/a/beach");
}

TEST_F(EventDeskTest, ALineOfTextIsOneStepWithAllOfItsLook) {
    SettingEditor editor(*info_);
    EXPECT_EQ(buttonAddTextClicked(editor, {"Ann", "Arial", "Large", true, true}), "");
    ASSERT_EQ(info_->iFontObjectCount(), 1);
    const FontObject& item = info_->oFontObject[0];
    EXPECT_EQ(item.iFontSize, 40);
    EXPECT_EQ(item.iFontDropShadowVert, -3);
    EXPECT_EQ(item.iFontDropShadowHorz, 3);
    EXPECT_EQ(item.dFontFillGreen, 0.0);
    EXPECT_EQ(item.dFontDropshadowGlowBlue, 1.0);
    EXPECT_EQ(item.sFontColor.load(), "Black");
    EXPECT_GT(item.rectSizeWidth, 20.0);
    EXPECT_EQ(info_->oQLXInfo->sEventLabelSize.load(), "Large");
    EXPECT_EQ(info_->iSelectedFontObject, 0);
    editor.undo();
    EXPECT_EQ(info_->iFontObjectCount(), 0);
}

}  // namespace
}  // namespace tavrin

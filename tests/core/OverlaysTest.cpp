#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "support/TextPage.h"

namespace tavrin {
namespace {

class AlertCatcher : public Interface {
  public:
    void showAlert(const std::string& message, const std::string&) override { messages.push_back(message); }
    std::vector<std::string> messages;
};

class OverlaysTest : public testing::Test {
  protected:
    std::string save(const char* name, int width, int height, QColor left, QColor right) const {
        QImage picture(width, height, QImage::Format_ARGB32);
        picture.fill(left);
        for (int y = 0; y < height; ++y)
            for (int x = width / 2; x < width; ++x)
                picture.setPixelColor(x, y, right);
        return test::savePng(picture, folder_.file(name));
    }
    FontObject& addPicture(const std::string& path, double width, double height) {
        FontObject& item = page_.add(path.c_str());
        item.isImage = true;
        item.imageSizeWidth = width;
        item.imageSizeHeight = height;
        return item;
    }

    test::TempFolder folder_;
    test::TextPage page_;
};

TEST_F(OverlaysTest, AreStretchedOverTheWholePictureAndShowWhatLiesBelow) {
    const std::string path = save("o.png", 10, 40, QColor(255, 0, 0), QColor(0, 0, 255, 0));
    for (const int res : {0, 1}) {
        DrawOverlayImage(*page_.info, page_.context(res), path, res);
        const PassGeometry size = page_.info->geometry(fullIf(res == 1));
        EXPECT_EQ(page_.color(res, 0, 0), QColor(255, 0, 0));
        EXPECT_EQ(page_.color(res, size.width / 5, size.height - 1), QColor(255, 0, 0));
        EXPECT_EQ(page_.color(res, size.width - 1, 0), QColor(120, 120, 120));
        EXPECT_EQ(page_.color(res, size.width * 4 / 5, size.height - 1), QColor(120, 120, 120));
        EXPECT_EQ(page_.pixel(res, size.width / 2, 50)[3], 255);
    }
    DrawOverlayImage(*page_.info, nullptr, path, 1);
}

TEST_F(OverlaysTest, OneThatIsMissingOrBrokenIsToldAndTheRestStays) {
    AlertCatcher view;
    page_.info->pInterface = &view;
    test::writeFile(folder_.file("broken.png"), "no picture");
    const test::Bytes before = page_.bytes(1);
    DrawOverlayImage(*page_.info, page_.context(1), folder_.file("gone.png"), 1);
    DrawOverlayImage(*page_.info, page_.context(1), folder_.file("broken.png"), 1);
    EXPECT_EQ(page_.bytes(1), before);
    ASSERT_EQ(view.messages.size(), 2U);
    EXPECT_EQ(view.messages[0], "Cound not load file: gone.png, check your file permissions");
    EXPECT_EQ(view.messages[1], "Cound not load file: broken.png, check your file permissions");
}

TEST_F(OverlaysTest, PictureItemsKeepPlaceSizeAndOpacityAtBothResolutions) {
    const std::string path = save("logo.png", 120, 60, QColor(255, 255, 255), QColor(0, 0, 0));
    FontObject& item = addPicture(path, 120, 60);
    EXPECT_EQ(page_.draw(1), QRect(100, 440, 120, 60));  // its lower edge a hundred pixels from the picture's
    EXPECT_EQ(page_.draw(0), QRect(50, 220, 60, 30));
    item.dGlobalScaleX = 3.0;
    item.dGlobalScaleY = 0.5;
    EXPECT_EQ(page_.draw(1), QRect(100, 470, 360, 30));
    item.dGlobalScaleX = 12.0;  // beyond the right edge
    EXPECT_EQ(page_.draw(1), QRect(100, 470, 700, 30));
    EXPECT_EQ(page_.color(1, 700, 490), QColor(255, 255, 255)) << "stretched, not moved";
    item.dGlobalScaleX = item.dGlobalScaleY = 1.0;
    item.dTransparency = 0.5;
    page_.draw(1);
    EXPECT_NEAR(page_.color(1, 110, 450).red(), 187, 1);
    EXPECT_NEAR(page_.color(1, 210, 450).red(), 60, 1);
    EXPECT_EQ(page_.pixel(1, 110, 450)[3], 255);
    item.imageSizeWidth = 0.0;
    EXPECT_TRUE(page_.draw(1).isNull());
}

TEST_F(OverlaysTest, AMissingPictureItemLeavesTheOthers) {
    addPicture(folder_.file("gone.png"), 50, 50);
    addPicture(save("logo.png", 8, 8, QColor(255, 255, 255), QColor(0, 0, 0)), 8, 8).xPos = 2.0;
    EXPECT_EQ(page_.draw(1), QRect(200, 492, 8, 8));
}

TEST_F(OverlaysTest, TransparentOutputKeepsTheColourOfSoftEdges) {
    SystemInfo& info = *page_.info;
    info.bOutputTransparency = true;
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    const auto set = [](std::uint8_t* p, int r, int g, int b, int a) {
        p[0] = static_cast<std::uint8_t>(r);
        p[1] = static_cast<std::uint8_t>(g);
        p[2] = static_cast<std::uint8_t>(b);
        p[3] = static_cast<std::uint8_t>(a);
    };
    set(combined.pBitmapData, 155, 155, 155, 0);    // empty
    set(combined.pBitmapData + 4, 0, 200, 0, 255);  // the subject
    set(combined.pBitmapData + 8, 0, 200, 0, 100);  // its edge
    DrawOverlayImage(info, page_.context(1), save("half.png", 8, 6, QColor(255, 0, 0, 128), Qt::transparent), 1);
    const auto near = [&](int x, int r, int g, int b, int a) {
        const std::uint8_t* p = page_.pixel(1, x, 0);
        EXPECT_NEAR(p[0], r, 1);
        EXPECT_NEAR(p[1], g, 1);
        EXPECT_NEAR(p[2], b, 1);
        EXPECT_NEAR(p[3], a, 1);
    };
    near(0, 255, 0, 0, 128);
    near(1, 128, 100, 0, 255);
    near(2, 184, 56, 0, 178);  // 128 of red above 50 of green
    // The background is never read as transparent, whatever its alpha holds.
    const BitmapInfo& background = *info.pBackgroundBitmapInfo;
    set(background.pBitmapData, 100, 100, 100, 0);
    DrawOverlayImage(info, background.oBitmapRep.get(), folder_.file("half.png"), 1);
    EXPECT_NEAR(background.pBitmapData[0], 178, 1);
    EXPECT_NEAR(background.pBitmapData[1], 50, 1);
}

}  // namespace
}  // namespace tavrin

// Pictures with the key beside the one under work: in the strip, over every background, of the next portrait.
#include <filesystem>

#include <QLabel>
#include <QListView>

#include "ui/WindowTest.h"
#include "ui/strip/BackgroundGrid.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class ResultsTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        qputenv("XDG_CACHE_HOME", folder_.file("cache").c_str());
        fs::create_directories(folder_.file("portraits"));
        fs::create_directories(folder_.file("backgrounds"));
        for (int i = 0; i < 3; ++i) {
            test::savePng(test::discOnScreen(120, 150, QColor(40, 160, 60), QColor(200, 40 * i, 50)), portrait(i));
            QImage plain(120, 150, QImage::Format_RGB32);
            plain.fill(QColor(20, 40, 60 + 60 * i));
            test::savePng(plain, background(i));
        }
        info_->pForegroundBitmapInfo->sSourceImageFullPath = portrait(0);
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = background(0);
        open();
        ASSERT_TRUE(test::eventually([&] { return portraits().rowCount() == 3 && backgrounds().rowCount() == 3; }));
        window_->view()->setFocus();
    }
    void TearDown() override {
        WindowTest::TearDown();
        qputenv("XDG_CACHE_HOME", cache_);
    }
    std::string portrait(int i) const { return folder_.file("portraits/p" + std::to_string(i) + ".png"); }
    std::string background(int i) const { return folder_.file("backgrounds/b" + std::to_string(i) + ".png"); }
    PictureList& portraits() { return window_->strip()->portraits()->list(); }
    PictureList& backgrounds() { return window_->strip()->backgrounds()->list(); }
    /// The corner of a picture, where the background shows.
    static QColor cornerOf(const PictureList& list, int row) {
        const auto small = list.index(row).data(Qt::DecorationRole).value<QPixmap>();
        return small.isNull() ? QColor() : small.toImage().pixelColor(3, 3);
    }
    static bool isGreen(const QColor& colour) { return colour.isValid() && colour.green() > colour.blue() + 60; }

    const QByteArray cache_ = qgetenv("XDG_CACHE_HOME");
};

TEST_F(ResultsTest, TheStripShowsWhatTheKeyMakesOfEachPortraitAndFollowsTheSettings) {
    ASSERT_TRUE(test::eventually([&] { return isGreen(cornerOf(portraits(), 2)); }));
    QTest::keyClick(window_->view(), Qt::Key_R);
    ASSERT_TRUE(test::eventually([&] {
        return !isGreen(cornerOf(portraits(), 0)) && !isGreen(cornerOf(portraits(), 1)) &&
               !isGreen(cornerOf(portraits(), 2));
    }));
    const int before = cornerOf(portraits(), 2).blue();
    window_->openBackground(QString::fromStdString(background(2)));
    EXPECT_TRUE(test::eventually([&] { return cornerOf(portraits(), 2).blue() > before + 60; }));
    QTest::keyClick(window_->view(), Qt::Key_R);
    EXPECT_TRUE(isGreen(cornerOf(portraits(), 2)));
}

TEST_F(ResultsTest, AGridHasThePortraitOverEveryBackgroundAndAClickLaysOneBehindIt) {
    QTest::keyClick(window_->view(), Qt::Key_W);
    auto* grid = window_->findChild<BackgroundGrid*>("backgroundGrid");
    ASSERT_NE(grid, nullptr);
    const auto isMade = [&] {
        for (int row = 0; row < 3; ++row)
            if (std::abs(cornerOf(grid->list(), row).blue() - (60 + 60 * row)) > 3) return false;
        return true;
    };
    ASSERT_TRUE(test::eventually(isMade));
    auto* view = grid->findChild<QListView*>("backgroundGridView");
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->visualRect(grid->list().index(2, 0)).center());
    EXPECT_EQ(info_->pBackgroundBitmapInfo->sSourceImageFullPath.load(), background(2));
    ASSERT_TRUE(waitForPicture());
    EXPECT_TRUE(grid->list().index(2).data(PictureList::PresentRole).toBool());
    // Another portrait is laid over all of them anew.
    window_->strip()->walk(1);
    EXPECT_TRUE(test::eventually([&] { return !grid->list().wantedResults(0, 2).empty(); }));
    EXPECT_TRUE(test::eventually([&] { return grid->list().wantedResults(0, 2).empty(); }));
}

TEST_F(ResultsTest, TheNextPortraitIsShownAtOnceWithItsOwnPreview) {
    Results& results = window_->strip()->results();
    ASSERT_TRUE(test::eventually([&] { return results.previewOf(portrait(1)).has_value(); }));
    const QImage ready = *results.previewOf(portrait(1));
    QTest::keyClick(window_->view(), Qt::Key_PageDown);
    EXPECT_FALSE(window_->view()->isFull());  // it is the preview, with no event in between
    ASSERT_TRUE(waitForPicture());
    const PassGeometry size = info_->geometry(Resolution::preview);
    const QImage byLoop(info_->pCombinedBitmapInfo->pBitmapDataLowRes, size.width, size.height, 4 * size.width,
                        QImage::Format_RGBA8888);
    EXPECT_TRUE(ready == byLoop);
    // What was made with other settings is not shown.
    ASSERT_TRUE(test::eventually([&] { return results.previewOf(portrait(2)).has_value(); }));
    editor().set("foreground.iBrightness", "30");
    EXPECT_FALSE(results.previewOf(portrait(2)).has_value());
}

}  // namespace
}  // namespace tavrin

// What opening a picture resets, and the ways out of the window.
#include <gtest/gtest.h>

#include <QTest>

#include "formats/ImageState.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class FilesTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        SystemInfo start;
        start.pForegroundBitmapInfo->iBrightness = 7;
        start.pBackgroundBitmapInfo->iBrightness = 9;
        EXPECT_EQ(saveImageStateToXML(start, start_), "");
        info_->oQLXInfo->sDefaultQLXFilePath = start_;
        open();
        info_->pForegroundBitmapInfo->iBrightness = 30;
        info_->pBackgroundBitmapInfo->iBrightness = 40;
    }
    std::int32_t portraitLight() { return info_->pForegroundBitmapInfo->iBrightness; }
    std::int32_t backgroundLight() { return info_->pBackgroundBitmapInfo->iBrightness; }
    QString drawn(const char* name) {
        return QString::fromStdString(test::savePng(test::discOnScreen(240, 300), folder_.file(name)));
    }
    bool saved() {
        return QTest::qWaitFor([&] { return window_->savesUnderWay() == 0; }, 20000);
    }

    const std::string start_ = folder_.file("start.qlx");
};

TEST_F(FilesTest, APortraitThatIsOpenedBeginsWithTheStartUpStateWhereThatIsWanted) {
    window_->openForeground(drawn("ben.png"));
    EXPECT_EQ(portraitLight(), 30) << "it is not wanted";
    ASSERT_TRUE(waitForPicture());
    action("ForegroundReset")->setChecked(true);
    const QString clara = drawn("clara.png");
    window_->openForeground(clara);
    ASSERT_TRUE(QTest::qWaitFor([&] { return portraitLight() == 7; }, 20000));
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), clara.toStdString());
    EXPECT_EQ(backgroundLight(), 40);
    EXPECT_EQ(info_->pBackgroundBitmapInfo->sSourceImageFullPath.load(), background_);
    EXPECT_EQ(info_->iOutputPixelWidth, 240);

    const QString other =
        QString::fromStdString(test::savePng(test::noisePicture(240, 300, 5), folder_.file("b.png")));
    window_->openBackground(other);
    EXPECT_EQ(backgroundLight(), 40);
    action("BackgroundReset")->setChecked(true);
    info_->pForegroundBitmapInfo->iBrightness = 31;
    window_->openBackground(other);
    ASSERT_TRUE(QTest::qWaitFor([&] { return backgroundLight() == 9; }, 20000));
    EXPECT_EQ(portraitLight(), 31);
    EXPECT_EQ(info_->pBackgroundBitmapInfo->sSourceImageFullPath.load(), other.toStdString());
    ASSERT_TRUE(waitForPicture());
    open();
    EXPECT_TRUE(action("ForegroundReset")->isChecked()) << "kept for the next start";
}

TEST_F(FilesTest, AResetWithoutItsStateOpensThePortraitAndSaysSo) {
    action("ForegroundReset")->setChecked(true);
    std::filesystem::remove(start_);
    const QString ben = drawn("ben.png");
    window_->openForeground(ben);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->messages()->message().isEmpty(); }, 20000));
    EXPECT_EQ(window_->messages()->message(), "The settings were not reset.");
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), ben.toStdString());
    EXPECT_EQ(portraitLight(), 30);
}

TEST_F(FilesTest, AHostApplicationGetsItsOwnFileBack) {
    action("AutoState")->setChecked(true);
    const QString file = drawn("host.png");
    window_->openForHost(file);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return info_->pForegroundBitmapInfo->sSourceImageFullPath.load() == file.toStdString(); }, 20000));
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(action("Save")->text(), "Return To Lightroom");
    ASSERT_TRUE(QTest::qWaitFor([&] { return action("Save")->isEnabled(); }, 20000));
    const QImage shown = window_->view()->fullPicture();
    action("Save")->trigger();
    EXPECT_EQ(action("Save")->text(), "Save");
    ASSERT_TRUE(saved());
    EXPECT_FALSE(info_->bLightroomActive);
    const QImage written(file);
    EXPECT_EQ(written.convertToFormat(QImage::Format_RGB888).pixelColor(2, 2),
              shown.convertToFormat(QImage::Format_RGB888).pixelColor(2, 2));
    EXPECT_FALSE(std::filesystem::exists(folder_.file("host.qlx")));
    EXPECT_TRUE(window_->isMinimized());
    for (const auto& entry : std::filesystem::directory_iterator(folder_.file("")))
        EXPECT_EQ(entry.path().string().find(".new-"), std::string::npos) << entry.path();
}

TEST_F(FilesTest, AHostsFileThatCannotBeWrittenStaysTheHosts) {
    std::filesystem::create_directories(folder_.file("gone"));
    const QString file = drawn("gone/host.png");
    window_->openForHost(file);
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(QTest::qWaitFor([&] { return action("Save")->isEnabled(); }, 20000));
    std::filesystem::rename(folder_.file("gone"), folder_.file("away"));
    action("Save")->trigger();
    ASSERT_TRUE(saved());
    EXPECT_TRUE(info_->bLightroomActive) << "the next try is for the host too";
    EXPECT_EQ(action("Save")->text(), "Return To Lightroom");
    EXPECT_FALSE(window_->isMinimized());
}

}  // namespace
}  // namespace tavrin

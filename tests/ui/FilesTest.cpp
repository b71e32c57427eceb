// What opening a picture resets, and the ways out of the window.
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <semaphore>
#include <vector>

#include <QTest>
#include <QToolButton>

#include "formats/ImageState.h"
#include "session/States.h"
#include "support/Files.h"
#include "ui/HeldLoop.h"
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
        return test::eventually([&] { return window_->savesUnderWay() == 0; });
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
    ASSERT_TRUE(test::eventually([&] { return portraitLight() == 7; }));
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
    ASSERT_TRUE(test::eventually([&] { return backgroundLight() == 9; }));
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
    ASSERT_TRUE(test::eventually([&] { return !window_->messages()->message().isEmpty(); }));
    EXPECT_EQ(window_->messages()->message(), "The settings were not reset.");
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), ben.toStdString());
    EXPECT_EQ(portraitLight(), 30);
}

TEST_F(FilesTest, AHostApplicationGetsItsOwnFileBack) {
    action("AutoState")->setChecked(true);
    const QString file = drawn("host.png");
    window_->openForHost(file);
    ASSERT_TRUE(test::eventually(
        [&] { return info_->pForegroundBitmapInfo->sSourceImageFullPath.load() == file.toStdString(); }));
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(action("Save")->text(), "Return To Lightroom");
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
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
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
    std::filesystem::rename(folder_.file("gone"), folder_.file("away"));
    action("Save")->trigger();
    ASSERT_TRUE(saved());
    EXPECT_TRUE(info_->bLightroomActive) << "the next try is for the host too";
    EXPECT_EQ(action("Save")->text(), "Return To Lightroom");
    EXPECT_FALSE(window_->isMinimized());
}

TEST_F(FilesTest, AnotherPortraitIsNeverSavedOverAFileThatWasOpenedToBeReplaced) {
    const QString host = drawn("host.png"), other = drawn("other.png");
    window_->openForHost(host);
    window_->openForeground(other);
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(action("Save")->text(), "Save");
    EXPECT_FALSE(info_->bLightroomActive);
    window_->openForReview(QString::fromStdString(folder_.file("gone.png")));
    EXPECT_EQ(action("Save")->text(), "Save to Batch");
    window_->openForeground(other);
    EXPECT_EQ(action("Save")->text(), "Save");
    EXPECT_FALSE(info_->bBatchReviewActive);
}

TEST_F(FilesTest, AResultOfABatchIsMendedFromItsStateAndReplacedWithItsMask) {
    std::filesystem::create_directories(folder_.file("out"));
    const std::string result = folder_.file("out/anna.png");
    test::savePng(test::noisePicture(24, 30, 3), result);
    info_->pForegroundBitmapInfo->iBrightness = 12;
    ASSERT_EQ(saveImageStateToXML(*info_, folder_.file("out/anna.qlx")), "");
    info_->pForegroundBitmapInfo->iBrightness = 30;
    action("AutoState")->setChecked(true);
    window_->openForReview(QString::fromStdString(result));
    ASSERT_TRUE(test::eventually([&] { return portraitLight() == 12; }));
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
    EXPECT_EQ(action("Save")->text(), "Save to Batch");
    EXPECT_EQ(info_->oQLXInfo->sSavePath.load() + "/", folder_.file("out/"));
    window_->binder().run("Light", [](SettingEditor& e) { e.set("foreground.iBrightness", "13"); });
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
    const PassGeometry small = info_->geometry(Resolution::preview);
    const std::uint8_t* preview = info_->pCombinedBitmapInfo->pBitmapDataLowRes;
    const std::vector<std::uint8_t> shown(preview, preview + std::size_t{4} * small.width * small.height);
    action("Save")->trigger();
    ASSERT_TRUE(saved());
    EXPECT_EQ(action("Save")->text(), "Save");
    EXPECT_EQ(QImage(QString::fromStdString(result)).size(), QSize(240, 300));
    const QImage mask(QString::fromStdString(folder_.file("out/Thumbs/TQTQanna.png")));
    ASSERT_EQ(mask.size(), QSize(small.width, small.height));
    EXPECT_EQ(qRed(mask.pixel(small.width / 2, small.height / 2)), 0) << "the subject is black";
    EXPECT_EQ(qRed(mask.pixel(1, 1)), 255);
    EXPECT_TRUE(std::equal(shown.begin(), shown.end(), info_->pCombinedBitmapInfo->pBitmapDataLowRes))
        << "what is shown is no mask";
    SystemInfo kept;
    ASSERT_EQ(loadState(kept, folder_.file("out/anna.qlx")).problem, "");
    EXPECT_EQ(kept.pForegroundBitmapInfo->iBrightness, 13);
}

TEST_F(FilesTest, OverlaysAreTakenOffOneByOneAndAllAsOneStep) {
    const std::string overlay = test::savePng(test::noisePicture(24, 30, 3), folder_.file("o.png"));
    EXPECT_FALSE(action("clearOverlays")->isEnabled());
    window_->binder().run("Overlays", [&](SettingEditor& e) {
        for (const char* which : {"Frame", "Foreground", "Background"}) {
            e.set(std::string("bHave") + which + "Overlay", "1");
            e.set(std::string("s") + which + "Overlay", overlay);
        }
    });
    info_->pBackgroundBitmapInfo->bScaleChange = false;
    action("clearForegroundOverlay")->trigger();
    EXPECT_FALSE(info_->bHaveForegroundOverlay);
    EXPECT_EQ(info_->sForegroundOverlay.load(), "");
    EXPECT_TRUE(info_->bHaveFrameOverlay);
    EXPECT_FALSE(action("clearForegroundOverlay")->isEnabled());
    ASSERT_TRUE(waitForPicture());
    action("clearOverlays")->trigger();
    EXPECT_FALSE(info_->bHaveFrameOverlay);
    EXPECT_FALSE(info_->bHaveBackgroundOverlay);
    action("UndoButton")->trigger();
    EXPECT_TRUE(info_->bHaveFrameOverlay);
    EXPECT_EQ(info_->sBackgroundOverlay.load(), overlay);
    EXPECT_FALSE(info_->bHaveForegroundOverlay);
}

TEST_F(FilesTest, SavingCanBeStoppedAndTheOldFileStays) {
    const std::string path = folder_.file("out.png");
    std::ofstream(path) << "old";
    const auto saveAndStop = [&](bool stop) {
        window_->findChild<HeldLoop*>()->run([] {});  // the loop comes to the save when the events do
        ASSERT_TRUE(window_->saveTo(QString::fromStdString(path)));
        if (stop) window_->findChild<QToolButton*>("stopSaving")->click();
        ASSERT_TRUE(saved());
    };
    saveAndStop(true);
    EXPECT_EQ(test::readFile(path), "old");
    EXPECT_TRUE(window_->messages()->message().startsWith("Saving was stopped"));
    saveAndStop(false);
    EXPECT_EQ(window_->messages()->message(), "Saved " + QString::fromStdString(path));
    EXPECT_FALSE(QImage(QString::fromStdString(path)).isNull());
}

TEST_F(FilesTest, AStateThatIsOpenedRightBeforeAnotherFileStepsBack) {
    const auto state = [&](const char* name, const std::string& portrait, int light) {
        const auto other = test::stateForOutput(240, 300);
        other->pForegroundBitmapInfo->sSourceImageFullPath = portrait;
        other->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
        other->pForegroundBitmapInfo->iBrightness = light;
        EXPECT_EQ(saveImageStateToXML(*other, folder_.file(name)), "");
        return QString::fromStdString(folder_.file(name));
    };
    const QString first = state("a.qlx", portrait_, 21), second = state("b.qlx", portrait_, 22);
    const QString ben = drawn("ben.png"), slow = drawn("slow.png");
    std::counting_semaphore<> reading(0), go(0);
    info_->readSource = [&](const std::string& path) {
        if (path == slow.toStdString()) {
            reading.release();
            go.acquire();
        }
        return readPicture(path);
    };
    const auto whileTheLoopReads = [&](const std::function<void()>& open) {
        window_->openForeground(slow);
        reading.acquire();
        open();
        go.release();
    };
    whileTheLoopReads([&] {
        window_->openState(first);
        window_->openForeground(ben);
    });
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), ben.toStdString());
    EXPECT_EQ(portraitLight(), 30);
    whileTheLoopReads([&] {
        window_->openState(first);
        window_->openState(second);
    });
    EXPECT_TRUE(test::eventually([&] { return portraitLight() == 22; }));
    EXPECT_FALSE(PictureFiles::recentFiles().contains(first)) << "nobody has seen it";
    EXPECT_TRUE(editor().steps().empty());
}

}  // namespace
}  // namespace tavrin

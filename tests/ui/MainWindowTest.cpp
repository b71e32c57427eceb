#include <filesystem>
#include <gtest/gtest.h>

#include <QApplication>
#include <QColorSpace>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>

#include "core/files/Places.h"
#include "formats/ImageState.h"
#include "pipeline/LayerFit.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "ui/Eventually.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {
namespace {

class MainWindowTest : public testing::Test {
  protected:
    void SetUp() override {
        test::addSize(*info_, "other", 100 / 92.0, 200 / 92.0, 92);
        chooseSizeByName(*info_, "test");
        info_->pForegroundBitmapInfo->sSourceImageFullPath = foreground_;
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
        window_ = std::make_unique<MainWindow>(*info_);
        window_->show();
    }
    bool waitForPicture() {
        const bool idle = test::eventually(
            [&] { return window_->view()->isFull() && info_->iCurrentThreadCount > info_->iNewThreadCount; });
        QCoreApplication::processEvents();  // the last rows were sent before the loop fell idle, and may still wait
        return idle && window_->view()->isFull();
    }
    /// The picture in the view after the next pass.
    QImage pictureAfter(const std::function<void()>& act) {
        act();
        QTest::qWait(50);
        EXPECT_TRUE(waitForPicture());
        return window_->view()->fullPicture();
    }
    /// Has something saved and waits until the window has told how it ended.
    /// @return whether it was saved
    bool waitForSave(const QString& path) {
        EXPECT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
        return window_->messages()->message() == "Saved " + path;
    }
    bool savePicture(const std::string& path) {
        return window_->saveTo(QString::fromStdString(path)) && waitForSave(QString::fromStdString(path));
    }
    bool saveState(const std::string& path) {
        window_->saveState(QString::fromStdString(path));
        return waitForSave(QString::fromStdString(path));
    }
    void drop(const QStringList& files, const QPoint& at) {
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        dropUrls(urls, at);
    }
    void dropUrls(const QList<QUrl>& urls, const QPoint& at) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &event);
    }

    test::TempFolder folder_;
    const std::string foreground_ = test::savePng(test::discOnScreen(240, 300), folder_.file("fg.png"));
    const std::string background_ = test::savePng(test::noisePicture(240, 300, 9), folder_.file("bg.png"));
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(240, 300);
    std::unique_ptr<MainWindow> window_;
};

TEST_F(MainWindowTest, ShowsThePictureAndSavesWhatItShows) {
    ASSERT_TRUE(waitForPicture());
    const QImage shown = window_->view()->fullPicture();
    ASSERT_EQ(shown.size(), QSize(240, 300));
    ASSERT_TRUE(savePicture(folder_.file("out.png")));
    QImage saved(QString::fromStdString(folder_.file("out.png")));
    saved = saved.convertToFormat(QImage::Format_RGBA8888);
    saved.setColorSpace(QColorSpace());  // the file names sRGB, the view's copy nothing
    EXPECT_EQ(saved, shown);
}

TEST_F(MainWindowTest, DroppedFilesReachTheLayerUnderThem) {
    ASSERT_TRUE(waitForPicture());
    QImage plain(240, 300, QImage::Format_RGB888);
    plain.fill(QColor(10, 20, 200));
    const QString file = QString::fromStdString(test::savePng(plain, folder_.file("blue.png")));
    const QPoint right(window_->width() - 20, window_->height() / 2);
    const QImage picture = pictureAfter([&] { drop({file}, right); });
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(10, 20, 200));
    EXPECT_GT(picture.pixelColor(120, 150).red(), 180);

    const QPoint left(20, window_->height() / 2);
    const QImage covered = pictureAfter([&] { drop({file}, left); });
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), file.toStdString());
    EXPECT_LT(covered.pixelColor(120, 150).red(), 60);
}

TEST_F(MainWindowTest, NothingIsSavedOverWhatThePictureIsMadeFrom) {
    ASSERT_TRUE(waitForPicture());
    std::filesystem::create_symlink(background_, folder_.file("link.png"));
    test::savePng(test::noisePicture(8, 8, 2), folder_.file("other.png"));
    const auto bytes = [](const std::string& path) { return QImage(QString::fromStdString(path)); };
    const QImage portrait = bytes(foreground_), background = bytes(background_),
                 other = bytes(folder_.file("other.png"));
    int told = 0;
    for (const std::string& path : {foreground_, background_, folder_.file("link.png")}) {
        EXPECT_FALSE(savePicture(path)) << path;
        EXPECT_EQ(window_->findChildren<QMessageBox*>().size(), ++told);
        EXPECT_FALSE(saveState(path)) << path;
        EXPECT_EQ(window_->messages()->message(), "The state file cannot be saved.");
        EXPECT_FALSE(window_->messages()->details().isEmpty());
    }
    EXPECT_FALSE(saveState(folder_.file("other.png")));
    EXPECT_EQ(bytes(foreground_), portrait);
    EXPECT_EQ(bytes(background_), background);
    EXPECT_EQ(bytes(folder_.file("other.png")), other);
    EXPECT_TRUE(savePicture(folder_.file("other.png")));  // the dialog has asked

    // Nor when another portrait is opened before the save has its turn.
    const std::string next = test::savePng(test::discOnScreen(240, 300), folder_.file("next.png"));
    pictureAfter([&] {
        window_->saveTo(QString::fromStdString(folder_.file("first.png")));
        window_->saveTo(QString::fromStdString(foreground_));
        window_->openForeground(QString::fromStdString(next));
    });
    EXPECT_TRUE(std::filesystem::exists(folder_.file("first.png")));
    EXPECT_EQ(bytes(foreground_), portrait);
    EXPECT_EQ(window_->findChildren<QMessageBox*>().size(), told + 1);
}

TEST_F(MainWindowTest, SavesAreDoneInTheirOrderWhileTheWindowGoesOn) {
    ASSERT_TRUE(waitForPicture());
    const QImage shown = window_->view()->fullPicture();
    QStringList told;
    QObject::connect(window_->findChild<PictureFiles*>(), &PictureFiles::saved, [&](const QString& path, bool done) {
        if (done) told.append(QFileInfo(path).fileName());
    });
    for (const char* name : {"a.tif", "b.jpg", "c.png"})
        EXPECT_TRUE(window_->saveTo(QString::fromStdString(folder_.file(name))));
    EXPECT_EQ(window_->savesUnderWay(), 3);
    const QImage brighter = pictureAfter([&] {  // a request made later finds nothing to wait for but the saves
        info_->pBackgroundBitmapInfo->iBrightness = 60;
        info_->StartUpdate();
    });
    EXPECT_NE(brighter, shown);
    EXPECT_EQ(told, (QStringList{"a.tif", "b.jpg", "c.png"}));
    QImage saved = QImage(QString::fromStdString(folder_.file("c.png"))).convertToFormat(QImage::Format_RGBA8888);
    saved.setColorSpace(QColorSpace());
    EXPECT_EQ(saved, shown);
    EXPECT_TRUE(window_->findChildren<QMessageBox*>().isEmpty());
}

TEST_F(MainWindowTest, AWindowThatIsClosedWaitsForItsSavesAndStaysWhenOneFails) {
    ASSERT_TRUE(waitForPicture());
    window_->saveTo(QString::fromStdString(folder_.file("no/folder.png")));
    EXPECT_FALSE(window_->close());
    EXPECT_FALSE(waitForSave({}));
    EXPECT_TRUE(window_->isVisible());
    ASSERT_EQ(window_->findChildren<QMessageBox*>().size(), 1);
    delete window_->findChild<QMessageBox*>();

    window_->saveTo(QString::fromStdString(folder_.file("a.png")));
    window_->saveState(QString::fromStdString(folder_.file("a.qlx")));
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(test::eventually([&] { return !window_->isVisible(); }));
    EXPECT_FALSE(QImage(QString::fromStdString(folder_.file("a.png"))).isNull());
    EXPECT_TRUE(std::filesystem::exists(folder_.file("a.qlx")));

    window_->saveTo(QString::fromStdString(folder_.file("b.png")));
    window_.reset();
    EXPECT_FALSE(QImage(QString::fromStdString(folder_.file("b.png"))).isNull());
}

// As the processing thread sends them.
TEST_F(MainWindowTest, RowsOfAnEditChangeThePictureThatIsShown) {
    ASSERT_TRUE(waitForPicture());
    QImage expected = window_->view()->fullPicture();
    PublishedRows rows;
    rows.pixels = QImage(240, 2, QImage::Format_RGBA8888);
    rows.pixels.fill(QColor(1, 2, 3));
    rows.firstRow = 100;
    rows.rowCount = 2;
    rows.height = 300;
    rows.edited = true;
    window_->view()->show(rows);
    EXPECT_TRUE(window_->view()->isFull()) << "the rows below still stand";
    for (int x = 0; x < 240; ++x) {
        expected.setPixelColor(x, 100, QColor(1, 2, 3));
        expected.setPixelColor(x, 101, QColor(1, 2, 3));
    }
    EXPECT_EQ(window_->view()->fullPicture(), expected);
    rows.height = 200;  // of a picture of another size
    rows.firstRow = 0;
    window_->view()->show(rows);
    EXPECT_EQ(window_->view()->fullPicture(), expected);

    WindowBridge bridge;
    PublishedRows pass = rows;
    pass.edited = false;
    bridge.repaint(pass);
    bridge.repaint(rows);
    rows.rowCount = rows.height;
    bridge.repaint(rows);  // paints over the edit before it, and over nothing else
    rows.rowCount = 2;
    bridge.repaint(rows);
    const std::vector<PublishedRows> published = bridge.takePublished();
    ASSERT_EQ(published.size(), 3u);
    EXPECT_FALSE(published[0].edited);
    EXPECT_EQ(published[1].rowCount, rows.height);
    EXPECT_EQ(published[2].rowCount, 2);
}

TEST_F(MainWindowTest, OpenedFilesAreRememberedAmongTheProgramsOwnFiles) {
    Places& places = Places::current();
    const std::string shared = places.sharedFolder();
    places.setSharedFolder(folder_.file("shared"));
    window_->openForeground(QString::fromStdString(background_));
    EXPECT_TRUE(std::filesystem::exists(folder_.file("shared/QLXXML/Window.ini")));
    window_.reset();
    window_ = std::make_unique<MainWindow>(*info_);
    QString newest;
    for (QMenu* menu : window_->findChildren<QMenu*>()) {
        if (menu->title() != "Open &Recent") continue;
        emit menu->aboutToShow();
        newest = menu->actions().front()->text();
    }
    EXPECT_EQ(newest, "bg.png");
    places.setSharedFolder(shared);
}

TEST_F(MainWindowTest, AFileWhoseNameIsNoTextCanBeDropped) {
    ASSERT_TRUE(waitForPicture());
    QImage plain(240, 300, QImage::Format_RGB888);
    plain.fill(QColor(10, 20, 200));
    const std::string path = folder_.file("M\xf6we.png");
    std::filesystem::rename(test::savePng(plain, folder_.file("plain.png")), path);
    const QPoint right(window_->width() - 20, window_->height() / 2);
    const QUrl url = QUrl::fromEncoded(("file://" + folder_.file("M%F6we.png")).c_str());
    const QImage picture = pictureAfter([&] { dropUrls({url}, right); });
    EXPECT_EQ(info_->pBackgroundBitmapInfo->sSourceImageFullPath.load(), path);
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(10, 20, 200));
}

TEST_F(MainWindowTest, TheSizeBoxChangesTheOutput) {
    ASSERT_TRUE(waitForPicture());
    const int index = window_->sizeBox()->findText("other");
    ASSERT_GE(index, 0);
    const QImage picture = pictureAfter([&] {
        window_->sizeBox()->setCurrentIndex(index);
        emit window_->sizeBox()->activated(index);
    });
    EXPECT_EQ(picture.size(), QSize(100, 200));
}

TEST_F(MainWindowTest, NewPortraitsAreFramedUnlessThatIsTurnedOff) {
    ASSERT_TRUE(waitForPicture());
    const auto place = [this] { return placeOf(*info_->pForegroundBitmapInfo); };
    QImage wide(600, 300, QImage::Format_RGB888);
    wide.fill(QColor(40, 160, 60));
    for (int y = 100; y < 200; ++y)
        for (int x = 450; x < 530; ++x)
            wide.setPixelColor(x, y, QColor(200, 60, 50));
    const QString file = QString::fromStdString(test::savePng(wide, folder_.file("wide.png")));
    window_->frameAction()->setChecked(false);
    pictureAfter([&] { window_->openForeground(file); });
    EXPECT_EQ(place(), LayerPlace());
    const QImage framed = pictureAfter([&] { window_->frameAction()->setChecked(true); });
    EXPECT_NE(place(), LayerPlace());
    EXPECT_GT(framed.pixelColor(120, 180).red(), 150) << "the subject is not in the middle";
    const LayerPlace first = place();
    pictureAfter([&] { window_->openForeground(QString::fromStdString(foreground_)); });
    EXPECT_NE(place(), first) << "the next portrait has a frame of its own";
}

TEST_F(MainWindowTest, AStateFileBringsEverySettingBack) {
    ASSERT_TRUE(waitForPicture());
    const QString file = QString::fromStdString(folder_.file("a.qlx"));
    const QImage before = window_->view()->fullPicture();
    ASSERT_TRUE(saveState(file.toStdString()));
    const QImage brighter = pictureAfter([&] {
        info_->pBackgroundBitmapInfo->iBrightness = 60;
        info_->StartUpdate();
    });
    EXPECT_NE(brighter, before);
    const QImage after = pictureAfter([&] { window_->openState(file); });
    EXPECT_EQ(after, before);
}

TEST_F(MainWindowTest, ASizeOfThePicturesOwnHasAnEntryWhileItIsInForce) {
    ASSERT_TRUE(waitForPicture());
    const auto other = test::stateForOutput(240, 300);
    chooseOwnSize(*other, "postcard", 1.5, 1.0, 100);
    other->pForegroundBitmapInfo->sSourceImageFullPath = foreground_;
    other->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("own.qlx")), "");
    const int listed = window_->sizeBox()->count();
    const QImage picture = pictureAfter([&] { window_->openState(QString::fromStdString(folder_.file("own.qlx"))); });
    EXPECT_EQ(picture.size(), QSize(150, 100));
    EXPECT_EQ(window_->sizeBox()->currentText(), "postcard (this picture only)");
    EXPECT_EQ(window_->sizeBox()->count(), listed + 1);
    EXPECT_EQ(info_->iImageSizeCount(), listed);
    const QImage listedAgain = pictureAfter([&] {
        window_->sizeBox()->setCurrentIndex(0);
        emit window_->sizeBox()->activated(0);
    });
    EXPECT_EQ(listedAgain.size(), QSize(240, 300));
    EXPECT_EQ(window_->sizeBox()->count(), listed);
    EXPECT_EQ(window_->sizeBox()->currentText(), "test");
}

TEST_F(MainWindowTest, ProblemsOfTheStartAreShownAndHoldNothingUp) {
    window_->tellStartProblems("");
    EXPECT_EQ(window_->messages()->message(), "");
    window_->tellStartProblems("The list is damaged.\nThe state too.");
    ASSERT_TRUE(waitForPicture());
    EXPECT_TRUE(window_->messages()->isVisible());
    EXPECT_EQ(window_->messages()->details(), "The list is damaged.\nThe state too.");
}

TEST_F(MainWindowTest, AnUnreadableFileIsToldAndTheOldPictureStays) {
    ASSERT_TRUE(waitForPicture());
    const QImage before = window_->view()->fullPicture();
    const QImage after =
        pictureAfter([&] { window_->openForeground(QString::fromStdString(folder_.file("missing.jpg"))); });
    EXPECT_EQ(after, before);
    const auto boxes = window_->findChildren<QMessageBox*>();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0]->text(), "Cound not load file: missing.jpg, check your file permissions");
    EXPECT_FALSE(savePicture(folder_.file("missing-combined.jpg")));
    EXPECT_FALSE(std::filesystem::exists(folder_.file("missing-combined.jpg"))) << "it would be the old portrait's";
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->findChildren<QMessageBox*>().size(), 2);
    const QImage still =
        pictureAfter([&] { window_->openState(QString::fromStdString(folder_.file("missing.qlx"))); });
    EXPECT_EQ(still, before);
    EXPECT_EQ(window_->messages()->message(), "The state file cannot be opened.");
}

TEST_F(MainWindowTest, AMissingOverlayIsToldOnceHoweverManyPicturesAreMadeAndSaved) {
    ASSERT_TRUE(waitForPicture());
    info_->sForegroundOverlay = folder_.file("gone.png");
    info_->bHaveForegroundOverlay = true;
    for (int i = 0; i < 3; ++i) {
        pictureAfter([&] {
            info_->pForegroundBitmapInfo->iBrightness = i;
            info_->StartUpdate();
        });
        EXPECT_TRUE(savePicture(folder_.file("a.png")));
    }
    const auto boxes = window_->findChildren<QMessageBox*>();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0]->text(), "Cound not load file: gone.png, check your file permissions");
}

}  // namespace
}  // namespace tavrin

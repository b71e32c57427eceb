// The strip below the picture: folders, the walk through portraits, marks.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "core/files/NameText.h"
#include "support/Files.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class StripTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        qputenv("XDG_CACHE_HOME", folder_.file("cache").c_str());
        fs::create_directories(folder_.file("portraits"));
        fs::create_directories(folder_.file("backgrounds"));
        for (int i = 1; i <= 5; ++i) {
            test::savePng(test::discOnScreen(120, 150, QColor(40, 160, 60), QColor(200, 20 * i, 50)), portrait(i));
            test::savePng(test::noisePicture(120, 150, i), background(i));
        }
        info_->pForegroundBitmapInfo->sSourceImageFullPath = portrait(2);
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = background(1);
        openListed();
    }
    void TearDown() override {
        WindowTest::TearDown();
        qputenv("XDG_CACHE_HOME", cache_);
    }
    void openListed() {
        open();
        ASSERT_TRUE(test::eventually([&] { return list().rowCount() == 5; }));
        window_->view()->setFocus();
    }
    std::string portrait(int i) const { return folder_.file("portraits/p" + std::to_string(i) + ".png"); }
    std::string background(int i) const { return folder_.file("backgrounds/b" + std::to_string(i) + ".png"); }
    Strip& strip() { return *window_->strip(); }
    PictureList& list() { return strip().portraits()->list(); }
    /// The portrait under work, as its file's name.
    std::string present() const {
        return fs::path(info_->pForegroundBitmapInfo->sSourceImageFullPath.load()).stem().string();
    }
    std::string presentBackground() const {
        return fs::path(info_->pBackgroundBitmapInfo->sSourceImageFullPath.load()).stem().string();
    }
    void press(QWidget* widget, Qt::Key key) { QTest::keyClick(widget, key); }
    void click(StripView* view, int row, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, with,
                          view->visualRect(view->model()->index(row, 0)).center());
    }
    QString spoken(int row) { return list().index(row).data(Qt::AccessibleTextRole).toString(); }
    std::vector<std::string> shown() {
        std::vector<std::string> names;
        for (int row = 0; row < list().rowCount(); ++row)
            names.push_back(fs::path(list().path(row)).stem().string());
        return names;
    }
    void drop(const QStringList& files, bool left) {
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        QMimeData data;
        data.setUrls(urls);
        const QPoint at(left ? 20 : window_->view()->width() - 20, 300);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &enter);
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &event);
    }

    const QByteArray cache_ = qgetenv("XDG_CACHE_HOME");
};

TEST_F(StripTest, ShowsTheFolderOfThePortraitAndWalksThroughIt) {
    StripView* view = strip().portraits()->view();
    EXPECT_TRUE(
        test::eventually([&] { return !list().index(4).data(Qt::DecorationRole).value<QPixmap>().isNull(); }));
    EXPECT_EQ(spoken(1), "p2.png, open now");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(view)->child(1)->text(QAccessible::Name), "p2.png, open now");
    click(view, 3);
    EXPECT_EQ(present(), "p4");
    EXPECT_EQ(spoken(1), "p2.png");
    view->setFocus();
    press(view, Qt::Key_Left);
    EXPECT_EQ(present(), "p3");
    window_->view()->setFocus();
    press(window_->view(), Qt::Key_Right);
    press(window_->view(), Qt::Key_Right);
    EXPECT_EQ(present(), "p5");
    press(window_->view(), Qt::Key_Right);
    EXPECT_EQ(present(), "p5") << "there is none behind it";
    window_->view()->setPixelScale(20);  // about the middle
    press(window_->view(), Qt::Key_Right);
    const double left = window_->view()->zoom().frame().left();
    press(window_->view(), Qt::Key_Left);
    EXPECT_EQ(present(), "p5");
    EXPECT_NE(window_->view()->zoom().frame().left(), left) << "a large picture is moved";
    window_->view()->setZoomHome();
    window_->panel()->setFocus();
    press(window_->panel(), Qt::Key_PageUp);
    EXPECT_EQ(present(), "p4");
    press(window_->panel(), Qt::Key_PageDown);
    EXPECT_EQ(present(), "p5");
    EXPECT_EQ(window_->messages()->message(), "");
    EXPECT_EQ(PictureFiles::recentFiles().front().toStdString(), portrait(5)) << "opened as from the menu";
    click(view, 1, Qt::ControlModifier);
    click(view, 2, Qt::ControlModifier);
    EXPECT_EQ(present(), "p5") << "selecting opens nothing";
    EXPECT_EQ(strip().selectedPortraits().size(), 3);
}

TEST_F(StripTest, FollowsItsFolder) {
    test::savePng(test::discOnScreen(12, 15), folder_.file("portraits/p0.png"));
    EXPECT_TRUE(test::eventually([&] { return list().rowCount() == 6; }));
    EXPECT_EQ(spoken(2), "p2.png, open now");
    fs::remove(portrait(5));
    EXPECT_TRUE(test::eventually([&] { return list().rowCount() == 5; }));
    fs::rename(folder_.file("portraits"), folder_.file("moved"));
    EXPECT_TRUE(test::eventually([&] { return window_->messages()->message() == "The folder cannot be read."; }));
    EXPECT_EQ(list().rowCount(), 5) << "it may come back";
}

TEST_F(StripTest, ReadingAFolderCanBeGivenUp) {
    Shelf& shelf = *strip().backgrounds();
    ASSERT_TRUE(test::eventually([&] { return shelf.list().rowCount() == 5; }));
    auto* stop = shelf.findChild<QToolButton*>(shelf.view()->objectName() + "Stop");
    ASSERT_TRUE(stop);
    EXPECT_FALSE(stop->isVisible());
    shelf.follow(folder_.file("portraits"));  // what is listed comes with the events
    stop->click();
    EXPECT_EQ(shelf.folder(), "");
    QTest::qWait(700);
    EXPECT_FALSE(stop->isVisible());
    EXPECT_EQ(shelf.list().rowCount(), 5);
    EXPECT_EQ(QFileInfo(textOfName(shelf.list().path(0))).fileName(), "b1.png");
}

TEST_F(StripTest, ABackgroundIsLaidBehindByAClickAndItsFolderCanBeAnother) {
    PictureList& backgrounds = strip().backgrounds()->list();
    ASSERT_TRUE(test::eventually([&] { return backgrounds.rowCount() == 5; }));
    click(strip().backgrounds()->view(), 2);
    EXPECT_EQ(presentBackground(), "b3");
    EXPECT_EQ(present(), "p2");
    strip().backgrounds()->view()->setFocus();
    press(strip().backgrounds()->view(), Qt::Key_Right);
    EXPECT_EQ(presentBackground(), "b4");
    fs::create_directories(folder_.file("more"));
    test::savePng(test::noisePicture(12, 15, 8), folder_.file("more/m.png"));
    drop({QString::fromStdString(folder_.file("more"))}, false);
    EXPECT_EQ(info_->oQLXInfo->sPickDirectory.load(), folder_.file("more"));
    EXPECT_TRUE(test::eventually([&] { return backgrounds.rowCount() == 1; }));
    EXPECT_EQ(presentBackground(), "b4") << "nothing is opened by it";
    window_->openBackground(QString::fromStdString(background(1)));
    QTest::qWait(700);
    EXPECT_EQ(backgrounds.rowCount(), 1) << "the folder was chosen";
}

TEST_F(StripTest, AFolderOrManyPicturesFillItAndTheFirstIsOpened) {
    fs::create_directories(folder_.file("class"));
    for (const char* name : {"class/z.png", "class/k.png", "class/m.png"})
        test::savePng(test::discOnScreen(120, 150), folder_.file(name));
    drop({QString::fromStdString(folder_.file("class"))}, true);
    EXPECT_TRUE(test::eventually([&] { return present() == "k"; }));
    EXPECT_EQ(shown(), (std::vector<std::string>{"k", "m", "z"}));
    drop({QString::fromStdString(portrait(4)), QString::fromStdString(folder_.file("class/m.png")),
          QString::fromStdString(portrait(1))},
         false);
    EXPECT_EQ(present(), "p4");
    EXPECT_EQ(shown(), (std::vector<std::string>{"p4", "m", "p1"}));
    press(window_->view(), Qt::Key_Right);
    EXPECT_EQ(present(), "m");
    EXPECT_EQ(list().rowCount(), 3) << "and it stays";
    window_->openFile(QString::fromStdString(folder_.file("class")));
    EXPECT_TRUE(test::eventually([&] { return present() == "k"; }));
    fs::create_directories(folder_.file("empty"));
    window_->openFile(QString::fromStdString(folder_.file("empty")));
    EXPECT_TRUE(
        test::eventually([&] { return window_->messages()->message() == "There is no picture in the folder."; }));
    EXPECT_EQ(present(), "k");
}

TEST_F(StripTest, MarksAreSetByKeyFilteredAndTakenBack) {
    QWidget* view = window_->view();
    press(view, Qt::Key_K);
    EXPECT_EQ(present(), "p2");
    EXPECT_EQ(spoken(1), "p2.png, keep, open now");
    press(view, Qt::Key_X);
    EXPECT_EQ(present(), "p3") << "a rejected one gives way";
    EXPECT_EQ(spoken(1), "p2.png, reject");
    press(view, Qt::Key_L);
    auto* filter = window_->findChild<QComboBox*>("markFilter");
    const auto choose = [&](const char* entry) {
        filter->setCurrentText(entry);
        emit filter->activated(filter->currentIndex());
    };
    choose("Reject");
    EXPECT_EQ(shown(), (std::vector<std::string>{"p2"}));
    choose("Unmarked");
    EXPECT_EQ(shown(), (std::vector<std::string>{"p1", "p4", "p5"}));
    press(view, Qt::Key_Right);
    EXPECT_EQ(present(), "p4") << "from a portrait that is not shown to the next that is";
    press(view, Qt::Key_X);
    EXPECT_EQ(present(), "p5");
    press(view, Qt::Key_X);
    EXPECT_EQ(present(), "p1") << "from the last one back";
    EXPECT_EQ(shown(), (std::vector<std::string>{"p1"}));
    press(view, Qt::Key_X);
    EXPECT_EQ(present(), "p1") << "there is no other";
    choose("All");

    openListed();  // the next start
    EXPECT_EQ(spoken(0), "p1.png, reject, open now");
    EXPECT_EQ(spoken(2), "p3.png, look again");
    EXPECT_FALSE(action("TakeMarkBack")->isEnabled());
    press(window_->view(), Qt::Key_U);
    EXPECT_EQ(spoken(0), "p1.png, open now");
    press(window_->view(), Qt::Key_X);
    EXPECT_EQ(present(), "p2");
    QTest::keyClick(window_->view(), Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(present(), "p1");
    EXPECT_EQ(spoken(0), "p1.png, open now");
    QTest::keyClick(window_->view(), Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(spoken(0), "p1.png, reject, open now");
}

TEST_F(StripTest, IsFoldedAwayByItsKeyAndStaysSo) {
    StripView* view = strip().portraits()->view();
    EXPECT_TRUE(view->isVisible());
    press(window_->view(), Qt::Key_T);
    EXPECT_FALSE(view->isVisible());
    press(window_->view(), Qt::Key_Right);
    EXPECT_EQ(present(), "p3") << "the walk goes on without it";
    openListed();
    EXPECT_FALSE(strip().portraits()->view()->isVisible());
    EXPECT_FALSE(action("ShowStrip")->isChecked());
    press(window_->view(), Qt::Key_T);
    EXPECT_TRUE(strip().portraits()->view()->isVisible());
}

TEST_F(StripTest, APortraitThatCannotBeReadIsShownAsSuchAndTheOldPictureStays) {
    const QImage before = window_->view()->fullPicture();
    test::writeFile(portrait(3), "no picture");
    EXPECT_TRUE(test::eventually([&] { return spoken(2) == "p3.png, cannot be read"; }));
    press(window_->view(), Qt::Key_Right);
    EXPECT_TRUE(test::eventually([&] { return !window_->findChildren<QMessageBox*>().isEmpty(); }));
    delete window_->findChild<QMessageBox*>();
    QCoreApplication::processEvents();  // the keys are the window's again
    window_->activateWindow();
    ASSERT_TRUE(test::becomesActive(window_.get()));
    window_->view()->setFocus();
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(window_->view()->fullPicture(), before);
    press(window_->view(), Qt::Key_Right);
    EXPECT_EQ(present(), "p4");
}

TEST_F(StripTest, ThePortraitsBesideTheOpenOneAreReadAhead) {
    const auto ahead = [&](int i) { return strip().isReadAhead(QString::fromStdString(portrait(i))); };
    EXPECT_TRUE(test::eventually([&] { return ahead(1) && ahead(2) && ahead(3); }));
    press(window_->view(), Qt::Key_Right);
    EXPECT_TRUE(test::eventually([&] { return ahead(4); }));
    EXPECT_FALSE(ahead(1)) << "only what lies beside it";
    EXPECT_TRUE(ahead(2));
    ASSERT_TRUE(waitForPicture());
    EXPECT_GT(window_->view()->fullPicture().pixelColor(60, 75).green(), 40) << "the third one's disc";
}

TEST_F(StripTest, AFolderOfTenThousandIsScrolledThroughWithFewPicturesInMemory) {
    const std::string many = folder_.file("many");
    fs::create_directories(many);
    for (int i = 0; i < 10000; ++i)
        fs::create_hard_link(portrait(1), many + "/n" + std::to_string(10000 + i) + ".png");
    window_->openFolder(QString::fromStdString(many));
    ASSERT_TRUE(test::eventually([&] { return list().rowCount() == 10000; }));
    StripView* view = strip().portraits()->view();
    const auto hasSmall = [&](int row) {
        return !list().index(row).data(Qt::DecorationRole).value<QPixmap>().isNull();
    };
    for (int part = 1; part <= 10; ++part) {
        view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->maximum() / 10 * part);
        const auto [first, last] = view->visibleRows();
        EXPECT_EQ(view->indexAt({1, 10}).row(), first);
        EXPECT_TRUE(test::eventually([&, row = last] { return hasSmall(row); })) << part;
    }
    int held = 0;
    for (int row = 0; row < 10000; ++row)
        held += hasSmall(row);
    const auto [first, last] = view->visibleRows();
    EXPECT_LE(held, 5 * (last - first + 1));
    const int before = view->horizontalScrollBar()->value();
    QWheelEvent wheel({10, 10}, view->mapToGlobal(QPointF(10, 10)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &wheel);
    EXPECT_LT(view->horizontalScrollBar()->value(), before);
}

}  // namespace
}  // namespace tavrin

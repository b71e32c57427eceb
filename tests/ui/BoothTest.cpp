// The photo booth in the window: real clicks, and the pictures that come of them.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QToolButton>

#include "formats/ImageState.h"
#include "support/FakePrinters.h"
#include "support/Files.h"
#include "support/PrintPages.h"
#include "ui/WindowTest.h"
#include "ui/booth/EventPage.h"
#include "ui/booth/EventSetupPanel.h"
#include "ui/booth/GuestScreen.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class BoothTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        Places::current().setPicturesFolder(folder_.file("pictures/"));
        qputenv("XDG_CACHE_HOME", folder_.file("cache").c_str());
        for (const char* name : {"in", "vert", "horz", "out"})
            fs::create_directories(folder_.file(name));
        addGuest("anna");
        addGuest("ben");
        test::savePng(test::noisePicture(120, 150, 3), folder_.file("vert/beach.png"));
        test::savePng(test::noisePicture(120, 150, 4), folder_.file("vert/city.png"));
        QLXInfo& settings = *info_->oQLXInfo;
        settings.bAutoQLXSave = true;
        settings.sEventModeForegroundFolder = folder_.file("in");
        settings.sEventModeBackgroundVertFolder = folder_.file("vert");
        settings.sEventModeBackgroundHorzFolder = folder_.file("horz");
        settings.sEventModeOutputFolder = folder_.file("out");
        settings.sEventModePrinterName = "studio";
        info_->oPrinterPages = {test::pageOf(400, 600, {{0, 0, 400, 600}})};
        for (const char* name : {"in", "vert"})  // they have lain there for a while
            for (const auto& entry : fs::directory_iterator(folder_.file(name)))
                fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::minutes(5));
        open({1300, 1000});
        const auto printers = [this] { return std::make_unique<test::FakePrinters>(room_); };
        window_->booth()->setPrinters(printers);
        window_->printing()->setService(printers);
        window_->panel()->selectMainTab(3);
        ASSERT_TRUE(test::eventually([&] { return place("foregroundSelector", 2)->isEnabled(); }));
        ASSERT_TRUE(test::eventually([&] { return place("backgroundSelector", 2)->isEnabled(); }));
    }
    void TearDown() override {
        WindowTest::TearDown();
        Places::current().setPicturesFolder(pictures_);
        qputenv("XDG_CACHE_HOME", cache_);
    }
    void addGuest(const std::string& name) {
        test::savePng(test::discOnScreen(120, 150, QColor(40, 160, 60), QColor(200, 90, 50)),
                      folder_.file("in/" + name + ".png"));
    }
    QToolButton* place(const char* deck, int slot) {
        return part<QToolButton>((std::string(deck) + "Image" + std::to_string(slot)).c_str());
    }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = window_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void press(const char* name) { click(part<QToolButton>(name)); }
    void start() {
        press("eventModeStart");
        ASSERT_TRUE(window_->booth()->isRunning());
    }
    std::vector<std::string> made(const std::string& extension) {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.file("out")))
            if (entry.path().extension() == extension) names.push_back(entry.path().filename());
        return names;
    }
    bool comes(std::size_t pictures) {
        return test::eventually([&] { return made(".jpg").size() == pictures; });
    }
    QString words(const char* name) { return part<QLabel>(name)->text(); }
    std::string portrait() const { return info_->pForegroundBitmapInfo->sSourceImageFullPath; }
    std::string background() const { return info_->pBackgroundBitmapInfo->sSourceImageFullPath; }
    QString alertText() {
        QMessageBox* box = nullptr;
        test::eventually([&] { return (box = window_->findChild<QMessageBox*>()) != nullptr; });
        const QString text = box ? box->text() : QString();
        delete box;
        return text;
    }

    const QByteArray cache_ = qgetenv("XDG_CACHE_HOME");
    const std::string pictures_ = Places::current().picturesFolder();
    test::PrintRoom room_;
};

TEST_F(BoothTest, APressBecomesThePictureOfThatGuestAndThatBackground) {
    start();
    EXPECT_EQ(window_->windowTitle(), "Main Window - Event Mode");
    click(place("foregroundSelector", 2));
    ASSERT_TRUE(test::eventually([&] { return portrait() == folder_.file("in/ben.png"); }));
    EXPECT_EQ(part<QLineEdit>("textFieledSearch")->text(), "ben.png");
    click(place("backgroundSelector", 1));
    ASSERT_TRUE(test::eventually([&] { return background() == folder_.file("vert/beach.png"); }));
    press("eventModeSave");
    ASSERT_TRUE(comes(1));
    const std::string name = made(".jpg").front();
    EXPECT_EQ(name.substr(0, 4), "ben_");
    EXPECT_EQ(QImage(QString::fromStdString(folder_.file("out/" + name))).size(), QSize(240, 300));
    EXPECT_TRUE(test::eventually([&] { return words("textQLXCount") == "1" && words("textImageCount") == "1"; }));
    EXPECT_FALSE(part<QLabel>("foregroundSelectorText2")->isEnabled()) << "this guest was served";
    EXPECT_TRUE(part<QLabel>("foregroundSelectorText1")->isEnabled());
    SystemInfo ticket;
    ASSERT_EQ(LoadImageStateFromXML(ticket, folder_.file("out/" + made(".qlx").front()), kLoadAll), "");
    EXPECT_EQ(ticket.iEventSaveMode, 1);
    EXPECT_EQ(ticket.pBackgroundBitmapInfo->sSourceImageFullPath.load(), folder_.file("vert/beach.png"));
}

TEST_F(BoothTest, PrintsAreCountedAtThePressAndTheCountGoesBack) {
    start();
    press("eventModePrintCountUp");
    press("eventModePrintCountUp");
    EXPECT_EQ(part<QLineEdit>("textEventPrintCount")->text(), "3");
    press("eventModeSavePrint");
    EXPECT_EQ(part<QLineEdit>("textEventPrintCount")->text(), "1");
    ASSERT_TRUE(comes(1));
    EXPECT_TRUE(test::eventually([&] {
        const std::lock_guard lock(room_.mutex);
        return room_.printed.size() == 3;
    })) << room_.printed.size()
        << words("textEventPrinter").toStdString() << words("textEventProblem").toStdString();
    auto* copies = part<QLineEdit>("textEventPrintCount");
    copies->setFocus();
    copies->selectAll();
    QTest::keyClicks(copies, "2");
    press("eventModeSavePrint");
    EXPECT_TRUE(test::eventually([&] {
        const std::lock_guard lock(room_.mutex);
        return room_.printed.size() == 5;
    })) << "what is typed counts";
    for (int i = 0; i < 12; ++i)
        press("eventModePrintCountUp");
    EXPECT_EQ(part<QLineEdit>("textEventPrintCount")->text(), "10");
}

TEST_F(BoothTest, BadAddressesAndNumbersAreAlertedAndNothingIsSaved) {
    start();
    part<QLineEdit>("textFieledEventEmail")->setText("nobody.example");
    press("eventModeSaveEmail");
    EXPECT_EQ(alertText(), "Bad Email Address");
    part<QLineEdit>("textFieledEventEmail")->setText("555.123.4567");
    press("eventModeSendText");
    EXPECT_EQ(alertText(), "Bad Phone Number");
    press("eventModeSave");
    ASSERT_TRUE(comes(1));
    EXPECT_EQ(made(".qlx").size(), 1U);
}

TEST_F(BoothTest, NewPortraitsComeByThemselvesAndAreFoundByName) {
    addGuest("carla");
    EXPECT_TRUE(test::eventually([&] { return place("foregroundSelector", 3)->isEnabled(); }));
    part<QLineEdit>("textFieledSearch")->setText("CARL");
    press("buttonEventSearch");
    EXPECT_EQ(part<QLineEdit>("textFieledSearch")->text(), "carla.png");
    EXPECT_EQ(place("foregroundSelector", 1)->toolTip(), "carla.png");
    part<QLineEdit>("textFieledSearch")->setText("dora");
    press("buttonEventSearch");
    EXPECT_EQ(part<QLineEdit>("textFieledSearch")->text(), "File Not Found");
}

TEST_F(BoothTest, WhatWaitsAtAStopIsMadeWithTheNextStart) {
    start();
    press("eventModeStop");
    EXPECT_FALSE(part<QToolButton>("eventModeSave")->isEnabled());
    EXPECT_EQ(window_->windowTitle(), "Main Window - Adjust/Load Mode");
    ASSERT_TRUE(test::eventually([&] { return part<QToolButton>("eventModeStart")->isEnabled(); }));
    EXPECT_TRUE(waitForPicture()) << "the screen gets its full picture back";
    const std::string ticket = folder_.file("out/left_1.qlx");
    ASSERT_EQ(saveImageStateToXML(*info_, ticket), "");
    start();
    EXPECT_TRUE(comes(1));
}

TEST_F(BoothTest, NothingComesOfABoothThatCannotWork) {
    info_->oQLXInfo->bAutoQLXSave = false;
    start();
    EXPECT_FALSE(words("textEventProblem").isEmpty());
    press("eventModeStop");
    ASSERT_TRUE(test::eventually([&] { return part<QToolButton>("eventModeStart")->isEnabled(); }));
    info_->oQLXInfo->sEventModeOutputFolder = folder_.file("nowhere");
    press("eventModeStart");
    EXPECT_FALSE(window_->booth()->isRunning());
    EXPECT_TRUE(part<QLabel>("textEventProblem")->text().contains("nowhere"));
    EXPECT_TRUE(part<QToolButton>("eventModeStart")->isEnabled());
}

TEST_F(BoothTest, ALineOfTextLiesOnThePicture) {
    part<QLineEdit>("textFieledEventUserName")->setText("Anna");
    press("buttonEventAddText");
    ASSERT_TRUE(test::eventually([&] { return info_->iFontObjectCount() == 1; }));
    EXPECT_EQ(info_->oFontObject[0].sText.load(), "Anna");
    EXPECT_TRUE(part<QLineEdit>("textFieledEventUserName")->text().isEmpty());
    ASSERT_TRUE(waitForPicture());
    action("UndoButton")->trigger();
    EXPECT_EQ(info_->iFontObjectCount(), 0);
}

TEST_F(BoothTest, GuestsTouchABackgroundAndCannotLeave) {
    press("buttonGuestScreen");
    GuestScreen* guests = window_->booth()->guestScreen();
    ASSERT_TRUE(guests);
    auto* grid = guests->findChild<QAbstractItemView*>("guestBackgrounds");
    ASSERT_TRUE(test::eventually([&] { return grid->model()->rowCount() == 2; }));
    if (QGuiApplication::screens().size() > 1) {
        EXPECT_NE(guests->screen(), window_->screen());
        EXPECT_EQ(guests->geometry(), guests->screen()->geometry());
    }
    EXPECT_GE(guests->findChild<QToolButton*>("guestOn")->height() * 72, 60 * guests->logicalDpiY());
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid->visualRect(grid->model()->index(1, 0)).center());
    EXPECT_TRUE(test::eventually([&] { return background() == folder_.file("vert/city.png"); }));
    guests->close();
    QTest::keyClick(guests, Qt::Key_Escape);
    EXPECT_TRUE(guests->isVisible());
    press("buttonGuestScreen");
    EXPECT_FALSE(window_->booth()->guestScreen());
}

TEST_F(BoothTest, APackIsCountedDownFromBeforeTheFirstStart) {
    press("buttonEventRefill");
    start();
    EXPECT_TRUE(test::eventually([&] { return words("textEventPrinter").contains("100"); }))
        << words("textEventPrinter").toStdString();
    press("eventModeSavePrint");
    EXPECT_TRUE(test::eventually([&] { return words("textEventPrinter").contains("99"); }));
}

TEST_F(BoothTest, SetupShowsAndKeepsWhatTheEveningNeeds) {
    press("buttonEventSetup");
    auto* setup = window_->findChild<EventSetupPanel*>("MyEventSetupPanel");
    ASSERT_TRUE(setup);
    EXPECT_EQ(setup->findChild<QLineEdit*>("textEventOutputFolder")->text(),
              QString::fromStdString(folder_.file("out")));
    setup->findChild<QLineEdit*>("textEventEmailTitle")->setText("Your picture");
    setup->setPrinters({"Booth", "Office"});
    EXPECT_EQ(info_->oQLXInfo->sEventModePrinterName.load(), "Booth");
    click(setup->findChild<QToolButton*>("buttonHideEventSetup"));
    EXPECT_EQ(info_->oQLXInfo->sEventModeEmailTitle.load(), "Your picture");
    QFile file(QString::fromStdString(Places::current().settingsFile()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Your picture"));
}

}  // namespace
}  // namespace tavrin

// The batch page: its controls, both runs, what fails, and what a person does meanwhile.
#include <algorithm>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "support/Faults.h"
#include "support/SmallDisk.h"
#include "ui/WindowTest.h"
#include "ui/batch/SortPanel.h"
#include "ui/bind/Groove.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class BatchTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        for (const char* name : {"fg", "bg", "qlx", "out"})
            fs::create_directory(folder_.file(name));
        settings().bLastBatchCheckForNewFiles = false;
        open({1300, 1000});
        window_->batch()->setNotify(
            [this](const QString& title, const QString& text) { notices_.append(title + ' ' + text); });
        window_->panel()->selectMainTab(5);
    }
    QLXInfo& settings() { return *info_->oQLXInfo; }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = window_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void press(const char* name) {
        auto* button = part<QToolButton>(name);
        EXPECT_TRUE(button->isEnabled()) << name;
        button->click();
    }
    QListWidget* list(const char* name) { return part<QListWidget>(name); }
    QStringList rows(const char* name) {
        QStringList all;
        for (int row = 0; row < list(name)->count(); ++row)
            all.append(list(name)->item(row)->text());
        return all;
    }
    void portrait(const char* name, QColor color = QColor(200, 60, 50)) {
        test::savePng(test::discOnScreen(60, 40, QColor(40, 160, 60), color), folder_.file(name));
    }
    void background(const char* name, QColor color) {
        QImage image(60, 40, QImage::Format_RGB888);
        image.fill(color);
        test::savePng(image, folder_.file(name));
    }
    void useFolders() {
        settings().sLastBatchOutput = folder_.file("out");
        settings().sLastBatchForeground = folder_.file("fg");
        settings().sLastBatchBackground = folder_.file("bg");
        BatchEngine& engine = window_->batch()->engine();
        engine.nextBatchForegroundFile.setFolderToCheck(folder_.file("fg"));
        engine.nextBatchBackgroundFile.setFolderToCheck(folder_.file("bg"));
        engine.nextBatchForegroundFile.setHistoryFileLocation(folder_.file("out"), "ForegroundHistory.dat");
        window_->batch()->updateBatchUI();
    }
    void fillFolders() {
        portrait("fg/ada.png");
        portrait("fg/ben.png", QColor(150, 40, 160));
        background("bg/sea.png", QColor(20, 60, 200));
        useFolders();
    }
    bool waitForEnd() {
        return test::eventually([this] { return !window_->batch()->isRunning(); });
    }
    QStringList made(const char* sub = "out") {
        return QDir(QString::fromStdString(folder_.file(sub))).entryList({"*.png", "*.jpg", "*.tif"}, QDir::Files);
    }
    void choose(const char* button, const char* folder) {
        press(button);
        auto* dialog = part<QFileDialog>("batchFolderDialog");
        if (!folder) return dialog->reject();
        emit dialog->fileSelected(QString::fromStdString(folder_.file(folder)));
        dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList notices_;
};

TEST_F(BatchTest, EveryControlDrivesItsSetting) {
    const struct {
        const char *stem, *folder;
        Field<std::string> QLXInfo::*path;
    } folders[] = {{"BatchForegroundFolder", "fg", &QLXInfo::sLastBatchForeground},
                   {"BatchBackgroundFolder", "bg", &QLXInfo::sLastBatchBackground},
                   {"BatchQLXFolder", "qlx", &QLXInfo::sLastBatchQLX},
                   {"BatchOutputFolder", "out", &QLXInfo::sLastBatchOutput}};
    for (const auto& [stem, folder, path] : folders) {
        SCOPED_TRACE(stem);
        const std::string choose_ = std::string("choose") + stem, clear = std::string("clear") + stem,
                          shown = std::string(stem) + "Path";
        choose(choose_.c_str(), folder);
        EXPECT_EQ((settings().*path).load(), folder_.file(folder));
        EXPECT_EQ(part<QLineEdit>(shown.c_str())->text().toStdString(), folder_.file(folder));
        choose(choose_.c_str(), nullptr);
        EXPECT_EQ((settings().*path).load(), folder_.file(folder)) << "a dialog that is left changes nothing";
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        press(clear.c_str());
        EXPECT_EQ((settings().*path).load(), "");
        EXPECT_EQ(part<QLineEdit>(shown.c_str())->text(), "");
    }
    for (const int key : {2, 3, 1}) {
        press(("radioBatchOutputType" + std::to_string(key)).c_str());
        EXPECT_EQ(settings().iLastBatchLastOutputFileType, key);
        press(("radioBatchOutputStyle" + std::to_string(key)).c_str());
        EXPECT_EQ(settings().iLastBatchLastOutputStyle, key);
    }
    const std::pair<const char*, Field<bool> QLXInfo::*> boxes[] = {
        {"checkboxBatchWatch", &QLXInfo::bLastBatchCheckForNewFiles},
        {"checkboxBatchLowResolution", &QLXInfo::bLastBatchOutputLowResolution},
        {"checkboxNamedSubfolder", &QLXInfo::bUseBackgroundSubfolders},
        {"checkboxUseXML", &QLXInfo::bUseBatchXMLFile}};
    for (const auto& [name, setting] : boxes) {
        SCOPED_TRACE(name);
        for (const bool on : {true, false}) {
            part<QCheckBox>(name)->click();
            EXPECT_EQ((settings().*setting).load(), on);
        }
    }
    EXPECT_FALSE(part<QToolButton>("buttonBatchStop")->isEnabled());
    EXPECT_FALSE(part<QToolButton>("buttonBatchAgain")->isEnabled());
}

TEST_F(BatchTest, ARunShowsItsPlanItsPicturesAndItsSums) {
    fillFolders();
    settings().iLastBatchLastOutputFileType = 2;
    settings().iLastBatchLastOutputStyle = 1;
    window_->batch()->updateBatchUI();
    ASSERT_TRUE(test::eventually([&] { return list("listBatchPlan")->count() == 2; }));
    EXPECT_EQ(rows("listBatchPlan"),
              (QStringList{"adasea.png from ada.png + sea.png", "bensea.png from ben.png + sea.png"}));
    EXPECT_EQ(part<QLabel>("textBatchFileCount")->text(), "2");
    EXPECT_EQ(part<QLabel>("textBatchProcessedCount")->text(), "0");
    press("buttonBatchStart");
    EXPECT_FALSE(part<QToolButton>("buttonBatchStart")->isEnabled());
    EXPECT_TRUE(part<QToolButton>("buttonBatchStop")->isEnabled());
    part<Groove>("sliderBrightness")->setValue(104);  // the window stays usable
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(made(), (QStringList{"adasea.png", "bensea.png"}));
    EXPECT_EQ(list("listBatchResults")->count(), 2);
    EXPECT_TRUE(test::eventually([&] { return !list("listBatchResults")->item(0)->icon().isNull(); }));
    EXPECT_TRUE(part<QLabel>("batchTimeLeft")->text().startsWith("Pictures made: 2, in "));
    ASSERT_EQ(notices_.size(), 1);
    EXPECT_TRUE(notices_[0].startsWith("The batch has ended. Pictures made: 2"));
    EXPECT_TRUE(part<QToolButton>("buttonBatchStart")->isEnabled());
    EXPECT_TRUE(test::eventually([&] { return list("listBatchPlan")->count() == 0; })) << "all of it was made";
    EXPECT_TRUE(test::eventually([&] { return part<QLabel>("textBatchProcessedCount")->text() == "2"; }));
    press("buttonBatchClearHistory");
    EXPECT_TRUE(test::eventually([&] { return list("listBatchPlan")->count() == 2; }));
}

TEST_F(BatchTest, WhatFailsIsListedWithoutADialogAndMadeAgain) {
    fillFolders();
    std::ofstream(folder_.file("fg/ben.png")) << "no picture";
    press("buttonBatchStart");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(window_->findChildren<QMessageBox*>().size(), 0);
    ASSERT_EQ(list("listBatchFailures")->count(), 1);
    EXPECT_TRUE(rows("listBatchFailures")[0].contains("ben.png")) << rows("listBatchFailures")[0].toStdString();
    EXPECT_EQ(made(), QStringList{"adasea.jpg"}) << "an account that never chose has JPEG and joined names";
    portrait("fg/ben.png");
    press("buttonBatchAgain");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(list("listBatchFailures")->count(), 0);
    EXPECT_EQ(made(), (QStringList{"adasea.jpg", "bensea.jpg"}));
}

// What was there stays, what could not be written is listed with its reason, and comes when there is room again.
TEST_F(BatchTest, AFullDiskIsSaidInThePanelAndLosesNothing) {
    settings().iLastBatchLastOutputFileType = 2;
    settings().iLastBatchLastOutputStyle = 1;
    for (const char* start : {"buttonBatchStart", "buttonBatchFast"}) {
        SCOPED_TRACE(start);
        fs::remove_all(folder_.file("out"));
        fs::create_directory(folder_.file("out"));
        const std::string other = folder_.file("out/other.png");
        std::ofstream(other) << "somebody's";
        fillFolders();
        test::savePng(test::noisePicture(240, 300, 5), folder_.file("bg/sea.png"));  // some 200,000 bytes
        {
            const test::SmallDisk disk(60'000);  // enough for what the program keeps for itself, not for a picture
            press(start);
            ASSERT_TRUE(waitForEnd());
        }
        EXPECT_EQ(window_->findChildren<QMessageBox*>().size(), 0);
        ASSERT_EQ(list("listBatchFailures")->count(), 2) << rows("listBatchFailures").join('|').toStdString();
        for (const QString& row : rows("listBatchFailures"))
            EXPECT_TRUE(row.contains("larger than this disk allows")) << row.toStdString();
        EXPECT_EQ(made(), QStringList{"other.png"});
        EXPECT_EQ(test::partsIn(folder_.file("out")), std::vector<std::string>{});
        press("buttonBatchAgain");
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(list("listBatchFailures")->count(), 0) << rows("listBatchFailures").join('|').toStdString();
        EXPECT_EQ(made(), (QStringList{"adasea.png", "bensea.png", "other.png"}));
        EXPECT_EQ(fs::file_size(other), 10u);
    }
}

TEST_F(BatchTest, FoldersThatAreNotThereAreSaidInThePanelAndNothingBegins) {
    const auto refused = [this](const QString& words) {
        press("buttonBatchStart");
        EXPECT_FALSE(window_->batch()->isRunning());
        EXPECT_TRUE(part<QLabel>("textBatchProblem")->text().contains(words))
            << part<QLabel>("textBatchProblem")->text().toStdString();
        EXPECT_TRUE(window_->messages()->details().contains(words));
    };
    refused("Choose a folder for the finished pictures.");
    fillFolders();
    fs::remove_all(folder_.file("bg"));
    refused("bg is not there.");
    press("buttonBatchFast");
    EXPECT_FALSE(window_->batch()->isRunning());
}

TEST_F(BatchTest, TheFastRunTellsItsPlanMakesItAndTriesAgain) {
    fillFolders();
    std::ofstream(folder_.file("fg/cleo.png")) << "no picture";
    settings().iLastBatchLastOutputFileType = 2;
    settings().iLastBatchLastOutputStyle = 1;
    editor().set("foreground.iBrightness", "90");
    press("buttonBatchFastLook");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(rows("listBatchPlan"),
              (QStringList{"adasea.png from ada.png", "bensea.png from ben.png", "cleosea.png from cleo.png"}));
    EXPECT_EQ(made(), QStringList{});
    EXPECT_TRUE(notices_.isEmpty());

    const std::string before = editor().value("foreground.sSourceImageFullPath");
    press("buttonBatchFast");
    EXPECT_TRUE(part<QToolButton>("buttonBatchStop")->isEnabled());
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(made(), (QStringList{"adasea.png", "bensea.png"}));
    EXPECT_EQ(editor().value("foreground.sSourceImageFullPath"), before) << "the open picture stays";
    ASSERT_EQ(list("listBatchFailures")->count(), 1) << rows("listBatchFailures").join('|').toStdString();
    EXPECT_TRUE(rows("listBatchFailures")[0].contains("cleo.png"));
    EXPECT_EQ(notices_.size(), 1);
    const QImage ada(QString::fromStdString(folder_.file("out/adasea.png")));
    EXPECT_EQ(ada.size(), QSize(240, 300)) << "the present output size";
    int reddest = 0;
    for (int y = 0; y < ada.height(); ++y)
        for (int x = 0; x < ada.width(); ++x)
            reddest = std::max(reddest, qRed(ada.pixel(x, y)));
    EXPECT_GT(reddest, 225) << "with the present settings";

    portrait("fg/cleo.png");
    press("buttonBatchAgain");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(made(), (QStringList{"adasea.png", "bensea.png", "cleosea.png"}));
    EXPECT_EQ(list("listBatchFailures")->count(), 0) << rows("listBatchFailures").join('|').toStdString();
}

TEST_F(BatchTest, ARunThatWatchesGoesOnUntilItIsStopped) {
    fillFolders();
    part<QCheckBox>("checkboxBatchWatch")->click();
    for (const char* start : {"buttonBatchStart", "buttonBatchFast"}) {
        SCOPED_TRACE(start);
        const std::size_t there = static_cast<std::size_t>(made().size());
        press(start);
        if (there == 0) {
            ASSERT_TRUE(test::eventually([&] { return made().size() == 2; }));
            portrait("fg/late.png");
            ASSERT_TRUE(test::eventually([&] { return made().size() == 3; }));
        } else {
            QTest::qWait(1500);
        }
        EXPECT_TRUE(window_->batch()->isRunning());
        press("buttonBatchStop");
        ASSERT_TRUE(waitForEnd());
    }
}

TEST_F(BatchTest, ClosingAWindowWithARunAsks) {
    fillFolders();
    part<QCheckBox>("checkboxBatchWatch")->click();
    press("buttonBatchStart");
    window_->close();
    EXPECT_TRUE(window_->isVisible());
    part<QMessageBox>("batchQuestion")->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window_->batch()->isRunning());
    window_->close();
    part<QPushButton>("stopBatchAndClose")->click();
    EXPECT_TRUE(test::eventually([this] { return !window_->isVisible(); }));
    EXPECT_FALSE(window_->batch()->isRunning());
}

TEST_F(BatchTest, AFolderThatVanishesInARunIsSaidAndTheRunGoesOnWhenItIsBack) {
    fillFolders();
    part<QCheckBox>("checkboxBatchWatch")->click();
    press("buttonBatchStart");
    ASSERT_TRUE(test::eventually([&] { return made().size() == 2; }));
    fs::rename(folder_.file("fg"), folder_.file("elsewhere"));
    auto* problem = part<QLabel>("textBatchProblem");
    EXPECT_TRUE(test::eventually([&] { return problem->text().endsWith("fg is not there."); }));
    EXPECT_TRUE(window_->batch()->isRunning());
    fs::rename(folder_.file("elsewhere"), folder_.file("fg"));
    portrait("fg/late.png");
    EXPECT_TRUE(test::eventually([&] { return made().size() == 3; }));
    EXPECT_TRUE(test::eventually([&] { return problem->isHidden(); }));
    press("buttonBatchStop");
    ASSERT_TRUE(waitForEnd());
}

TEST_F(BatchTest, AFastRunThatIsKilledTakesNothingAndTheNextMakesTheRest) {
    fillFolders();
    part<QCheckBox>("checkboxBatchWatch")->click();
    press("buttonBatchFast");
    ASSERT_TRUE(test::eventually([&] { return made().size() == 2; }));
    const std::string self = std::to_string(::getpid());
    std::ifstream children("/proc/" + self + "/task/" + self + "/children");
    pid_t program = 0;
    if (!(children >> program)) {
        press("buttonBatchStop");
        ASSERT_TRUE(waitForEnd());
        GTEST_SKIP() << "this system does not tell the children of a process";
    }
    ::kill(program, SIGKILL);
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(list("listBatchFailures")->count(), 1);
    EXPECT_TRUE(rows("listBatchFailures")[0].startsWith("The fast batch broke off."));
    EXPECT_TRUE(window_->isVisible());
    part<QCheckBox>("checkboxBatchWatch")->click();
    portrait("fg/late.png");
    press("buttonBatchFast");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(made().size(), 3);
    EXPECT_EQ(list("listBatchFailures")->count(), 0) << rows("listBatchFailures").join('|').toStdString();
    EXPECT_TRUE(part<QLabel>("batchTimeLeft")->text().contains("made before: 2"))
        << part<QLabel>("batchTimeLeft")->text().toStdString();
}

TEST_F(BatchTest, PhotosAreSortedByShapeBesideTheMainThread) {
    auto* panel = part<SortPanel>("sortPanel");
    EXPECT_FALSE(part<QToolButton>("sortImagesInFolder")->isEnabled());
    test::savePng(test::discOnScreen(60, 40), folder_.file("fg/wide.png"));
    test::savePng(test::discOnScreen(40, 60), folder_.file("fg/high.png"));
    panel->setFolder(QString::fromStdString(folder_.file("fg")));
    EXPECT_EQ(part<QLabel>("textNumberOfImages")->text(), "2");
    press("sortImagesInFolder");
    ASSERT_TRUE(test::eventually([&] { return !panel->isRunning(); }));
    EXPECT_EQ(part<QLabel>("textNumberOfHImages")->text(), "1");
    EXPECT_EQ(part<QLabel>("textNumberOfVImages")->text(), "1");
    EXPECT_TRUE(fs::exists(folder_.file("fg/Landscape/wide.png")) &&
                fs::exists(folder_.file("fg/Portrait/high.png")));
    EXPECT_TRUE(window_->messages()->message().startsWith("The photos are sorted.")) << "and says so";
    fs::remove_all(folder_.file("fg"));
    press("sortImagesInFolder");
    EXPECT_TRUE(test::eventually([&] { return window_->messages()->message() == "The photos are not sorted."; }));
}

}  // namespace
}  // namespace tavrin

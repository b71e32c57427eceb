// Printing a folder from the window: its controls, the page that is chosen, and the run.
#include <filesystem>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "formats/SettingsFile.h"
#include "support/FakePrinters.h"
#include "support/PrintPages.h"
#include "ui/WindowTest.h"
#include "ui/sizes/TemplateView.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class BatchPrintPanelTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        fs::create_directory(folder_.file("photos"));
        info_->oPrinterPages = {test::pageOf("Small", 200, 250), test::pageOf("Large", 500, 400)};
        settings().sSelectedBatchPrinterTemplate = "Large";
        settings().bWatchPrintFolder = false;
        open({1300, 1000});
        window_->printing()->setService([this] { return std::make_unique<test::FakePrinters>(room_); });
        window_->panel()->selectMainTab(6);
        ASSERT_TRUE(test::eventually([&] { return part<QComboBox>("comboBoxPrinterNames")->count() == 1; }));
    }
    QLXInfo& settings() { return *info_->oQLXInfo; }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = window_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    QString text(const char* label) { return part<QLabel>(label)->text(); }
    std::size_t printed() {
        const std::lock_guard lock(room_.mutex);
        return room_.printed.size();
    }
    void photo(const char* name) {
        test::savePng(test::discOnScreen(60, 80), folder_.file(std::string("photos/") + name));
    }

    test::PrintRoom room_;
};

TEST_F(BatchPrintPanelTest, TheFolderIsPrintedOnTheChosenPageAndCounted) {
    EXPECT_EQ(settings().sSelectedBatchPrinterName.load(), "studio") << "the first one where none was chosen";
    EXPECT_EQ(part<QLineEdit>("textSelectedPrinterTemplate")->text(), "Large");
    auto* start = part<QToolButton>("buttonBatchPrintStart");
    start->click();
    EXPECT_EQ(window_->messages()->message(), "Choose the folder whose photos are to be printed.");
    photo("a.png");
    photo("b.png");
    window_->folderPrint()->engine().setFolder(folder_.file("photos"));
    EXPECT_EQ(part<QLineEdit>("textBatchPrintFolder")->text().toStdString(), folder_.file("photos"));
    ASSERT_TRUE(test::eventually([&] { return text("textBatchPrintFileCount") == "2"; }));
    EXPECT_EQ(text("textBatchPrintStatus"), "Batch Print Stopped");
    start->click();
    ASSERT_TRUE(test::eventually([&] { return text("textBatchPrintProcessedCount") == "2" && start->isEnabled(); }));
    EXPECT_EQ(printed(), 2u);
    EXPECT_EQ(room_.printed[0], "a.png, Large on A4");
    EXPECT_FALSE(part<QToolButton>("buttonBatchPrintStop")->isEnabled());
    EXPECT_EQ(text("textBatchPrintStatus"), "Batch Print Stopped");
    part<QToolButton>("clickedButtonClearHistory")->click();
    EXPECT_TRUE(test::eventually([&] { return text("textBatchPrintProcessedCount") == "0"; }));
}

TEST_F(BatchPrintPanelTest, AWatchedFolderGoesOnUntilStopAndSaysWhatItWaitsFor) {
    window_->folderPrint()->engine().setFolder(folder_.file("photos"));
    QTest::mouseClick(part<QCheckBox>("buttonBatchPrintWatchState"), Qt::LeftButton, {}, {8, 8});
    ASSERT_TRUE(settings().bWatchPrintFolder);
    part<QToolButton>("buttonBatchPrintStart")->click();
    EXPECT_TRUE(test::eventually([&] { return text("textBatchPrintStatus") == "Waiting for photos that arrive"; }));
    {
        const std::lock_guard lock(room_.mutex);
        room_.trouble = "It is out of paper.";
    }
    photo("a.png");
    EXPECT_TRUE(test::eventually([&] { return text("textBatchPrintStatus") == "Waiting: It is out of paper."; }));
    {
        const std::lock_guard lock(room_.mutex);
        room_.trouble.clear();
    }
    EXPECT_TRUE(test::eventually([&] { return printed() == 1; }));
    part<QToolButton>("buttonBatchPrintStop")->click();
    EXPECT_TRUE(test::eventually([&] { return part<QToolButton>("buttonBatchPrintStart")->isEnabled(); }));
}

TEST_F(BatchPrintPanelTest, ThePanelChoosesAPageAndKeepsItForFoldersAndForEvents) {
    part<QToolButton>("showBatchPrinterTemplate")->click();
    auto* panel = part<QDialog>("MyBatchPrinterTemplatePanel");
    ASSERT_TRUE(panel->isVisible());
    auto* combo = part<QComboBox>("comboBatchPrinterTemplate");
    EXPECT_EQ(combo->currentIndex(), 1) << "found by its title";
    auto* view = part<TemplateView>("imageViewBatchPrinterTemplate");
    ASSERT_TRUE(test::eventually([&] { return view->sheet().width() > view->sheet().height(); }));
    combo->setCurrentIndex(0);
    emit combo->activated(0);
    EXPECT_EQ(settings().iSelectedBatchPrinterTemplate, 0);
    EXPECT_EQ(part<QLineEdit>("textSelectedPrinterTemplate")->text(), "Small");
    EXPECT_TRUE(test::eventually([&] { return view->sheet().width() < view->sheet().height(); }));
    QLXInfo kept;
    ASSERT_EQ(LoadQLXFile(kept), "");
    EXPECT_EQ(kept.sSelectedBatchPrinterTemplate.load(), "Small");
    part<QPushButton>("SelectBatchPrintTemplate")->click();
    EXPECT_FALSE(panel->isVisible());

    settings().sEventModeSelectedTemplate = "gone";
    settings().iEventModeSelectedTemplate = 1;
    TemplatePanel event(
        eventTemplates(), *info_, [] { return QImage(); }, window_.get());
    EXPECT_EQ(settings().iEventModeSelectedTemplate, 0) << "the first where none has the title";
    EXPECT_EQ(settings().sEventModeSelectedTemplate.load(), "gone") << "which may come back";
    EXPECT_FALSE(event.findChild<QPushButton*>("SelectBatchPrintTemplate"));
    EXPECT_TRUE(event.findChild<QPushButton*>("hideEventPrinterTemplate"));
}

}  // namespace
}  // namespace tavrin

// Printing from the window, on a printing system of the test's own.
#include <filesystem>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolButton>

#include "support/FakePrinters.h"
#include "support/Files.h"
#include "support/PrintPages.h"
#include "ui/WindowTest.h"
#include "ui/print/PrintDialog.h"

namespace tavrin {
namespace {

class PrintTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        info_->oPrinterPages = {test::pageOf("Small", 200, 250), test::pageOf("Large", 2000, 1000)};
        openOn(room_);
    }
    void openOn(test::PrintRoom& room) {
        open({1300, 1000});
        window_->printing()->setService([&room] { return std::make_unique<test::FakePrinters>(room); });
        window_->panel()->selectMainTab(6);
    }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = window_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void press(const char* name) { part<QAbstractButton>(name)->click(); }
    /// The dialog, once it knows the printers.
    PrintDialog* openDialog() {
        action("mainButtonPrint")->trigger();
        auto* dialog = window_->findChild<PrintDialog*>("MyPrinterTemplatePanel");
        EXPECT_TRUE(dialog && test::eventually([&] { return part<QComboBox>("comboPrinter")->isEnabled(); }));
        return dialog;
    }
    std::size_t printed() {
        const std::lock_guard lock(room_.mutex);
        return room_.printed.size();
    }
    void set(const std::function<void()>& change) {
        const std::lock_guard lock(room_.mutex);
        change();
    }
    bool waits(int count) {
        return test::eventually([&] { return part<QTableWidget>("waitingSheets")->rowCount() == count; });
    }
    QString stateOf(int row) { return part<QTableWidget>("waitingSheets")->item(row, 2)->text(); }

    test::PrintRoom room_;
};

TEST_F(PrintTest, ThePictureIsPrintedOnTheChosenPageAsOftenAsWanted) {
    ASSERT_TRUE(openDialog());
    part<QSpinBox>("printCopies")->setValue(2);
    auto* page = part<QComboBox>("comboPrinterTemplate");
    EXPECT_EQ(page->count(), 2);
    page->setCurrentIndex(1);
    emit page->activated(1);
    EXPECT_EQ(info_->oQLXInfo->sSelectedPrinterTemplate.load(), "Large");
    EXPECT_TRUE(part<QLabel>("printTold")->isVisible()) << "larger than the paper";
    page->setCurrentIndex(0);
    emit page->activated(0);
    EXPECT_FALSE(part<QLabel>("printTold")->isVisible());
    ASSERT_TRUE(test::eventually([&] { return part<QLabel>("printPaper")->text() == "A4"; }));
    press("PrintTemplate");
    EXPECT_TRUE(test::eventually([&] { return printed() == 2; }));
    EXPECT_EQ(info_->iEventPrintCount, 2);
    set([&] { EXPECT_EQ(room_.printed[0], "anna.png, Small on A4"); });
    EXPECT_TRUE(waits(0)) << "both are printed";
    ASSERT_TRUE(test::eventually([&] { return !window_->findChild<PrintDialog*>(); }));
    openDialog();
    EXPECT_EQ(part<QSpinBox>("printCopies")->value(), 2) << "as it was left";
}

TEST_F(PrintTest, TheSheetIsShownAsItWillBePrinted) {
    ASSERT_TRUE(openDialog());
    auto* view = part<TemplateView>("imageViewPrinterTemplate");
    ASSERT_TRUE(test::eventually([&] { return !view->sheet().isNull(); }));
    const auto shown = [&] {
        view->repaint();
        return view->sheet();
    };
    const QImage plain = shown();
    press("printMirrored");
    EXPECT_NE(shown(), plain);
    press("printMirrored");
    EXPECT_EQ(shown(), plain);
    press("printAlone");
    EXPECT_FALSE(part<QComboBox>("comboPrinterTemplate")->isEnabled());
    EXPECT_NEAR(static_cast<double>(shown().width()) / shown().height(), 240.0 / 300.0, 0.02) << "the picture's own";
    press("printAlone");
    press("runPageLayout");
    auto* paper = part<QComboBox>("comboPaper");
    paper->setCurrentIndex(paper->findData("4x6in"));
    part<QRadioButton>("radioPaperOnSide")->setChecked(true);
    press("pageLayoutDone");
    EXPECT_TRUE(part<QLabel>("printPaper")->text().startsWith("4x6")) << "of all that is printed";
    part<QLineEdit>("printProfilePath")->setText("/gone/printer.icc");
    press("PrintTemplate");
    EXPECT_TRUE(part<QLabel>("printTold")->text().contains("/gone/printer.icc"));
    EXPECT_EQ(printed(), 0u);
}

TEST_F(PrintTest, ATransparentPictureShowsThePaperAndKeepsItsColours) {
    window_->binder().run("", [](SettingEditor& editor) { editor.set("bOutputTransparency", "1"); });
    ASSERT_TRUE(test::eventually([&] { return qAlpha(window_->view()->fullPicture().pixel(2, 2)) == 0; }));
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
    ASSERT_TRUE(openDialog());
    auto* view = part<TemplateView>("imageViewPrinterTemplate");
    ASSERT_TRUE(test::eventually([&] { return !view->sheet().isNull(); }));
    const QImage sheet = view->sheet();
    EXPECT_EQ(sheet.pixelColor(3, 3), QColor(179, 179, 179)) << "the ground, and nothing of the screen";
    const QColor middle = window_->view()->fullPicture().pixelColor(120, 150);
    const QColor shown = sheet.pixelColor(sheet.rect().center());
    EXPECT_NEAR(shown.red(), middle.red(), 3);
    EXPECT_NEAR(shown.green(), middle.green(), 3);
    for (int x = 0; x < sheet.width(); ++x) {
        // At a soft edge, too, nothing is brighter than what lies there.
        const QColor seen = sheet.pixelColor(x, sheet.height() / 2);
        EXPECT_LE(seen.green(), std::max(179, middle.green()) + 3) << x;
    }
}

TEST_F(PrintTest, WhatCannotBePrintedIsToldAndStaysToBeSentAgain) {
    set([&] { room_.trouble = "The printer \"studio\" is stopped."; });
    ASSERT_TRUE(openDialog());
    EXPECT_EQ(part<QLabel>("printerState")->text(), "The printer \"studio\" is stopped.");
    press("PrintTemplate");
    ASSERT_TRUE(waits(1));
    EXPECT_TRUE(window_->messages()->details().contains("is stopped"));
    EXPECT_TRUE(stateOf(0).contains("is stopped"));
    openOn(room_);  // the program is started again
    ASSERT_TRUE(waits(1)) << "it has outlived the window";
    set([&] { room_.trouble.clear(); });
    press("sendSheetAgain");
    EXPECT_TRUE(waits(0));
    EXPECT_EQ(printed(), 1u);
}

TEST_F(PrintTest, WhatMayHaveBeenPrintedIsSentAgainOnlyWhenAPersonSaysSo) {
    PrintQueue queue;
    std::string problem;
    const std::string document = queue.newDocument(problem);
    test::writeFile(document, "%PDF");
    QueuedSheet sheet{"", {"studio", "anna.jpg, Small", *paperOf("A4")}, "", "Small", QueuedSheet::Stage::sending, 77,
                      ""};
    ASSERT_EQ(queue.add(sheet, document), "");
    window_->printing()->followUp();
    ASSERT_TRUE(waits(1));
    EXPECT_TRUE(stateOf(0).contains("may have been printed"));
    for (const char* answer : {"Cancel", "Print Once More"}) {
        press("sendSheetAgain");
        auto* question = part<QMessageBox>("sendUnsureSheet");
        ASSERT_TRUE(question);
        EXPECT_EQ(printed(), 0u);
        for (QAbstractButton* button : question->buttons())
            if (button->text() == answer) button->click();
        ASSERT_TRUE(test::eventually([&] { return !window_->findChild<QMessageBox*>("sendUnsureSheet"); }));
    }
    EXPECT_TRUE(waits(0));
    EXPECT_EQ(printed(), 1u);
}

TEST_F(PrintTest, WithoutPrintersTheSheetCanStillBeSavedAndASheetIsDiscarded) {
    set([&] { room_.trouble = "It is stopped."; });
    openDialog();
    part<QSpinBox>("printCopies")->setValue(3);
    press("PrintTemplate");
    ASSERT_TRUE(waits(3));
    part<QTableWidget>("waitingSheets")->selectAll();
    press("discardSheet");
    EXPECT_TRUE(waits(0));
    set([&] { room_.answers = false; });
    ASSERT_TRUE(test::eventually([&] { return !window_->findChild<PrintDialog*>(); }));
    action("mainButtonPrint")->trigger();
    ASSERT_TRUE(test::eventually([&] { return part<QLabel>("printerState")->text() == "Nobody answers."; }));
    EXPECT_FALSE(part<QPushButton>("PrintTemplate")->isEnabled());
    EXPECT_TRUE(part<QPushButton>("printToPdf")->isEnabled());
    const QString path = QString::fromStdString(folder_.file("sheet.pdf"));
    SheetPlan plan{test::pageOf("Small", 200, 250)};
    window_->printing()->savePdf(plan, {window_->view()->fullPicture()}, path);
    EXPECT_TRUE(test::eventually([&] { return std::filesystem::exists(path.toStdString()); }));
}

}  // namespace
}  // namespace tavrin

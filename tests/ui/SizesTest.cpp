// Output sizes and print pages of the user's own, from their panels.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include "formats/Lists.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class SizesTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open({1300, 1000});
    }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = window_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void press(const char* name) { part<QAbstractButton>(name)->click(); }
    void type(const char* name, const QString& text) {
        auto* field = part<QLineEdit>(name);
        ASSERT_TRUE(test::becomesActive(field->window()));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        emit field->editingFinished();  // what the focus emits when it goes
    }
    bool dialogIsOpen(const char* name) {
        const auto* dialog = window_->findChild<QDialog*>(name);
        return dialog && dialog->isVisible();
    }
    template <class Condition>
    bool soon(const Condition& condition) {
        return test::eventually(condition);
    }
    QString inBox(int i) { return window_->sizeBox()->itemText(i); }
};

TEST_F(SizesTest, ASizeOfOnesOwnIsAddedTakenEditedAndDeleted) {
    window_->panel()->selectMainTab(7);
    press("buttonAddImageSizes");
    ASSERT_TRUE(dialogIsOpen("panelAddEditImageSizes"));
    EXPECT_EQ(part<QLineEdit>("textImageSizeWidth")->text(), "1");
    EXPECT_EQ(part<QLineEdit>("textImageSizeHeight")->text(), "2");
    type("textImageSizeWidth", "wide");
    EXPECT_EQ(part<QLineEdit>("textImageSizeWidth")->text(), "1") << "no number";
    type("textImageSizeWidth", "5000");
    EXPECT_EQ(part<QLineEdit>("textImageSizeWidth")->text(), "200") << "held while it is typed";
    type("textImageSizeWidth", "2,5");
    part<QComboBox>("comboBoxDPI")->setCurrentText("100");
    press("panelAddEditImageSizesDone");
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 2; }));
    EXPECT_EQ(inBox(1), "2.5x2 100 Horz **");
    EXPECT_EQ(info_->oPrinterPages.back().sPageTitle.load(), "One 2.5x2 100 Horz **");

    window_->sizeBox()->setCurrentIndex(1);
    emit window_->sizeBox()->activated(1);
    ASSERT_TRUE(soon([&] { return info_->iOutputPixelWidth == 250; }));
    part<QTableWidget>("tableImageSizes")->selectRow(1);
    press("buttonEditImageSizes");
    type("textImageSizeHeight", "1");
    press("panelAddEditImageSizesDone");
    ASSERT_TRUE(soon([&] { return info_->iOutputPixelHeight == 100; })) << "the picture follows";
    EXPECT_EQ(window_->sizeBox()->currentText(), "2.5x1 100 Horz **");
    SystemInfo later;
    static_cast<void>(LoadImageSizesFromXML(later));  // which misses the shipped list here
    EXPECT_EQ(later.oImageSize.at(0).sName.load(), "2.5x1 100 Horz **");

    ASSERT_TRUE(waitForPicture());
    press("buttonDeleteImageSizes");
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 1; }));
    EXPECT_EQ(window_->sizeBox()->currentText(), "2.5x1 100 Horz ** (this picture only)");
    EXPECT_EQ(info_->iOutputPixelHeight, 100);
}

TEST_F(SizesTest, ALengthThatIsNoNumberGoesBackWhenTheTabKeyLeavesIt) {
    window_->panel()->selectMainTab(7);
    press("buttonAddImageSizes");
    auto* field = part<QLineEdit>("textImageSizeWidth");
    field->window()->activateWindow();
    ASSERT_TRUE(test::becomesActive(field->window()));
    for (const char* typed : {"wide", ""}) {
        field->setFocus();
        ASSERT_TRUE(test::eventually([&] { return field->hasFocus(); }));
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, typed);
        EXPECT_EQ(field->text(), typed) << "it may still be on its way";
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_FALSE(field->hasFocus());
        EXPECT_EQ(field->text(), "1") << typed;
    }
    part<QDialog>("panelAddEditImageSizes")->reject();
}

TEST_F(SizesTest, ASizeThatMakesNoPictureKeepsTheDialogOpen) {
    press("buttonAddImageSizes");
    type("textImageSizeWidth", "200");
    type("textImageSizeHeight", "200");
    part<QComboBox>("comboBoxDPI")->setCurrentText("600");
    press("panelAddEditImageSizesDone");
    EXPECT_TRUE(dialogIsOpen("panelAddEditImageSizes"));
    EXPECT_EQ(info_->iImageSizeCount(), 1);
    part<QDialog>("panelAddEditImageSizes")->reject();
}

TEST_F(SizesTest, APageIsMadeFilledShownAndDeleted) {
    window_->panel()->selectMainTab(6);
    press("addCustomTemplate");
    type("textTemplateTitle", "Pair");
    press("panelAddEditTemplateDone");
    ASSERT_TRUE(soon([&] { return info_->iPrinterPageCount() == 1; }));
    EXPECT_EQ(info_->oQLXInfo->sSelectedPrinterTemplate.load(), "Pair") << "it is the chosen one";
    auto* view = part<TemplateView>("imageViewEditTemplate");
    const auto shown = [&] {
        view->grab();
        return view->sheet();
    };
    const QColor grey(179, 179, 179);
    EXPECT_EQ(shown().pixelColor(shown().width() / 4, shown().height() / 2), grey) << "no place yet";
    press("addImageLocationToTemplate");
    EXPECT_EQ(part<QLineEdit>("textImageLocationWidth")->text(), "8");
    type("textImageLocationWidth", "9");
    press("panelImageLocationsDone");
    EXPECT_TRUE(dialogIsOpen("panelImageLocations")) << "larger than the page";
    type("textImageLocationWidth", "4");
    press("panelImageLocationsDone");
    ASSERT_TRUE(soon([&] { return info_->oPrinterPages[0].iPrinterPageImageCount() == 1; }));
    const QImage sheet = shown();
    EXPECT_NE(sheet.pixelColor(sheet.width() / 4, sheet.height() / 2), grey);
    EXPECT_EQ(sheet.pixelColor(3 * sheet.width() / 4, sheet.height() / 2), grey);
    EXPECT_EQ(part<QTableWidget>("myImagesForTemplateTableView")->item(0, 2)->text(), "4");
    press("deleteTemplateImageLocation");
    ASSERT_TRUE(soon([&] { return info_->oPrinterPages[0].iPrinterPageImageCount() == 0; }));
    press("deleteTemplate");
    ASSERT_TRUE(soon([&] { return info_->iPrinterPageCount() == 0; }));
}

TEST_F(SizesTest, WhatIsDeletedComesBackWithUndo) {
    press("buttonAddImageSizes");
    press("panelAddEditImageSizesDone");
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 2; }));
    window_->sizeBox()->setCurrentIndex(1);
    emit window_->sizeBox()->activated(1);
    ASSERT_TRUE(soon([&] { return info_->iSelecteImageSize == 1; }));
    ASSERT_TRUE(waitForPicture());
    part<QTableWidget>("tableImageSizes")->selectRow(1);
    press("buttonDeleteImageSizes");
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 1; }));
    EXPECT_TRUE(action("UndoButton")->toolTip().endsWith("Delete size"));
    action("UndoButton")->trigger();
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 2; }));
    EXPECT_EQ(inBox(1), "1x2 100 Vert **");
    EXPECT_EQ(info_->iSelecteImageSize, 1);
    SystemInfo later;
    static_cast<void>(LoadImageSizesFromXML(later));  // which misses the shipped list here
    EXPECT_EQ(later.iImageSizeCount(), 1) << "it is in the file again";
    action("RedoButton")->trigger();
    EXPECT_TRUE(soon([&] { return info_->iImageSizeCount() == 1; }));
}

TEST_F(SizesTest, AListThatCannotBeKeptIsToldAndUsedAllTheSame) {
    std::filesystem::remove_all(Places::current().xmlFolder());
    press("buttonAddImageSizes");
    press("panelAddEditImageSizesDone");
    ASSERT_TRUE(soon([&] { return info_->iImageSizeCount() == 2; }));
    EXPECT_EQ(window_->messages()->message(), "The sizes cannot be kept.");
    EXPECT_EQ(inBox(1), "1x2 100 Vert **");
}

TEST_F(SizesTest, AWindowThatGoesWaitsForNoListAndLosesNone) {
    press("buttonAddImageSizes");
    press("panelAddEditImageSizesDone");
    window_.reset();
    EXPECT_EQ(info_->iImageSizeCount(), 2);
}

}  // namespace
}  // namespace tavrin

// The Text page: labels, the list of items, and the controls of the selected one.
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include "support/TextPage.h"
#include "ui/WindowTest.h"
#include "ui/text/TextPage.h"

namespace tavrin {
namespace {

class TextTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
        window_->panel()->selectMainTab(4);
        page_ = window_->panel()->texts();
        list_ = part<QListWidget>("myTableView");
    }
    template <class Kind>
    Kind* part(const QString& name) {
        auto* found = page_->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name.toStdString();
        return found;
    }
    void press(const char* button) { QTest::mouseClick(part<QToolButton>(button), Qt::LeftButton); }
    void pick(const char* box, const char* value) {
        auto* combo = part<QComboBox>(box);
        combo->setFocus();
        const int target = combo->findData(QString(value));
        ASSERT_GE(target, 0);
        QTest::keyClick(combo, Qt::Key_Home);
        while (combo->currentIndex() < target)
            QTest::keyClick(combo, Qt::Key_Down);
    }
    void type(const char* text) {
        auto* words = part<QPlainTextEdit>("textItemWords");
        words->setFocus();
        words->selectAll();
        QTest::keyClicks(words, text);
        list_->setFocus();  // the step ends
    }
    std::string value(const char* setting) { return editor().value(setting); }

    TextPage* page_ = nullptr;
    QListWidget* list_ = nullptr;
};

TEST_F(TextTest, LabelsTakeWordsSizePlaceAndColour) {
    auto* title = part<QLineEdit>("textTitle");
    title->setFocus();
    QTest::keyClicks(title, "Class 4b");
    EXPECT_EQ(value("label0.sText"), "Class 4b");
    part<QLineEdit>("textNote")->setFocus();
    EXPECT_EQ(editor().steps().size(), 1u) << "what is typed in one go is one step";
    pick("comboTitleSize", "X-Large");
    EXPECT_EQ(value("label0.iFontSize"), "60");
    pick("comboTitleSize", "Small");
    EXPECT_EQ(value("label0.iFontSize"), "12");
    pick("comboTitleLocation", "Bottom Center");
    EXPECT_EQ(value("label0.sLocation"), "Bottom Center");
    pick("comboNoteColor", "Black");
    EXPECT_EQ(value("label1.dFontFillRed"), "0");
    EXPECT_EQ(value("label0.dFontFillRed"), "1") << "another label";
    QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(value("label1.dFontFillRed"), "1");
    EXPECT_EQ(part<QComboBox>("comboNoteColor")->currentData().toString(), "White");
}

TEST_F(TextTest, ItemsAreAddedEditedOrderedAndDeletedAndAllOfItCanBeTakenBack) {
    TAVRIN_NEED_FONTS();
    press("buttonAddText");
    ASSERT_EQ(info_->iFontObjectCount(), 1);
    EXPECT_EQ(info_->iSelectedFontObject, 0);
    const double width = info_->oFontObject[0].rectSizeWidth;
    type("Sommerfest");
    EXPECT_EQ(value("text0.sText"), "Sommerfest");
    EXPECT_GT(info_->oFontObject[0].rectSizeWidth, width) << "the box follows its words";
    EXPECT_EQ(list_->item(0)->text(), "TEXT: Sommerfest");
    press("buttonAddText");
    type("second");
    pick("comboTextLevel", "Background");
    EXPECT_EQ(value("text1.sLevel"), "Background");
    EXPECT_EQ(value("text0.sLevel"), "Frame Layer");
    press("buttonItemEarlier");
    EXPECT_EQ(value("text0.sText"), "second");
    EXPECT_EQ(list_->currentRow(), 0) << "the item stays selected";
    press("buttonDeleteItem");
    ASSERT_EQ(info_->iFontObjectCount(), 1);
    EXPECT_EQ(value("text0.sText"), "Sommerfest");
    const std::size_t steps = editor().stepsDone();
    window_->binder().goTo(0);
    EXPECT_EQ(info_->iFontObjectCount(), 0);
    EXPECT_EQ(list_->count(), 0);
    EXPECT_FALSE(part<QToolButton>("buttonDeleteItem")->isEnabled());
    window_->binder().goTo(steps - 1);
    ASSERT_EQ(info_->iFontObjectCount(), 2);
    EXPECT_EQ(value("text0.sText"), "second");
    EXPECT_EQ(value("text0.sLevel"), "Background");
    ASSERT_TRUE(waitForPicture());
}

TEST_F(TextTest, CancelTakesBackWhatWasDoneToTheItemAndNothingElse) {
    TAVRIN_NEED_FONTS();
    const auto cancel = [this] { return part<QToolButton>("buttonCancelItem"); };
    EXPECT_FALSE(cancel()->isEnabled());
    press("buttonAddText");
    type("first");
    press("buttonAddText");
    type("second");
    list_->setCurrentRow(0);
    EXPECT_FALSE(cancel()->isEnabled()) << "nothing was done to it yet";
    type("changed");
    window_->binder().run("Light", [](SettingEditor& e) { ASSERT_EQ(e.set("foreground.iBrightness", "30"), ""); });
    pick("comboTextLevel", "Background");
    press("buttonItemLater");
    EXPECT_EQ(value("text1.sText"), "changed");
    press("buttonCancelItem");
    EXPECT_EQ(value("text1.sText"), "first");
    EXPECT_EQ(value("text1.sLevel"), "Frame Layer");
    EXPECT_EQ(value("foreground.iBrightness"), "30");
    EXPECT_EQ(value("text0.sText"), "second") << "another item";
    EXPECT_FALSE(cancel()->isEnabled());
    window_->binder().undo();
    EXPECT_EQ(value("text1.sText"), "changed") << "a step like any other";

    press("buttonAddText");
    type("third");
    press("buttonCancelItem");
    EXPECT_EQ(info_->iFontObjectCount(), 2) << "one that was added goes";
    list_->setCurrentRow(0);
    type("again");
    window_->binder().goTo(0);
    EXPECT_FALSE(cancel()->isEnabled());
    window_->binder().goTo(editor().steps().size());
    EXPECT_EQ(value("text0.sText"), "again");
}

TEST_F(TextTest, APictureIsAddedByItsSizeAndOneThatCannotBeReadIsTold) {
    const std::string logo = test::savePng(test::noisePicture(60, 50, 3), folder_.file("logo.png"));
    page_->addImage(QString::fromStdString(logo));
    ASSERT_EQ(info_->iFontObjectCount(), 1);
    const FontObject& item = info_->oFontObject[0];
    EXPECT_TRUE(item.isImage);
    EXPECT_EQ(item.imageSizeWidth, 60.0);
    EXPECT_NEAR(item.imageSizeWidth * item.dGlobalScaleX, 240.0 / 3.0, 1e-9);
    EXPECT_TRUE(part<GroupBox>("MyImagePanel")->isEnabled());
    EXPECT_FALSE(part<GroupBox>("MyTextPanel")->isEnabled());
    const std::string other = test::savePng(test::noisePicture(30, 20, 3), folder_.file("other.png"));
    page_->replaceImage(QString::fromStdString(other));
    EXPECT_EQ(item.imageSizeHeight, 20.0);
    EXPECT_EQ(list_->item(0)->text(), "IMAGE: other.png");
    page_->addImage(QString::fromStdString(folder_.file("gone.png")));
    page_->replaceImage(QString::fromStdString(folder_.file("gone.png")));
    EXPECT_EQ(value("text0.sText"), other);
    EXPECT_EQ(info_->iFontObjectCount(), 1);
    EXPECT_TRUE(window_->messages()->message().contains("gone.png"));
}

TEST_F(TextTest, MacrosSayWhatTheyWouldPrintAndAreInserted) {
    press("buttonAddText");
    part<QPlainTextEdit>("textItemWords")->clear();
    QMenu* menu = part<QToolButton>("buttonMacros")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 4);
    EXPECT_TRUE(menu->actions().first()->text().contains("anna.png"));
    menu->actions().first()->trigger();
    EXPECT_EQ(value("text0.sText"), "<<filename>>");
}

TEST_F(TextTest, AColourIsOneStepForTheSelectedItemOnly) {
    press("buttonAddText");
    press("buttonAddText");
    press("colorFontFill");
    auto* dialog = part<QColorDialog>("colorFontFillDialog");
    EXPECT_EQ(dialog->windowTitle(), "Select Font Fill Color");
    dialog->setCurrentColor(QColor(255, 0, 51));
    dialog->accept();
    EXPECT_EQ(value("text1.dFontFillBlue"), "0.2");
    EXPECT_EQ(value("text0.dFontFillBlue"), "1");
    EXPECT_EQ(editor().steps().size(), 3u);
}

}  // namespace
}  // namespace tavrin

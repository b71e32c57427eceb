// Search of controls and actions, the chips that tell what is set, the list of steps.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class SearchTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
    }
    static std::string focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString()
                      : "";
    }
    std::int32_t brightness() { return info_->pForegroundBitmapInfo->iBrightness; }
    void set(const char* label, const char* setting, const char* value) {
        window_->binder().run(label, [&](SettingEditor& e) { ASSERT_EQ(e.set(setting, value), ""); });
    }
    /// Types into the search of actions and takes what stands first, or what so many keys lead to.
    void findAndTake(const QString& words, int down = 0) {
        window_->activateWindow();
        ASSERT_TRUE(test::becomesActive(window_.get()));
        QTest::keyClick(window_->view(), Qt::Key_K, Qt::ControlModifier);
        auto* field = window_->findChild<QLineEdit*>("searchActions");
        ASSERT_TRUE(field);
        QTest::keyClicks(field, words);
        for (int i = 0; i < down; ++i)
            QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        QTest::qWait(10);
    }
    QStringList foundFor(const QString& words) {
        window_->commands().action("FindAction")->trigger();
        auto* field = window_->findChild<QLineEdit*>("searchActions");
        QTest::keyClicks(field, words);
        QStringList found;
        auto* list = window_->findChild<QListWidget*>("foundActions");
        for (int i = 0; i < list->count(); ++i)
            found.append(list->item(i)->text());
        QTest::keyClick(field, Qt::Key_Escape);
        QTest::qWait(10);
        EXPECT_FALSE(window_->findChild<QLineEdit*>("searchActions")) << "Esc ends it";
        return found;
    }
};

TEST_F(SearchTest, OneFieldFindsCommandsAndControlsInAnyOrderAndWithSlips) {
    EXPECT_TRUE(foundFor("green remove").value(0).startsWith("Remove green"));
    EXPECT_EQ(foundFor("brigthness").filter("Brightness   (Light)").size(), 1);
    EXPECT_TRUE(foundFor("shrotcuts").value(0).startsWith("Keyboard Shortcuts"));
    EXPECT_FALSE(foundFor("hiar").value(0).startsWith("Nothing"));
    EXPECT_TRUE(foundFor("zzzz").value(0).startsWith("Nothing"));
    EXPECT_TRUE(foundFor("clickedButtonfreeze").value(0).startsWith("Nothing")) << "a name that nobody reads";
    const QStringList undo = foundFor("undo");
    EXPECT_EQ(undo.value(0), "Undo   (Edit)    Ctrl+Z");
    EXPECT_EQ(undo.filter("Undo").size(), undo.size()) << "no command of which only the tip tells of it";

    set("Light", "foreground.iBrightness", "30");
    findAndTake("undo");
    EXPECT_EQ(brightness(), 0) << "a command is done";
    findAndTake("save edits");  // cannot be used now: Enter takes nothing
    auto* open = window_->findChild<QLineEdit*>("searchActions");
    ASSERT_TRUE(open);
    QTest::keyClick(open, Qt::Key_Escape);
    QTest::qWait(10);

    for (GroupBox* group : window_->panel()->groups())
        group->setFolded(true);
    findAndTake("clip left");
    window_->activateWindow();
    ASSERT_TRUE(test::becomesActive(window_.get()));
    EXPECT_EQ(focus(), "tavrin::Groove sliderClipLeft") << "a control is shown";
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(SearchTest, TheSearchOfControlsFindsCommandsToo) {
    QLineEdit* field = window_->panel()->searchField();
    field->setFocus();
    QTest::keyClicks(field, "reset settings all");
    auto* found = window_->panel()->findChild<QToolButton*>("ResetAllFound");
    ASSERT_TRUE(found);
    set("Light", "foreground.iBrightness", "30");
    QTest::mouseClick(found, Qt::LeftButton);
    QTest::qWait(10);
    EXPECT_EQ(brightness(), 0);
    field->clear();
    QTest::keyClicks(field, "sharpenn");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(focus(), "tavrin::Groove sliderBrightnessSharpen");
}

TEST_F(SearchTest, ChipsTellWhatIsSetAndPutItBackAsOneStep) {
    const auto chip = [&] { return window_->findChild<QToolButton*>("sliderBrightnessChip"); };
    window_->panel()->resetAll();
    ASSERT_TRUE(test::eventually([&] { return !chip(); }));
    const std::size_t steps = editor().steps().size();
    set("Light", "foreground.iBrightness", "30");
    ASSERT_TRUE(test::eventually(chip));
    EXPECT_EQ(chip()->text(), "Brightness: 30");
    QTest::mouseClick(chip(), Qt::LeftButton);
    EXPECT_EQ(focus(), "tavrin::Groove sliderBrightness");
    QTest::mouseClick(window_->findChild<QToolButton*>("sliderBrightnessChipReset"), Qt::LeftButton);
    EXPECT_TRUE(test::eventually([&] { return !chip(); }));
    EXPECT_EQ(brightness(), 0);
    EXPECT_EQ(editor().steps().size(), steps + 2);
}

TEST_F(SearchTest, ChipsNameWhatIsOtherThanAtTheStart) {
    info_->pCombinedBitmapInfo->sliderWhiteAdjust = 70;
    open();
    QTest::qWait(60);
    const auto chip = [&] { return window_->findChild<QToolButton*>("sliderWhiteAdjustChip"); };
    EXPECT_FALSE(chip()) << "every portrait begins with it";
    set("White", "combined.sliderWhiteAdjust", "40");
    ASSERT_TRUE(test::eventually(chip)) << "its default is something else here";
    QTest::mouseClick(window_->findChild<QToolButton*>("sliderWhiteAdjustChipReset"), Qt::LeftButton);
    EXPECT_TRUE(test::eventually([&] { return !chip(); }));
    EXPECT_EQ(info_->pCombinedBitmapInfo->sliderWhiteAdjust, 70);
}

TEST_F(SearchTest, ResetAllIsOneStepForBothLayers) {
    set("a", "foreground.iBrightness", "30");
    set("b", "background.iContrast", "80");
    set("c", "combined.sliderWhiteAdjust", "70");
    window_->commands().action("ResetAll")->trigger();
    EXPECT_EQ(brightness(), 0);
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iContrast, 50);
    ASSERT_EQ(editor().steps().size(), 4u);
    editor().undo();
    EXPECT_EQ(brightness(), 30);
    EXPECT_EQ(info_->pBackgroundBitmapInfo->iContrast, 80);
    EXPECT_EQ(info_->pCombinedBitmapInfo->sliderWhiteAdjust, 70);
}

TEST_F(SearchTest, AClickInTheHistoryGoesThere) {
    for (const char* value : {"10", "20", "30"})
        set(value, "foreground.iBrightness", value);
    window_->commands().action("ShowHistory")->trigger();
    auto* list = window_->findChild<QListWidget*>("historyList");
    ASSERT_TRUE(list->isVisible());
    ASSERT_EQ(list->count(), 4);
    EXPECT_EQ(list->currentRow(), 3);
    const auto click = [&](int row) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    };
    click(1);
    EXPECT_EQ(brightness(), 10);
    EXPECT_EQ(list->count(), 4) << "later steps stay";
    EXPECT_NE(list->item(2)->foreground(), list->item(1)->foreground());
    EXPECT_EQ(list->item(2)->data(Qt::AccessibleTextRole), "20, taken back");
    click(3);
    EXPECT_EQ(brightness(), 30);
    click(0);
    EXPECT_EQ(brightness(), 0);
    set("new", "foreground.iBrightness", "5");
    EXPECT_EQ(list->count(), 2);
}

}  // namespace
}  // namespace tavrin

// The list of keys, and other keys than the usual ones.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include "ui/WindowSettings.h"
#include "ui/WindowTest.h"
#include "ui/frame/ShortcutDialog.h"

namespace tavrin {
namespace {

class ShortcutTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
        showList();
    }
    void showList() {
        action("Shortcuts")->trigger();
        dialog_ = window_->findChild<ShortcutDialog*>("shortcuts");
        ASSERT_TRUE(dialog_);
        list_ = dialog_->findChild<QTableWidget*>("shortcutList");
    }
    int rowOf(const QString& text) {
        for (int row = 0; row < list_->rowCount(); ++row)
            if (list_->item(row, 0)->text() == text) return row;
        ADD_FAILURE() << text.toStdString() << " is not in the list";
        return 0;
    }
    std::string keyOf(const QString& text) { return list_->item(rowOf(text), 1)->text().toStdString(); }
    void press(const QString& text, int key, Qt::KeyboardModifiers held = {}) {
        list_->setCurrentCell(rowOf(text), 0);
        auto* field = dialog_->findChild<QLineEdit*>("shortcutKey");
        field->setFocus();
        QTest::keyClick(field, static_cast<Qt::Key>(key), held);
    }
    QToolButton* button(const char* id) { return dialog_->findChild<QToolButton*>(id); }
    std::string told() { return dialog_->findChild<QLabel*>("shortcutTold")->text().toStdString(); }

    ShortcutDialog* dialog_ = nullptr;
    QTableWidget* list_ = nullptr;
};

TEST_F(ShortcutTest, AnotherKeyActsAtOnceAndAtTheNextStart) {
    EXPECT_EQ(keyOf("Fit"), "F");
    press("Fit", Qt::Key_J);
    EXPECT_EQ(keyOf("Fit"), "J") << told();
    dialog_->close();
    const auto zoomOf = [this] { return window_->view()->zoom().dZoom(); };
    const double fitted = zoomOf();
    for (int start = 0; start < 2; ++start) {
        action("ZoomIn")->trigger();
        EXPECT_NE(zoomOf(), fitted);
        QTest::keyClick(window_->view(), Qt::Key_F);
        EXPECT_NE(zoomOf(), fitted) << "the usual key is free";
        QTest::keyClick(window_->view(), Qt::Key_J);
        EXPECT_EQ(zoomOf(), fitted) << "start " << start;
        open();
    }
    showList();
    EXPECT_EQ(keyOf("Fit"), "J");
    list_->setCurrentCell(rowOf("Fit"), 0);
    button("shortcutUsual")->click();
    EXPECT_EQ(keyOf("Fit"), "F");
    EXPECT_FALSE(windowSettings().contains("keys/setZoomHome")) << "only a choice is kept";
}

TEST_F(ShortcutTest, AKeyOfAnotherCommandIsTakenOnlyWhenThePersonSaysSo) {
    press("Fit", Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(told(), "Ctrl+K is the key of \"Find an Action\". Take it for \"Fit\"?");
    EXPECT_EQ(keyOf("Fit"), "F");
    EXPECT_EQ(keyOf("Find an Action"), "Ctrl+K");
    list_->setCurrentCell(rowOf("Quit"), 0);
    EXPECT_TRUE(button("shortcutTake")->isHidden()) << "the question went with its command";
    EXPECT_EQ(keyOf("Find an Action"), "Ctrl+K");

    press("Fit", Qt::Key_K, Qt::ControlModifier);
    button("shortcutTake")->click();
    EXPECT_EQ(keyOf("Fit"), "Ctrl+K");
    EXPECT_EQ(keyOf("Find an Action"), "");
    EXPECT_EQ(action("FindAction")->shortcut(), QKeySequence());

    list_->setCurrentCell(rowOf("Find an Action"), 0);
    button("shortcutUsual")->click();
    EXPECT_EQ(told(), "Ctrl+K is the key of \"Fit\". Take it for \"Find an Action\"?");
    EXPECT_EQ(keyOf("Fit"), "Ctrl+K");
    button("shortcutBack")->click();
    EXPECT_EQ(keyOf("Fit"), "F");
    EXPECT_EQ(keyOf("Find an Action"), "Ctrl+K") << "one step back gives both";
}

TEST_F(ShortcutTest, KeysOfTheDesktopAndOfControlsAreRefusedWithTheReason) {
    const std::pair<int, Qt::KeyboardModifiers> refused[] = {{Qt::Key_F4, Qt::AltModifier},
                                                             {Qt::Key_Left, {}},
                                                             {Qt::Key_Delete, {}},
                                                             {Qt::Key_V, Qt::ControlModifier},
                                                             {Qt::Key_E, Qt::ControlModifier | Qt::AltModifier}};
    for (const auto& [key, held] : refused) {
        press("Fit", key, held);
        EXPECT_EQ(keyOf("Fit"), "F") << key;
        EXPECT_NE(told().find("this key"), std::string::npos) << told();
    }
    press("Before (hold the key)", Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(keyOf("Before (hold the key)"), "B");
    press("Before (hold the key)", Qt::Key_J);
    EXPECT_EQ(keyOf("Before (hold the key)"), "J") << told();
    EXPECT_TRUE(action("ShowOriginal")->text().endsWith("\tJ"));

    const int fixed = list_->rowCount() - 1;
    list_->setCurrentCell(fixed, 0);
    EXPECT_FALSE(dialog_->findChild<QWidget*>("shortcutKey")->isEnabled()) << "of the controls";
    button("shortcutAllUsual")->click();
    EXPECT_EQ(keyOf("Before (hold the key)"), "B");
    EXPECT_FALSE(button("shortcutAllUsual")->isEnabled());
}

TEST_F(ShortcutTest, TheListIsFoundByWordsAndByKeys) {
    auto* search = dialog_->findChild<QLineEdit*>("shortcutSearch");
    const auto shown = [this] {
        QStringList found;
        for (int row = 0; row < list_->rowCount(); ++row)
            if (!list_->isRowHidden(row)) found.append(list_->item(row, 0)->text());
        return found.join(", ").toStdString();
    };
    search->setText("action find");
    EXPECT_EQ(shown(), "Find an Action");
    search->setText("ctrl+k");
    EXPECT_EQ(shown(), "Find an Action");
    search->clear();
    EXPECT_GT(shown().size(), 500u);
}

// What a settings file holds that another version, or a hand, wrote.
TEST_F(ShortcutTest, OddKeptKeysDoNoHarm) {
    dialog_->close();
    windowSettings().setValue("keys/setZoomHome", "Ctrl+K");  // of another command, which nobody gave up
    windowSettings().setValue("keys/NoSuchCommand", "Ctrl+J");
    windowSettings().setValue("keys/Save", "no key at all");
    open();
    EXPECT_EQ(action("setZoomHome")->shortcut().toString(), "Ctrl+K");
    EXPECT_EQ(action("FindAction")->shortcut().toString(), "") << "no key calls two";
    showList();
    button("shortcutAllUsual")->click();
    EXPECT_EQ(action("FindAction")->shortcut().toString(), "Ctrl+K");
    EXPECT_EQ(action("Save")->shortcut().toString(), "Ctrl+S");
}

}  // namespace
}  // namespace tavrin

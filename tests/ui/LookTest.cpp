// Looks at the window: pasted part by part, on portraits that are not shown, by name.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "session/RecipeStore.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class LookTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        Places::current().setPicturesFolder(folder_.file("pictures/"));
        open();
        window_->frameAction()->setChecked(false);
    }
    void TearDown() override {
        WindowTest::TearDown();
        Places::current().setPicturesFolder(pictures_);
    }
    BitmapInfo& portrait() { return *info_->pForegroundBitmapInfo; }
    void set(const char* setting, const char* value) {
        window_->binder().run("Change", [&](SettingEditor& e) { ASSERT_EQ(e.set(setting, value), ""); });
    }
    void trigger(const char* id) { window_->commands().action(id)->trigger(); }
    /// Ticks or unticks a part of the list that is shown.
    void tick(const QString& part, bool on) {
        auto* tree = window_->findChild<QTreeWidget*>("lookParts");
        ASSERT_TRUE(tree);
        for (int i = 0; i < tree->topLevelItemCount(); ++i)
            if (tree->topLevelItem(i)->text(0).startsWith(part))
                return tree->topLevelItem(i)->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
        FAIL() << part.toStdString() << " is not in the list";
    }
    void accept() {
        auto* dialog = window_->findChild<QDialog*>("lookDialog");
        ASSERT_TRUE(dialog);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QTest::qWait(10);
    }

    const std::string pictures_ = Places::current().picturesFolder();
    const std::string other_ = test::savePng(test::discOnScreen(240, 300), folder_.file("ben.png"));
};

TEST_F(LookTest, APasteShowsWhatWillChangeAndTakesWhatIsTicked) {
    set("foreground.iBrightness", "30");
    set("combined.sliderWhiteAdjust", "70");
    set("foreground.fScale", "1.5");
    trigger("CopyLook");
    for (int i = 0; i < 3; ++i)
        trigger("UndoButton");
    trigger("PasteLook");
    tick("Key", false);
    accept();
    EXPECT_EQ(portrait().iBrightness, 30);
    EXPECT_EQ(portrait().fScale, 1.0) << "the place is not ticked at first";
    EXPECT_NE(info_->pCombinedBitmapInfo->sliderWhiteAdjust, 70);
    ASSERT_EQ(editor().steps().size(), 1u);
    trigger("UndoButton");
    EXPECT_EQ(portrait().iBrightness, 0);
}

TEST_F(LookTest, ALookOnOtherPortraitsIsThereWhenTheyAreOpenedAndOneUndoTakesItBack) {
    set("foreground.iBrightness", "30");
    trigger("CopyLook");
    const auto paste = [&] {
        window_->looks().pasteOn({QString::fromStdString(other_)});
        accept();
        ASSERT_TRUE(test::eventually([&] { return editor().steps().size() == 2u; }));
    };
    paste();
    EXPECT_TRUE(loadRecipe(other_));
    trigger("UndoButton");
    EXPECT_TRUE(test::eventually([&] { return !loadRecipe(other_); }));
    EXPECT_EQ(portrait().iBrightness, 30) << "this portrait was not among them";

    trigger("RedoButton");
    ASSERT_TRUE(test::eventually([&] { return loadRecipe(other_).has_value(); }));
    set("foreground.iBrightness", "-20");
    window_->openForeground(QString::fromStdString(other_));
    ASSERT_TRUE(test::eventually([&] { return !editor().steps().empty(); }));
    EXPECT_EQ(portrait().iBrightness, 30);
    trigger("UndoButton");
    EXPECT_EQ(portrait().iBrightness, -20) << "it is a step there";
}

TEST_F(LookTest, TitlesGoAlongOnOtherPortraitsWhenTheyAreTicked) {
    FontObject title;
    title.sText = "Class of 26";
    info_->oFontObject.push_back(title);
    trigger("CopyLook");
    window_->looks().pasteOn({QString::fromStdString(other_)});
    tick("Text", true);
    accept();
    ASSERT_TRUE(test::eventually([&] { return loadRecipe(other_).has_value(); }));
    info_->oFontObject.clear();
    window_->openForeground(QString::fromStdString(other_));
    ASSERT_TRUE(test::eventually([&] { return info_->iFontObjectCount() == 1; }));
    EXPECT_EQ(info_->oFontObject[0].sText.load(), "Class of 26");
    ASSERT_TRUE(waitForPicture());
    trigger("UndoButton");
    EXPECT_TRUE(test::eventually([&] { return info_->iFontObjectCount() == 0; }));
}

TEST_F(LookTest, ALongPasteShowsHowFarItIsAndStopsWithWhatItHasDone) {
    QStringList portraits;
    const QImage disc = test::discOnScreen(8, 8);
    for (int i = 0; i < 3000; ++i)
        portraits.append(QString::fromStdString(test::savePng(disc, folder_.file(std::to_string(i) + ".png"))));
    set("foreground.iBrightness", "30");
    trigger("CopyLook");
    window_->looks().pasteOn(portraits);
    accept();
    auto* stop = window_->findChild<QToolButton*>("stopWork");
    ASSERT_TRUE(test::eventually([&] { return stop->isVisible(); }));
    QTest::mouseClick(stop, Qt::LeftButton);
    ASSERT_TRUE(test::eventually([&] { return editor().steps().size() == 2u; }));
    EXPECT_FALSE(stop->isVisible());
    EXPECT_TRUE(loadRecipe(portraits.first().toStdString()));
    EXPECT_FALSE(loadRecipe(portraits.last().toStdString()));
    trigger("UndoButton");
    EXPECT_TRUE(test::eventually([&] { return !loadRecipe(portraits.first().toStdString()); }));
}

TEST_F(LookTest, LooksByNameAreSavedTakenAndDeletedToUndo) {
    set("foreground.iBrightness", "30");
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); })) << "its picture is a finished one";
    ASSERT_TRUE(window_->looks().save("School"));
    EXPECT_FALSE(window_->looks().save("a/b"));
    EXPECT_FALSE(window_->messages()->details().isEmpty());
    trigger("UndoButton");
    trigger("ShowLooks");
    auto* list = window_->findChild<QListWidget*>("lookList");
    ASSERT_EQ(list->count(), 1);
    EXPECT_FALSE(list->item(0)->icon().isNull());
    list->setCurrentRow(0);
    QTest::mouseClick(window_->findChild<QToolButton*>("lookTake"), Qt::LeftButton);
    accept();
    EXPECT_EQ(portrait().iBrightness, 30);
    EXPECT_EQ(portrait().sSourceImageFullPath.load(), portrait_);

    QTest::mouseClick(window_->findChild<QToolButton*>("lookDelete"), Qt::LeftButton);
    EXPECT_EQ(list->count(), 0);
    trigger("UndoButton");
    EXPECT_EQ(list->count(), 1);
}

TEST_F(LookTest, AnImportSaysWhatHappensOnEqualNames) {
    set("foreground.iBrightness", "30");
    ASSERT_TRUE(window_->looks().save("School"));
    const std::string file = folder_.file("School.qlx");
    ASSERT_EQ(exportLook("School", file), "");
    const auto importAs = [&](const char* answer) {
        window_->looks().import(QString::fromStdString(file));
        auto* button = window_->findChild<QPushButton*>(answer);
        ASSERT_TRUE(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::qWait(10);
    };
    importAs("equalSkip");
    EXPECT_TRUE(window_->messages()->message().contains("Nothing was imported"));
    EXPECT_EQ(lookNames().size(), 1u);
    importAs("equalRename");
    EXPECT_TRUE(window_->messages()->message().contains("School 2"));
    EXPECT_EQ(lookNames().size(), 2u);
    importAs("equalReplace");
    EXPECT_EQ(lookNames().size(), 2u);
}

}  // namespace
}  // namespace tavrin

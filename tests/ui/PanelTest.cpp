// The side panel's pages and their main tabs, and the page of settings.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "core/files/NameText.h"
#include "formats/SettingsFile.h"
#include "ui/WindowTest.h"
#include "ui/bind/Groove.h"
#include "ui/frame/Habits.h"
#include "ui/frame/Theme.h"

namespace tavrin {
namespace {

class PanelTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
    }
    SidePanel& panel() { return *window_->panel(); }
    template <class Kind>
    Kind* part(const char* name) {
        auto* found = panel().findChild<Kind*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    void press(const char* button) { QTest::mouseClick(part<QToolButton>(button), Qt::LeftButton); }
    /// What a program that starts now would begin with.
    static QLXInfo keptSettings() {
        QLXInfo settings;
        EXPECT_EQ(LoadQLXFile(settings), "");
        return settings;
    }
};

TEST_F(PanelTest, TabsTurnThePagesAndTheChosenOneComesBack) {
    auto* adjust = part<QWidget>("panelAdjust");
    auto* settings = part<QWidget>("panelSettings");
    EXPECT_TRUE(adjust->isVisible());
    EXPECT_FALSE(settings->isVisible());
    info_->bEventModeShowing = true;
    press("mainTabSettings");
    EXPECT_FALSE(adjust->isVisible());
    EXPECT_TRUE(settings->isVisible());
    EXPECT_FALSE(info_->bEventModeShowing);
    panel().selectMainTab(99);
    EXPECT_TRUE(settings->isVisible());
    open();
    EXPECT_TRUE(part<QToolButton>("mainTabSettings")->isChecked());
    EXPECT_TRUE(part<QWidget>("panelSettings")->isVisible());
    panel().hide();
    QTest::keyClick(window_->view(), Qt::Key_0, Qt::AltModifier);
    EXPECT_TRUE(part<QWidget>("panelAdjust")->isVisible());
    EXPECT_FALSE(part<QWidget>("panelSettings")->isVisible());
}

TEST_F(PanelTest, TheSearchFindsControlsOfEveryPageAndWhatIsRevealedTurnsToItsPage) {
    panel().selectMainTab(7);
    QLineEdit* field = panel().searchField();
    field->setFocus();
    QTest::keyClicks(field, "saved prefix");
    EXPECT_TRUE(part<QLineEdit>("settingsPrefix")->isVisible());
    EXPECT_FALSE(part<QToolButton>("settingsForegroundFile")->isVisible());
    field->clear();
    QTest::keyClicks(field, "sharpen");
    EXPECT_TRUE(part<Groove>("sliderBrightnessSharpen")->isVisible());
    EXPECT_FALSE(part<QWidget>("panelSettings")->isVisible());
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(part<Groove>("sliderBrightnessSharpen")->hasFocus());
    field->clear();
    EXPECT_TRUE(part<QWidget>("panelSettings")->isVisible());
    EXPECT_FALSE(part<QWidget>("panelAdjust")->isVisible());
    for (const ControlRow* row : window_->binder().rows())
        if (row->objectName() == "sliderContrast" || row->binding().control == std::string_view("sliderContrast"))
            panel().reveal(row);
    EXPECT_TRUE(part<Groove>("sliderContrast")->hasFocus());
    panel().reveal(part<QWidget>("settingsPrefixRow"));
    EXPECT_TRUE(part<QLineEdit>("settingsPrefix")->hasFocus());
}

TEST_F(PanelTest, SegmentsLeadToThePartsOfALongPageAndFollowTheScrolling) {
    for (GroupBox* group : panel().groups())
        group->setFolded(group->objectName() == "groupLight");
    panel().selectMainTab(0);
    press("selectAdjustmentTabSegment3");
    EXPECT_EQ(info_->iSelectedAdjustment, 3);
    EXPECT_TRUE(part<Groove>("sliderBrightness")->isVisible());
    EXPECT_FALSE(part<Groove>("sliderBrightness")->visibleRegion().isEmpty()) << "it is scrolled to";
    press("selectAdjustmentTabSegment4");
    EXPECT_TRUE(part<QWidget>("sliderScale")->isVisible()) << "unfolded";
    EXPECT_FALSE(part<QWidget>("selectEffectsTabSegment0")->isVisible());
    auto* bar = part<QScrollArea>("")->verticalScrollBar();
    bar->setValue(0);
    EXPECT_EQ(info_->iSelectedAdjustment, 0);
    EXPECT_TRUE(part<QToolButton>("selectAdjustmentTabSegment0")->isChecked());
    press("selectAdjustmentTabSegment3");
    panel().selectMainTab(1);
    EXPECT_TRUE(part<QWidget>("selectEffectsTabSegment0")->isVisible());
    press("selectEffectsTabSegment4");
    EXPECT_EQ(info_->iSelectedEffect, 4);
    EXPECT_EQ(info_->iSelectedAdjustment, 3);
    panel().selectMainTab(0);
    EXPECT_TRUE(part<QToolButton>("selectAdjustmentTabSegment3")->isChecked()) << "it comes back";
    panel().searchField()->setText("sharpen");
    EXPECT_FALSE(part<QWidget>("selectAdjustmentTabSegment0")->isVisible());
}

TEST_F(PanelTest, SettingsAreKeptAsTheyAreMade) {
    panel().selectMainTab(7);
    auto* prefix = part<QLineEdit>("settingsPrefix");
    prefix->setFocus();
    QTest::keyClicks(prefix, "school");
    EXPECT_EQ(keptSettings().sPrefix.load(), "school");
    QTest::keyClicks(prefix, "/2");
    EXPECT_EQ(info_->oQLXInfo->sPrefix.load(), "school2") << "no folder comes of it";

    part<PathRow>("settingsForegroundFileRow")->choose(QString::fromStdString(portrait_));
    part<PathRow>("settingsPickDirectoryRow")->choose(QString::fromStdString(folder_.file("")));
    EXPECT_EQ(keptSettings().sStartupFileForegroundPath.load(), portrait_);
    EXPECT_EQ(keptSettings().sPickDirectory.load(), folder_.file(""));
    EXPECT_EQ(window_->strip()->backgrounds()->folder() + "/", folder_.file("")) << "the strip offers them";
    press("settingsForegroundFileClear");
    EXPECT_EQ(keptSettings().sStartupFileForegroundPath.load(), "");

    auto* box = part<QCheckBox>("checkboxAutoState");
    EXPECT_FALSE(box->isChecked());
    action("AutoState")->trigger();
    EXPECT_TRUE(box->isChecked());
    box->click();
    EXPECT_FALSE(action("AutoState")->isChecked());
    EXPECT_FALSE(keptSettings().bAutoQLXSave);
}

TEST_F(PanelTest, LanguageColoursProcessorsAndKindOfFileAreChosenForEveryStart) {
    panel().selectMainTab(7);
    const auto choose = [&](const char* name, const QString& value) {
        auto* list = part<QComboBox>(name);
        const int index = list->findData(value);
        ASSERT_GE(index, 0) << name;
        list->setFocus();
        while (list->currentIndex() != index)
            QTest::keyClick(list, list->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    };
    EXPECT_EQ(chosenLanguage(), QLocale::system());
    choose("settingsLanguage", "es");
    EXPECT_EQ(chosenLanguage().language(), QLocale::Spanish);
    EXPECT_EQ(window_->messages()->message(), "The words change with the next start.");
    choose("settingsLanguage", "");
    EXPECT_EQ(chosenLanguage(), QLocale::system());

    choose("settingsTheme", "dark");
    EXPECT_EQ(chosenTheme(), Theme::dark);
    action("ThemeLight")->trigger();
    EXPECT_EQ(part<QComboBox>("settingsTheme")->currentData().toString(), "light") << "the menu has it, too";

    choose("settingsFileType", ".tif");
    EXPECT_EQ(chosenFileType(), ".tif");
    EXPECT_TRUE(window_->suggestedName().endsWith("/anna.tif")) << window_->suggestedName().toStdString();
    info_->bOutputTransparency = true;
    EXPECT_TRUE(window_->suggestedName().endsWith("/anna-combined.png")) << "a clear background wants it";
    choose("settingsFileType", "");
}

}  // namespace
}  // namespace tavrin

// The side panel's pages and their main tabs, and the page of settings.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "core/files/NameText.h"
#include "formats/SettingsFile.h"
#include "ui/WindowTest.h"
#include "ui/bind/Groove.h"

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

}  // namespace
}  // namespace tavrin

// The effect panels: what is no plain control of a setting, and how they are opened, closed and switched off.
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include <QColorDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "core/state/SettingNames.h"
#include "ui/WindowTest.h"
#include "ui/bind/Groove.h"
#include "ui/effects/EffectGroups.h"
#include "ui/effects/PictureRow.h"

namespace tavrin {
namespace {

class EffectsTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
        window_->panel()->selectMainTab(1);
    }
    template <class Kind>
    Kind* part(const QString& name) {
        auto* found = window_->panel()->findChild<Kind*>(name);
        EXPECT_TRUE(found) << name.toStdString();
        return found;
    }
    GroupBox* openPanel(const char* name) {
        auto* group = part<GroupBox>(name);
        window_->panel()->effects()->openPanel(name);
        QCoreApplication::processEvents();
        return group;
    }
    void press(const char* button) { QTest::mouseClick(part<QToolButton>(button), Qt::LeftButton); }
    std::string value(const char* setting) { return editor().value(setting); }
    PictureRow* pictureRow(const char* button) {
        return qobject_cast<PictureRow*>(part<QToolButton>(button)->parentWidget());
    }
    std::string file(const char* name) { return folder_.file(name); }
};

TEST_F(EffectsTest, ShadowButtonsSetAWholeStartAsOneStep) {
    openPanel("groupShadow");
    auto* title = part<QLabel>("textShadowType");
    auto* slider = part<Groove>("sliderShadowRightLeft");
    EXPECT_EQ(title->text(), "No Shadow Active");
    EXPECT_FALSE(slider->isEnabled());
    const auto check = [&](const char* button, const char* words,
                           const std::map<std::string, std::string>& expected) {
        SCOPED_TRACE(button);
        editor().set("iSliderShadowRightLeft", "77");
        info_->pBackgroundBitmapInfo->bScaleChange = false;
        const std::size_t steps = editor().stepsDone();
        press(button);
        for (const auto& [setting, start] : expected)
            EXPECT_EQ(value(setting.c_str()), start) << setting;
        EXPECT_EQ(title->text(), words);
        EXPECT_TRUE(slider->isEnabled());
        EXPECT_EQ(slider->value(), std::stoi(expected.at("iSliderShadowRightLeft")));
        EXPECT_TRUE(part<QToolButton>(button)->isChecked());
        EXPECT_EQ(editor().stepsDone(), steps + 1);
        action("UndoButton")->trigger();
        EXPECT_EQ(value("iSliderShadowRightLeft"), "77");
        action("RedoButton")->trigger();
    };
    check("buttonWall", "Wall Shadow",
          {{"iHaveShadow", "5"},
           {"iSliderShadowRightLeft", "550"},
           {"iSliderShadowUpDown", "480"},
           {"iSliderShadowScale", "520"},
           {"iSliderShadowTransparency", "500"},
           {"iSliderShadowBlur", "300"},
           {"iSliderVRoomRight", "0"},
           {"iSliderVRoomLeft", "0"},
           {"iSliderVRoomTransparency", "0"},
           {"iSliderShadowBlack", "20"},
           {"iCheckShadowBehind", "1"}});
    check("buttonFloor", "Floor Shadow",
          {{"iHaveShadow", "2"},
           {"iSliderShadowRightLeft", "500"},
           {"iSliderShadowUpDown", "500"},
           {"iSliderShadowScale", "300"},
           {"iSliderFloorSkew", "525"},
           {"iSliderShadowTransparency", "500"},
           {"iSliderShadowBlur", "250"},
           {"iSliderVRoomRight", "1000"},
           {"iSliderVRoomLeft", "1000"},
           {"iSliderVRoomTransparency", "0"},
           {"iSliderShadowBase", "520"},
           {"iSliderFloorBaseAngle", "500"},
           {"iSliderShadowBlack", "20"}});
    check("buttonFloorAndWall", "Wall and Floor Shadow",
          {{"iHaveShadow", "3"},
           {"iSliderShadowRightLeft", "500"},
           {"iSliderShadowScale", "500"},
           {"iSliderFloorSkew", "700"},
           {"iSliderVRoomRight", "300"},
           {"iSliderVRoomLeft", "300"},
           {"iSliderVRoomTransparency", "800"},
           {"iSliderShadowBase", "600"}});
    press("removeShadow");
    EXPECT_EQ(info_->iHaveShadow, 1);
    EXPECT_FALSE(slider->isEnabled());
    info_->pBackgroundBitmapInfo->bScaleChange = false;
    ASSERT_TRUE(waitForPicture());
}

TEST_F(EffectsTest, ADrawingStartsWithItsLinesAndASliderWithoutOneAsksForNoPicture) {
    openPanel("MyEffectsCartoonPanel");
    auto* width = part<Groove>("sliderEffectsWidth");
    const int asked = info_->iNewThreadCount;
    width->setValue(33);
    EXPECT_EQ(info_->iSliderCartoonEffectWidth, 33);
    EXPECT_EQ(info_->iNewThreadCount, asked);
    press("buttonCartoon");
    EXPECT_EQ(info_->iCartoonEffectType, 1);
    EXPECT_EQ(width->value(), 15);
    EXPECT_EQ(part<Groove>("sliderEffectsSmoothing")->value(), 95);
    press("buttonCartoonParchment");
    EXPECT_EQ(info_->iSliderCartoonEffectWidth, 40);
    EXPECT_EQ(info_->iSliderCartoonEffectSmoothing, 20);
    const int askedNow = info_->iNewThreadCount;
    width->setValue(50);
    EXPECT_GT(info_->iNewThreadCount, askedNow);
    for (int i = 0; i < 3; ++i)
        action("UndoButton")->trigger();
    EXPECT_EQ(info_->iCartoonEffectType, 0);
    EXPECT_EQ(width->value(), 33) << "what came with the kind goes with it";
}

TEST_F(EffectsTest, APictureIsTakenByDropOrStaysWhenTheNewOneCannotBeRead) {
    const std::string good = test::savePng(test::noisePicture(40, 30, 3), file("linen \303\244.png"));
    openPanel("MyEffectsTexturePanel");
    PictureRow* row = pictureRow("loadTextureImage");
    const auto drop = [&](const std::string& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(row, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(row, &event);
    };
    drop(good);
    ASSERT_TRUE(test::eventually([&] { return info_->oImageTexture->bHaveTexture.load(); }));
    EXPECT_EQ(value("texture.sTextureFileName"), good);
    auto* button = part<QToolButton>("loadTextureImage");
    EXPECT_EQ(button->text(), QString::fromUtf8("linen \303\244.png"));
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(editor().steps().size(), 1u);

    std::ofstream(file("broken.jpg")) << "no picture";
    drop(file("broken.jpg"));
    ASSERT_TRUE(test::eventually([&] { return !row->problem().isEmpty(); }));
    EXPECT_TRUE(row->problem().startsWith("broken.jpg cannot be read: ")) << row->problem().toStdString();
    EXPECT_TRUE(part<QLabel>("loadTextureImageProblem")->isVisible());
    EXPECT_EQ(value("texture.sTextureFileName"), good) << "the old one stays";
    EXPECT_EQ(button->text(), QString::fromUtf8("linen \303\244.png"));

    press("loadTextureImageClear");
    EXPECT_FALSE(info_->oImageTexture->bHaveTexture);
    EXPECT_EQ(value("texture.sTextureFileName"), "");
    EXPECT_FALSE(part<QLabel>("loadTextureImageProblem")->isVisible());
    action("UndoButton")->trigger();
    EXPECT_TRUE(info_->oImageTexture->bHaveTexture);
    EXPECT_EQ(button->text(), QString::fromUtf8("linen \303\244.png"));
}

TEST_F(EffectsTest, AFrameOfAPictureAsksForOneAndCancellingLeavesIt) {
    openPanel("MyEffectsFrame2Panel");
    press("buttonFrameImageOverlay");
    auto* dialog = window_->findChild<QFileDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->windowTitle(), "Select Image");
    dialog->reject();
    EXPECT_EQ(info_->oFrameOverlay->iFrameMode, 4);
    EXPECT_EQ(value("frameOverlay.sFrameImagePath"), "");
    const std::string oak = test::savePng(test::noisePicture(40, 30, 3), file("oak.png"));
    pictureRow("loadFrameImageOverlay")->take(QString::fromStdString(oak));
    ASSERT_TRUE(test::eventually([&] { return value("frameOverlay.sFrameImagePath") == oak; }));
    press("buttonFrameColorOverlay");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press("buttonFrameImageOverlay");
    EXPECT_FALSE(window_->findChild<QFileDialog*>()) << "it has one";
}

TEST_F(EffectsTest, AColourFollowsItsDialogAndIsOneStep) {
    openPanel("MyEffectsFrame2Panel");
    const auto dialog = [&] {
        press("colorWellFrameOverlay");
        return window_->findChild<QColorDialog*>("colorWellFrameOverlayDialog");
    };
    QColorDialog* first = dialog();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->windowTitle(), "Select Frame Overlay Color");
    first->setCurrentColor(QColor(10, 20, 30));
    EXPECT_EQ(value("frameOverlay.iFrameColorGreen"), "20") << "the picture follows";
    EXPECT_EQ(editor().steps().size(), 1u) << "it is kept while the dialog stands open";
    first->setCurrentColor(QColor(200, 100, 50));
    first->accept();
    EXPECT_EQ(value("frameOverlay.iFrameColorRed"), "200");
    EXPECT_EQ(editor().steps().size(), 1u);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QColorDialog* second = dialog();
    ASSERT_TRUE(second);
    second->setCurrentColor(Qt::white);
    EXPECT_EQ(editor().steps().size(), 2u);
    second->reject();
    EXPECT_EQ(value("frameOverlay.iFrameColorRed"), "200");
    EXPECT_EQ(editor().steps().size(), 1u) << "it came to nothing";
    action("UndoButton")->trigger();
    EXPECT_EQ(value("frameOverlay.iFrameColorRed"), "0");
}

TEST_F(EffectsTest, ClosingTheGuardShowsThePictureAgain) {
    info_->bShowGreenProtection = true;
    GroupBox* guard = openPanel("myGreenGuardPanel");
    auto* status = part<QLabel>("textGreenGuardStatus");
    EXPECT_FALSE(status->isVisible());
    press("buttonGuardInside");
    EXPECT_TRUE(status->isVisible());
    EXPECT_TRUE(info_->bShowGreenProtection);
    const int asked = info_->iNewThreadCount;
    press("myGreenGuardPanelFold");
    EXPECT_TRUE(guard->isFolded());
    EXPECT_FALSE(info_->bShowGreenProtection);
    EXPECT_GT(info_->iNewThreadCount, asked);
    action("clickedGreenGuardSettingButton")->trigger();
    EXPECT_FALSE(guard->isFolded());
}

TEST_F(EffectsTest, CommandsOpenEachPanelOnItsPage) {
    window_->panel()->selectMainTab(0);
    for (const char* name : effectsFromTopToBottom()) {
        auto* group = part<GroupBox>(name);
        group->fold(true);
    }
    for (const auto& [command, name] : std::map<const char*, const char*>{
             {"openEffectsBWPanel", "MyEffectsBWPanel"},
             {"openEffectsTextureFrameOverlayPanel", "MyEffectsTextureFrameOverlayPanel"},
             {"clickedStarFilter", "myStarFilterPanel"},
             {"clickedGlobalSmoothing", "myGlobalSmoothingPanel"}}) {
        window_->panel()->selectMainTab(0);
        action(command)->trigger();
        EXPECT_FALSE(part<GroupBox>(name)->isFolded()) << name;
        EXPECT_TRUE(part<GroupBox>(name)->isVisible()) << name;
        QWidget* last = part<GroupBox>(name)->items().back();
        EXPECT_FALSE(last->visibleRegion().isEmpty()) << name << " is seen to its end";
    }
    openPanel("MyEffectsFrame1Panel");
    press("addFrameTexture");
    EXPECT_FALSE(part<GroupBox>("MyEffectsTexturePanel")->isFolded());
}

TEST_F(EffectsTest, WhatIsOnStandsInTheListOnceAndCanBeSwitchedOff) {
    const auto chip = [&](const char* name) {
        return window_->panel()->findChild<QToolButton*>(QString(name) + "Chip");
    };
    press("buttonWall");
    ASSERT_TRUE(test::eventually([&] { return chip("groupShadow"); }));
    EXPECT_EQ(chip("groupShadow")->text(), "Shadow: wall");
    EXPECT_FALSE(chip("sliderShadowScale")) << "its sliders belong to it";
    openPanel("MyEffectsFrame1Panel");
    press("buttonFrameOval");
    press("buttonFloor");
    ASSERT_TRUE(test::eventually([&] { return chip("MyEffectsFrame1Panel"); }));
    EXPECT_EQ(chip("MyEffectsFrame1Panel")->text(), "Frame: Oval");
    EXPECT_EQ(chip("groupShadow")->text(), "Shadow: floor");
    window_->panel()->selectMainTab(0);
    chip("MyEffectsFrame1Panel")->click();
    EXPECT_TRUE(part<GroupBox>("MyEffectsFrame1Panel")->isVisible());
    const std::size_t steps = editor().stepsDone();
    part<QToolButton>("groupShadowChipReset")->click();
    EXPECT_EQ(info_->iHaveShadow, 1);
    EXPECT_EQ(value("iSliderShadowBlur"), "250") << "it comes back as it was";
    EXPECT_EQ(editor().stepsDone(), steps + 1);
    EXPECT_TRUE(test::eventually([&] { return !chip("groupShadow"); }));
    part<QToolButton>("effectsFrameReset:")->click();
    EXPECT_EQ(info_->oFrame->iFrameType, 0);
}

TEST_F(EffectsTest, EverySettingOfTheEffectsIsSavedAndShownAgain) {
    const std::string linen = test::savePng(test::noisePicture(40, 30, 3), file("linen.png"));
    for (const char* object : {"texture.", "frame.texture.", "frameOverlay.texture.", "reflectionTexture."}) {
        editor().set(std::string(object) + "sTextureFileName", linen);
        editor().set(std::string(object) + "bHaveTexture", "1");
    }
    for (const char* name : {"frame.sFrameImagePath", "frameOverlay.sFrameImagePath", "sSilhouetteFileName"})
        editor().set(name, linen);
    press("buttonFloorAndWall");
    for (const char* name : effectsFromTopToBottom())
        for (const ControlRow* row : part<GroupBox>(name)->rows()) {
            const Binding& binding = row->binding();
            const double other = binding.choices.empty() ? binding.mapping->toSetting(binding.maximum / 2 + 3)
                                                         : binding.choices.back().value;
            editor().set(binding.setting, settingText(*binding.mapping, other));
        }
    const auto before = listFields(*info_);
    const QString state = QString::fromStdString(file("all.qlx"));
    window_->saveState(state);
    ASSERT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
    part<QToolButton>("effectsFrameReset:")->click();
    window_->panel()->resetAll();
    EXPECT_FALSE(info_->oImageTexture->bHaveTexture);
    EXPECT_EQ(info_->iHaveShadow, 1);
    EXPECT_EQ(part<QLabel>("textShadowType")->text(), "No Shadow Active");
    window_->openState(state);
    ASSERT_TRUE(test::eventually([&] { return part<QLabel>("textShadowType")->text() == "Wall and Floor Shadow"; }));
    const auto after = listFields(*info_);
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::string& name = before[i].first;
        const bool isEffect = std::ranges::any_of(effectGroups(), [&](const BindingGroup& group) {
            return std::ranges::any_of(group.bindings, [&](const Binding& one) { return name == one.setting; });
        });
        if (name == "iForegroundOutputMode" || name == "iBackgroundOutputMode") continue;
        // These two belong to no file.
        if (!isEffect || name == "bSmoothBlendOrg" || name.ends_with("iFrameThickness")) continue;
        EXPECT_EQ(after[i].second, before[i].second) << name;
    }
    // A file exchanges these two, as it always has.
    EXPECT_EQ(info_->iForegroundOutputMode, 2);
    EXPECT_EQ(info_->iBackgroundOutputMode, 3);
    for (const ControlRow* row : window_->panel()->effects()->findChildren<ControlRow*>()) {
        const auto* groove = qobject_cast<const Groove*>(row->control());
        if (!groove) continue;
        const double setting = std::stod(value(row->binding().setting));
        EXPECT_EQ(groove->value(), qRound(row->binding().mapping->toControl(setting))) << row->binding().control;
    }
    ASSERT_TRUE(waitForPicture());
}

TEST_F(EffectsTest, SettingsAreShownGroupByGroupInTheirOrder) {
    QStringList shown;
    for (const ControlRow* row : window_->binder().rows())
        for (const BindingGroup& group : effectGroups())
            for (const Binding& one : group.bindings)
                if (&one == &row->binding() && (shown.isEmpty() || shown.back() != group.acts->update))
                    shown.append(group.acts->update);
    EXPECT_EQ(
        shown.mid(0, 12),
        (QStringList{"updateEffectsUI", "updateShadowEffectsUI", "updateSmoothEffectsUI", "updateTextureEffectsUI",
                     "updateTextureEffectsFrameUI", "updateTextureEffectsFrameUIOverlay",
                     "updateFrameEffectsUIOverlay", "updateFrameEffectsUI", "updateSilhouetteEffectsUI",
                     "updateReflectionEffectsUI", "updateTextureEffectsReflectionUI", "updateLightingEffectsUI"}));
}

TEST_F(EffectsTest, TheSmoothingOfSkinTellsHowFarItIs) {
    openPanel("MyEffectsSmoothPanel");
    auto* bar = part<QProgressBar>("progressBar");
    EXPECT_FALSE(bar->isVisible());
    QSignalSpy values(bar, &QProgressBar::valueChanged);
    press("startSkin");
    EXPECT_EQ(info_->iSmoothMode, 1);
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return values.size() >= 2 && !bar->isVisible(); }));
}

TEST_F(EffectsTest, TheFreezeStandsOnThePageToo) {
    openPanel("groupFreeze");
    auto* told = part<QLabel>("textFreeze");
    EXPECT_FALSE(told->isVisible());
    press("buttonWall");
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return part<QToolButton>("buttonFreeze")->isEnabled(); }));
    press("buttonFreeze");
    ASSERT_TRUE(test::eventually([&] { return told->isVisible(); }));
    EXPECT_TRUE(info_->bBackgroundFrozen);
    EXPECT_EQ(part<QLabel>("textShadowType")->text(), "No Shadow Active") << "it is baked in";
    ASSERT_TRUE(waitForPicture());
    press("buttonFreezeClear");
    EXPECT_FALSE(told->isVisible());
}

TEST_F(EffectsTest, OverlaySlotsTakePicturesAndHaveChips) {
    const struct {
        const char *slot, *have, *setting, *none;
    } cases[] = {
        {"slotBackgroundOverlay", "bHaveBackgroundOverlay", "sBackgroundOverlay", "No background overlay loaded"},
        {"slotForegroundOverlay", "bHaveForegroundOverlay", "sForegroundOverlay", "No foreground overlay loaded"},
        {"slotFrameOverlay", "bHaveFrameOverlay", "sFrameOverlay", "No frame overlay loaded"}};
    openPanel("groupOverlays");
    const std::string gold = test::savePng(test::noisePicture(30, 40, 2), file("gold.png"));
    std::ofstream(file("bad.png")) << "no picture";
    for (const auto& [slot, have, setting, none] : cases) {
        SCOPED_TRACE(slot);
        PictureRow* row = pictureRow(slot);
        auto* button = part<QToolButton>(slot);
        EXPECT_EQ(button->text(), none);
        row->take(QString::fromStdString(file("bad.png")));
        EXPECT_TRUE(test::eventually([&] { return row->problem().contains("bad.png"); }));
        EXPECT_EQ(value(have), "0") << "and nothing is lost";
        info_->pBackgroundBitmapInfo->bScaleChange = false;
        const std::size_t steps = editor().stepsDone();
        row->take(QString::fromStdString(gold));
        ASSERT_TRUE(test::eventually([&] { return value(have) == "1"; }));
        EXPECT_EQ(value(setting), gold);
        EXPECT_EQ(editor().stepsDone(), steps + 1);
        EXPECT_EQ(button->text(), "gold.png");
        EXPECT_FALSE(button->icon().isNull());
        EXPECT_EQ(info_->oQLXInfo->sOverlayDir.load(), gold) << "the next dialog begins there";
        const QString chip = QString(slot) + "Chip";
        ASSERT_TRUE(test::eventually([&] { return window_->panel()->findChild<QToolButton*>(chip) != nullptr; }));
        part<QToolButton>(chip + "Reset")->click();
        EXPECT_EQ(value(have), "0");
        EXPECT_EQ(button->text(), none);
        action("UndoButton")->trigger();
        EXPECT_EQ(value(have), "1");
        EXPECT_EQ(button->text(), "gold.png");
        press((std::string(slot) + "Clear").c_str());
        EXPECT_EQ(value(have), "0");
    }
    EXPECT_EQ(part<QToolButton>("buttonOverlaySet")->defaultAction(), action("loadAutomaticOverlays"));
    ASSERT_TRUE(waitForPicture());
}

}  // namespace
}  // namespace tavrin

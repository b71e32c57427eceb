// Every control of the panel, with the events of a person: what becomes of its setting, of the flags and of the other
// controls.
#include <charconv>
#include <gtest/gtest.h>
#include <map>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "core/state/SettingNames.h"
#include "ui/Eventually.h"
#include "ui/adjust/AdjustGroups.h"
#include "ui/adjust/Rotation.h"
#include "ui/bind/Groove.h"
#include "ui/bind/SliderRow.h"
#include "ui/frame/SidePanel.h"

namespace tavrin {
namespace {

class ControlsTest : public testing::Test {
  protected:
    void SetUp() override {
        // Nothing is grey, every change asks for a picture, and no choice asks for a file.
        for (const auto& [setting, value] : {std::pair("iHaveShadow", "5"), std::pair("iCartoonEffectType", "1"),
                                             std::pair("frame.sFrameImagePath", "/gone/oak.jpg"),
                                             std::pair("frameOverlay.sFrameImagePath", "/gone/oak.jpg")})
            ASSERT_EQ(setField(info_, setting, value), "");
        info_.oFontObject.resize(2);
        info_.oFontObject[1].isImage = true;
        for (GroupBox* group : panel_.groups())
            group->setFolded(false);
        for (PanelPage* page : panel_.pages())
            page->show();
        panel_.resize(460, 6000);
        panel_.show();
        ASSERT_TRUE(test::becomesActive(&panel_));
        binder_.UpdateAllUI();
    }

    /// Controls of items are grey until one of their kind is selected.
    void selectItemOf(const Binding& binding) {
        info_.iSelectedFontObject = std::string_view(binding.control).starts_with("sliderImage") ? 1 : 0;
        binder_.UpdateAllUI();
    }
    double setting(const ControlRow* row) const {
        const std::string text = editor_.value(binder_.settingOf(row->binding()));
        double number = 0.0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return number;
    }
    template <class Widget>
    Widget* find(const QString& name) const {
        auto* widget = panel_.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name.toStdString();
        return widget;
    }
    QLineEdit* fieldOf(const ControlRow* row) const {
        return find<QLineEdit>(QString(row->binding().control) + "Number");
    }
    std::vector<SliderRow*> sliders() const {
        std::vector<SliderRow*> found;
        for (ControlRow* row : binder_.rows())
            if (auto* slider = dynamic_cast<SliderRow*>(row)) found.push_back(slider);
        return found;
    }
    void type(QLineEdit* field, const QString& text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    void wheel(QWidget* widget, int notches) {
        const QPointF at(widget->width() / 2.0, widget->height() / 2.0);
        QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }
    /// The flags that stand, and their end.
    std::string takeFlags() {
        BitmapInfo &portrait = *info_.pForegroundBitmapInfo, &background = *info_.pBackgroundBitmapInfo;
        std::string flags;
        if (portrait.bOrgFileChange.exchange(false)) flags += "portrait's source ";
        if (background.bOrgFileChange.exchange(false)) flags += "background's source ";
        if (portrait.bScaleChange.exchange(false)) flags += "portrait ";
        if (background.bScaleChange.exchange(false)) flags += "background ";
        return flags;
    }

    SystemInfo info_;
    SettingEditor editor_{info_};
    Binder binder_{editor_};
    SidePanel panel_{binder_};
};

TEST_F(ControlsTest, ADragMovesTheSettingAndIsOneStepOfUndo) {
    for (SliderRow* row : sliders()) {
        const Binding& binding = row->binding();
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        auto* groove = find<Groove>(binding.control);
        const double before = setting(row);
        const std::size_t steps = editor_.stepsDone();
        const int asked = info_.iNewThreadCount;
        const int y = groove->height() / 2;
        QTest::mousePress(groove, Qt::LeftButton, {}, {groove->width() / 4, y});
        for (int x = groove->width() / 4; x < 4 * groove->width() / 5; x += 3)
            QTest::mouseMove(groove, {x, y});
        QTest::mouseRelease(groove, Qt::LeftButton, {}, {4 * groove->width() / 5, y});
        EXPECT_NEAR(groove->value(), binding.minimum + 0.8 * (binding.maximum - binding.minimum),
                    0.05 * (binding.maximum - binding.minimum));
        EXPECT_EQ(setting(row), binding.mapping->toSetting(groove->value()));
        EXPECT_NE(setting(row), before);
        EXPECT_GT(info_.iNewThreadCount, asked);
        EXPECT_EQ(editor_.stepsDone(), steps + 1);
        EXPECT_EQ(editor_.steps().back().label, binding.label);
        binder_.undo();
        EXPECT_EQ(setting(row), before);
        EXPECT_EQ(groove->value(), qRound(binding.mapping->toControl(before)));
    }
}

TEST_F(ControlsTest, ADragWhosePanelGoesEndsItsStep) {
    auto* groove = find<Groove>("sliderBrightness");
    QTest::mousePress(groove, Qt::LeftButton, {}, {groove->width() / 4, groove->height() / 2});
    panel_.hide();
    EXPECT_EQ(editor_.steps().size(), 1u);
    EXPECT_TRUE(editor_.undo());
    EXPECT_EQ(info_.pForegroundBitmapInfo->iBrightness, 0);
}

TEST_F(ControlsTest, NumbersAreTypedHeldAtTheEndsAndSaid) {
    QSignalSpy told(&binder_, &Binder::told);
    for (SliderRow* row : sliders()) {
        const Binding& binding = row->binding();
        const Mapping& mapping = *binding.mapping;
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        const double middle =
            mapping.toSetting(std::floor(binding.minimum + 0.3 * (binding.maximum - binding.minimum)));
        type(fieldOf(row), QString::number(middle * mapping.shownBy));
        EXPECT_NEAR(setting(row), middle, 1e-6);
        EXPECT_TRUE(told.isEmpty());
        type(fieldOf(row), "some");
        EXPECT_NEAR(setting(row), middle, 1e-6);
        ASSERT_EQ(told.size(), 1);
        EXPECT_TRUE(told.takeFirst()[0].toString().contains("\"some\" is no number"));
        type(fieldOf(row), "99999");
        EXPECT_EQ(setting(row), mapping.toSetting(binding.maximum));
        ASSERT_EQ(told.size(), 1);
        EXPECT_TRUE(told.takeFirst()[0].toString().startsWith(QString(binding.label) + " goes from "));
        type(fieldOf(row), "-99999");
        EXPECT_EQ(setting(row), mapping.toSetting(binding.minimum));
        told.clear();
    }
    type(find<QLineEdit>("sliderTiltNumber"), "2,5");  // between two places of the groove, and with a comma
    EXPECT_EQ(info_.pForegroundBitmapInfo->fTilt, 2.5);
    EXPECT_EQ(find<Groove>("sliderTilt")->value(), 93);
}

TEST_F(ControlsTest, ArrowsStepAndTheWheelWaitsForTheFocus) {
    for (SliderRow* row : sliders()) {
        const Binding& binding = row->binding();
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        auto* groove = find<Groove>(binding.control);
        const auto value = [&] { return binding.mapping->toControl(setting(row)); };
        const double first = value();
        panel_.searchField()->setFocus();
        wheel(groove, 1);
        wheel(fieldOf(row), 1);
        EXPECT_EQ(value(), first);
        groove->setFocus();
        const int up = first < binding.maximum ? 1 : -1;
        wheel(groove, up);
        const double plain = SliderRow::stepFor(binding, Qt::NoModifier);
        EXPECT_NEAR(value(), first + up * plain, 1e-6);
        QTest::keyClick(groove, up > 0 ? Qt::Key_Left : Qt::Key_Right);
        EXPECT_NEAR(value(), first, 1e-6);
        QTest::keyClick(groove, up > 0 ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
        EXPECT_NEAR(value(), first + up * SliderRow::stepFor(binding, Qt::ControlModifier), 1e-6);
        QTest::keyClick(fieldOf(row), up > 0 ? Qt::Key_Down : Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(groove, up > 0 ? Qt::Key_Right : Qt::Key_Left, Qt::ShiftModifier);
        const double fine = SliderRow::stepFor(binding, Qt::ShiftModifier);
        EXPECT_NEAR(value(), first + up * fine, 1e-6);
        EXPECT_LE(fine, plain);  // a short range has no finer step
        EXPECT_TRUE(fine < plain || plain == 1.0);
        QTest::keyClick(groove, Qt::Key_Delete);
        EXPECT_EQ(setting(row), binding.reset);
    }
}

TEST_F(ControlsTest, BoxesAndChoicesWriteTheirValues) {
    for (ControlRow* row : binder_.rows()) {
        const Binding& binding = row->binding();
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        for (const Choice& choice : binding.choices) {
            find<QToolButton>(choice.control)->click();
            EXPECT_EQ(setting(row), choice.value);
            EXPECT_TRUE(find<QToolButton>(choice.control)->isChecked());
        }
        if (binding.mapping != &kState) continue;
        const double before = setting(row);
        auto* box = find<QCheckBox>(binding.control);
        QTest::keyClick(box, Qt::Key_Space);
        EXPECT_EQ(setting(row), 1.0 - before);
        box->toggle();  // as a screen reader does
        EXPECT_EQ(setting(row), before);
    }
}

TEST_F(ControlsTest, ADotMarksWhatDiffersAndTheLabelTakesItBack) {
    for (ControlRow* row : binder_.rows()) {
        const Binding& binding = row->binding();
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        editor_.set(binder_.settingOf(binding), settingText(*binding.mapping, binding.reset));
        binder_.UpdateAllUI();
        auto* dot = find<QToolButton>(QString(binding.control) + "Reset");
        EXPECT_TRUE(dot->isHidden());
        const double other = binding.mapping->toSetting(
            binding.reset == binding.mapping->toSetting(binding.maximum) ? binding.minimum : binding.maximum);
        editor_.set(binder_.settingOf(binding), settingText(*binding.mapping, other));
        binder_.UpdateAllUI();
        EXPECT_FALSE(dot->isHidden());
        const std::size_t steps = editor_.stepsDone();
        if (auto* label = row->findChild<QLabel*>()) {
            QTest::mouseDClick(label, Qt::LeftButton);
        } else {
            dot->click();
        }
        EXPECT_EQ(setting(row), binding.reset);
        EXPECT_TRUE(dot->isHidden());
        EXPECT_EQ(editor_.stepsDone(), steps + 1) << "one press of undo brings it back";
    }
}

TEST_F(ControlsTest, TheFlagsFollowFromTheSetting) {
    info_.iHaveShadow = 1;
    const std::map<std::string, std::string> expected = {
        {"sliderScale", "portrait "},
        {"sliderOffsetX", "portrait "},
        {"sliderOffsetY", "portrait "},
        {"sliderTilt", "portrait's source "},
        {"radioRotation", "portrait's source "},
        {"buttonFlip", "portrait's source "},
        {"checkboxBlueLogic", "portrait's source background "},
        {"sliderBackgroundBlur", "background "},
        {"sliderShadowRightLeft", "background "},
        {"sliderShadowUpDown", "background "},
        {"sliderShadowBase", "background "},
        {"sliderFloorBaseAngle", "background "},
        {"sliderShadowBlack", "background "},
        {"sliderFloorSkew", "background "},
        {"sliderShadowScale", "background "},
        {"sliderShadowTransparency", "background "},
        {"sliderShadowBlur", "background "},
        {"sliderVRoomRight", "background "},
        {"sliderVRoomLeft", "background "},
        {"sliderVRoomTransparency", "background "},
        {"buttonShadowBehind", "background "},
        {"checkboxReflection", "background "},
        {"sliderReflectionsReflectionBase", "background "},
        {"radioGlobalSmoothing", "portrait "},
        {"sliderGlobalSmoothing", "portrait "},
    };
    for (ControlRow* row : binder_.rows()) {
        SCOPED_TRACE(row->binding().control);
        selectItemOf(row->binding());
        takeFlags();
        emit row->changed(row->binding().mapping->toSetting(row->binding().maximum));
        const auto flags = expected.find(row->binding().control);
        EXPECT_EQ(takeFlags(), flags == expected.end() ? "" : flags->second);
    }
    info_.iHaveShadow = 3;
    for (const char* name : {"sliderRemoveGreenAreas", "sliderClipTop"}) {
        find<Groove>(name)->setValue(33);
        EXPECT_EQ(takeFlags(), "background ") << name;
    }
}

TEST_F(ControlsTest, TheLayerSwitchLeadsTheLayersControls) {
    find<Groove>("sliderBrightness")->setValue(130);
    find<QToolButton>("radioBackground")->click();
    EXPECT_EQ(info_.iActiveBitmap, 1);
    EXPECT_EQ(find<Groove>("sliderBrightness")->value(), 100);
    find<Groove>("sliderBrightness")->setValue(60);
    EXPECT_EQ(info_.pForegroundBitmapInfo->iBrightness, 30);
    EXPECT_EQ(info_.pBackgroundBitmapInfo->iBrightness, -40);
    EXPECT_TRUE(info_.pBackgroundBitmapInfo->bHaveColorChange);
    find<QToolButton>("brightnessReset:")->click();
    EXPECT_EQ(info_.pBackgroundBitmapInfo->iBrightness, 0);
    EXPECT_FALSE(info_.pBackgroundBitmapInfo->bHaveColorChange);
    EXPECT_TRUE(info_.pForegroundBitmapInfo->bHaveColorChange) << "it is the portrait's";
    find<QToolButton>("radioForeground")->click();
    EXPECT_EQ(find<Groove>("sliderBrightness")->value(), 130);
}

TEST_F(ControlsTest, EasySettingsMoveTheKeyAndTheKeyLeavesThem) {
    const BitmapInfo& key = *info_.pCombinedBitmapInfo;
    for (const auto& [symbol, hair] :
         std::map<char, int>{{'1', 4}, {'2', 3}, {'3', 2}, {'4', 1}, {'5', 5}, {'6', 6}, {'7', 0}})
        EXPECT_EQ(hairOfKey(symbol), hair) << symbol;
    find<QToolButton>("buttonHairBlack")->click();
    EXPECT_EQ(info_.iMacroHairColor, 2);
    EXPECT_EQ(find<Groove>("sliderRemoveGreenAreas")->value(), 140);
    find<QToolButton>("buttonShadowsDark")->click();
    EXPECT_EQ(find<Groove>("sliderRestoredDarkAreas")->value(), 20);
    find<QCheckBox>("bMacroRestoreGreen")->click();
    EXPECT_EQ(find<Groove>("sliderGreenTintAreas")->value(), 110);
    EXPECT_TRUE(info_.bEZCombine);
    find<Groove>("sliderWhiteAdjust")->setValue(70);
    EXPECT_FALSE(info_.bEZCombine);
    find<QToolButton>("combineReset:")->click();
    EXPECT_TRUE(info_.bEZCombine);
    EXPECT_EQ(key.sliderRemoveGreenAreas, 100);
    EXPECT_EQ(key.sliderRestoredDarkAreas, 60);
    find<QToolButton>("ezCombineReset:")->click();
    EXPECT_EQ(info_.iMacroHairColor, 6);
    EXPECT_TRUE(find<QToolButton>("buttonHairAuto")->isChecked());
    for (int i = 0; i < 6; ++i)
        binder_.undo();
    EXPECT_EQ(key.sliderGreenTintAreas, 100) << "what followed from a click goes with it";
    EXPECT_EQ(info_.iMacroHairColor, 4);
    editor_.info().pCombinedBitmapInfo->bHaveBaseGreen = true;
    find<QCheckBox>("checkboxOutputTransparency")->click();
    EXPECT_FALSE(key.bHaveBaseGreen) << "the screen is measured anew";
}

TEST_F(ControlsTest, ALoadedStateIsShownInEveryControl) {
    for (ControlRow* row : binder_.rows()) {
        const Binding& binding = row->binding();
        selectItemOf(binding);
        const double value =
            binding.choices.empty() ? binding.mapping->toSetting(binding.maximum) : binding.choices.back().value;
        ASSERT_EQ(setField(info_, binder_.settingOf(binding), settingText(*binding.mapping, value)), "");
    }
    binder_.UpdateAllUI();
    for (ControlRow* row : binder_.rows()) {
        const Binding& binding = row->binding();
        SCOPED_TRACE(binding.control);
        selectItemOf(binding);
        if (!binding.choices.empty()) {
            EXPECT_TRUE(find<QToolButton>(binding.choices.back().control)->isChecked());
        } else if (binding.mapping == &kState) {
            EXPECT_TRUE(find<QCheckBox>(binding.control)->isChecked());
        } else {
            EXPECT_EQ(find<Groove>(binding.control)->value(), binding.maximum);
            EXPECT_EQ(fieldOf(row)->text().toDouble(),
                      binding.mapping->toSetting(binding.maximum) * binding.mapping->shownBy);
        }
    }
    info_.iMacroHairColor = 9;  // which no button has
    binder_.UpdateAllUI();
    for (const char* name : {"buttonHairAuto", "buttonHairGray", "buttonHairRed"})
        EXPECT_FALSE(find<QToolButton>(name)->isChecked());
}

TEST_F(ControlsTest, KeysOfTheMenuTurnOneLayerAndReadTheActiveOneAgain) {
    info_.iActiveBitmap = 1;
    takeFlags();
    clickedRotationRadiobutton(editor_, '2');
    EXPECT_EQ(info_.pForegroundBitmapInfo->fRotate, 90.0);
    EXPECT_EQ(takeFlags(), "portrait's source background's source ");
    clickedRotationRadiobutton(editor_, '6');
    clickedRotationRadiobutton(editor_, 'x');
    EXPECT_EQ(info_.pBackgroundBitmapInfo->fRotate, 270.0);
    clickedRotationRadiobutton(editor_, '9');
    EXPECT_EQ(info_.pBackgroundBitmapInfo->fRotate, 180.0);
    EXPECT_EQ(info_.pForegroundBitmapInfo->fRotate, 90.0);
}

TEST_F(ControlsTest, SearchFindsControlsByWordsInAnyOrder) {
    for (const int key : {1, 4, 0})
        panel_.selectMainTab(key);
    const auto shown = [&] {
        QStringList names;
        for (ControlRow* row : binder_.rows())
            if (row->isVisible()) names.append(row->binding().control);
        return names;
    };
    const int all = static_cast<int>(shown().size());
    panel_.groups()[5]->setFolded(true);
    panel_.searchField()->setText("shine green magenta");
    EXPECT_EQ(shown(), QStringList{"sliderWhiteBalance"});
    panel_.searchField()->setText("icooling");  // by its setting, and out of a folded group
    EXPECT_EQ(shown(), QStringList{"sliderCooling"});
    panel_.searchField()->setText("blond");
    EXPECT_EQ(shown(), QStringList{"radioHair"});
    panel_.searchField()->setText("no such thing");
    EXPECT_TRUE(shown().isEmpty());
    panel_.searchField()->clear();
    for (GroupBox* group : panel_.groups())
        group->setFolded(false);
    EXPECT_EQ(shown().size(), all);
}

}  // namespace
}  // namespace tavrin

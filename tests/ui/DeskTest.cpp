// The window around the controls: what is named, what keys do, what comes back at the next start.
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include <QApplication>
#include <QFileInfo>
#include <QHelpEvent>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

#include "formats/SettingsFile.h"
#include "pipeline/LayerFit.h"
#include "ui/WindowTest.h"
#include "ui/bind/Groove.h"
#include "ui/frame/ControlList.h"

namespace tavrin {
namespace {

class DeskTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
    }
};

TEST_F(DeskTest, EveryControlDrivesSomethingAndHasANameOfItsOwn) {
    std::map<QString, int> names;
    const QJsonArray controls = listControls(*window_);
    EXPECT_GT(controls.size(), 100);
    for (const auto& value : controls) {
        const QJsonObject control = value.toObject();
        const QString name = control["objectName"].toString();
        SCOPED_TRACE(name.toStdString() + " in " + control["panel"].toString().toStdString());
        EXPECT_FALSE(name.isEmpty());
        EXPECT_FALSE(control["handler"].toString().isEmpty()) << "it drives nothing";
        EXPECT_FALSE(control["accessibleName"].toString().trimmed().isEmpty());
        EXPECT_FALSE(control["toolTip"].toString().isEmpty() && control["class"] != "QAction" &&
                     !name.endsWith("Number"));
        if (control["class"] != "QAction") ++names[name];
    }
    for (const char* name : {"sliderBrightness",
                             "sliderContrast",
                             "sliderBrightnessSat",
                             "sliderEnhanseShadows",
                             "sliderReduceHighlights",
                             "sliderBrightnessSharpen",
                             "sliderRedDelta",
                             "sliderGreenDelta",
                             "sliderBlueDelta",
                             "sliderCooling",
                             "sliderWarming",
                             "sliderScale",
                             "sliderTilt",
                             "sliderClipTop",
                             "sliderClipBottom",
                             "sliderClipRight",
                             "sliderClipLeft",
                             "sliderRemoveGreenAreas",
                             "sliderRestoredDarkAreas",
                             "sliderWhiteAdjust",
                             "sliderGreenTintAreas",
                             "sliderTransparentcyAdjustment",
                             "sliderWhiteBalance",
                             "sliderAdjustBaseGreen",
                             "bShowOrgImage",
                             "bShowBright",
                             "bShowSelectedAreas",
                             "checkboxOutputTransparency",
                             "checkboxBlueLogic",
                             "buttonHighSpeed",
                             "buttonHighQuility",
                             "sliderBlendEdges",
                             "checkboxNoGreenScreenProcessing",
                             "checkboxAVPShadowRemoval",
                             "checkboxAdvancedHairProcessing",
                             "buttonHairRed",
                             "buttonHairBlack",
                             "buttonHairBlond",
                             "buttonHairBrown",
                             "buttonHairGray",
                             "buttonHairAuto",
                             "buttonTransparencyLess",
                             "buttonTransparencyNormal",
                             "buttonTransparencyMore",
                             "buttonShadowsNone",
                             "buttonShadowsSome",
                             "buttonShadowsDark",
                             "comboBoxImageSize"})
        EXPECT_EQ(names[name], 1) << name;
}

TEST_F(DeskTest, NoTwoActionsHaveOneShortcutAndNoneTakesAKeyOfTheDesktop) {
    const QRegularExpression desktops("Meta\\+|Ctrl\\+Alt\\+|Alt\\+F\\d|Ctrl\\+F\\d|Alt\\+Tab");
    std::set<QString> keys;
    for (const Command& command : window_->commands().table()) {
        const QString key = command.shortcut.toString();
        EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << key.toStdString() << ' ' << command.id;
        EXPECT_FALSE(desktops.match(key).hasMatch()) << key.toStdString() << ' ' << command.id;
    }
}

TEST_F(DeskTest, HelpHasTheGuideWithItsPicturesAndTheVersion) {
    action("showQLXHelp")->trigger();
    auto* guide = window_->findChild<QTextBrowser*>("MyHelpView");
    ASSERT_TRUE(guide);
    EXPECT_TRUE(guide->isVisible());
    int pictures = 0;
    for (QTextBlock block = guide->document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (const QTextImageFormat image = part.fragment().charFormat().toImageFormat(); image.isValid()) {
                ++pictures;
                const QVariant picture = guide->document()->resource(QTextDocument::ImageResource, image.name());
                EXPECT_FALSE(picture.isNull()) << image.name().toStdString();
            }
    EXPECT_GE(pictures, 5);
    action("showQLXHelp")->trigger();
    EXPECT_EQ(window_->findChildren<QTextBrowser*>("MyHelpView").size(), 1);

    action("ShowAboutBox")->trigger();
    const auto* about = window_->findChild<QMessageBox*>("MyAboutPanel");
    ASSERT_TRUE(about);
    EXPECT_TRUE(about->text().contains("Tavrin " + QCoreApplication::applicationVersion()));
}

TEST_F(DeskTest, NoTipCoversWhatIsDoneAndAKeyHidesAllOfThem) {
    auto* button = window_->findChild<QToolButton*>("mainTabAdjust");
    ASSERT_TRUE(button);
    const QPoint middle = button->rect().center();
    QTest::mouseRelease(window_->view(), Qt::LeftButton);  // whatever a test before held
    const auto tip = [&] {
        QHelpEvent rests(QEvent::ToolTip, middle, button->mapToGlobal(middle));
        QApplication::sendEvent(button, &rests);
        const bool shown = !QToolTip::text().isEmpty();
        QToolTip::hideText();
        EXPECT_TRUE(test::eventually([] { return QToolTip::text().isEmpty(); }));  // it fades
        return shown;
    };
    EXPECT_TRUE(tip());
    QTest::mousePress(window_->view(), Qt::LeftButton);
    EXPECT_FALSE(tip()) << "a button is down";
    QTest::mouseRelease(window_->view(), Qt::LeftButton);
    EXPECT_TRUE(tip());
    EXPECT_EQ(action("ToolTips")->shortcut(), QKeySequence(Qt::SHIFT | Qt::Key_F1));
    action("ToolTips")->trigger();
    EXPECT_FALSE(tip());
    EXPECT_FALSE(action("ToolTips")->isChecked()) << "the menu says so";
    open();
    EXPECT_FALSE(action("ToolTips")->isChecked()) << "kept";
    action("ToolTips")->trigger();
}

TEST_F(DeskTest, UndoAndRedoStepThroughSettingsAndEndWithAState) {
    auto* brightness = window_->panel()->findChild<Groove*>("sliderBrightness");
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    brightness->setValue(140);
    EXPECT_TRUE(action("UndoButton")->isEnabled());
    EXPECT_EQ(action("UndoButton")->toolTip(), "Take back: Brightness");
    action("UndoButton")->trigger();
    EXPECT_EQ(brightness->value(), 100);
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    action("RedoButton")->trigger();
    EXPECT_EQ(info_->pForegroundBitmapInfo->iBrightness, 40);
    ASSERT_TRUE(waitForPicture());

    const QString file = QString::fromStdString(folder_.file("a.qlx"));
    window_->saveState(file);
    ASSERT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
    brightness->setValue(80);
    window_->openState(file);
    EXPECT_TRUE(test::eventually([&] { return brightness->value() == 140; })) << "controls show what was loaded";
    EXPECT_FALSE(action("UndoButton")->isEnabled());
}

TEST_F(DeskTest, KeysZoomTheViewAndLeaveTypingAlone) {
    PictureView* view = window_->view();
    window_->activateWindow();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_S);
    EXPECT_NEAR(view->zoom().dZoom(), 1.1, 1e-9);
    QTest::keyClick(view, Qt::Key_F);
    EXPECT_EQ(view->zoom().dZoom(), 1.0);
    QTest::keyClick(view, Qt::Key_1);
    EXPECT_NEAR(view->zoom().pixelScale(), 1.0, 1e-6);
    QTest::keyClick(view, Qt::Key_F);
    const QPointF at(50, 70);
    const QPointF held = view->zoom().pictureAt(at);
    QWheelEvent wheel(at, view->mapToGlobal(at), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(view, &wheel);
    EXPECT_GT(view->zoom().dZoom(), 1.2);
    EXPECT_NEAR(view->zoom().viewAt(held).x(), 50, 1e-6);
    const QRectF frame = view->zoom().frame();
    QTest::mousePress(view, Qt::MiddleButton, {}, {100, 100});
    QTest::mouseMove(view, {130, 90});
    QTest::mouseRelease(view, Qt::MiddleButton, {}, {130, 90});
    EXPECT_NEAR(view->zoom().frame().x(), frame.x() + 30, 1e-6);

    QTest::keyClick(view, Qt::Key_F);
    QTest::keyClick(view, Qt::Key_Tab);
    EXPECT_TRUE(window_->panel()->isHidden());
    QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(window_->panel()->isVisible());
    QTest::keyClicks(QApplication::focusWidget(), "sf");
    EXPECT_EQ(window_->panel()->searchField()->text(), "sf");
    EXPECT_EQ(view->zoom().dZoom(), 1.0);
}

TEST_F(DeskTest, AHeldKeyShowsThePortraitAsItWasTaken) {
    PictureView* view = window_->view();
    view->setFocus();
    const auto middleOfFrame = [&](double x, double y) {
        const QRectF frame = view->zoom().frame();
        return view->grab().toImage().pixelColor(
            (frame.topLeft() + QPointF(x * frame.width(), y * frame.height())).toPoint());
    };
    ASSERT_TRUE(test::eventually([&] { return action("ShowOriginal")->isEnabled(); }));
    QTest::keyPress(view, Qt::Key_B);
    const QColor screen = test::discOnScreen(240, 300).pixelColor(5, 150);
    EXPECT_TRUE(test::eventually([&] { return middleOfFrame(0.02, 0.5) == screen; }));
    QTest::keyRelease(view, Qt::Key_B);
    EXPECT_NE(middleOfFrame(0.02, 0.5), screen);
    QTest::keyPress(view, Qt::Key_B);
    EXPECT_TRUE(test::eventually([&] { return middleOfFrame(0.02, 0.5) == screen; }));
    QEvent elsewhere(QEvent::WindowDeactivate);  // where the key is let go
    QApplication::sendEvent(window_.get(), &elsewhere);
    EXPECT_NE(middleOfFrame(0.02, 0.5), screen);
}

TEST_F(DeskTest, TheAlphaIsShownUntilItIsTurnedOffAndFollowsThePicture) {
    PictureView* view = window_->view();
    const auto shown = [&](double x, double y) {
        const QRectF frame = view->zoom().frame();
        return view->grab().toImage().pixelColor(
            (frame.topLeft() + QPointF(x * frame.width(), y * frame.height())).toPoint());
    };
    action("ShowAlpha")->setChecked(true);
    EXPECT_TRUE(test::eventually([&] { return shown(0.5, 0.5) == QColor(0, 0, 0); })) << "the subject";
    EXPECT_EQ(shown(0.02, 0.5), QColor(255, 255, 255)) << "the screen";
    window_->panel()->findChild<Groove*>("sliderClipTop")->setValue(90);
    EXPECT_TRUE(test::eventually([&] { return shown(0.5, 0.5) == QColor(255, 255, 255); }));
    action("ShowAlpha")->setChecked(false);
    EXPECT_NE(shown(0.5, 0.5), QColor(255, 255, 255));
}

TEST_F(DeskTest, AStateIsSavedWithThePictureWhenThatIsWanted) {
    action("AutoState")->setChecked(true);
    ASSERT_TRUE(waitForPicture());
    EXPECT_TRUE(window_->saveTo(QString::fromStdString(folder_.file("out.png"))));
    ASSERT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
    EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(folder_.file("out.png"))));
    EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(folder_.file("out.qlx"))));
    QLXInfo kept;
    EXPECT_EQ(LoadQLXFile(kept), "");
    EXPECT_TRUE(kept.bAutoQLXSave) << "for the next start";
}

TEST_F(DeskTest, TransparentPartsShowTheGrid) {
    PictureView* view = window_->view();
    window_->binder().run("", [](SettingEditor& editor) { editor.set("bOutputTransparency", "1"); });
    ASSERT_TRUE(waitForPicture());
    std::set<QRgb> colours;
    const QRect frame = view->zoom().frame().toRect();
    ASSERT_TRUE(test::eventually([&] {
        colours.clear();
        const QImage shown = view->grab().toImage();
        for (int x = 0; x < 12; ++x)
            for (int y = 0; y < 12; ++y)
                colours.insert(shown.pixel(frame.left() + 8 + x, frame.top() + 8 + y));
        return colours.size() == 2;
    }));
    EXPECT_EQ(colours, (std::set<QRgb>{0xffcccccc, 0xffffffff}));
}

TEST_F(DeskTest, ALayerGoesWithThePointerAndComesBackWithOneUndo) {
    PictureView* view = window_->view();
    const auto drag = [&](const QPoint& from, const QPoint& by) {
        QTest::mousePress(view, Qt::LeftButton, {}, from);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(view, from + by * i / 10);
        // The last move is shown while the layer is held, so only the release can have it drawn in full.
        EXPECT_TRUE(test::eventually([&] {
            return !info_->pForegroundBitmapInfo->bScaleChange && !info_->pBackgroundBitmapInfo->bScaleChange;
        }));
        QTest::mouseRelease(view, Qt::LeftButton, {}, from + by);
        EXPECT_TRUE(waitForPicture());
    };
    const auto choose = [&](const char* name) { window_->findChild<QToolButton*>(name)->click(); };
    const BitmapInfo &portrait = *info_->pForegroundBitmapInfo, &background = *info_->pBackgroundBitmapInfo;
    const QRectF frame = view->zoom().frame();
    const QPoint middle = frame.center().toPoint();
    const LayerPlace before = placeOf(portrait);
    QTest::mouseClick(view, Qt::LeftButton, {}, middle);
    EXPECT_EQ(placeOf(portrait), before) << "a click moves nothing";
    drag(middle, {100, 60});
    EXPECT_EQ(portrait.iOrgXoff, static_cast<int>(before.x + 1000.0 * 100 / frame.width()));
    EXPECT_EQ(portrait.iOrgYoff, static_cast<int>(before.y - 1000.0 * 60 / frame.height()));
    EXPECT_FALSE(portrait.bScaleChange) << "the full layer was drawn";
    const QImage moved = view->fullPicture();
    EXPECT_GT(
        moved.pixelColor(120 + 240 * 100 / qRound(frame.width()), 150 + 300 * 60 / qRound(frame.height())).red(),
        150);
    action("UndoButton")->trigger();
    EXPECT_EQ(placeOf(portrait), before);
    choose("radioEventScale");
    choose("radioEventBackground");
    drag(middle, {0, -100});
    EXPECT_NEAR(background.fScale, 1.0 + 100 / frame.height(), 1e-9);
    EXPECT_EQ(placeOf(portrait), before);
    for (int i = 0; i < 2; ++i)
        drag({middle.x(), 20}, {0, 700});
    EXPECT_LT(background.fScale, 0.01);
    EXPECT_EQ(portrait.fScale, 0.01);
    for (int i = 0; i < 3; ++i)
        action("UndoButton")->trigger();
    EXPECT_EQ(background.fScale, 1.0);
    EXPECT_EQ(portrait.fScale, before.scale);
}

TEST_F(DeskTest, TheWindowComesBackAsItWas) {
    window_->resize(1000, 700);
    window_->addDockWidget(Qt::LeftDockWidgetArea, window_->panel());
    window_->panel()->hide();
    for (QToolButton* header : window_->panel()->findChildren<QToolButton*>("groupKeyFold"))
        header->click();
    const bool folded = window_->panel()->groups()[1]->isFolded();
    ASSERT_TRUE(window_->close());
    open();
    EXPECT_EQ(window_->dockWidgetArea(window_->panel()), Qt::LeftDockWidgetArea);
    EXPECT_TRUE(window_->panel()->isHidden());
    EXPECT_EQ(window_->panel()->groups()[1]->isFolded(), folded);
    EXPECT_TRUE(folded);
}

}  // namespace
}  // namespace tavrin

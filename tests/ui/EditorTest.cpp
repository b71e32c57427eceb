// The airbrush in the window, used as a person uses it: tab, mouse, keys, panel.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorSpace>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabletEvent>
#include <QTest>
#include <QToolButton>

#include "editor/PlayEdits.h"
#include "pipeline/CombineThread.h"
#include "ui/EditorScene.h"
#include "ui/editor/BrushCursor.h"

namespace tavrin {
namespace {

using test::EditorTest;

// Its rows go into the picture that is shown, which nobody else holds: 29 MB at full resolution.
TEST_F(EditorTest, AStrokeCopiesNoWholePicture) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    ASSERT_TRUE(test::eventually([&] { return view_->fullPicture().isDetached(); }));
    const uchar* bytes = view_->fullPicture().constBits();
    int copies = 0, shares = 0;
    const auto look = [&] {
        shares += !view_->fullPicture().isDetached();
        copies += std::exchange(bytes, view_->fullPicture().constBits()) != view_->fullPicture().constBits();
    };
    const auto connection = QObject::connect(&airbrush(), &Airbrush::changed, look);
    stroke({100, 120}, {140, 180});
    stroke({40, 220}, {200, 230});
    QObject::disconnect(connection);
    EXPECT_EQ(copies, 0);
    EXPECT_EQ(shares, 0);
}

// The window had another size only just: its small picture is still being made while the stroke goes on.
TEST_F(EditorTest, AStrokeBesideAChangingWindowIsSeenWhole) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    window_->resize(1500, 950);
    QTest::mousePress(view_, Qt::LeftButton, {}, viewAt(30, 40));
    for (int i = 1; i <= 40; ++i) {
        QTest::mouseMove(view_, viewAt(30 + 4 * i, 40 + 5 * i));
        if (i % 10 == 0) window_->resize(1300 + 4 * i, 800 + 3 * i);
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(view_, Qt::LeftButton, {}, viewAt(190, 240));
    ASSERT_TRUE(test::eventually([&] { return face().step == 1; }));
    EXPECT_TRUE(test::eventually([&] {
        const QColor ink(40, 40, 150);
        return shownAt(40, 52) == ink && shownAt(110, 140) == ink && shownAt(185, 233) == ink;
    }));
    EXPECT_EQ(picture(), ofState());
}

TEST_F(EditorTest, AStrokeIsSeenAtOnceTakenBackAndDoneAgain) {
    EXPECT_FALSE(airbrush().isOpen());
    QTest::keyClick(window_.get(), Qt::Key_2, Qt::AltModifier);
    ASSERT_TRUE(test::eventually([&] { return airbrush().isOpen(); }));
    EXPECT_EQ(window_->windowTitle(), "Main Window - Airbrush Editor Mode");
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    const QImage before = picture();
    const QColor shown = shownAt(120, 150);
    QTest::mousePress(view_, Qt::LeftButton, {}, viewAt(120, 150));  // on the portrait
    EXPECT_TRUE(test::eventually([&] { return picture() != before; }));
    EXPECT_EQ(picture().pixelColor(120, 150), QColor(QImage(QString::fromStdString(background_)).pixel(120, 150)));
    EXPECT_NE(shownAt(120, 150), shown);
    EXPECT_EQ(picture().copy(0, 0, 240, 90), before.copy(0, 0, 240, 90));  // the rest stays
    QTest::mouseRelease(view_, Qt::LeftButton, {}, viewAt(120, 150));
    ASSERT_TRUE(test::eventually([&] { return action("UndoButton")->isEnabled(); }));
    const QImage after = picture();
    view_->setFocus();
    QTest::keyClick(view_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(test::eventually([&] { return picture() == before; }));
    EXPECT_EQ(shownAt(120, 150), shown);
    ASSERT_TRUE(test::eventually([&] { return action("RedoButton")->isEnabled(); }));
    QTest::keyClick(view_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(test::eventually([&] { return picture() == after; }));
    EXPECT_EQ(ofState(), after);
    turnTo("mainTabAdjust");
    EXPECT_TRUE(test::eventually([&] { return !airbrush().isOpen(); }));
    EXPECT_EQ(window_->windowTitle(), "Main Window - Adjust/Load Mode");
    EXPECT_EQ(picture(), after);  // leaving makes nothing anew
    EXPECT_TRUE(std::filesystem::is_empty(Places::current().tempFilesFolder()));
}

TEST_F(EditorTest, APassClosesTheEditorAndAReplayBringsEveryVisitBack) {
    ASSERT_TRUE(enter());
    stroke({100, 120}, {140, 180});
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    turnTo("mainTabAdjust");
    ASSERT_TRUE(test::eventually([&] { return !airbrush().isOpen(); }));
    ASSERT_TRUE(enter());
    QTest::keyClick(view_, Qt::Key_BracketRight);
    stroke({150, 200}, {180, 220});
    const QImage edited = picture();
    setBrightness(0);  // the same picture again
    setBrightness(20);
    ASSERT_TRUE(waitForPicture());
    setBrightness(0);
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return !window_->messages()->question().isEmpty() && airbrush().isOpen(); }));
    EXPECT_NE(picture(), edited);
    EXPECT_EQ(face().lost, 3);
    find<QToolButton>("BringBack")->click();
    EXPECT_TRUE(test::eventually([&] { return picture() == edited && !airbrush().isReplaying(); }));
    EXPECT_EQ(ofState(), edited);
    EXPECT_EQ(face().lost, 0);
}

TEST_F(EditorTest, ASavedFilePlaysToTheSamePictureOnTheCommandLinesWay) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    turnTo("mainTabAdjust");
    ASSERT_TRUE(test::eventually([&] { return !airbrush().isOpen(); }));
    ASSERT_TRUE(enter());  // with another tool and radius than the program's first
    QTest::keyClick(view_, Qt::Key_BracketLeft);
    stroke({100, 120}, {140, 180});
    const QImage edited = picture();
    const QString path = QString::fromStdString(folder_.file("anna.edits"));
    airbrush().saveEdits(path);
    ASSERT_TRUE(test::eventually([&] { return std::filesystem::exists(path.toStdString()); }));
    const ReadEdits read = readEditFile(path.toStdString());
    ASSERT_EQ(read.problem, EditMessage());
    const auto other = test::stateForOutput(240, 300);
    other->pForegroundBitmapInfo->sSourceImageFullPath = portrait_;
    other->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    CombineThread(*other).runUntilIdle();
    ASSERT_EQ(playEdits(*other, read.file, false, folder_.file("undo")).problem, "");
    EXPECT_TRUE(std::equal(edited.constBits(), edited.constBits() + edited.sizeInBytes(),
                           other->pCombinedBitmapInfo->pBitmapData));
    // And back into the window, on a picture made anew.
    turnTo("mainTabAdjust");
    setBrightness(0);
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(enter());
    airbrush().loadEdits(path);
    EXPECT_TRUE(test::eventually([&] { return picture() == edited && !airbrush().isReplaying(); }));
    std::ofstream(folder_.file("bad.edits")) << "tavrin-edits 1\nview 9 9\n1 x\n";
    airbrush().loadEdits(QString::fromStdString(folder_.file("bad.edits")));
    EXPECT_TRUE(window_->messages()->details().contains("line 3"));
    EXPECT_EQ(picture(), edited);
}

TEST_F(EditorTest, ThePanelShowsTheControlsOfTheActiveTool) {
    ASSERT_TRUE(enter());
    const auto seen = [&](const char* name) { return find<QWidget>(name)->isVisible(); };
    const auto title = [&] { return find<QToolButton>("groupBrushFold")->text(); };
    EXPECT_EQ(title(), "Erase Foreground");
    EXPECT_TRUE(seen("editCheckbox") && seen("editSliderRadius") && seen("editSliderHard") &&
                seen("editSliderTrans"));
    EXPECT_FALSE(seen("editSlider") || seen("editColorWell") || seen("radioNoSelect"));
    EXPECT_EQ(find<QCheckBox>("editCheckbox")->text(), "Erase only if green");
    choose(kRestoreForeground);
    EXPECT_TRUE(find<QCheckBox>("editCheckbox")->isChecked());
    choose(kBlur);
    EXPECT_TRUE(seen("editSlider"));
    EXPECT_FALSE(seen("editCheckbox"));
    find<QWidget>("editSlider")->setFocus();
    QTest::keyClick(find<QWidget>("editSlider"), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(test::eventually([&] { return face().brush.dBrushSlider == 0.26; }));
    QTest::keyClick(find<QWidget>("editSlider"), Qt::Key_P);  // a tool's key, as nothing is typed there
    EXPECT_TRUE(test::eventually([&] { return face().iActiveButton == kPaint; }));
    EXPECT_TRUE(seen("editColorWell") && seen("buttonGetColorFromImage"));
    choose(kSelection);
    EXPECT_EQ(title(), "Paint");
    EXPECT_TRUE(seen("radioNoSelect") && seen("editSlider") && find<QRadioButton>("radioNoSelect")->isChecked());
    EXPECT_FALSE(seen("editSliderRadius") || seen("editSliderHard") || seen("editSliderTrans"));
}

TEST_F(EditorTest, KeysOnThePictureAndTheEyeDropper) {
    ASSERT_TRUE(enter());
    view_->setFocus();
    choose(kPaint);
    find<QToolButton>("buttonGetColorFromImage")->click();
    ASSERT_TRUE(test::eventually([&] { return face().picksColor; }));
    QTest::mouseClick(view_, Qt::LeftButton, {}, viewAt(120, 150));
    ASSERT_TRUE(test::eventually([&] { return !face().picksColor; }));
    const QColor under = picture().pixelColor(120, 150);
    EXPECT_EQ(QColor(face().red, face().green, face().blue), under);
    EXPECT_EQ(face().step, 0);  // a click that only looks is no stroke
    stroke({30, 30}, {40, 40});
    EXPECT_EQ(picture().pixelColor(35, 35), under);
    view_->setFocus();
    QTest::keyClick(view_, Qt::Key_Z);
    EXPECT_TRUE(test::eventually([&] { return face().step == 0; }));
    QTest::keyClick(view_, Qt::Key_V);
    EXPECT_TRUE(test::eventually([&] { return face().step == 1; }));
    const double zoom = view_->zoom().dZoom();
    QTest::keyClick(view_, Qt::Key_S);
    EXPECT_GT(view_->zoom().dZoom(), zoom);
    const QImage before = picture();
    stroke({50, 200}, {60, 210});  // zoomed in it still lies where the mouse is
    EXPECT_NE(picture().pixelColor(55, 205), before.pixelColor(55, 205));
    // Copy takes from where A was pressed.
    choose(kCopy);
    QTest::mouseMove(view_, viewAt(120, 150));
    QTest::keyClick(view_, Qt::Key_A);
    EXPECT_TRUE(test::eventually([&] { return face().bShowAnchorCursor; }));
    EXPECT_FALSE(action("ShowAlpha")->isChecked());  // the key is the tool's now
    QTest::mouseClick(view_, Qt::LeftButton, {}, viewAt(30, 250));
    EXPECT_TRUE(test::eventually([&] { return picture().pixelColor(30, 250) == before.pixelColor(120, 150); }));
}

TEST_F(EditorTest, ShiftDrawsAStraightLineAndAPenChangesWhatWasChosen) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    for (int i = 0; i < 11; ++i)
        QTest::keyClick(view_, Qt::Key_BracketLeft);
    ASSERT_TRUE(test::eventually([&] { return face().brush.radiusInPixels() == 6; }));
    QTest::mouseClick(view_, Qt::LeftButton, {}, viewAt(30, 30));
    QTest::mouseClick(view_, Qt::LeftButton, Qt::ShiftModifier, viewAt(90, 110));
    EXPECT_TRUE(test::eventually([&] { return picture().pixelColor(60, 70) == QColor(40, 40, 150); }));

    const int recorded = face().recorded;
    find<QComboBox>("comboPenPressure")->setCurrentIndex(1);
    const QPointF at = viewAt(150, 250);
    QTabletEvent pen(QEvent::TabletPress, QPointingDevice::primaryPointingDevice(), at, view_->mapToGlobal(at), 0.0,
                     0, 0, 0.0, 0.0, 0.0, {}, Qt::LeftButton, Qt::LeftButton);
    QApplication::sendEvent(view_, &pen);
    QTest::mouseClick(view_, Qt::LeftButton, {}, at.toPoint());
    ASSERT_TRUE(test::eventually([&] { return face().recorded >= recorded + 4; }));  // sliders, down, up, sliders
    EXPECT_TRUE(test::eventually([&] { return picture().pixelColor(150, 250) == QColor(40, 40, 150); }));
    EXPECT_NE(picture().pixelColor(153, 250), QColor(40, 40, 150));  // no pressure, no width
    EXPECT_EQ(face().brush.radiusInPixels(), 6);
}

TEST_F(EditorTest, TheBrushIsSeenWhereTheMouseIs) {
    ASSERT_TRUE(enter());
    const QImage without = view_->grab().toImage();
    QTest::mouseMove(view_, viewAt(120, 150));
    EXPECT_TRUE(test::eventually([&] { return view_->grab().toImage() != without; }));
    const QImage with = view_->grab().toImage();
    const double radius = 50 * view_->zoom().frame().width() / 240;
    const QPoint edge = viewAt(120, 150) - QPoint(static_cast<int>(radius), 0);
    int whites = 0, blacks = 0;
    for (int y = -4; y <= 4; ++y) {
        for (int x = -2; x <= 2; ++x) {
            const QColor c = with.pixelColor((edge + QPoint(x, y)) * with.devicePixelRatio());
            whites += c == QColor(Qt::white);
            blacks += c == QColor(Qt::black);
        }
    }
    EXPECT_GT(whites, 2);
    EXPECT_GT(blacks, 2);
    EXPECT_NE(airbrush().cursor()->look().hardness, 1.0);
}

TEST_F(EditorTest, WhatIsSavedIsWhatIsSeenWithoutThePatternOfASelection) {
    ASSERT_TRUE(enter());
    stroke({100, 120}, {140, 180});
    const QImage edited = picture();
    choose(kSelection);
    find<QRadioButton>("radioCombineSelect")->click();
    ASSERT_TRUE(test::eventually([&] { return face().iSelectionMode == ColorSelection::kCombinedColor; }));
    find<QCheckBox>("editCheckbox")->click();  // all but black is protected
    ASSERT_TRUE(test::eventually([&] { return face().brush.bCheckBoxValue; }));
    ASSERT_TRUE(test::eventually([&] { return picture() != edited; }));
    const QImage pattern = picture();
    const QString path = QString::fromStdString(folder_.file("out.png"));
    ASSERT_TRUE(window_->saveTo(path));
    ASSERT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
    QImage saved(path);
    saved.setColorSpace({});
    EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), edited.convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(test::eventually([&] { return picture() == pattern; }));  // and it is seen again
}

TEST_F(EditorTest, StrokesComeBackAfterAKillAndWithTheirPortrait) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    stroke({100, 120}, {140, 180});
    const QImage edited = picture();
    QTest::qWait(100);
    window_->endFromOutside();
    window_.reset();
    info_ = test::stateForOutput(240, 300);
    info_->pForegroundBitmapInfo->sSourceImageFullPath = background_;
    info_->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    open({1300, 800});
    view_ = window_->view();
    window_->offerLeftRecipes();
    find<QToolButton>("TakeUp")->click();
    ASSERT_TRUE(test::eventually([&] { return window_->messages()->question().contains("airbrush"); }));
    EXPECT_NE(picture(), edited);
    find<QToolButton>("BringBack")->click();
    ASSERT_TRUE(test::eventually([&] { return picture() == edited && face().step == 2; }));
    EXPECT_TRUE(face().canUndo);
    // Another portrait has none of them, and the first one gets its own again.
    const std::string ben = test::savePng(test::discOnScreen(200, 300), folder_.file("ben.png"));
    window_->openForeground(QString::fromStdString(ben));
    ASSERT_TRUE(waitForPicture());
    EXPECT_TRUE(test::eventually([&] { return face().lost == 0; }));
    window_->openForeground(QString::fromStdString(portrait_));
    EXPECT_TRUE(test::eventually([&] { return face().lost == 2; }));
}

TEST_F(EditorTest, AnotherOutputSizeTakesTheStrokesToTheSamePlaces) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    const int index = window_->sizeBox()->findText("large");
    ASSERT_GE(index, 0);
    window_->sizeBox()->setCurrentIndex(index);
    emit window_->sizeBox()->activated(index);
    ASSERT_TRUE(test::eventually(
        [&] { return view_->fullPicture().width() == 480 && view_->isFull() && airbrush().isOpen(); }));
    EXPECT_NE(picture().pixelColor(150, 100), QColor(40, 40, 150));
    find<QToolButton>("buttonReplayEdits")->click();
    EXPECT_TRUE(test::eventually([&] { return picture().pixelColor(150, 100) == QColor(40, 40, 150); }));
    stroke({300, 500}, {320, 520});  // new strokes lie where the mouse is
    EXPECT_EQ(picture().pixelColor(310, 510), QColor(40, 40, 150));
}

TEST_F(EditorTest, AFullRecordingIsToldAndStopsNoStroke) {
    ASSERT_TRUE(enter());
    view_->setFocus();
    for (int i = 0; i < kMostEditItems; ++i)
        QTest::keyClick(view_, i % 2 ? Qt::Key_P : Qt::Key_E);
    ASSERT_TRUE(test::eventually([&] { return face().recorded == kMostEditItems; }));
    EXPECT_TRUE(window_->messages()->details().contains("recording is full"));
    stroke({60, 40}, {90, 60});
    EXPECT_EQ(picture().pixelColor(75, 50), QColor(40, 40, 150));
    EXPECT_TRUE(action("UndoButton")->isEnabled());
}

TEST_F(EditorTest, AFolderThatCannotTakeStepsCostsOnlyTheUndo) {
    ASSERT_TRUE(enter());
    const QImage before = picture();
    const std::string temporary = Places::current().tempFilesFolder();
    std::filesystem::remove_all(temporary);
    std::ofstream(temporary.substr(0, temporary.size() - 1)) << "in the way";
    stroke({100, 120}, {140, 180});
    EXPECT_NE(picture(), before);
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    EXPECT_TRUE(window_->messages()->details().contains("cannot be undone"))
        << window_->messages()->details().toStdString();
    std::filesystem::remove(temporary.substr(0, temporary.size() - 1));
    stroke({60, 40}, {80, 60});
    EXPECT_TRUE(test::eventually([&] { return action("UndoButton")->isEnabled(); }));
}

}  // namespace
}  // namespace tavrin

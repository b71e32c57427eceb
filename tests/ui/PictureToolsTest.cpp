// The picture's own tools, used as a person uses them.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QNativeGestureEvent>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "core/state/SettingNames.h"
#include "pipeline/PixelStory.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class PictureToolsTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open({1300, 800});
        window_->strip()->setFolded(true);  // room for the picture, also at scale 2
        QTest::qWait(20);
        view_ = window_->view();
    }
    QPoint viewAt(double x, double y) { return view_->zoom().viewAt({x, y}).toPoint(); }
    QColor shownAt(const QPoint& at) {
        const QImage shown = view_->grab().toImage();
        return shown.pixelColor((QPointF(at) * shown.devicePixelRatio()).toPoint());
    }
    QString readOut() { return window_->findChild<QLabel*>("pixelReadOut")->text(); }
    void choose(const char* name) { window_->findChild<QToolButton*>(name)->click(); }
    /// A drag with ten moves.
    void drag(QWidget* widget, const QPoint& from, const QPoint& by) {
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(widget, from + by * i / 10);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, from + by);
    }
    /// A picture item of 60 x 50 pixels, an inch from the left and half an inch from below.
    FontObject& addItem() {
        FontObject item;
        item.isImage = true;
        item.sText = test::savePng(test::noisePicture(60, 50, 3), folder_.file("item.png"));
        item.imageSizeWidth = 60;
        item.imageSizeHeight = 50;
        item.xPos = 1.0;
        item.yPos = 0.5;
        info_->oFontObject.push_back(item);
        info_->StartUpdate();
        EXPECT_TRUE(waitForPicture());
        return info_->oFontObject.back();
    }
    /// A place of the picture in inches from its lower left corner, in the view.
    QPoint inchesAt(double x, double y) { return viewAt(x * 92.0, 300.0 - y * 92.0); }

    PictureView* view_ = nullptr;
};

TEST_F(PictureToolsTest, TheSplitShowsThePortraitOnItsLeftAndStaysAtItsPlaceOfThePicture) {
    const QColor screen = test::discOnScreen(240, 300).pixelColor(5, 150);
    action("ShowSplit")->setChecked(true);
    SplitLine* line = view_->splitLine();
    ASSERT_TRUE(test::eventually([&] { return shownAt(viewAt(20, 290)) == screen; }));
    EXPECT_NE(shownAt(viewAt(220, 290)), screen);
    const int half = line->geometry().center().x();
    const QPoint from = line->geometry().center();
    QTest::mousePress(line, Qt::LeftButton, {}, line->mapFromParent(from));
    for (int i = 0; i <= 10; ++i)
        QTest::mouseMove(line, line->mapFromParent(from + QPoint(5 * i, 0)));
    QTest::mouseRelease(line, Qt::LeftButton, {}, line->mapFromParent(from + QPoint(50, 0)));
    EXPECT_EQ(line->geometry().center().x(), half + 50);
    EXPECT_EQ(shownAt({half + 30, viewAt(0, 290).y()}), screen);
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Home);
    EXPECT_EQ(line->value(), 0);
    EXPECT_NE(shownAt(viewAt(20, 290)), screen);
    QTest::keyClick(line, Qt::Key_PageUp);
    QTest::keyClick(line, Qt::Key_Right);
    EXPECT_EQ(line->value(), 110);
    line->setValue(250);
    view_->zoomBy(1.7);
    EXPECT_NEAR(view_->zoom().pictureAt(QPointF(line->x(view_->zoom().frame()), 0)).x(), 60.0, 1e-6);
    view_->zoomBy(20);  // far to the right of the line
    EXPECT_LT(line->x(view_->zoom().frame()), 0.0);
    EXPECT_TRUE(view_->rect().intersects(line->geometry())) << "it can still be taken hold of";
    action("ShowSplit")->setChecked(false);
    EXPECT_FALSE(line->isVisible());
}

TEST_F(PictureToolsTest, AWindowGoesWhileOtherPicturesAreShownAndAKeyIsHeld) {
    action("ShowSplit")->setChecked(true);
    action("ShowAlpha")->setChecked(true);
    view_->setFocus();
    QTest::keyPress(view_, Qt::Key_B);
    window_.reset();  // what its end tells the tools finds no loop any more
    info_->bShowAlpha = false;
}

TEST_F(PictureToolsTest, TheReadOutTellsThePixelUnderThePointer) {
    const auto tells = [&](const QPoint& pixel) {
        const QColor c = view_->fullPicture().pixelColor(pixel);
        const int alpha =
            info_->pBackgroundBitmapInfo->bytes(Resolution::full)[(pixel.y() * 240 + pixel.x()) * 4 + 3];
        return QString("x %1  y %2    %3 %4 %5    alpha %6 %")
            .arg(pixel.x())
            .arg(pixel.y())
            .arg(c.red())
            .arg(c.green())
            .arg(c.blue())
            .arg(qRound(100.0 * alpha / 255.0));
    };
    QPoint pixel;
    QObject::connect(view_, &PictureView::pointed, [&](const QPoint& at) {
        if (at.x() >= 0) pixel = at;
    });
    QTest::mouseMove(view_, {2, 2});  // a pointer that stands there already moves nothing
    for (const QPoint place : {QPoint(120, 150), QPoint(10, 20), QPoint(120, 76)}) {
        const QPoint at = viewAt(place.x() + 0.5, place.y() + 0.5);
        QTest::mouseMove(view_, at);
        EXPECT_LE((pixel - view_->zoom().pixelAt(at)).manhattanLength(), view_->devicePixelRatioF() == 1.0 ? 0 : 4)
            << "between points of the screen";
        EXPECT_TRUE(test::eventually([&] { return readOut().startsWith(tells(pixel)); }))
            << readOut().toStdString() << " for " << tells(pixel).toStdString();
    }
    const QString before = readOut();
    info_->pBackgroundBitmapInfo->iBrightness = 60;
    info_->iSliderClipTop = 90;
    info_->StartUpdate();
    EXPECT_TRUE(test::eventually([&] { return readOut() != before && readOut().startsWith(tells(pixel)); }))
        << "it follows the picture: " << readOut().toStdString();
    QTest::mouseMove(view_, {2, 2});
    EXPECT_EQ(readOut(), "");
}

TEST_F(PictureToolsTest, AClickAsksForTheStoryOfAPixelAndMovesNothing) {
    action("AskPicture")->setChecked(true);
    StoryPanel* panel = window_->pictureTools()->story();
    const QPoint clicked = viewAt(120.5, 150.5);
    QPoint pixel;
    QObject::connect(view_, &PictureView::asked, [&](const QPoint& at) { pixel = at; });
    QTest::mouseClick(view_, Qt::LeftButton, {}, clicked);
    ASSERT_TRUE(test::eventually([&] { return panel->isVisible(); }));
    const PixelStory story = PixelProbe(*info_).tell(pixel.x(), pixel.y());
    QStringList shown, wanted;
    for (const QLabel* label : panel->findChildren<QLabel*>())
        shown.append(label->text());
    for (const StoryLine& line : storyLines(story))
        wanted << line.title << line.text;
    for (const QString& text : wanted)
        EXPECT_TRUE(shown.contains(text)) << text.toStdString();
    EXPECT_TRUE(wanted.contains("200 60 50")) << "the disc's colour in the portrait";
    if (view_->width() > 2 * panel->width() + 40) {
        EXPECT_FALSE(panel->geometry().contains(clicked));
    }
    EXPECT_EQ(info_->pForegroundBitmapInfo->iOrgXoff, 0);
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(view_->hasFocus());
}

TEST_F(PictureToolsTest, APictureAtAHundredPercentIsShownPixelByPixelAtEveryScale) {
    const double ratio = view_->devicePixelRatioF();
    QImage full;
    const auto pixelsDiffer = [&] {
        full = view_->fullPicture();
        const QImage shown = view_->grab().toImage();
        const QPoint origin = (view_->zoom().shownFrame().topLeft() * ratio).toPoint();
        const QRect seen = QRect(origin, full.size()).intersected(shown.rect().adjusted(4, 4, -4, -4));
        if (seen.width() < 100) return -1;
        int wrong = 0;
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                wrong += shown.pixelColor(x, y) != full.pixelColor(QPoint(x, y) - origin) ? 1 : 0;
        return wrong;
    };
    EXPECT_TRUE(test::eventually([&] {
        view_->zoomToPixels();  // again, should the window have fitted a new size meanwhile
        return pixelsDiffer() == 0;
    })) << "scale "
        << ratio;
    QTest::mousePress(view_, Qt::MiddleButton, {}, {300, 300});
    QTest::mouseMove(view_, {283, 311});
    QTest::mouseRelease(view_, Qt::MiddleButton, {}, {283, 311});
    EXPECT_EQ(pixelsDiffer(), 0) << "scale " << ratio;
    const QPoint at = (view_->zoom().shownFrame().topLeft() + QPointF(70, 90)).toPoint();
    const QPoint pixel = view_->zoom().pixelAt(at);
    EXPECT_EQ(shownAt(at), full.pixelColor(pixel)) << "and what is pointed at is what is there";
}

TEST_F(PictureToolsTest, ThePictureTellsScreenReadersWhatItShows) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(view_);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Picture");
    view_->zoomToPixels();
    EXPECT_EQ(spoken->text(QAccessible::Value), "240 x 300 pixels, 100 percent, result");
    action("ShowSplit")->setChecked(true);
    EXPECT_EQ(spoken->text(QAccessible::Value), "240 x 300 pixels, 100 percent, before and after");
    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(view_->splitLine());
    ASSERT_TRUE(line && line->valueInterface());
    EXPECT_EQ(line->valueInterface()->currentValue(), 500);
    EXPECT_FALSE(line->text(QAccessible::Name).isEmpty());
}

TEST_F(PictureToolsTest, TheBarShowsViewsOfTheKeyAndFollowsTheSettings) {
    EXPECT_FALSE(action("ShowGuard")->isEnabled()) << "there is no guard";
    action("ShowScreen")->setChecked(true);
    EXPECT_TRUE(info_->pCombinedBitmapInfo->bShowSelectedAreas);
    action("UndoButton")->trigger();
    EXPECT_FALSE(action("ShowScreen")->isChecked());
    EXPECT_FALSE(info_->pCombinedBitmapInfo->bShowSelectedAreas);
    window_->binder().run("", [](SettingEditor& editor) { editor.set("iGreenProtectMode", "1"); });
    EXPECT_TRUE(action("ShowGuard")->isEnabled());
    EXPECT_TRUE(action("ShowGuard")->isChecked());
    QTest::keyClick(view_, Qt::Key_G);
    EXPECT_FALSE(info_->bShowGreenProtection);

    auto* zoom = window_->findChild<QSlider*>("sliderZoom");
    const double before = view_->zoom().pixelScale();
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Right);
    EXPECT_GT(view_->zoom().pixelScale(), before);
    view_->zoomToPixels();
    const int hundred = zoom->value();
    EXPECT_NEAR(view_->zoom().pixelScale(), 1.0, 1e-9) << "the slider shows it and leaves it";
    view_->zoomBy(4.0);
    EXPECT_GT(zoom->value(), hundred);
}

TEST_F(PictureToolsTest, PinchingEnlargesAboutTheFingersAndNoPixelSlipsAway) {
    const QPointF fingers(view_->width() * 0.4, view_->height() * 0.55);
    const QPoint pixel = view_->zoom().pixelAt(fingers);
    const double before = view_->zoom().pixelScale();
    const auto pinch = [&](double by) {
        QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, fingers,
                                  fingers, view_->mapToGlobal(fingers), by, QPointF());
        QApplication::sendEvent(view_, &event);
    };
    for (int i = 0; i < 12; ++i)
        pinch(0.1);
    EXPECT_GT(view_->zoom().pixelScale(), 2.5 * before);
    EXPECT_EQ(view_->zoom().pixelAt(fingers), pixel);
    EXPECT_GT(window_->findChild<QSlider*>("sliderZoom")->value(), 0);
    for (int i = 0; i < 6; ++i)
        pinch(-0.05);
    EXPECT_EQ(view_->zoom().pixelAt(fingers), pixel);
}

TEST_F(PictureToolsTest, ItemsAreSelectedOnlyWhenTheyAreTheTargetAndTheFrameGoesByItself) {
    addItem();
    ItemTool& items = window_->pictureTools()->items();
    QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(1.3, 0.75));
    EXPECT_FALSE(items.bShowTextCursor());
    choose("radioEventMoveText");
    EXPECT_EQ(info_->iEventMouseMode, 5);
    QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(0.5, 0.75));
    EXPECT_FALSE(items.bShowTextCursor());
    QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(1.3, 0.75));
    ASSERT_TRUE(items.bShowTextCursor());
    EXPECT_EQ(items.iSelectedFontIndex(), 0);
    const QRectF box = view_->selection()->inView(view_->zoom().frame());
    EXPECT_NEAR(box.left(), inchesAt(1.0, 0.5).x(), 2);
    EXPECT_NEAR(box.bottom(), inchesAt(1.0, 0.5).y(), 2);
    EXPECT_NEAR(box.right(), viewAt(92 + 60, 0).x(), 4) << "each step is cut to whole points";
    EXPECT_FALSE(window_->panel()->textScaleView()->isHidden());
    const int asked = info_->iNewThreadCount;
    EXPECT_TRUE(test::eventually([&] { return !items.bShowTextCursor(); }));
    EXPECT_EQ(info_->iNewThreadCount, asked + 1) << "a new picture goes with it";
}

TEST_F(PictureToolsTest, ASelectedItemIsMovedAndScaledInOneStepOfUndoEach) {
    FontObject& item = addItem();
    choose("radioEventMoveText");
    const double perInch = view_->zoom().frame().width() * 92.0 / 240.0;
    QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(1.3, 0.75));
    drag(view_, inchesAt(1.3, 0.75), {-60, -100});
    EXPECT_TRUE(waitForPicture());
    EXPECT_NEAR(item.xPos, 1.0 - 60 / perInch, 1.5 / perInch);
    EXPECT_NEAR(item.yPos, 0.5 + 100 / perInch, 1.5 / perInch);
    const double moved = item.yPos;
    choose("radioEventScale");
    EXPECT_EQ(info_->iEventMouseMode, 6);
    const QPoint middle = view_->selection()->inView(view_->zoom().frame()).center().toPoint();
    drag(view_, middle, {0, -50});
    EXPECT_NEAR(item.dGlobalScaleY, 1.0 + 4.0 * 50 / view_->zoom().frame().height(), 1e-9);
    EXPECT_EQ(item.dGlobalScaleX, item.dGlobalScaleY);
    drag(view_, view_->selection()->inView(view_->zoom().frame()).center().toPoint(), {0, 700});
    EXPECT_EQ(item.dGlobalScaleX, 0.01);
    action("UndoButton")->trigger();
    action("UndoButton")->trigger();
    EXPECT_EQ(item.dGlobalScaleY, 1.0);
    EXPECT_EQ(item.yPos, moved);
    action("UndoButton")->trigger();
    EXPECT_EQ(item.xPos, 1.0);
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    EXPECT_EQ(info_->pForegroundBitmapInfo->iOrgXoff, 0);
}

TEST_F(PictureToolsTest, TheIconsOfAnItemEditItAndDeleteItAfterAQuestion) {
    addItem();
    choose("radioEventMoveText");
    const auto select = [&] { QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(1.3, 0.75)); };
    const auto box = [&] { return view_->selection()->inView(view_->zoom().frame()); };
    const auto answer = [&](const char* word) {
        QMessageBox* question = nullptr;
        EXPECT_TRUE(test::eventually([&] { return (question = view_->findChild<QMessageBox*>()) != nullptr; }));
        EXPECT_EQ(question->text(), "Are you shure you want to delete the text?");
        for (QAbstractButton* button : question->buttons())
            if (button->text() == word) button->click();
        EXPECT_TRUE(test::eventually([&] { return view_->findChild<QMessageBox*>() == nullptr; }));
    };
    select();
    QTest::mouseClick(view_, Qt::LeftButton, {}, box().topRight().toPoint());
    EXPECT_FALSE(view_->selection());
    EXPECT_EQ(window_->panel()->page(), window_->panel()->texts());
    EXPECT_EQ(info_->iSelectedFontObject, 0);

    const std::string text = info_->oFontObject[0].sText;
    select();
    QTest::mouseClick(view_, Qt::LeftButton, {}, box().bottomLeft().toPoint());
    answer("No");
    EXPECT_EQ(info_->iFontObjectCount(), 1);
    select();
    QTest::mouseClick(view_, Qt::LeftButton, {}, box().bottomLeft().toPoint());
    answer("Yes");
    EXPECT_EQ(info_->iFontObjectCount(), 0);
    EXPECT_TRUE(waitForPicture());
    EXPECT_TRUE(editor().isUnsaved());
    action("UndoButton")->trigger();
    ASSERT_EQ(info_->iFontObjectCount(), 1);
    EXPECT_EQ(info_->oFontObject[0].sText.load(), text);
    action("RedoButton")->trigger();
    EXPECT_EQ(info_->iFontObjectCount(), 0);
    EXPECT_TRUE(waitForPicture());
}

TEST_F(PictureToolsTest, TheSmallMapsMoveTheLayerAndTheItem) {
    GroupBox* place = nullptr;
    for (GroupBox* group : window_->panel()->groups())
        if (group->group().name == std::string_view("groupPlace")) place = group;
    ASSERT_TRUE(place);
    place->setFolded(false);
    QCoreApplication::processEvents();
    ScaleView* map = window_->panel()->scaleView();
    map->grab();
    const double width = 0.9 * map->height() * 240 / 300;  // the output in the map
    drag(map, map->rect().center(), {20, -10});
    EXPECT_EQ(info_->pForegroundBitmapInfo->iOrgXoff, static_cast<int>(20 * 1000 / width));
    EXPECT_EQ(info_->pForegroundBitmapInfo->iOrgYoff, static_cast<int>(10 * 1000 / (0.9 * map->height())));
    action("UndoButton")->trigger();
    EXPECT_EQ(info_->pForegroundBitmapInfo->iOrgXoff, 0);
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    window_->panel()->findChild<QToolButton*>("radioBackground")->click();
    const QImage drawn = map->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(drawn.rect().center()), QColor(Qt::green));

    FontObject& item = addItem();
    TextScaleView* small = window_->panel()->textScaleView();
    EXPECT_FALSE(small->isVisible());
    choose("radioEventMoveText");
    QTest::mouseClick(view_, Qt::LeftButton, {}, inchesAt(1.3, 0.75));
    ASSERT_TRUE(small->isVisible());
    const double perInch = 0.9 * small->height() * 240 / 300 / (240 / 92.0);
    drag(small, small->rect().center(), {15, -30});
    EXPECT_FALSE(view_->selection()) << "the frame goes with the press";
    EXPECT_NEAR(item.xPos, 1.0 + 15 / perInch, 1e-6);
    EXPECT_NEAR(item.yPos, 0.5 + 30 / perInch, 1e-6);
}

}  // namespace
}  // namespace tavrin

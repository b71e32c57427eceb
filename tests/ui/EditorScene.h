#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>

#include "ui/WindowTest.h"

namespace tavrin::test {

/// A window with the airbrush, used as a person uses it: tab, mouse, panel.
class EditorTest : public WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        addSize(*info_, "large", 480.0 / 92, 600.0 / 92, 92);
        chooseSizeByName(*info_, "test");
        open({1300, 800});
        window_->strip()->setFolded(true);
        QTest::qWait(20);
        view_ = window_->view();
    }
    Airbrush& airbrush() { return *window_->airbrush(); }
    const EditorFace& face() { return airbrush().face(); }
    void turnTo(const char* tab) { find<QToolButton>(tab)->click(); }
    bool enter() {
        turnTo("mainTabAirbrush");
        return test::eventually([&] { return airbrush().isOpen(); });
    }
    template <class Widget>
    Widget* find(const char* name) {
        auto* widget = window_->findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    void choose(int brush) {
        find<QToolButton>(qPrintable(QString("buttonBrush%1").arg(brush)))->click();
        EXPECT_TRUE(test::eventually([&] { return face().iActiveButton == brush; }));
    }
    QPoint viewAt(double x, double y) { return view_->zoom().viewAt({x + 0.5, y + 0.5}).toPoint(); }
    /// A drag between two pixels of the picture; waits until it is a step.
    void stroke(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {}) {
        const int before = face().step;
        const QPoint start = viewAt(from.x(), from.y()), end = viewAt(to.x(), to.y());
        QTest::mousePress(view_, Qt::LeftButton, keys, start);
        for (int i = 1; i <= 8; ++i)
            QTest::mouseMove(view_, start + (end - start) * i / 8);
        QTest::mouseRelease(view_, Qt::LeftButton, keys, end);
        EXPECT_TRUE(test::eventually([&] { return face().step == before + 1; }));
        QTest::qWait(20);
    }
    QImage picture() { return view_->fullPicture().copy(); }
    QImage ofState() {
        const PassGeometry size = info_->geometry(Resolution::full);
        return QImage(info_->pCombinedBitmapInfo->pBitmapData, size.width, size.height, QImage::Format_RGBA8888)
            .copy();
    }
    QColor shownAt(double x, double y) {
        const QImage shown = view_->grab().toImage();
        return shown.pixelColor((QPointF(viewAt(x, y)) * shown.devicePixelRatio()).toPoint());
    }
    void setBrightness(int value) {
        window_->binder().run(
            "Light", [&](SettingEditor& editor) { editor.set("foreground.iBrightness", std::to_string(value)); });
    }

    PictureView* view_ = nullptr;
};

}  // namespace tavrin::test

#include <cmath>
#include <gtest/gtest.h>

#include "ui/views/Zoom.h"

namespace tavrin {
namespace {

Zoom zoomOf(QSizeF view, QSize picture, double ratio = 1.0) {
    Zoom zoom;
    zoom.setView(view, ratio);
    zoom.setPicture(picture);
    return zoom;
}

double distance(const QPointF& a, const QPointF& b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

TEST(ZoomTest, HomeShowsTheWholePictureInTheMiddle) {
    for (const QSize picture : {QSize(2400, 3000), QSize(3000, 2400), QSize(50, 40)}) {
        const Zoom zoom = zoomOf({800, 700}, picture);
        const QRectF frame = zoom.frame();
        EXPECT_TRUE(QRectF(0, 0, 800, 700).contains(frame));
        EXPECT_NEAR(frame.center().x(), 400, 1e-9);
        EXPECT_NEAR(frame.center().y(), 350, 1e-9);
        EXPECT_NEAR(frame.width() / frame.height(), double(picture.width()) / picture.height(), 1e-9);
        EXPECT_TRUE(frame.width() > 775.9 || frame.height() > 675.9) << "it could be larger";
    }
}

TEST(ZoomTest, WhatIsUnderThePointerStaysThereAtEveryStep) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const QPointF at : {QPointF(400, 350), QPointF(1, 699), QPointF(799, 2), QPointF(130, 610)}) {
            Zoom zoom = zoomOf({800, 700}, {2400, 3000}, ratio);
            const QPointF held = zoom.pictureAt(at);
            for (const double factor : {1.15, 1.15, 4.0, 2.0, 1.3, 0.5, 0.2, 0.6, 1.9}) {
                zoom.zoomAbout(at, factor);
                EXPECT_LT(distance(zoom.viewAt(held), at), 1e-6) << ratio << ' ' << factor;
            }
        }
    }
}

TEST(ZoomTest, AHundredPercentIsAPixelOnADevicePixel) {
    Zoom zoom = zoomOf({800, 700}, {2400, 3000}, 2.0);
    zoom.setPixelScale({100, 100}, 1.0);
    EXPECT_NEAR(zoom.pixelScale(), 1.0, 1e-9);
    EXPECT_NEAR(zoom.frame().width(), 1200.0, 1e-6);
    zoom.setPixelScale({100, 100}, 1000.0);
    EXPECT_NEAR(zoom.pixelScale(), Zoom::kLargest, 1e-6) << "the end of the range";
    zoom.zoomAbout({100, 100}, 1e-9);
    EXPECT_NEAR(zoom.dZoom(), Zoom::kLeast, 1e-9);
}

TEST(ZoomTest, AtAHundredPercentThePointerIsOnThePixelThatIsShownThereInAViewOfAnySize) {
    for (int width = 700; width < 1100; ++width) {
        Zoom zoom = zoomOf({static_cast<double>(width), 0.77 * width}, {240, 300});
        zoom.setPixelScale({300, 300}, 1.0);
        EXPECT_EQ(zoom.pixelAt(zoom.shownFrame().topLeft() + QPointF(70, 90)), QPoint(70, 90)) << width;
    }
}

TEST(ZoomTest, APictureThatIsLessThanFittedStaysSoWhileTheViewStaysAsItIs) {
    Zoom zoom = zoomOf({800, 700}, {240, 300});
    zoom.setPixelScale({400, 350}, 1.0);
    EXPECT_LT(zoom.dZoom(), 1.0);
    zoom.setView({800, 700}, 1.0);  // as before every paint
    EXPECT_TRUE(zoom.isActualPixels());
    zoom.setView({800, 701}, 1.0);
    EXPECT_EQ(zoom.dZoom(), 1.0);
}

TEST(ZoomTest, MagnifyAddsATenthAndAResizeKeepsIt) {
    Zoom zoom = zoomOf({800, 700}, {2400, 3000});
    const double fitted = zoom.frame().width();
    zoom.setZoomMagnify();
    zoom.setZoomMagnify();
    EXPECT_NEAR(zoom.dZoom(), 1.2, 1e-9);
    EXPECT_NEAR(zoom.frame().width(), 1.2 * fitted, 1e-6);
    const double scale = zoom.pixelScale();
    const QPointF middle = zoom.pictureAt({400, 350});
    zoom.setView({1000, 400}, 1.0);
    EXPECT_NEAR(zoom.pixelScale(), scale, 1e-9);
    EXPECT_LT(distance(zoom.pictureAt({500, 200}), middle), 1e-6);
    zoom.setZoomHome();
    zoom.zoomAbout({10, 10}, 1.005);
    zoom.setView({640, 480}, 1.0);  // small changes count as none
    EXPECT_EQ(zoom.dZoom(), 1.0);
    EXPECT_NEAR(zoom.frame().center().x(), 320, 1e-9);
}

TEST(ZoomTest, PanningLeavesPartOfThePictureInTheView) {
    Zoom zoom = zoomOf({800, 700}, {2400, 3000});
    zoom.zoomAbout({400, 350}, 3.0);
    const QPointF held = zoom.pictureAt({200, 200});
    zoom.pan({50, -20});
    EXPECT_LT(distance(zoom.viewAt(held), QPointF(250, 180)), 1e-6);
    for (const QPointF by : {QPointF(9e3, 9e3), QPointF(-2e4, -2e4), QPointF(2e4, -2e4)}) {
        zoom.pan(by);
        const QRectF seen = zoom.frame().intersected(QRectF(0, 0, 800, 700));
        EXPECT_GE(seen.width(), Zoom::kKept - 1e-6);
        EXPECT_GE(seen.height(), Zoom::kKept - 1e-6);
    }
}

}  // namespace
}  // namespace tavrin

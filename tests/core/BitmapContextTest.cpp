#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <set>
#include <vector>

#include "core/raster/BitmapContext.h"
#include "core/raster/Pixels.h"

namespace tavrin {
namespace {

/// A buffer with a context over it, first filled with grey 9 and alpha 255.
struct Canvas {
    explicit Canvas(int width, int height)
        : w(width), bytes(pixelBytes(width, height), 9), context(bytes.data(), w, height) {
        for (std::size_t i = 3; i < bytes.size(); i += 4)
            bytes[i] = 255;
    }
    const std::uint8_t* at(int x, int y) const { return bytes.data() + pixelOffset(w, x, y); }
    QRgb rgb(int x, int y) const { return qRgba(at(x, y)[0], at(x, y)[1], at(x, y)[2], at(x, y)[3]); }

    int w;
    std::vector<std::uint8_t> bytes;
    BitmapContext context;
};

QImage picture(int w, int h) {
    return QImage(w, h, QImage::Format_RGBA8888_Premultiplied);
}

/// Every pixel differs from its neighbours.
QImage noise(int w, int h) {
    QImage image = picture(w, h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            std::uint8_t* p = image.scanLine(y) + 4 * x;
            p[0] = static_cast<std::uint8_t>(x * 37 + y * 11);
            p[1] = static_cast<std::uint8_t>(x * 5 + y * 101);
            p[2] = static_cast<std::uint8_t>(x * y + 3);
            p[3] = 255;
        }
    }
    return image;
}

QImage plain(int w, int h, QColor colour) {
    QImage image = picture(w, h);
    image.fill(colour);
    return image;
}

QRgb pixel(const QImage& image, int x, int y) {
    const uchar* p = image.constScanLine(y) + 4 * x;
    return qRgba(p[0], p[1], p[2], p[3]);
}

TEST(BitmapContext, FillGivesExactBytesAtTheBottomLeft) {
    Canvas canvas(7, 5);
    for (int value = 0; value < 256; ++value) {
        canvas.context.fillRect(QRectF(0, 0, 7, 2), value / 255.0, (255 - value) / 255.0, 0.5, 1.0);
        for (int x = 0; x < 7; ++x) {
            ASSERT_EQ(canvas.rgb(x, 4), qRgba(value, 255 - value, 128, 255));
            ASSERT_EQ(canvas.rgb(x, 3), qRgba(value, 255 - value, 128, 255));
            ASSERT_EQ(canvas.rgb(x, 2), qRgba(9, 9, 9, 255));
        }
    }
    canvas.context.fillRect(QRectF(0, 0, 7, 5), 1, 0, 0, 0.0);
    EXPECT_EQ(canvas.rgb(0, 0), qRgba(9, 9, 9, 255)) << "a transparent fill changes nothing";
}

TEST(BitmapContext, WrittenBytesAreSeenAndASnapshotStays) {
    Canvas canvas(3, 3);
    canvas.bytes[0] = 200;
    const QImage before = canvas.context.snapshot();
    canvas.context.fillRect(QRectF(0, 0, 3, 3), 0, 0, 0, 1);
    EXPECT_EQ(before.constBits()[0], 200);
    EXPECT_EQ(canvas.bytes[0], 0);
}

TEST(BitmapContext, UnscaledPicturesGoThroughUntouched) {
    const QImage source = noise(13, 7);
    Canvas canvas(20, 20);
    canvas.context.drawImage(source, QRectF(2, 3, 13, 7));  // bottom left corner at (2, 3): top row is 20 - 3 - 7
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool inside = x >= 2 && x < 15 && y >= 10 && y < 17;
            ASSERT_EQ(canvas.rgb(x, y), inside ? pixel(source, x - 2, y - 10) : qRgba(9, 9, 9, 255)) << x << "," << y;
        }
    }
}

TEST(BitmapContext, MirrorsAndQuarterTurnsAreExact) {
    const QImage source = noise(13, 7);
    for (int quarters = 0; quarters < 4; ++quarters) {
        for (const bool flip : {false, true}) {
            const int w = quarters % 2 ? 7 : 13, h = quarters % 2 ? 13 : 7;
            Canvas canvas(w, h);
            // About the middle, anticlockwise, the mirror acting on the picture first.
            canvas.context.translate(w / 2.0, h / 2.0);
            canvas.context.rotate(quarters * std::numbers::pi / 2);
            if (flip) canvas.context.scale(-1, 1);
            canvas.context.drawImage(source, QRectF(-6.5, -3.5, 13, 7));
            for (int y = 0; y < 7; ++y) {
                for (int x = 0; x < 13; ++x) {
                    int u = flip ? 12 - x : x, v = y;
                    for (int q = 0, width = 13, height = 7; q < quarters; ++q, std::swap(width, height)) {
                        const int oldU = u;
                        u = v;
                        v = width - 1 - oldU;
                    }
                    ASSERT_EQ(canvas.rgb(u, v), pixel(source, x, y)) << quarters << flip << " " << x << "," << y;
                }
            }
        }
    }
}

TEST(BitmapContext, LaterTransformsActFirstAndStatesAreRestored) {
    Canvas canvas(10, 10);
    canvas.context.saveState();
    canvas.context.scale(2, 2);
    canvas.context.translate(1, 1);
    canvas.context.fillRect(QRectF(0, 0, 1, 1), 1, 1, 1, 1);  // device (2, 2) to (4, 4), from the bottom
    canvas.context.restoreState();
    canvas.context.fillRect(QRectF(0, 0, 1, 1), 0, 0, 0, 1);
    EXPECT_EQ(canvas.at(2, 7)[0], 255);
    EXPECT_EQ(canvas.at(3, 6)[0], 255);
    EXPECT_EQ(canvas.at(4, 7)[0], 9);
    EXPECT_EQ(canvas.at(0, 9)[0], 0);
    canvas.context.restoreState();  // one too many
}

TEST(BitmapContext, ScaledPicturesFillTheirRectangleToTheEdges) {
    for (const QSize size :
         {QSize(80, 60), QSize(20, 15), QSize(400, 300), QSize(20, 300), QSize(1, 1), QSize(37, 41)}) {
        for (const bool flip : {false, true}) {
            Canvas canvas(size.width() + 2, size.height() + 2);
            if (flip) {
                canvas.context.scale(-1, 1);
                canvas.context.translate(-canvas.w, 0);
            }
            canvas.context.drawImage(plain(80, 60, QColor(200, 100, 50)), QRectF(QPointF(1, 1), QSizeF(size)));
            for (int y = 0; y < size.height() + 2; ++y) {
                for (int x = 0; x < canvas.w; ++x) {
                    const bool inside = x > 0 && y > 0 && x <= size.width() && y <= size.height();
                    ASSERT_EQ(canvas.rgb(x, y), inside ? qRgba(200, 100, 50, 255) : qRgba(9, 9, 9, 255))
                        << size.width() << "x" << size.height() << " at " << x << "," << y;
                }
            }
        }
    }
}

TEST(BitmapContext, ReductionAveragesAndShowsNoMoire) {
    // Stripes one pixel wide, which have no honest form at an eighth but their mean.
    QImage stripes = picture(801, 640);
    for (int y = 0; y < stripes.height(); ++y)
        for (int x = 0; x < stripes.width(); ++x) {
            const int v = (x + y) % 2 ? 255 : 0;
            std::uint8_t* p = stripes.scanLine(y) + 4 * x;
            p[0] = p[1] = p[2] = static_cast<std::uint8_t>(v);
            p[3] = 255;
        }
    for (const QRectF& rect : {QRectF(0, 0, 100, 80), QRectF(0.3, 0.6, 99.4, 79.1)}) {
        Canvas canvas(100, 80);
        canvas.context.drawImage(stripes, rect);
        for (int y = 2; y < 78; ++y)
            for (int x = 2; x < 98; ++x)
                ASSERT_NEAR(canvas.at(x, y)[0], 127, 9) << x << "," << y;
    }
}

TEST(BitmapContext, EnlargementHasNoSteps) {
    QImage two = picture(2, 1);
    for (int x = 0; x < 2; ++x) {
        std::uint8_t* p = two.bits() + 4 * x;
        p[0] = p[1] = p[2] = static_cast<std::uint8_t>(x * 255);
        p[3] = 255;
    }
    Canvas canvas(1000, 3);
    canvas.context.drawImage(two, QRectF(0, 0, 1000, 3));
    std::set<int> levels;
    for (int x = 1; x < 1000; ++x) {
        const int step = canvas.at(x, 1)[0] - canvas.at(x - 1, 1)[0];
        ASSERT_TRUE(step >= 0 && step <= 2) << x;
        levels.insert(canvas.at(x, 1)[0]);
    }
    EXPECT_GT(levels.size(), 200u);
    EXPECT_NEAR(canvas.at(500, 1)[0], 127, 3);
}

TEST(BitmapContext, PartlyVisibleEnlargementsLieWhereTheWholeOnesDo) {
    const QImage source = noise(60, 40);
    Canvas whole(600, 400), part(50, 50);
    whole.context.drawImage(source, QRectF(0, 0, 600, 400));
    part.context.drawImage(source,
                           QRectF(-200, -100, 600, 400));  // shows (200, 100) to (250, 150) from the bottom left
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_NEAR(part.at(x, y)[0], whole.at(x + 200, 250 + y)[0], 3) << x << "," << y;
}

TEST(BitmapContext, HugeScalesNeedNoHugeMemory) {
    Canvas canvas(64, 64);
    canvas.context.drawImage(plain(6000, 4000, QColor(1, 2, 3)), QRectF(-150000, -100000, 300000, 200000));
    EXPECT_EQ(canvas.rgb(0, 0), qRgba(1, 2, 3, 255));
    EXPECT_EQ(canvas.rgb(63, 63), qRgba(1, 2, 3, 255));
}

TEST(BitmapContext, TurnedPicturesCoverWhatTheyShould) {
    Canvas canvas(200, 200);
    canvas.context.translate(100, 100);
    canvas.context.rotate(std::numbers::pi / 6);
    canvas.context.drawImage(plain(300, 300, QColor(10, 130, 60)), QRectF(-50, -50, 100, 100));
    EXPECT_EQ(canvas.rgb(100, 100), qRgba(10, 130, 60, 255));
    EXPECT_EQ(canvas.rgb(30, 30), qRgba(9, 9, 9, 255));
    // The corner (50, 50) turned by 30 degrees anticlockwise: (18.3, 68.3) from the middle, upward.
    EXPECT_EQ(canvas.rgb(117, 35), qRgba(10, 130, 60, 255));
    EXPECT_EQ(canvas.rgb(130, 35), qRgba(9, 9, 9, 255));
}

TEST(BitmapContext, TransparentPixelsLeaveWhatIsBelow) {
    Canvas canvas(4, 4);
    QImage image = picture(4, 4);
    image.fill(Qt::transparent);
    canvas.context.drawImage(image, QRectF(0, 0, 4, 4));
    EXPECT_EQ(canvas.rgb(2, 2), qRgba(9, 9, 9, 255));
}

// Whatever the way that a picture takes to the buffer, one that may be stopped gives the same pixels.
TEST(BitmapContext, ARunThatMayStopDrawsTheSame) {
    const QImage opaque = noise(300, 260).convertToFormat(QImage::Format_RGBX8888);
    const QImage clear = plain(300, 260, QColor(90, 40, 20, 120));
    const auto until = [](bool superseded) {
        RunContext run;
        run.superseded = [=] { return superseded; };
        return run;
    };
    int turn = 0;
    for (const QImage& source : {opaque, clear}) {
        for (const QRectF& rect : {QRectF(7, 5, 300, 260), QRectF(-3, 2, 150, 130), QRectF(2.3, 4.7, 150.5, 130.2),
                                   QRectF(0, 0, 320, 640), QRectF(-20.4, 9.9, 700.3, 410.8)}) {
            for (const double angle : {0.0, std::numbers::pi / 2, 0.3}) {
                const double opacity = ++turn % 3 == 0 ? 0.6 : 1.0;
                Canvas usual(320, 640), stoppable(320, 640), stopped(320, 640);
                const std::vector<std::uint8_t> before = stopped.bytes;
                const auto draw = [&](Canvas& canvas, const RunContext& run) {
                    canvas.context.rotate(angle);
                    canvas.context.translate(0, turn % 2 ? -100 : 0);
                    return canvas.context.fillRect(QRectF(1, 2, 300, 700), 0.1, 0.5, 0.9, 0.5, run) &&
                           canvas.context.drawImage(source, rect, opacity, run);
                };
                EXPECT_TRUE(draw(usual, {}));
                EXPECT_TRUE(draw(stoppable, until(false)));
                ASSERT_EQ(usual.bytes, stoppable.bytes) << turn;
                EXPECT_FALSE(draw(stopped, until(true)));
                EXPECT_TRUE(angle != 0.0 || stopped.bytes == before) << turn;
            }
        }
    }
    for (const QRectF& rect : {QRectF(0, 0, 320, 640), QRectF(-3.5, 2, 150, 130), QRectF(-20.4, 9.9, 700.3, 410.8)}) {
        Canvas stopped(320, 640);
        const std::vector<std::uint8_t> before = stopped.bytes;
        EXPECT_FALSE(stopped.context.drawImage(opaque, rect, 1.0, until(true)));
        EXPECT_EQ(stopped.bytes, before);
    }
}

TEST(BitmapContext, SenselessRectanglesDrawNothing) {
    Canvas canvas(8, 8);
    const std::vector<std::uint8_t> before = canvas.bytes;
    const QImage source = noise(8, 8);
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    for (const QRectF& rect : {QRectF(nan, 0, 8, 8), QRectF(0, 0, nan, 8), QRectF(0, 0, inf, 8),
                               QRectF(-inf, 0, inf, 8), QRectF(0, 0, 1e300, 1e300), QRectF(0, 0, 0, 8),
                               QRectF(0, 0, 8, -8), QRectF(1e9, 0, 8, 8), QRectF(100, 100, 8, 8)}) {
        canvas.context.drawImage(source, rect);
        canvas.context.fillRect(rect, 1, 1, 1, 1);
    }
    canvas.context.scale(0, 0);
    canvas.context.drawImage(source, QRectF(0, 0, 8, 8));
    canvas.context.drawImage(QImage(), QRectF(0, 0, 8, 8));
    EXPECT_EQ(canvas.bytes, before);
}

}  // namespace
}  // namespace tavrin

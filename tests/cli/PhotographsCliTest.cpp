// The matte of real photographs at a small and at their own size.
#include <cmath>
#include <gtest/gtest.h>

#include <QImage>

#include "support/Cli.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

// The alpha of a photograph that is made `width` pixels wide.
QImage matte(const std::filesystem::path& picture, const QSize& own, int width, const test::TempFolder& folder) {
    const int height = static_cast<int>(std::lround(static_cast<double>(own.height()) * width / own.width()));
    const QString alpha = QString::fromStdString(folder.file("alpha.png"));
    const QString inches = QString("%1x%2").arg(width / 100.0).arg(height / 100.0);
    const QString background = QString::fromStdString(folder.file("grey.png"));
    QImage grey(64, 64, QImage::Format_RGB32);
    grey.fill(Qt::gray);
    grey.save(background);
    const auto done =
        test::runCli({"render", "--foreground", QString::fromStdString(picture.string()), "--background", background,
                      "--out", QString::fromStdString(folder.file("out.png")), "--alpha", alpha, "--inches", inches,
                      "--dpi", "100", "--place", "corner", "-q"});
    EXPECT_EQ(done.code, 0) << done.err.toStdString();
    return QImage(alpha).convertToFormat(QImage::Format_Grayscale8);
}

TEST(Photographs, ASmallMatteIsThatOfTheWholePicture) {
    TAVRIN_NEED_DATA(data);
    for (const char* name : {"studio_with_camera.jpg", "boys_green_shirts.png", "woman_green_shirt.png"}) {
        const std::filesystem::path picture = data / "greenscreen" / name;
        const QSize own = QImage(QString::fromStdString(picture.string())).size();
        const test::TempFolder folder;
        const QImage small = matte(picture, own, 640, folder);
        const QImage large = matte(picture, own, own.width(), folder)
                                 .scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ASSERT_FALSE(small.isNull() || large.isNull()) << name;
        double sum = 0.0;
        for (int y = 0; y < small.height(); ++y) {
            for (int x = 0; x < small.width(); ++x)
                sum += std::abs(qGray(small.pixel(x, y)) - qGray(large.pixel(x, y)));
        }
        EXPECT_LT(sum / (small.width() * small.height()), 4.0) << name;
    }
}

}  // namespace
}  // namespace tavrin

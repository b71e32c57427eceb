// Sheets as PDF, and where they lie on their paper.
#include <gtest/gtest.h>
#include <zlib.h>

#include <QColorSpace>
#include <QProcess>
#include <QStandardPaths>

#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "delivery/print/CupsWords.h"
#include "delivery/print/PlainJpeg.h"
#include "delivery/print/SheetPdf.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/PrintPages.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

TEST(Paper, ASheetLiesInTheMiddleOfItsPaperAndIsCutOffOnASmallerOne) {
    const Paper letter = *paperOf("Letter"), a4 = *paperOf("a4");
    EXPECT_EQ(printedArea(letter, marginsOn(letter, 4200, 5400)), QRectF(54, 72, 504, 648));
    EXPECT_EQ(printedArea(letter, marginsOn(letter, 5100, 6600)), QRectF(0, 0, 612, 792));
    const SheetMargins margins = marginsOn(a4, 5100, 6600);
    EXPECT_EQ(margins.left, 0.0F);
    EXPECT_GT(margins.top, 20.0F);
    EXPECT_TRUE(isCutOff(a4, 5100, 6600));
    EXPECT_FALSE(isCutOff(letter, 5100, 6600));
    // In single precision: another rounding would shift a sheet that was laid out for cutting.
    EXPECT_EQ(marginsOn({612, 792, ""}, 4333, 1).left, ((612.0F / 72.0F - 4333.0F / 600.0F) / 2.0F) * 72.0F);
    EXPECT_NEAR(paperOf("10x15cm")->width, paperOf("100 x 150 mm")->width, 1e-9);
    EXPECT_EQ(paperOf("4 x 6")->name, paperName(288, 432)) << "whoever names it";
    EXPECT_FALSE(paperOf("A44") || paperOf("0x5") || paperOf("4x") || paperOf(""));
}

TEST(CupsWords, TellWhatStopsAPrinterAndNothingElse) {
    EXPECT_EQ(wordsOf("media-empty-error,media-needed-error", false), "out of paper");
    EXPECT_EQ(wordsOf("marker-supply-low-report,cups-waiting-for-job-completed,none", true), "");
    EXPECT_EQ(wordsOf("media-empty-warning", false), "");
    EXPECT_EQ(wordsOf("media-empty-warning,cover-open", true), "out of paper, a cover is open");
    EXPECT_EQ(troubleIn("Printing page 1, 50% complete."), "");
    EXPECT_NE(troubleIn("The printer is not responding."), "");
}

class SheetPdfTest : public testing::Test {
  protected:
    QImage rendered(const SheetPlan& plan, const SheetPicture& picture) {
        EXPECT_TRUE(written(plan, picture).empty());
        QProcess look;
        look.start("pdftoppm", {"-r", "50", "-png", "-singlefile", QString::fromStdString(path_),
                                QString::fromStdString(folder_.file("look"))});
        look.waitForFinished();
        return QImage(QString::fromStdString(folder_.file("look.png")));
    }
    std::string written(const SheetPlan& plan, const SheetPicture& picture) {
        SheetPdf sheet(path_, plan);
        sheet.add(picture);
        return sheet.commit();
    }
    static bool hasPoppler() { return !QStandardPaths::findExecutable("pdftoppm").isEmpty(); }
    static int off(QColor a, QColor b) {
        return std::max(
            {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
    }

    test::TempFolder folder_;
    const std::string path_ = folder_.file("sheet.pdf");
};

/// Two halves, the upper one red.
QImage halves(int width, int height) {
    QImage image(width, height, QImage::Format_RGBX8888);
    image.fill(QColor(20, 20, 220));
    for (int y = 0; y < height / 2; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, QColor(220, 20, 20));
    return image;
}

TEST_F(SheetPdfTest, LooksAsTheSheetThatIsDrawn) {
    if (!hasPoppler()) GTEST_SKIP() << "poppler-utils is not installed";
    const QColor red(220, 20, 20), blue(20, 20, 220), grey(179, 179, 179);
    SheetPlan plan{test::pageOf(400, 400, {QRect(50, 50, 100, 200), QRect(200, 100, 150, 100)})};
    const QImage sheet = rendered(plan, {halves(60, 120)});
    ASSERT_EQ(sheet.size(), QSize(200, 200));
    EXPECT_LT(off(sheet.pixelColor(50, 85), red), 8) << "upright in the upright place";
    EXPECT_LT(off(sheet.pixelColor(50, 165), blue), 8);
    EXPECT_LT(off(sheet.pixelColor(105, 125), blue), 8) << "clockwise in the wide one";
    EXPECT_LT(off(sheet.pixelColor(170, 125), red), 8);
    EXPECT_LT(off(sheet.pixelColor(5, 5), grey), 3);
    plan.look.mirrored = true;
    EXPECT_LT(off(rendered(plan, {halves(60, 120)}).pixelColor(95, 125), blue), 8);
    plan.look = {SlotFit::fill};
    const QImage filled = rendered(plan, {halves(60, 60), "", "", 0.5});  // square, taken for upright
    EXPECT_LT(off(filled.pixelColor(50, 85), red), 8);
    EXPECT_LT(off(filled.pixelColor(26, 165), blue), 8);
    EXPECT_LT(off(filled.pixelColor(5, 125), grey), 3) << "nothing stands over";
    plan.look = {SlotFit::whole};
    const QImage whole = rendered(plan, {halves(60, 60), "", "", 0.5});
    EXPECT_LT(off(whole.pixelColor(50, 80), grey), 3);
    EXPECT_LT(off(whole.pixelColor(50, 105), red), 8);
}

TEST_F(SheetPdfTest, ClearPartsShowTheSheetAndACaptionStandsBelowThePictures) {
    if (!hasPoppler()) GTEST_SKIP() << "poppler-utils is not installed";
    QImage clear(60, 60, QImage::Format_RGBA8888_Premultiplied);
    clear.fill(QColor(110, 10, 10, 128));
    SheetPlan plan{test::pageOf(400, 400, {QRect(100, 100, 200, 200)})};
    const QImage plain = rendered(plan, {clear});
    EXPECT_LT(off(plain.pixelColor(100, 100), QColor(144, 94, 94)), 4);
    plan.look.caption = "<<filename>> WWWWWWWW";
    const QImage captioned = rendered(plan, {clear, "", "/x/anna.jpg"});
    int dark = 0;
    for (int y = 150; y < 200; ++y)
        for (int x = 0; x < 200; ++x)
            dark += off(plain.pixelColor(x, y), captioned.pixelColor(x, y)) > 60;
    EXPECT_GT(dark, 40);
    EXPECT_EQ(plain.copy(0, 0, 200, 150), captioned.copy(0, 0, 200, 150));
    EXPECT_FALSE(captionRoom(test::pageOf(400, 400, {QRect(0, 0, 400, 400)}), 600));
    EXPECT_GT(captionRoom(test::pageOf(400, 400, {QRect(0, 0, 400, 350)}), 600)->top(), 350 * 6)
        << "above where none is below";
}

TEST_F(SheetPdfTest, AJpegFileIsInItAsItIsWithoutWhatIsNotItsPicture) {
    const QImage picture = test::noisePicture(64, 48, 7).convertToFormat(QImage::Format_RGBA8888);
    const std::string camera = std::string("Exif\0\0", 6) + "MM" + std::string("\0\x2a\0\0\0\x08\0\0\0\0\0\0", 12);
    const std::string file = folder_.file("anna.jpg");
    ASSERT_EQ(writePicture(file, {picture.constBits(), 64, 48, kJpegFile, 300, {camera.begin(), camera.end()}}), "");
    std::string bytes = test::readFile(file);
    bytes.insert(2, std::string("\xFF\xFE\x00\x0Esecret place", 16));  // a remark behind the first mark
    test::writeFile(file, bytes + "secret trailer");
    SheetPicture read;
    ASSERT_EQ(readForSheet(file, read), "");
    ASSERT_FALSE(read.jpeg.empty());
    EXPECT_EQ(read.jpeg.find("secret"), std::string::npos);
    EXPECT_EQ(read.jpeg.find("Exif"), std::string::npos);
    test::writeFile(folder_.file("again.jpg"), read.jpeg);
    EXPECT_EQ(readPicture(folder_.file("again.jpg")).pixels, read.pixels) << "not a pixel differs";
    ASSERT_EQ(written({test::pageOf(400, 300, {QRect(0, 0, 400, 300), QRect(0, 0, 40, 30)})}, read), "");
    const std::string sheet = test::readFile(path_);
    EXPECT_NE(sheet.find(read.jpeg), std::string::npos);
    EXPECT_EQ(sheet.find("/FlateDecode"), std::string::npos);
    for (std::size_t cut = 3; cut < read.jpeg.size(); cut += 97) {  // no broken file brings it out of step
        test::writeFile(file, read.jpeg.substr(0, cut));
        EXPECT_EQ(plainJpeg(file), "") << cut;
    }
}

TEST_F(SheetPdfTest, OtherPicturesAreUnpackedToTheVeryPixels) {
    const QImage picture = test::noisePicture(37, 300, 5).convertToFormat(QImage::Format_RGBX8888);
    ASSERT_EQ(written({test::pageOf(100, 100, {QRect(0, 0, 100, 100)})}, {picture}), "");
    const std::string sheet = test::readFile(path_);
    for (const auto format : {QImage::Format_RGB888, QImage::Format_RGB32, QImage::Format_ARGB32}) {
        ASSERT_EQ(written({test::pageOf(100, 100, {QRect(0, 0, 100, 100)})}, {picture.convertToFormat(format)}), "");
        EXPECT_EQ(test::readFile(path_), sheet) << format;
    }
    const std::size_t from = sheet.find("stream\n", sheet.find("/FlateDecode")) + 7;
    std::vector<Bytef> rows(300 * (37 * 3 + 1));
    auto size = static_cast<uLongf>(rows.size());
    ASSERT_EQ(uncompress(rows.data(), &size, reinterpret_cast<const Bytef*>(sheet.data()) + from,
                         static_cast<uLong>(sheet.size() - from)),
              Z_OK);
    ASSERT_EQ(size, rows.size());
    std::vector<std::uint8_t> above(37 * 3);
    int wrong = 0;
    for (int y = 0; y < 300; ++y) {
        for (int i = 0; i < 37 * 3; ++i) {
            above[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(
                above[static_cast<std::size_t>(i)] + rows[static_cast<std::size_t>(y * 112 + 1 + i)]);
            wrong += above[static_cast<std::size_t>(i)] != picture.constScanLine(y)[i / 3 * 4 + i % 3];
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST_F(SheetPdfTest, ColoursGoThroughThePrintersProfileAndAnUnfitOneIsRefused) {
    const std::string profile = folder_.file("printer.icc");
    const QByteArray wide = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    test::writeFile(profile, wide.toStdString());
    std::string problem;
    const auto printer = PrinterProfile::load(profile, Intent::relative, problem);
    ASSERT_TRUE(printer) << problem;
    const std::array<double, 3> green = printer->converted({0.0, 1.0, 0.0}), white = printer->converted({1, 1, 1});
    EXPECT_NEAR(green[0], 0.565, 0.02) << "the green of sRGB lies within";
    EXPECT_NEAR(white[0] + white[1] + white[2], 3.0, 0.02);
    QImage picture(3, 2, QImage::Format_RGBX8888);
    picture.fill(QColor(0, 255, 0));
    EXPECT_NEAR(printer->converted(picture).pixelColor(2, 1).red(), 144, 3);
    test::writeFile(profile, "no profile");
    EXPECT_FALSE(PrinterProfile::load(profile, Intent::relative, problem));
    EXPECT_NE(problem.find("it is no ICC profile"), std::string::npos) << problem;
}

}  // namespace
}  // namespace tavrin

// tavrin-cli print, as a user calls it.
#include <filesystem>
#include <gtest/gtest.h>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class PrintCliTest : public testing::Test {
  protected:
    PrintCliTest() {
        test::savePng(test::noisePicture(300, 420, 4), folder_.file("anna.png"));
        test::savePng(test::noisePicture(300, 420, 5), folder_.file("ben.png"));
    }
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    test::CliOutcome print(const QStringList& files, const char* to, const QStringList& more = {},
                           const char* page = "5x7 Vert") const {
        return test::runCli(QStringList{"print"} + files + QStringList{"--page", page, "--to", file(to)} + more);
    }
    /// How often a text stands in a file.
    qsizetype count(const char* name, const char* text) const {
        return QByteArray::fromStdString(test::readFile(folder_.file(name))).count(text);
    }

    test::TempFolder folder_;
};

TEST_F(PrintCliTest, APdfHasAPageOfTheTrueSizeForEachPictureAndKeepsEachOnceWithoutLoss) {
    const auto outcome = print({file("anna.png"), file("ben.png")}, "sheets.pdf", {}, "Letter Eight Wallets");
    EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.out.contains("2 sheets of \"Letter Eight Wallets\""));
    EXPECT_EQ(count("sheets.pdf", "/MediaBox [0 0 612.0000 792.0000 ]"), 2);
    EXPECT_EQ(count("sheets.pdf", "/Subtype /Image"), 2);
    EXPECT_EQ(count("sheets.pdf", "/DCTDecode"), 0);
}

TEST_F(PrintCliTest, APictureOfTheSheetHasSixHundredDotsAnInch) {
    EXPECT_EQ(print({file("anna.png")}, "sheet.png").code, 0);
    const QImage sheet(file("sheet.png"));
    EXPECT_EQ(sheet.size(), QSize(3000, 4200));
    EXPECT_NEAR(sheet.dotsPerMeterX() * 0.0254, 600.0, 0.1);
}

TEST_F(PrintCliTest, WhatCannotBePrintedIsToldAndNothingIsWritten) {
    test::writeFile(folder_.file("broken.png"), "no picture");
    const auto refused = [&](const QStringList& files, const char* to, const char* page, int code, const char* text) {
        const std::string before = test::readFile(folder_.file("anna.png"));
        const auto outcome = print(files, to, {}, page);
        EXPECT_EQ(outcome.code, code) << text;
        EXPECT_TRUE(outcome.err.contains(text)) << outcome.err.toStdString();
        EXPECT_EQ(test::readFile(folder_.file("anna.png")), before);
        EXPECT_FALSE(fs::exists(folder_.file("sheet.pdf")) || fs::exists(folder_.file("sheet.png")));
    };
    const QString anna = file("anna.png");
    refused({anna}, "sheet.pdf", "5x7 Vrt", 2, "did you mean \"5x7 Vert\"?");
    refused({anna}, "anna.png", "5x7 Vert", 2, "anna.png");
    refused({anna, file("ben.png")}, "sheet.png", "5x7 Vert", 2, "one sheet");
    refused({anna}, "sheet.txt", "5x7 Vert", 2, "must end in .pdf");
    refused({anna, file("broken.png")}, "sheet.pdf", "5x7 Vert", 1, "broken.png");
    refused({file("gone.png")}, "sheet.png", "5x7 Vert", 1, "gone.png");
    refused({anna}, "nowhere/sheet.pdf", "5x7 Vert", 1, "there is no folder");
}

}  // namespace
}  // namespace tavrin

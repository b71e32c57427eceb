// Files of airbrush edits on the command line.
#include <filesystem>
#include <gtest/gtest.h>

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

// A stroke of paint across the upper left corner.
const std::string kPaint = "tavrin-edits 1\nview 60 36\n10 112\n30 10 20 250\n20 50 2 100 100\n1 5 30\n3 15 25\n2\n";
const QColor kInk(10, 20, 250);

class EditsCliTest : public testing::Test {
  protected:
    EditsCliTest() {
        fs::create_directory(folder_.path() / "fg");
        for (const char* name : {"anna", "ben"})
            test::savePng(test::discOnScreen(60, 36), folder_.file("fg/" + std::string(name) + ".png"));
        test::savePng(test::noisePicture(60, 36, 4), folder_.file("sea.png"));
    }
    QString file(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    void write(const std::string& name, const std::string& text) const { test::writeFile(folder_.file(name), text); }
    test::CliOutcome render(const QStringList& more, const char* dpi = "12") const {
        return test::runCli(QStringList{"render", "--bare", "--foreground", file("fg/anna.png"), "--background",
                                        file("sea.png"), "--out", file("out.png"), "--inches", "5x3", "--dpi", dpi} +
                            more);
    }
    QColor pixel(const std::string& name, int x, int y) const { return QImage(file(name)).pixelColor(x, y); }

    test::TempFolder folder_;
};

TEST_F(EditsCliTest, RenderPlaysThemOnTheFinishedPicture) {
    write("a.edits", kPaint);
    ASSERT_EQ(render({}).code, 0);
    const QImage plain(file("out.png"));
    const auto done = render(
        {"--edits", file("a.edits"), "--alpha", file("key.png"), "--edits-alpha", file("after.png"), "--json"});
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(pixel("out.png", 5, 6), kInk);
    EXPECT_EQ(pixel("out.png", 15, 11), kInk);
    EXPECT_EQ(pixel("out.png", 40, 30), plain.pixelColor(40, 30));
    EXPECT_EQ(pixel("key.png", 5, 6).red(), 0);
    EXPECT_EQ(pixel("after.png", 5, 6).red(), 255);
    // At twice the size they are at the same place, as thick as before or to scale.
    ASSERT_EQ(render({"--edits", file("a.edits")}, "24").code, 0);
    EXPECT_EQ(pixel("out.png", 10, 12), kInk);
    EXPECT_NE(pixel("out.png", 3, 12), kInk);
    ASSERT_EQ(render({"--edits", file("a.edits"), "--edits-scale-radius"}, "24").code, 0);
    EXPECT_EQ(pixel("out.png", 3, 12), kInk);
}

TEST_F(EditsCliTest, AFaultNamesTheLineAndNothingIsWritten) {
    write("a.edits", kPaint + "1 2\n");
    const auto done = render({"--edits", file("a.edits"), "--alpha", file("key.png")});
    EXPECT_EQ(done.code, 1);
    EXPECT_EQ(done.err, "tavrin-cli: " + file("a.edits") + ", line 9: 1 (mouse down) takes 2 values.\n");
    EXPECT_FALSE(fs::exists(folder_.file("out.png")));
    EXPECT_FALSE(fs::exists(folder_.file("key.png")));
    EXPECT_EQ(test::runCli({"edits", "info", file("a.edits")}).code, 1);
    EXPECT_EQ(render({"--edits", file("gone.edits")}).code, 1);
    EXPECT_EQ(render({"--edits", file("fg")}).code, 1);
    EXPECT_EQ(render({"--edits", file("a.edits"), "--preview"}).code, 2);
    EXPECT_EQ(render({"--edits-alpha", file("after.png")}).code, 2);
    write("b.png", kPaint);
    EXPECT_EQ(render({"--edits", file("b.png"), "--edits-alpha", file("b.png")}).code, 2);
    EXPECT_EQ(test::readFile(folder_.file("b.png")), kPaint);
}

TEST_F(EditsCliTest, WhatDoesNotFitIsTold) {
    std::string many = "tavrin-edits 1\nview 40 36\n10 112\n20 50 1 100 100\n1 900 900\n2\n77\n";
    for (int i = 0; i < 5000; ++i)
        many += "2\n";
    write("a.edits", many);
    const auto done = render({"--edits", file("a.edits")});
    EXPECT_EQ(done.code, 0);
    for (const char* words : {"has another shape", "more than 5000 items: the last 5 were left out",
                              "1 item of kinds that are not known", "1 stroke of 1 did not meet the picture"})
        EXPECT_TRUE(done.err.contains(words)) << words << "\n" << done.err.toStdString();
}

TEST_F(EditsCliTest, ASelectionDoesNotGoOutWithThePicture) {
    write("a.edits", "tavrin-edits 1\nview 60 36\n10 56\n50 50 50 2 0\n32 0 0 0\n");
    ASSERT_EQ(render({}).code, 0);
    const std::string plain = test::readFile(folder_.file("out.png"));
    ASSERT_EQ(render({"--edits", file("a.edits")}).code, 0);
    EXPECT_EQ(test::readFile(folder_.file("out.png")), plain);
}

TEST_F(EditsCliTest, InfoCountsWhatIsInThem) {
    write("a.edits", kPaint + "seed 5\n10 101\n1 1 1\n2\n");
    const auto done = test::runCli({"edits", "info", file("a.edits"), "--json"});
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    const QJsonObject object = QJsonDocument::fromJson(done.out.toUtf8()).object();
    EXPECT_EQ(object["width"].toInt(), 60);
    EXPECT_EQ(object["items"].toInt(), 9);
    EXPECT_EQ(object["seed"].toString(), "5");
    EXPECT_EQ(object["strokes"].toObject()["Paint"].toInt(), 1);
    EXPECT_EQ(object["strokes"].toObject()["Erase Foreground"].toInt(), 1);
    EXPECT_TRUE(test::runCli({"edits", "info", file("a.edits")}).out.contains("strokes of Paint"));
}

TEST_F(EditsCliTest, ABatchPlaysThoseBesideEachPortrait) {
    const auto batch = [this] {
        const auto done =
            test::runCli({"batch", "--bare", "--foregrounds", file("fg"), "--backgrounds", file("sea.png"), "--out",
                          file("out"), "--type", "png", "--inches", "5x3", "--dpi", "12", "--edits", "beside"});
        QMap<QString, QJsonObject> lines;
        for (const QString& line : done.out.split('\n', Qt::SkipEmptyParts)) {
            const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
            lines[object["out"].toString()] = object;
        }
        EXPECT_FALSE(done.err.contains(".edits:")) << done.err.toStdString();
        return lines;
    };
    const auto statusOf = [](const QJsonObject& line) { return line["status"].toString().toStdString(); };
    write("fg/anna.edits", kPaint);
    auto lines = batch();
    EXPECT_EQ(statusOf(lines["anna_sea.png"]), "done");
    EXPECT_EQ(pixel("out/anna_sea.png", 5, 6), kInk);
    EXPECT_NE(pixel("out/ben_sea.png", 5, 6), kInk);
    write("fg/ben.png.edits", kPaint);
    lines = batch();
    EXPECT_EQ(statusOf(lines["anna_sea.png"]), "skipped");
    EXPECT_EQ(statusOf(lines["ben_sea.png"]), "done");
    EXPECT_EQ(pixel("out/ben_sea.png", 5, 6), kInk);
    write("fg/ben.png.edits", kPaint + "oops\n");
    lines = batch();
    EXPECT_EQ(statusOf(lines["ben_sea.png"]), "failed");
    EXPECT_TRUE(lines["ben_sea.png"]["reason"].toString().contains("ben.png.edits, line 9: "));
    EXPECT_EQ(pixel("out/ben_sea.png", 5, 6), kInk);  // the picture that is there stays
    fs::remove(folder_.file("fg/anna.edits"));
    EXPECT_EQ(statusOf(batch()["anna_sea.png"]), "done");
    EXPECT_NE(pixel("out/anna_sea.png", 5, 6), kInk);
}

}  // namespace
}  // namespace tavrin

// tavrin-cli as a user calls it: what it prints, what it writes, its exit codes.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Outcome = test::CliOutcome;

Outcome run(const QStringList& arguments) {
    return test::runCli(arguments);
}

class CliTest : public testing::Test {
  protected:
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    QStringList renderTo(const QString& out, const QStringList& more = {}) const {
        return QStringList{"render", "--foreground", foreground_, "--background", background_, "--out", out} + more;
    }
    QStringList size() const { return {"--inches", "5x3", "--dpi", "48"}; }  // 240 x 144, as both sources

    test::TempFolder folder_;
    const QString foreground_ =
        QString::fromStdString(test::savePng(test::discOnScreen(240, 144), folder_.file("fg.png")));
    const QImage backgroundPixels_ = test::noisePicture(240, 144, 4);
    const QString background_ = QString::fromStdString(test::savePng(backgroundPixels_, folder_.file("bg.png")));
};

TEST_F(CliTest, RendersAPictureWithItsMatteAndSaysWhatItMade) {
    const Outcome done = run(renderTo(file("out.png"), size() + QStringList{"--alpha", file("matte.png"), "--json"}));
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    EXPECT_EQ(done.err, "");
    const QJsonObject told = QJsonDocument::fromJson(done.out.toUtf8()).object();
    EXPECT_EQ(told["width"].toInt(), 240);
    EXPECT_EQ(told["height"].toInt(), 144);
    EXPECT_NEAR(told["baseGreen"].toDouble(), 160.0, 1.0);

    const QImage picture(file("out.png")), matte(file("matte.png"));
    ASSERT_EQ(picture.size(), QSize(240, 144));
    ASSERT_EQ(matte.size(), QSize(240, 144));
    // Sources of the output's size go through untouched.
    for (const QPoint p : {QPoint(0, 0), QPoint(239, 0), QPoint(0, 143), QPoint(17, 120)}) {
        EXPECT_EQ(picture.pixel(p), backgroundPixels_.pixel(p));
        EXPECT_EQ(qRed(matte.pixel(p)), 0);
    }
    EXPECT_EQ(qRed(matte.pixel(120, 72)), 255);
}

TEST_F(CliTest, EveryKindOfFileAndBothPathsAndThePreview) {
    for (const char* name : {"a.jpg", "a.jpeg", "a.png", "a.tif", "a.TIFF"}) {
        EXPECT_EQ(run(renderTo(file(name), size() + QStringList{"--fast"})).code, 0) << name;
        EXPECT_EQ(run({"info", file(name)}).code, 0);
    }
    ASSERT_EQ(run(renderTo(file("p.png"), {"--preview", "--size", "5x7 200 Vert"})).code, 0);
    EXPECT_EQ(QImage(file("p.png")).size(), QSize(460, 644));
}

TEST_F(CliTest, SettingsReachTheirFields) {
    ASSERT_EQ(run(renderTo(file("a.png"), size())).code, 0);
    ASSERT_EQ(run(renderTo(file("b.png"), size() + QStringList{"--set", "background.iBrightness=40", "--set",
                                                               "foreground.iContrast=80"}))
                  .code,
              0);
    const QImage plain(file("a.png")), changed(file("b.png"));
    EXPECT_GT(qGreen(changed.pixel(5, 5)), qGreen(plain.pixel(5, 5)));
    EXPECT_NE(changed.pixel(120, 72), plain.pixel(120, 72));
}

TEST_F(CliTest, WrongCallsAreToldInOneLineAndWriteNothing) {
    const struct {
        QStringList arguments;
        int code;
        const char* named;
    } calls[] = {
        {renderTo(file("o.png"), {"--set", "iBlendEgdes=3"}), 2, "iBlendEgdes"},
        {renderTo(file("o.png"), {"--set", "iBlendEdges=many"}), 2, "iBlendEdges"},
        {renderTo(file("o.png"), {"--set", "iBlendEdges"}), 2, "iBlendEdges"},
        {renderTo(file("o.png"), {"--inches", "0x3", "--dpi", "48"}), 2, "size"},
        {renderTo(file("o.png"), {"--inches", "wide", "--dpi", "48"}), 2, "wide"},
        {renderTo(file("o.png"), {"--size", "no such size"}), 2, "no such size"},
        {renderTo(file("o.bmp")), 2, "o.bmp"},
        {renderTo(file("none/o.png")), 1, "none"},
        {{"render", "--foreground", file("gone.jpg"), "--background", background_, "--out", file("o.png")},
         1,
         "gone.jpg"},
        {{"render", "--foreground", background_, "--out", file("o.png")}, 2, "--background"},
        {{"info", file("gone.jpg")}, 1, "gone.jpg"},
        {{"state", "show", file("gone.qlx")}, 1, "gone.qlx"},
        {{"nonsense"}, 2, ""},
    };
    for (const auto& call : calls) {
        const Outcome outcome = run(call.arguments);
        EXPECT_EQ(outcome.code, call.code) << call.arguments.join(' ').toStdString() << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(call.named)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, "");
        EXPECT_FALSE(fs::exists(folder_.file("o.png")));
    }
    EXPECT_EQ(run({"--help"}).code, 0);
    EXPECT_EQ(run({"render", "--help"}).code, 0);
}

TEST_F(CliTest, StatesAreSavedChangedComparedAndUsed) {
    ASSERT_EQ(run(renderTo(file("a.png"), size() + QStringList{"--save-state", file("a.qlx")})).code, 0);
    ASSERT_EQ(
        run({"state", "set", file("a.qlx"), file("b.qlx"), "combined.sliderWhiteAdjust=7", "bUseBlueLogic=1"}).code,
        0);
    const Outcome diff = run({"state", "diff", file("a.qlx"), file("b.qlx")});
    EXPECT_EQ(diff.code, 0);
    EXPECT_EQ(diff.out, "bUseBlueLogic: 0 -> 1\ncombined.sliderWhiteAdjust: 40 -> 7\n");
    EXPECT_TRUE(run({"state", "show", file("b.qlx")}).out.contains("combined.sliderWhiteAdjust=7\n"));

    const QStringList again = {"render", "--state", file("a.qlx"), "--out", file("again.png")};
    ASSERT_EQ(run(again + size()).code, 0);
    EXPECT_EQ(QImage(file("again.png")), QImage(file("a.png")));
    EXPECT_EQ(run({"state", "set", file("a.qlx"), file("c.qlx"), "nonsense=1"}).code, 2);
    EXPECT_FALSE(fs::exists(folder_.file("c.qlx")));
}

TEST_F(CliTest, ListsAreThereOnAFreshAccount) {
    EXPECT_TRUE(run({"sizes"}).out.contains("5x7 200 Vert"));
    EXPECT_GT(run({"pages"}).out.count('\n'), 10);
}

}  // namespace
}  // namespace tavrin

// tavrin-cli as a user calls it: what it prints, what it writes, its exit codes.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"
#include "support/TextPage.h"

namespace fs = std::filesystem;
using namespace std::string_literals;

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
        return QStringList{"render",       "--bare",    "--foreground", foreground_,
                           "--background", background_, "--out",        out} +
               more;
    }
    QImage render(const char* name, const QStringList& more) const {
        const Outcome done = run(renderTo(file(name), size() + more));
        EXPECT_EQ(done.code, 0) << done.err.toStdString();
        EXPECT_EQ(done.err, "");
        return QImage(file(name));
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

TEST_F(CliTest, WritesTitlesAndItems) {
    TAVRIN_NEED_FONTS();
    const QImage plain = render("a.png", {});
    const QImage titled = render("b.png", {"--title", "Anna", "--note", "2031"});
    EXPECT_NE(titled, plain);
    EXPECT_NE(render("c.png", {"--title", "Anna", "--note", "2031", "--set", "label0.sLabelSize=Large"}), titled);
    const QStringList byHand = {"--set", "label0.sText=Anna",   "--note", "2031",
                                "--set", "label0.iFontSize=25", "--set",  "label0.sLabelSize=Large"};
    EXPECT_EQ(render("d.png", byHand), titled) << "a size in points wins over a name";
    EXPECT_NE(render("e.png", {"--set", "text0.sText=Anna", "--set", "text0.xPos=1"}), plain);
}

TEST_F(CliTest, LongTitlesFitAndNotesAreLegibleOnEveryGround) {
    TAVRIN_NEED_FONTS();
    const QImage plain = render("a.png", {});
    const QString title = "Anna Katharina Elisabeth, class of 2026, with all her friends";
    const auto reachesEdge = [&plain](const QImage& picture) {
        for (int y = 0; y < 40; ++y) {
            if (picture.pixel(1, y) != plain.pixel(1, y)) return true;
        }
        return false;
    };
    EXPECT_FALSE(reachesEdge(render("b.png", {"--title", title})));
    EXPECT_TRUE(reachesEdge(render("c.png", {"--title", title, "--title-size", "25"})));
    EXPECT_TRUE(reachesEdge(render("d.png", {"--title", title, "--set", "label0.iFontSize=25"})));

    QImage ground(240, 144, QImage::Format_RGB888);
    const auto brightest = [&](const QColor& color, const QStringList& more) {
        ground.fill(color);
        const QString file = QString::fromStdString(test::savePng(ground, folder_.file("ground.png")));
        const QImage noted = render("e.png", QStringList{"--overlay-background", file, "--note", "MMMM"} + more);
        int most = 0;
        for (int y = 100; y < 144; ++y)
            for (int x = 160; x < 240; ++x)
                most = std::max(most, qGreen(noted.pixel(x, y)));
        return most;
    };
    EXPECT_GT(brightest(QColor(30, 30, 30), {}), 230);
    EXPECT_LT(brightest(QColor(30, 30, 30), {"--set", "label1.sFontColor=Black"}), 60);
    EXPECT_LE(brightest(QColor(200, 200, 200), {}), 205) << "black on light ground";
}

TEST_F(CliTest, LaysOverlaysOn) {
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(QColor(250, 0, 250));
    const QString overlay = QString::fromStdString(test::savePng(picture, folder_.file("overlay.png")));
    const QImage behind = render("f.png", {"--overlay-background", overlay});
    EXPECT_EQ(behind.pixelColor(5, 5), QColor(250, 0, 250));
    EXPECT_EQ(behind.pixelColor(120, 72), render("a.png", {}).pixelColor(120, 72));
    EXPECT_EQ(render("g.png", {"--overlay-frame", overlay}).pixelColor(120, 72), QColor(250, 0, 250));
}

// What a machine with little memory answers, at a step that no test can choose: a message and no picture.
TEST_F(CliTest, WithoutEnoughMemoryNothingIsWritten) {
    if (test::kSanitized) GTEST_SKIP() << "a checker wants more addresses than any limit leaves";
    const QStringList large = {"--inches", "100x100", "--dpi", "190"};
    for (const QStringList& more : {large, large + QStringList{"--fast"}, large + QStringList{"--preview"}}) {
        const Outcome outcome = test::runCliWithin(std::size_t{2} << 30, renderTo(file("o.png"), more));
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains("not enough memory")) << outcome.err.toStdString();
        EXPECT_FALSE(fs::exists(folder_.file("o.png")));
    }
    const QStringList batch = {"batch",         "--bare",    "--foregrounds", foreground_,
                               "--backgrounds", background_, "--out",         file("out")};
    const Outcome outcome = test::runCliWithin(std::size_t{2} << 30, batch + large);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.out.contains("not enough memory")) << outcome.out.toStdString();
    EXPECT_FALSE(fs::exists(folder_.file("out/fg_bg.jpg")));
}

TEST_F(CliTest, FilesThatAreHugeOrPretendToBeAreRefusedWithTheirNames) {
    if (test::kSanitized) GTEST_SKIP() << "a checker wants more addresses than any limit leaves";
    constexpr std::uintmax_t kGigabyte = std::uintmax_t{1} << 30;
    std::string psd = "8BPS\0\1\0\0\0\0\0\0\0\3\0\0\0\144\0\0\0\144\0\10\0\3"s, bmp(54, '\0');
    psd += std::string(14, '\0');
    bmp[0] = 'B', bmp[1] = 'M', bmp[10] = 54, bmp[14] = 40, bmp[18] = bmp[22] = 100, bmp[26] = 1, bmp[28] = 24;
    for (const auto& [name, head] : {std::pair("a.psd", psd), std::pair("a.bmp", bmp)}) {
        test::writeFile(folder_.file(name), head);
        fs::resize_file(folder_.file(name), 8 * kGigabyte);  // of which the disk holds the head only
        Outcome outcome = run({"info", file(name)});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains(QString(name) + ": it is too large")) << outcome.err.toStdString();
        outcome = run(
            {"render", "--bare", "--foreground", file(name), "--background", background_, "--out", file("o.png")});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains(name)) << outcome.err.toStdString();
        fs::resize_file(folder_.file(name), kGigabyte);
        outcome = test::runCliWithin(kGigabyte, {"info", file(name)});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains(QString(name) + ": there is not enough memory"))
            << outcome.err.toStdString();
        fs::remove(folder_.file(name));
    }
    fs::copy_file(foreground_.toStdString(), folder_.file("long.png"));
    fs::resize_file(folder_.file("long.png"), 8 * kGigabyte);  // behind a good picture
    const Outcome outcome = run({"info", file("long.png")});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains("long.png: it is too large")) << outcome.err.toStdString();
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
        {renderTo(file("o.png"), {"--frame", "round"}), 2, "jagged"},
        {renderTo(file("o.png"), {"--texture", file("gone.jpg")}), 2, "gone.jpg"},
        {renderTo(file("o.png"), {"--fast", "--shadow", "wall", "--frame", "oval"}), 2, "--frame"},
        {renderTo(file("o.png"), {"--preview", "--cartoon", "grey"}), 2, "--cartoon"},
        {renderTo(file("o.png"), {"--seed", "x"}), 2, "--seed"},
        {renderTo(file("none/o.png")), 1, "none"},
        {{"render", "--bare", "--foreground", file("gone.jpg"), "--background", background_, "--out", file("o.png")},
         1,
         "gone.jpg"},
        {{"render", "--bare", "--foreground", background_, "--out", file("o.png")}, 2, "--background"},
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

    const QStringList again = {"render", "--bare", "--state", file("a.qlx"), "--out", file("again.png")};
    ASSERT_EQ(run(again + size()).code, 0);
    EXPECT_EQ(QImage(file("again.png")), QImage(file("a.png")));
    EXPECT_EQ(run({"state", "set", file("a.qlx"), file("c.qlx"), "nonsense=1"}).code, 2);
    EXPECT_FALSE(fs::exists(folder_.file("c.qlx")));
}

TEST_F(CliTest, ShortOptionsSetEffectsAndSetRefinesThem) {
    const QStringList effects = {"--cartoon", "parchment", "--star", "--set", "iSliderCartoonEffectWidth=30"};
    const Outcome done =
        run(renderTo(file("drawn.png"), size() + effects + QStringList{"--save-state", file("drawn.qlx")}));
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    EXPECT_EQ(done.err, "");  // pencils and paper are there on a fresh account too
    const QString state = run({"state", "show", file("drawn.qlx")}).out;
    for (const char* line :
         {"\niCartoonEffectType=4\n", "\niSliderCartoonEffectWidth=30\n", "\nbStarFilerTurnOn=1\n"})
        EXPECT_TRUE(state.contains(line)) << line;
    ASSERT_EQ(run(renderTo(file("plain.png"), size())).code, 0);
    EXPECT_NE(QImage(file("drawn.png")), QImage(file("plain.png")));
    ASSERT_EQ(
        run(QStringList{"render", "--bare", "--state", file("drawn.qlx"), "--out", file("again.png")} + size()).code,
        0);
    EXPECT_EQ(QImage(file("again.png")), QImage(file("drawn.png")));
}

TEST_F(CliTest, EffectsAreListed) {
    EXPECT_TRUE(run({"effects"}).out.contains("--shadow"));
    const QJsonArray groups = QJsonDocument::fromJson(run({"effects", "--json"}).out.toUtf8()).array();
    ASSERT_GT(groups.size(), 5);
    EXPECT_EQ(groups[0]["option"].toString(), "--shadow");
    EXPECT_EQ(groups[0]["presets"][2]["name"].toString(), "floor");
}

TEST_F(CliTest, ListsAreThereOnAFreshAccount) {
    EXPECT_TRUE(run({"sizes"}).out.contains("5x7 200 Vert"));
    EXPECT_GT(run({"pages"}).out.count('\n'), 10);
}

}  // namespace
}  // namespace tavrin

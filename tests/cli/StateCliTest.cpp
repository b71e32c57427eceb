// States, sizes and labels on the command line, and an account in which something is damaged.
#include <filesystem>
#include <gtest/gtest.h>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "support/TextPage.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class StateCliTest : public testing::Test {
  protected:
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    test::CliOutcome run(const QStringList& arguments, const QMap<QString, QString>& variables = {}) const {
        return test::runCli(arguments, variables);
    }
    QStringList renderTo(const char* out, const QStringList& more) const {
        return QStringList{"render",       "--bare",    "--foreground", foreground_,
                           "--background", background_, "--out",        file(out)} +
               more;
    }
    QImage rendered(const char* out, const QStringList& more) const {
        const test::CliOutcome done = run(renderTo(out, more));
        EXPECT_EQ(done.code, 0) << done.err.toStdString();
        EXPECT_EQ(done.err, "");
        return QImage(file(out));
    }
    QString settingIn(const char* state, const QString& name) const {
        for (const QString& line : run({"state", "show", file(state)}).out.split('\n')) {
            if (line.startsWith(name + "=")) return line.mid(name.size() + 1);
        }
        return "(none)";
    }
    /// An account whose list of the user's own sizes is this.
    QMap<QString, QString> accountWith(const char* list, const std::string& bytes) const {
        const fs::path lists = folder_.path() / "home/.local/share/Tavrin/QLXXML";
        fs::create_directories(lists);
        test::writeFile((lists / list).string(), bytes);
        return {{"HOME", file("home")}, {"XDG_DATA_HOME", file("home/.local/share")}};
    }

    test::TempFolder folder_;
    const QString foreground_ =
        QString::fromStdString(test::savePng(test::discOnScreen(240, 144), folder_.file("fg.png")));
    const QString background_ =
        QString::fromStdString(test::savePng(test::noisePicture(240, 144, 4), folder_.file("bg.png")));
    const QStringList own_ = {"--inches", "5x3", "--dpi", "48"};  // 240 x 144, as both sources; in no list
};

TEST_F(StateCliTest, AnOwnSizeComesBackWithItsState) {
    const QImage first = rendered("a.png", own_ + QStringList{"--save-state", file("own.qlx")});
    ASSERT_EQ(first.size(), QSize(240, 144));
    const QStringList again = {"render", "--bare", "--state", file("own.qlx"), "--out", file("b.png")};
    const test::CliOutcome done = run(again);
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    EXPECT_EQ(QImage(file("b.png")), first);
    // The same through "state set", for a batch, and where other sizes are in the list.
    ASSERT_EQ(run({"state", "set", file("own.qlx"), file("set.qlx"), "iBlendEdges=20"}).code, 0);
    const QStringList batch = {"batch",         "--bare", "--foregrounds", foreground_, "--states",
                               file("set.qlx"), "--out",  file("done"),    "--type",    "png"};
    const auto account = accountWith("ImageSize.xml",
                                     "<ImageSizeList><ImageSize><sName>mine</sName><dWidth>1</dWidth>"
                                     "<dHeight>1</dHeight><dotsPerInch>50</dotsPerInch></ImageSize>"
                                     "</ImageSizeList>");
    const test::CliOutcome made = run(batch, account);
    ASSERT_EQ(made.code, 0) << made.err.toStdString();
    EXPECT_EQ(QImage(file("done/fg_set.png")), first);

    ASSERT_EQ(run({"state", "set", file("own.qlx"), file("no.qlx"), "iOutputImageDPI=0"}).code, 0);
    const test::CliOutcome refused = run({"render", "--bare", "--state", file("no.qlx"), "--out", file("c.png")});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.err.contains("no.qlx: The output size \"5x3 at 48 dpi\" is not in the list"));
    EXPECT_EQ(refused.err.count('\n'), 1);
    EXPECT_EQ(
        run({"render", "--bare", "--state", file("no.qlx"), "--size", "5x7 200 Vert", "--out", file("c.png")}).code,
        0);
}

TEST_F(StateCliTest, ASizeTooLargeForAPreviewIsRefusedWithThatReason) {
    const test::CliOutcome done = run(renderTo("a.png", {"--inches", "600x600", "--dpi", "1"}));
    EXPECT_EQ(done.code, 2);
    EXPECT_TRUE(done.err.contains("\"600x600 at 1 dpi\" is too large on paper")) << done.err.toStdString();
    EXPECT_TRUE(done.err.contains("0 dots an inch"));
    EXPECT_EQ(done.err.count('\n'), 1);
}

TEST_F(StateCliTest, TitleAndNoteRestyleOnlyWhatTheyName) {
    TAVRIN_NEED_FONTS();
    const QStringList red = {"--title",      "Ada",
                             "--set",        "label0.iFontSize=60",
                             "--set",        "label0.dFontFillGreen=0",
                             "--set",        "label0.dFontFillBlue=0",
                             "--save-state", file("red.qlx")};
    rendered("a.png", own_ + red);
    const QStringList from = {"render", "--bare", "--state", file("red.qlx")};
    const QStringList to = {"--out", file("b.png"), "--save-state", file("b.qlx")};
    ASSERT_EQ(run(from + to + QStringList{"--title", "Eve", "--note", "2031"}).code, 0);
    EXPECT_EQ(settingIn("b.qlx", "label0.sText"), "Eve");
    EXPECT_EQ(settingIn("b.qlx", "label0.iFontSize"), "60");
    EXPECT_EQ(settingIn("b.qlx", "label0.dFontFillRed"), "1");
    EXPECT_EQ(settingIn("b.qlx", "label0.dFontFillGreen"), "0");
    EXPECT_EQ(settingIn("b.qlx", "label1.iFontSize"), "12");
    ASSERT_EQ(run(from + to + QStringList{"--set", "label0.sLabelSize=Small"}).code, 0);
    EXPECT_EQ(settingIn("b.qlx", "label0.iFontSize"), "12");
    EXPECT_EQ(settingIn("b.qlx", "label0.dFontFillGreen"), "0") << "a size is no colour";
    ASSERT_EQ(run(from + to + QStringList{"--set", "label0.sFontColor=White"}).code, 0);
    EXPECT_EQ(settingIn("b.qlx", "label0.iFontSize"), "60");
    EXPECT_EQ(settingIn("b.qlx", "label0.dFontFillGreen"), "1");
}

TEST_F(StateCliTest, ASavedStateNamesItsFilesInFull) {
    const QStringList files = {"sFrameOverlay",
                               "sForegroundOverlay",
                               "sBackgroundOverlay",
                               "sSilhouetteFileName",
                               "texture.sTextureFileName",
                               "reflectionTexture.sTextureFileName",
                               "frame.sFrameImagePath",
                               "frame.texture.sTextureFileName",
                               "frameOverlay.sFrameImagePath",
                               "frameOverlay.texture.sTextureFileName"};
    QStringList more = {"--set", "text0.isImage=1", "--set", "text0.sText=./bg.png", "--set", "text1.sText=bg.png"};
    for (const QString& name : files)
        more += QStringList{"--set", name + "=bg.png"};
    QProcess process;
    process.setWorkingDirectory(file(""));
    process.start(test::kCliProgram, QStringList{"render", "--bare", "--foreground", "fg.png", "--background",
                                                 "bg.png", "--out", "a.png", "--save-state", "a.qlx"} +
                                         own_ + more);
    const test::CliOutcome done = test::outcomeOf(process);
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    for (const QString& name : files + QStringList{"background.sSourceImageFullPath", "text0.sText"})
        EXPECT_EQ(settingIn("a.qlx", name), background_) << name.toStdString();
    EXPECT_EQ(settingIn("a.qlx", "foreground.sSourceImageFullPath"), foreground_);
    EXPECT_EQ(settingIn("a.qlx", "text1.sText"), "bg.png") << "a text is no file";
    EXPECT_EQ(run({"render", "--bare", "--state", file("a.qlx"), "--out", file("b.png")}).code, 0);
}

TEST_F(StateCliTest, NumbersHaveAFullStopInEveryLocale) {
    test::writeFile(folder_.file("comma"),
                    "LC_NUMERIC\ndecimal_point \"<U002C>\"\nthousands_sep \"\"\n"
                    "grouping -1\nEND LC_NUMERIC\n");
    QProcess::execute("localedef", {"-c", "-i", file("comma"), "--quiet", file("xx_XX")});
    if (!fs::exists(folder_.file("xx_XX/LC_NUMERIC"))) GTEST_SKIP() << "no locale can be made here";
    const QMap<QString, QString> comma = {{"LOCPATH", file("")}, {"LC_NUMERIC", "xx_XX"}, {"LC_ALL", ""}};
    for (const QStringList& command : {QStringList{"sizes"}, {"pages"}, {"info", background_}}) {
        EXPECT_EQ(run(command, comma).out, run(command).out);
        EXPECT_NE(run(command).out, "");
    }
    EXPECT_TRUE(run({"sizes"}, comma).out.contains("2.5 x 3.5"));
    const QStringList batch = {"batch", "--bare",     "--foregrounds", foreground_, "--backgrounds", background_,
                               "--out", file("done"), "--inches",      "5x3",       "--dpi",         "48"};
    ASSERT_EQ(run(batch).code, 0);
    EXPECT_TRUE(run(batch, comma).err.contains("1 made before")) << "the recipe is the same";
}

TEST_F(StateCliTest, ADamagedSizeListIsToldOnceAndPicturesAreMadeAllTheSame) {
    const auto account = accountWith("ImageSize.xml", "<ImageSizeList><Ima");
    const QStringList render = renderTo("a.png", {"--preview", "--quiet"});
    const test::CliOutcome first = run(render, account);
    EXPECT_EQ(first.code, 0);
    EXPECT_EQ(first.err.count('\n'), 1);
    EXPECT_TRUE(first.err.contains("ImageSize.xml.damaged")) << first.err.toStdString();
    EXPECT_EQ(QImage(file("a.png")).size(), QSize(460, 644));
    const test::CliOutcome second = run(render, account);
    EXPECT_EQ(second.code, 0);
    EXPECT_EQ(second.err, "");
}

}  // namespace
}  // namespace tavrin

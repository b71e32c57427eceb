// Text on a machine that has no font.
#include <filesystem>
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "support/TextPage.h"

namespace tavrin {
namespace {

class NoFontsTest : public testing::Test {
  protected:
    NoFontsTest() {
        useFonts("");
        std::filesystem::create_directory(folder_.file("in"));
        test::savePng(test::discOnScreen(60, 36), folder_.file("in/anna.png"));
        test::savePng(test::noisePicture(60, 36, 4), folder_.file("sea.png"));
    }
    ~NoFontsTest() override { showFonts(); }

    void useFonts(const std::string& folders) const {
        test::writeFile(folder_.file("fonts.conf"),
                        "<fontconfig>" + folders + "<cachedir>" + folder_.file("cache") + "</cachedir></fontconfig>");
        qputenv("FONTCONFIG_FILE", file("fonts.conf").toLocal8Bit());
    }
    void showFonts() const { before_.isNull() ? qunsetenv("FONTCONFIG_FILE") : qputenv("FONTCONFIG_FILE", before_); }

    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    test::CliOutcome render(const QStringList& more) const {
        return test::runCli(QStringList{"render", "--bare", "--foreground", file("in/anna.png"), "--background",
                                        file("sea.png"), "--out", file("out.png"), "--inches", "5x3", "--dpi", "12"} +
                            more);
    }

    static constexpr const char* kLine =
        "The text cannot be drawn (no font was found; install one, on Debian for "
        "example the package fonts-liberation)";
    const bool fontsHere_ = whyNoFonts().empty();  // asked before they are hidden
    const QByteArray before_ = qgetenv("FONTCONFIG_FILE");
    test::TempFolder folder_;
};

TEST_F(NoFontsTest, RenderSaysWhatIsMissingAndWritesNothing) {
    const QStringList texts[] = {{"--title", "Anna"},
                                 {"--note", "@filename"},
                                 {"--note", "2031", "--fast"},
                                 {"--title", "Anna", "--preview"},
                                 {"--set", "text0.sText=<<filename>>", "--set", "text0.sLevel=Background"}};
    for (const QStringList& text : texts) {
        const test::CliOutcome outcome = render(text);
        EXPECT_EQ(outcome.code, 1) << text.join(' ').toStdString();
        EXPECT_EQ(outcome.err, QString("tavrin-cli: ") + kLine + "\n");
        EXPECT_TRUE(QImage(file("out.png")).isNull());
    }
}

TEST_F(NoFontsTest, PicturesWithoutTextNeedNone) {
    const QString logo = file("sea.png");
    for (const QStringList& more : {QStringList{}, QStringList{"--set", "text0.sText=<<filenumber>>"},
                                    QStringList{"--set", "text0.isImage=1", "--set", "text0.sText=" + logo, "--set",
                                                "text0.imageSizeWidth=20", "--set", "text0.imageSizeHeight=12"}}) {
        const test::CliOutcome outcome = render(more);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(QImage(file("out.png")).size(), QSize(60, 36));
    }
}

TEST_F(NoFontsTest, AJobWithTextFailsAndIsMadeWhenThereAreFonts) {
    if (!fontsHere_) GTEST_SKIP() << "no fonts here";
    const QStringList batch = {"batch",         "--bare", "--foregrounds", file("in"), "--backgrounds",
                               file("sea.png"), "--out",  file("out"),     "--inches", "5x3",
                               "--dpi",         "12",     "--title",       "Anna"};
    const test::CliOutcome outcome = test::runCli(batch);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains(QString("anna_sea.jpg: ") + kLine)) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.out.contains("\"failed\"")) << outcome.out.toStdString();
    EXPECT_TRUE(QImage(file("out/anna_sea.jpg")).isNull());

    showFonts();
    const test::CliOutcome again = test::runCli(batch);
    EXPECT_EQ(again.code, 0) << again.err.toStdString();
    EXPECT_FALSE(QImage(file("out/anna_sea.jpg")).isNull());
}

// Those of type 1 have none of the tables that newer ones have.
TEST_F(NoFontsTest, PostScriptFontsAreFontsToo) {
    const std::string fonts = "/usr/share/fonts/X11/Type1";
    if (!std::filesystem::exists(fonts + "/c0648bt_.pfb")) GTEST_SKIP() << "no such font here";
    useFonts("<dir>" + fonts + "</dir>");
    ASSERT_EQ(render({}).code, 0);
    const QImage plain(file("out.png"));
    const test::CliOutcome outcome = render({"--title", "Anna"});
    EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
    EXPECT_NE(QImage(file("out.png")), plain);
}

// The window shows such messages in a box.
class MessageCatcher : public Interface {
  public:
    void showAlert(const std::string& message, const std::string& reason) override {
        ++count;
        std::fprintf(stderr, "%s: %s\n", message.c_str(), reason.c_str());
    }
    int count = 0;
};

// Draws in a process that begins here and finds no font, or was started without them.
void drawAndEnd(bool withApplication) {
    if (!withApplication) delete QCoreApplication::instance();
    MessageCatcher window;
    test::TextPage page;
    page.info->pInterface = &window;
    page.add("H");
    page.info->oFontLabelObject[0].sText = "H";
    const bool untouched = page.draw().isNull() && page.draw(0).isNull();
    std::_Exit(untouched && window.count == 1 ? 0 : 1);
}

TEST_F(NoFontsTest, DrawingTextShowsOneMessage) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(drawAndEnd(true), testing::ExitedWithCode(0), "The text cannot be drawn: no font was found");
    EXPECT_EXIT(drawAndEnd(false), testing::ExitedWithCode(0), "The text cannot be drawn: .*without fonts");
}

}  // namespace
}  // namespace tavrin

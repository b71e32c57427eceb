// How tavrin-cli speaks: one plain line that begins with its name, the nearest right word for a wrong one, and what
// other programs and shells want of it.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class MannersCliTest : public testing::Test {
  protected:
    QString file(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    QStringList renderTo(const QString& out, const QStringList& more = {}) const {
        return QStringList{"render", "--foreground", foreground_, "--background", background_, "--out",
                           out,      "--inches",     "5x3",       "--dpi",        "48"} +
               more;
    }
    static test::CliOutcome fed(const QByteArray& input, const QStringList& arguments, QByteArray* output = nullptr) {
        QProcess process;
        process.start(test::kCliProgram, arguments);
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished(60000);
        const QByteArray bytes = process.readAllStandardOutput();
        if (output) *output = bytes;
        test::CliOutcome outcome = test::outcomeOf(process);
        outcome.code = process.exitCode();
        outcome.out = QString::fromUtf8(bytes);
        return outcome;
    }

    test::TempFolder folder_;
    const QString foreground_ =
        QString::fromStdString(test::savePng(test::discOnScreen(240, 144), folder_.file("fg.png")));
    const QString background_ =
        QString::fromStdString(test::savePng(test::noisePicture(240, 144, 4), folder_.file("bg.png")));
};

TEST_F(MannersCliTest, AWrongWordIsAnsweredWithTheNearestRightOne) {
    const QStringList batch = {"batch",     "--foregrounds", foreground_, "--backgrounds",
                               background_, "--out",         file("o")};
    const QString out = file("o.png");
    const struct {
        QStringList arguments;
        const char* line;
    } calls[] = {
        {{"rendr"}, "There is no command rendr; did you mean render?"},
        {{"state", "shwo", "a.qlx"}, "There is no command shwo; did you mean show?"},
        {{}, "A command is missing: render, batch, report, booth, print, mail, outbox, info"},
        {{"render", "--foregroud", foreground_, "--out", out},
         "There is no option --foregroud; did you mean --foreground?"},
        {{"render", "--ouput=x.png"}, "There is no option --ouput; did you mean --out"},
        {{"render"}, "--out is missing."},
        {{"sizes", "all"}, "\"all\" is one word too many."},
        {renderTo(out, {"--set", "iBlendEgdes=1"}), "There is no field iBlendEgdes; did you mean iBlendEdges?"},
        {renderTo(out, {"--hair", "blonde"}), "--hair: there is no \"blonde\"; did you mean blond?"},
        {renderTo(out, {"--size", "5x7"}), "--size and --inches do not go together."},
        {{"render", "--foreground", foreground_, "--background", background_, "--out", out, "--size", "5x7 200 Vrt"},
         "There is no output size \"5x7 200 Vrt\"; did you mean \"5x7 200 Vert\"?"},
        {renderTo(out, {"--set", "a=1"}), "There is no field a; did you mean "},
        {renderTo(out, {"--set", "iBlendEdges"}), "A setting is written field=value, not \"iBlendEdges\"."},
        {renderTo(out, {"--set", "iBlendEdges=many"}), "iBlendEdges"},
        {renderTo(out, {"--frame", "ovale"}), "There is no frame \"ovale\"; did you mean oval?"},
        {renderTo(out, {"--texture", "canvs"}), "There is no texture \"canvs\"; did you mean canvas?"},
        {renderTo(out, {"--texture", "gone.png"}), "There is no texture \"gone.png\". It takes none, canvas,"},
        {renderTo(out, {"--screen", "gren"}), "--screen: there is no \"gren\"; did you mean green?"},
        {renderTo(out, {"--protect-clothes", "shrit"}),
         "--protect-clothes: there is no \"shrit\"; did you mean shirt?"},
        {renderTo(out, {"--place", "subjct"}), "--place: there is no \"subjct\"; did you mean subject?"},
        {renderTo(out, {"--scale", "0"}), "--scale: it takes a number from 0.01 to 100, not \"0\"."},
        {renderTo(out, {"--title-size", "0"}), "--title-size: it takes a whole number from 1 to 1000, not \"0\"."},
        {renderTo(out, {"--move", "5"}), "--move takes thousandths to the right and up"},
        {renderTo(out, {"--seed", "x"}), "--seed takes a number, not \"x\"."},
        {{"render", "--out"}, "--out needs a value."},
        {{"render", "--out", out, "--dpi", "300"}, "--dpi needs --inches."},
        {batch + QStringList{"--style", "combin"}, "--style: there is no \"combin\"; did you mean combine?"},
        {batch + QStringList{"--type", "jpg"}, "--type: there is no \"jpg\"; did you mean jpeg?"},
        {batch + QStringList{"--jobs", "0"}, "--jobs: it takes a whole number from 1 to 64, not \"0\"."},
        {batch + QStringList{"--names", "/"}, "--names: no / may stand between names."},
    };
    for (const auto& [arguments, line] : calls) {
        const test::CliOutcome outcome = test::runCli(arguments);
        EXPECT_EQ(outcome.code, 2) << line;
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.startsWith("tavrin-cli: " + QString(line))) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
    }
}

TEST_F(MannersCliTest, TheReasonStandsWhereAPictureCannotBeRead) {
    test::writeFile(folder_.file("letter.jpg"), "Dear Anna,");
    ASSERT_TRUE(test::noisePicture(800, 600, 7).save(file("whole.jpg"), "JPG", 95));
    const std::string jpeg = test::readFile(folder_.file("whole.jpg"));
    test::writeFile(folder_.file("cut.jpg"), jpeg.substr(0, jpeg.size() / 2));
    const std::pair<const char*, const char*> files[] = {
        {"gone.jpg", "gone.jpg: there is no such file."},
        {"letter.jpg", "letter.jpg: it is not a picture of a known kind."},
        {"cut.jpg", "cut.jpg: it is damaged or cut short after "},
    };
    for (const auto& [name, line] : files) {
        const test::CliOutcome outcome =
            test::runCli({"render", "--foreground", file(name), "--background", background_, "--out", file("o.png")});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.startsWith(QString("tavrin-cli: ") + line)) << outcome.err.toStdString();
        EXPECT_FALSE(outcome.err.contains("Cound") || outcome.err.contains("Vips")) << outcome.err.toStdString();
        const test::CliOutcome facts = test::runCli({"info", file(name)});
        EXPECT_EQ(facts.code, 1);
        EXPECT_TRUE(facts.err.contains(line)) << facts.err.toStdString();
    }
    EXPECT_TRUE(test::runCli({"info", file("cut.jpg")}).out.contains("800 x 600"));
}

TEST_F(MannersCliTest, DamageThatWasReadOverIsAWarningForPeopleAndPrograms) {
    ASSERT_TRUE(test::noisePicture(800, 600, 7).save(file("torn.jpg"), "JPG", 95));
    // A place in the pixels that no decoder can make sense of, in a file that is whole.
    std::string torn = test::readFile(folder_.file("torn.jpg"));
    for (std::size_t i = torn.size() / 2; i < torn.size() / 2 + 40; ++i)
        torn[i] = static_cast<char>(i % 2 ? 0x5a : 0x01);
    test::writeFile(folder_.file("torn.jpg"), torn);
    const QString torn_ = file("torn.jpg");
    const QStringList size = {"--inches", "5x3", "--dpi", "48", "--json"};
    const QStringList calls[] = {
        QStringList{"render", "--foreground", foreground_, "--background", torn_, "--out", file("o.png")} + size,
        QStringList{"render", "--fast", "--foreground", foreground_, "--background", torn_, "--out", file("o.png")} +
            size,
        QStringList{"batch", "--foregrounds", foreground_, "--backgrounds", torn_, "--out", file("o")} + size,
        {"info", "--json", torn_},
    };
    for (const QStringList& call : calls) {
        const test::CliOutcome outcome = test::runCli(call);
        EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.startsWith("tavrin-cli: warning: ")) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count("torn.jpg: it is damaged, and was read as far as it goes."), 1)
            << outcome.err.toStdString();
        EXPECT_EQ(QString(outcome.out).remove(' ').count("\"kind\":\"damaged\""), 1) << outcome.out.toStdString();
    }
}

TEST_F(MannersCliTest, PicturesComeAndGoThroughPipes) {
    const QByteArray portrait = QByteArray::fromStdString(test::readFile(foreground_.toStdString()));
    ASSERT_EQ(test::runCli(renderTo(file("plain.png"))).code, 0);
    QStringList arguments = renderTo("-", {"--type", "png"});
    arguments[2] = "-";
    QByteArray made;
    const test::CliOutcome piped = fed(portrait, arguments, &made);
    EXPECT_EQ(piped.code, 0) << piped.err.toStdString();
    EXPECT_EQ(QImage::fromData(made), QImage(file("plain.png")));
    EXPECT_TRUE(fed(portrait, {"info", "-"}).out.contains("240 x 144"));
    EXPECT_EQ(test::runCli(renderTo("-", {"--json"})).code, 2);
    EXPECT_EQ(test::runCli(renderTo(file("o.png"), {"--type", "png"})).code, 2);
    EXPECT_EQ(fed("", arguments).code, 1);
}

TEST_F(MannersCliTest, SaysWhatItMadeUnlessItIsToBeQuiet) {
    const test::CliOutcome done = test::runCli(renderTo(file("o.png")));
    EXPECT_TRUE(done.out.startsWith(file("o.png") + ": 240 x 144 pixels at 48 dpi, in ")) << done.out.toStdString();
    for (const QStringList& quiet :
         {renderTo(file("o.png"), {"--quiet"}), QStringList{"-q"} + renderTo(file("o.png"))}) {
        const test::CliOutcome outcome = test::runCli(quiet);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.out + outcome.err, "");
    }
    EXPECT_TRUE(test::runCli(renderTo(file("o.png"), {"-v"})).err.contains("Loading Org Image"));
    EXPECT_TRUE(test::runCli(QStringList{"-v"} + renderTo(file("o.png"))).err.contains("Loading Org Image"));
}

TEST_F(MannersCliTest, ListsAndFactsAreThereForPrograms) {
    const test::CliOutcome facts = test::runCli({"info", "--json", foreground_, file("gone.png"), background_});
    EXPECT_EQ(facts.code, 1);
    const QJsonArray files = QJsonDocument::fromJson(facts.out.toUtf8()).array();
    ASSERT_EQ(files.size(), 3);
    EXPECT_EQ(files[0]["width"].toInt(), 240);
    EXPECT_EQ(files[1]["error"].toString(), "there is no such file");
    EXPECT_TRUE(test::runCli({"info", foreground_, background_}).out.contains("\n\n" + background_ + ":\n"));
    const QJsonArray sizes = QJsonDocument::fromJson(test::runCli({"sizes", "--json"}).out.toUtf8()).array();
    ASSERT_GT(sizes.size(), 5);
    EXPECT_GT(sizes[0]["width"].toDouble(), 0.0);
    EXPECT_GT(QJsonDocument::fromJson(test::runCli({"pages", "--json"}).out.toUtf8()).array().size(), 5);
}

TEST_F(MannersCliTest, BatchesTakeEveryKindOfPictureAndPartTheirNames) {
    fs::create_directory(folder_.path() / "fg");
    ASSERT_TRUE(test::discOnScreen(240, 144).save(file("fg/anna.bmp"), "BMP"));
    const QStringList batch = {"batch",     "--foregrounds", file("fg"), "--backgrounds", background_, "--out",
                               file("out"), "--inches",      "5x3",      "--dpi",         "48"};
    ASSERT_EQ(test::runCli(batch).code, 0);
    EXPECT_TRUE(fs::exists(folder_.file("out/anna_bg.jpg")));
    ASSERT_EQ(test::runCli(batch + QStringList{"--names", " on "}).code, 0);
    EXPECT_TRUE(fs::exists(folder_.file("out/anna on bg.jpg")));
    EXPECT_TRUE(test::runCli({"batch", "--help"}).out.contains("<foreground>"));
}

TEST_F(MannersCliTest, ShellsAndTheManualKnowEveryOption) {
    const QString bash = test::runCli({"completion", "bash"}).out, fish = test::runCli({"completion", "fish"}).out,
                  zsh = test::runCli({"completion", "zsh"}).out, man = test::runCli({"completion", "man"}).out;
    for (const char* word : {"protect-clothes", "retry-failed", "verbose", "merge"}) {
        for (const QString& text : {bash, fish, zsh, QString(man).remove('\\')})
            EXPECT_TRUE(text.contains(word)) << word;
    }
    test::writeFile(folder_.file("completion"), bash.toStdString());
    const auto completed = [this](const char* words, int at) {
        QProcess shell;
        const QString script = QString("source %1; COMP_WORDS=(%2); COMP_CWORD=%3; _tavrin_cli; echo ${COMPREPLY[@]}")
                                   .arg(file("completion"), words, QString::number(at));
        shell.start("bash", {"--norc", "-c", script});
        shell.waitForFinished(10000);
        return QString::fromUtf8(shell.readAllStandardOutput()).trimmed();
    };
    EXPECT_EQ(completed("tavrin-cli ren", 1), "render");
    EXPECT_EQ(completed("tavrin-cli render --foregr", 2), "--foreground");
    EXPECT_EQ(completed("tavrin-cli report merge --o", 3), "--out");
    EXPECT_EQ(completed("tavrin-cli batch --place s", 3), "subject same");
    EXPECT_EQ(completed("tavrin-cli render --texture l", 3), "linen") << "a file may stand there too";
    EXPECT_EQ(completed("tavrin-cli render --out --o", 3), "") << "a file's name is due";
}

}  // namespace
}  // namespace tavrin

// Failures of the machine and of the input that tavrin-cli must not count as success, and names that are no text.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringEncoder>

#include "support/Cli.h"
#include "support/Faults.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class FaultsCliTest : public testing::Test {
  protected:
    void SetUp() override {
        if (test::kSanitized) GTEST_SKIP() << "moments and loads are those of the program as users get it";
    }
    FaultsCliTest() {
        fs::create_directory(folder_.path() / "fg");
        for (const char* name : {"anna", "ben", "cora"})
            test::savePng(test::discOnScreen(60, 36), folder_.file("fg/" + std::string(name) + ".png"));
        test::savePng(test::noisePicture(60, 36, 4), folder_.file("sea.png"));
    }
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    QStringList batch(const QStringList& more = {}, const char* foregrounds = "fg") const {
        return QStringList{"batch",         "--bare",        "--foregrounds", file(foregrounds),
                           "--backgrounds", file("sea.png"), "--out",         file("out"),
                           "--inches",      "5x3",           "--dpi",         "12"} +
               more;
    }
    static test::CliOutcome powerless(const QStringList& arguments) {
        QProcess process;
        test::takeRootsPower(process);
        process.start(test::kCliProgram, arguments);
        return test::outcomeOf(process);
    }
    std::size_t made() const { return test::namesLike(folder_.file("out"), "", ".jpg").size(); }

    test::TempFolder folder_;
};

TEST_F(FaultsCliTest, AFolderThatCannotBeReadIsNoEmptyFolder) {
    fs::create_directories(folder_.path() / "shut");
    fs::create_directories(folder_.path() / "trees/sea");
    fs::permissions(folder_.path() / "shut", fs::perms::none);
    fs::permissions(folder_.path() / "trees/sea", fs::perms::none);
    if (!test::mayNotRead(folder_.file("shut"))) GTEST_SKIP() << "root cannot be kept out of a folder here";
    const struct {
        QStringList arguments;
        const char* named;
    } calls[] = {
        {batch({}, "shut"), "shut"},
        {batch({"--states", file("shut")}), "shut"},
        {batch({"--subfolders"}, "trees"), "trees/sea"},
        {batch({"--dry-run"}, "shut"), "shut"},
    };
    for (const auto& call : calls) {
        const auto outcome = powerless(call.arguments);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains("The folder " + file(call.named) + " cannot be read: "))
            << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, "");
    }
    QProcess watch;
    test::takeRootsPower(watch);
    watch.start(test::kCliProgram, batch({"--watch", "--stop-file", file("stop")}, "shut"));
    ASSERT_TRUE(test::waitUntil([this] { return fs::exists(folder_.file("out")); }));
    std::this_thread::sleep_for(std::chrono::milliseconds(4500));  // two looks more
    fs::copy_file(folder_.file("fg/anna.png"), folder_.file("shut/anna.png"));
    fs::permissions(folder_.path() / "shut", fs::perms::owner_all);
    EXPECT_TRUE(test::waitUntil([this] { return fs::exists(folder_.file("out/anna_sea.jpg")); }));
    test::writeFile(folder_.file("stop"), "");
    const auto outcome = test::outcomeOf(watch);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.err.count("cannot be read"), 1) << outcome.err.toStdString();
    fs::permissions(folder_.path() / "trees/sea", fs::perms::owner_all);
}

TEST_F(FaultsCliTest, AWatchTellsOnceOfAFileThatMayNotBeReadAndTakesItWhenItMay) {
    const std::string shut = folder_.file("fg/shut.png");
    fs::copy_file(folder_.file("fg/anna.png"), shut);
    fs::last_write_time(shut, fs::file_time_type::clock::now() - std::chrono::hours(1));
    fs::permissions(shut, fs::perms::none);
    if (!test::mayNotRead(shut)) GTEST_SKIP() << "root cannot be kept out of a file here";
    QProcess watch;
    test::takeRootsPower(watch);
    watch.start(test::kCliProgram, batch({"--watch", "--stop-file", file("stop")}));
    ASSERT_TRUE(test::waitUntil([this] { return made() == 3; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(4500));  // two looks more
    fs::permissions(shut, fs::perms::owner_all);
    EXPECT_TRUE(test::waitUntil([this] { return made() == 4; }));
    test::writeFile(folder_.file("stop"), "");
    const auto outcome = test::outcomeOf(watch);
    EXPECT_EQ(outcome.err.count("shut.png: no permission to read it"), 1) << outcome.err.toStdString();
}

TEST_F(FaultsCliTest, AFolderThatFailsHalfWayIsAnError) {
    if (!*test::kFailingFolder) GTEST_SKIP() << "not beside a sanitizer";
    fs::rename(folder_.path() / "fg", folder_.path() / "fails-half-way");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", test::kFailingFolder);
    process.setProcessEnvironment(environment);
    process.start(test::kCliProgram, batch({}, "fails-half-way"));
    const auto outcome = test::outcomeOf(process);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains("fails-half-way cannot be read: Input/output error"))
        << outcome.err.toStdString();
    EXPECT_EQ(made(), 0u);
}

TEST_F(FaultsCliTest, AListIsReadAsItIsMeantOrRefusedWithTheLine) {
    const QString job = "<image>\n<foreground>" + file("fg/anna.png") + "</foreground>\n<background>" +
                        file("sea.png") + "</background>\n</image>\n";
    const auto encoded = [](const QString& text, QStringConverter::Encoding encoding, bool mark) {
        QStringEncoder encoder(encoding, mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
        return QByteArray(encoder(text)).toStdString();
    };
    const std::string plain = job.toStdString();
    const auto made = [this](const std::string& bytes) {
        test::writeFile(folder_.file("jobs.xml"), bytes);
        fs::remove_all(folder_.path() / "out");
        return test::runCli(
            {"batch", "--bare", "--list", file("jobs.xml"), "--out", file("out"), "--inches", "5x3", "--dpi", "12"});
    };
    for (const std::string& bytes :
         {plain, encoded(job, QStringConverter::Utf8, true), encoded(job, QStringConverter::Utf16LE, true),
          encoded(job, QStringConverter::Utf16BE, true), encoded(job, QStringConverter::Utf16LE, false),
          QString(job).replace('\n', "\r\n").toStdString(), QString(job).replace('\n', '\r').toStdString()}) {
        const auto outcome = made(bytes);
        EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
        EXPECT_TRUE(fs::exists(folder_.file("out/anna_sea.jpg")));
    }
    const std::pair<std::string, const char*> refused[] = {
        {plain + "<image>\n<foreground>/\xff.jpg</foreground>\n</image>\n", "line 6"},
        {encoded(job, QStringConverter::Utf16LE, true) + "x", "line 5"},
        {plain + "<image>\n<foreground>/a.jpg</fore", "line 5"},
        {"<image>\n" + plain, "line 1"},
        {std::string("<image>\n\0", 9), "line 2"},
        {"a letter\n", "holds no job"},
        {"", "holds no job"},
    };
    for (const auto& [bytes, named] : refused) {
        const auto outcome = made(bytes);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains(file("jobs.xml")) && outcome.err.contains(named))
            << named << ": " << outcome.err.toStdString();
    }
}

TEST_F(FaultsCliTest, AReportThatCannotBeWrittenIsSaidBeforeTheRun) {
    for (const char* report : {"none/report.jsonl", "fg", "sea.png/report.jsonl"}) {
        const auto outcome = test::runCli(batch({"--report", file(report)}));
        EXPECT_EQ(outcome.code, 2);
        EXPECT_TRUE(outcome.err.contains("The report " + file(report))) << outcome.err.toStdString();
        EXPECT_FALSE(fs::exists(folder_.file("out")));
    }
    EXPECT_EQ(test::runCli(batch({"--report", file("out/report.jsonl")})).code, 0);  // the folder comes with the run
    EXPECT_TRUE(fs::exists(folder_.file("out/report.jsonl")));
}

TEST_F(FaultsCliTest, PicturesThatAreGoneInTheEndWereNotMade) {
    for (int i = 0; i < 60; ++i)
        fs::copy_file(folder_.file("fg/anna.png"), folder_.file("fg/more" + std::to_string(i) + ".png"));
    QProcess process;
    process.start(test::kCliProgram, batch({"--report", file("report")}));
    ASSERT_TRUE(process.waitForReadyRead(60000));
    fs::rename(folder_.path() / "out", folder_.path() / "away");
    fs::remove_all(folder_.path() / "away");
    const auto outcome = test::outcomeOf(process);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains("has been removed since")) << outcome.err.toStdString();
    const QString summary = QString::number(made()) + (made() == 1 ? " picture made" : " pictures made");
    EXPECT_TRUE(outcome.err.contains(summary)) << summary.toStdString() << outcome.err.toStdString();
    const auto next = test::runCli(batch());
    EXPECT_EQ(next.code, 0);
    EXPECT_EQ(made(), 63u);
    EXPECT_TRUE(next.err.contains(" made before")) << "the journal went with the folder: " << next.err.toStdString();
}

TEST_F(FaultsCliTest, AnOutputThatIsFullOrClosedIsAFailure) {
    const QString state = file("a.qlx"), report = file("report");
    ASSERT_EQ(test::runCli(batch({"--report", report})).code, 0);
    const QStringList render = {"render",       "--bare",        "--foreground", file("fg/anna.png"),
                                "--background", file("sea.png"), "--out",        file("one.png"),
                                "--inches",     "5x3",           "--dpi",        "12"};
    ASSERT_EQ(test::runCli(render + QStringList{"--save-state", state}).code, 0);
    const std::vector<QStringList> calls = {{"sizes"},
                                            {"pages"},
                                            {"effects"},
                                            {"effects", "--json"},
                                            {"--help"},
                                            {"--version"},
                                            {"info", file("sea.png")},
                                            {"state", "show", state},
                                            {"state", "show", "--json", state},
                                            {"report", "merge", "--out", file("all"), report},
                                            render + QStringList{"--json"},
                                            batch({"--again", "--json"}),
                                            batch({"--again", "--dry-run"})};
    for (const QStringList& call : calls) {
        for (const bool closed : {false, true}) {
            QProcess process;
            if (closed) {
                process.setChildProcessModifier([] { ::close(STDOUT_FILENO); });
            } else {
                process.setStandardOutputFile("/dev/full");
            }
            process.start(test::kCliProgram, call);
            const auto outcome = test::outcomeOf(process);
            EXPECT_EQ(outcome.code, 1) << call[0].toStdString() << closed;
            EXPECT_EQ(outcome.err.count("The standard output could not be written"), 1)
                << call.join(' ').toStdString() << ": " << outcome.err.toStdString();
        }
    }
    QProcess quiet;  // whoever prints nothing needs no output, and no picture takes its place
    quiet.setChildProcessModifier([] { ::close(STDOUT_FILENO); });
    quiet.start(test::kCliProgram, render + QStringList{"--quiet"});
    EXPECT_EQ(test::outcomeOf(quiet).code, 0);
}

TEST_F(FaultsCliTest, NamesReachNoTerminalAsTheyAre) {
    const std::string odd = "a\x1b[31m\x07\n\xc2\x9bz\xe2\x80\xae\xff.png";
    test::writeFile(folder_.file("fg/" + odd), "no picture");
    const auto isPlain = [](const QByteArray& text) {
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c);
            if ((byte < 0x20 && byte != '\n') || byte == 0x7f || byte == 0xff) return false;
        }
        return !text.contains("\xc2\x9b") && !text.contains("\xe2\x80\xae");
    };
    const QString shown = "a\\x1b[31m\\x07\\n\\u009bz\\u202e";
    const auto look = [&](const QStringList& arguments) {
        QProcess process;
        process.start(test::kCliProgram, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        const QByteArray out = process.readAllStandardOutput(), err = process.readAllStandardError();
        EXPECT_TRUE(isPlain(out)) << out.toStdString();
        EXPECT_TRUE(isPlain(err)) << err.toStdString();
        return std::pair(QString::fromUtf8(out), QString::fromUtf8(err));
    };
    EXPECT_TRUE(look(batch({"--dry-run"})).first.contains(shown));
    const auto [lines, told] = look(batch());
    EXPECT_TRUE(told.contains(shown)) << told.toStdString();
    for (const QString& line : lines.split('\n', Qt::SkipEmptyParts)) {
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        EXPECT_FALSE(object.isEmpty()) << line.toStdString();
        if (object["status"].toString() != "failed") continue;
        EXPECT_TRUE(object["foreground"].toString().contains(QString::fromUtf8("[31m\a\n\xc2\x9bz\xe2\x80\xae")));
    }
    look({"--verbose", "info", QString::fromUtf8("/\x1b[1m\xc2\x9b")});
    look({"info", "--\x1b[1m"});
    look({"render", "--bare", "--foreground", QString("\x1b[1m"), "--background", file("sea.png"), "--out",
          file("x.png"), "--inches", "5x3", "--dpi", "12"});
}

}  // namespace
}  // namespace tavrin

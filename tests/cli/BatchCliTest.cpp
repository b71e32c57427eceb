// tavrin-cli batch as a user or a scheduler calls it.
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class BatchCliTest : public testing::Test {
  protected:
    BatchCliTest() {
        fs::create_directory(folder_.path() / "fg");
        for (const char* name : {"anna", "ben", "cora"})
            test::savePng(test::discOnScreen(60, 36), folder_.file("fg/" + std::string(name) + ".png"));
        test::savePng(test::noisePicture(60, 36, 4), folder_.file("sea.png"));
    }
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    QStringList batch(const QStringList& more = {}) const {
        return QStringList{"batch", "--bare",    "--foregrounds", file("fg"), "--backgrounds", file("sea.png"),
                           "--out", file("out"), "--inches",      "5x3",      "--dpi",         "12"} +
               more;
    }
    static QList<QJsonObject> linesOf(const QString& text) {
        QList<QJsonObject> lines;
        for (const QString& line : text.split('\n', Qt::SkipEmptyParts))
            lines.append(QJsonDocument::fromJson(line.toUtf8()).object());
        return lines;
    }

    test::TempFolder folder_;
};

TEST_F(BatchCliTest, MakesAFolderAndTellsALineAPicture) {
    const auto done = test::runCli(batch());
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    const auto lines = linesOf(done.out);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[1]["status"].toString(), "done");
    EXPECT_EQ(lines[1]["out"].toString(), "ben_sea.jpg");
    EXPECT_EQ(lines[1]["width"].toInt(), 60);
    EXPECT_TRUE(done.err.startsWith("tavrin-cli: 3 pictures made, in ")) << done.err.toStdString();
    ASSERT_EQ(test::runCli({"render", "--bare", "--foreground", file("fg/ben.png"), "--background", file("sea.png"),
                            "--out", file("one.jpg"), "--inches", "5x3", "--dpi", "12"})
                  .code,
              0);
    EXPECT_EQ(test::readFile(folder_.file("out/ben_sea.jpg")), test::readFile(folder_.file("one.jpg")));

    const auto again = test::runCli(batch({"--report", file("report")}));
    EXPECT_EQ(again.code, 0);
    EXPECT_TRUE(again.err.startsWith("tavrin-cli: 0 pictures made, 3 made before")) << again.err.toStdString();
    const auto report = linesOf(QString::fromStdString(test::readFile(folder_.file("report"))));
    ASSERT_EQ(report.size(), 5);
    EXPECT_EQ(report[0]["jobs"].toInt(), 3);
    EXPECT_EQ(report[4]["summary"].toObject()["skipped"].toInt(), 3);
    EXPECT_TRUE(test::runCli(batch({"--set", "iBlendEdges=2"})).err.startsWith("tavrin-cli: 3"));  // another recipe
}

TEST_F(BatchCliTest, OneBadPictureIsNamedAndTheOthersAreMade) {
    test::writeFile(folder_.file("fg/bad.png"), "no picture");
    const auto outcome = test::runCli(batch({"--jobs", "1"}));
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains("bad_sea.jpg: bad.png: ")) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("3 pictures made, 1 failed"));
    fs::remove(folder_.path() / "fg" / "bad.png");
    EXPECT_EQ(test::runCli(batch()).code, 0);
}

TEST_F(BatchCliTest, WrongCallsAreToldAndWriteNothing) {
    const struct {
        QStringList arguments;
        const char* named;
    } calls[] = {
        {{"batch", "--bare", "--out", file("out")}, "--foregrounds"},
        {{"batch", "--bare", "--foregrounds", file("none"), "--backgrounds", file("sea.png"), "--out", file("out")},
         "none"},
        {{"batch", "--bare", "--foregrounds", file("fg"), "--out", file("out")}, "--backgrounds"},
        {batch({"--style", "pretty"}), "--style"},
        {batch({"--type", "gif"}), "--type"},
        {batch({"--set", "nonsense=1"}), "nonsense"},
        {batch({"--shard", "4/3"}), "4 of 3"},
        {batch({"--shard", "auto"}), "SLURM_ARRAY_TASK_ID"},
        {batch({"--shard", "1/3", "--watch"}), "--watch"},
        {batch({"--jobs", "0"}), "--jobs"},
        {batch({"--list", file("jobs.xml")}), "--list"},
        {{"batch", "--bare", "--list", file("jobs.xml"), "--out", file("out"), "--watch"}, "--watch"},
        {{"report", "merge", "--out", file("out")}, "reports"},
    };
    for (const auto& call : calls) {
        const auto outcome = test::runCli(call.arguments);
        EXPECT_EQ(outcome.code, 2) << call.arguments.join(' ').toStdString() << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(call.named)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, "");
        EXPECT_FALSE(fs::exists(folder_.file("out")));
    }
    test::writeFile(folder_.file("a-file"), "");
    EXPECT_EQ(test::runCli({"batch", "--bare", "--foregrounds", file("fg"), "--backgrounds", file("sea.png"), "--out",
                            file("a-file/out")})
                  .code,
              1);
}

TEST_F(BatchCliTest, ADryRunTellsThePlan) {
    const auto plan = test::runCli(batch({"--dry-run", "--style", "number"}));
    EXPECT_EQ(plan.code, 0);
    EXPECT_EQ(plan.out,
              "make   BatchFile1.jpg from anna.png over sea.png\n"
              "make   BatchFile2.jpg from ben.png over sea.png\n"
              "make   BatchFile3.jpg from cora.png over sea.png\n");
    EXPECT_EQ(plan.err, "tavrin-cli: 3 pictures to make.\n");
    EXPECT_FALSE(fs::exists(folder_.file("out")));
    ASSERT_EQ(test::runCli(batch({"--shard", "2/3"})).code, 0);
    EXPECT_TRUE(test::runCli(batch({"--dry-run"})).out.contains("skip   ben_sea.jpg: it was made before\n"));
    const auto last = test::runCli(batch({"--dry-run", "--shard", "auto", "--shard", "3/3"}));
    EXPECT_EQ(last.out, "make   cora_sea.jpg from cora.png over sea.png\n") << last.err.toStdString();
}

TEST_F(BatchCliTest, ShardsAndTheirReports) {
    for (const char* shard : {"1", "2"}) {
        const QString report = file("part-") + shard;
        ASSERT_EQ(test::runCli(batch({"--shard", QString(shard) + "/2", "--report", report})).code, 0);
    }
    const auto half = test::runCli({"report", "merge", "--out", file("all"), file("part-1")});
    EXPECT_EQ(half.code, 1);
    EXPECT_EQ(half.out, "2 of 3 pictures are there, 0 failed, 1 are left\n");
    EXPECT_EQ(test::runCli({"report", "merge", "--out", file("all"), file("part-1"), file("part-2")}).code, 0);
    EXPECT_EQ(test::runCli({"report", "merge", "--out", file("all"), file("none")}).code, 1);
}

TEST_F(BatchCliTest, AReportNamesPicturesAndNoWaysOutOfTheirFolder) {
    ASSERT_EQ(test::runCli(batch({"--report", file("report")})).code, 0);
    const std::string report = test::readFile(folder_.file("report")), made = "\"out\":\"anna_sea.jpg\"";
    const auto merged = [&](const std::string& name) {
        std::string changed = report;
        changed.replace(changed.find(made), made.size(), "\"out\":\"" + name + "\"");
        test::writeFile(folder_.file("changed"), changed);
        return test::runCli({"report", "merge", "--out", file("all"), file("changed")});
    };
    for (const char* name : {"../victim.jpg", "x/../../victim.jpg", "/x/../victim.jpg", "x\\u0000.jpg", "x/", ""}) {
        const auto outcome = merged(name);
        EXPECT_EQ(outcome.code, 1) << name;
        EXPECT_TRUE(outcome.err.contains("damaged")) << outcome.err.toStdString();
        EXPECT_FALSE(fs::exists(folder_.file("all"))) << name;
    }
    // What a batch by folders or by a list writes.
    for (const char* name : {"anna/sea.jpg", "/elsewhere/anna.jpg"})
        EXPECT_EQ(merged(name).code, 0) << name;
}

// One signal finishes the pictures in hand; the same command goes on from there. Two stop at once.
TEST_F(BatchCliTest, ASignalStopsItCleanlyAndTwoAtOnce) {
    for (int i = 0; i < 60; ++i)
        fs::copy_file(folder_.file("fg/anna.png"), folder_.file("fg/more" + std::to_string(i) + ".png"));
    const auto signalled = [&](std::initializer_list<int> signals) {
        QProcess process;
        process.start(test::kCliProgram, batch({"--again"}));
        EXPECT_TRUE(process.waitForReadyRead(60000));
        for (const int signal : signals)
            ::kill(static_cast<pid_t>(process.processId()), signal);
        return test::outcomeOf(process);
    };
    const auto once = signalled({SIGINT});
    EXPECT_EQ(once.code, 1);
    EXPECT_TRUE(once.err.contains(" left, in ")) << once.err.toStdString();
    const auto made = linesOf(once.out).size();
    EXPECT_LT(made, 63);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.file("out")), fs::directory_iterator()), made + 1);
    EXPECT_EQ(signalled({SIGINT, SIGTERM}).code, -2);  // of the signal itself, as a shell in a loop expects
    EXPECT_EQ(test::runCli(batch()).code, 0);
}

TEST_F(BatchCliTest, AWatchEndsWithItsStopFile) {
    QProcess process;
    process.start(test::kCliProgram, batch({"--watch", "--poll", "--stop-file", file("stop")}));
    ASSERT_TRUE(process.waitForReadyRead(60000));
    test::writeFile(folder_.file("stop"), "");
    const auto outcome = test::outcomeOf(process);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.err.contains(" made, in ")) << outcome.err.toStdString();
}

}  // namespace
}  // namespace tavrin

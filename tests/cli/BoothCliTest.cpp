// The booth on the command line: press, work off, put back, count.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class BoothCliTest : public testing::Test {
  protected:
    BoothCliTest() {
        fs::create_directory(out_.toStdString());
        test::savePng(test::discOnScreen(80, 100), folder_.file("anna.png"));
        test::savePng(test::noisePicture(60, 75, 3), folder_.file("sea.png"));
    }
    test::CliOutcome booth(const QStringList& arguments) const {
        return test::runCli(QStringList{"booth"} + arguments + QStringList{"--output", out_},
                            {{"XDG_DATA_HOME", QString::fromStdString(folder_.file("data"))}});
    }
    test::CliOutcome press(const QStringList& more = {}) const {
        return booth(QStringList{"press", "--portrait", QString::fromStdString(folder_.file("anna.png")),
                                 "--background", QString::fromStdString(folder_.file("sea.png")), "--inches",
                                 "1x1.25", "--dpi", "60"} +
                     more);
    }

    test::TempFolder folder_;
    const QString out_ = QString::fromStdString(folder_.file("out"));
};

TEST_F(BoothCliTest, TicketsThatAScriptPressedAreMadeToldAndCounted) {
    const test::CliOutcome pressed = press();
    ASSERT_EQ(pressed.code, 0) << pressed.err.toStdString();
    const QString stem = pressed.out.trimmed().chopped(4);
    test::writeFile(folder_.file("out/torn_1.qlx"), "no ticket");
    const test::CliOutcome made = booth({"--once"});
    EXPECT_EQ(made.code, 1) << "one failed";
    EXPECT_TRUE(fs::exists((stem + ".jpg").toStdString()));
    EXPECT_TRUE(made.err.contains("torn_1.qlx"));
    QStringList states;
    for (const QString& line : made.out.split('\n', Qt::SkipEmptyParts))
        states << QJsonDocument::fromJson(line.toUtf8()).object()["status"].toString();
    states.sort();
    EXPECT_EQ(states, (QStringList{"done", "failed"}));
    EXPECT_EQ(booth({"--once"}).code, 0) << "nothing is left";
    EXPECT_TRUE(booth({"counts"}).out.trimmed().endsWith(",1,0,0,1"));
    EXPECT_EQ(booth({"retry"}).out.trimmed(), "1 ticket put back");
    EXPECT_TRUE(fs::exists(folder_.file("out/torn_1.qlx")));
}

TEST_F(BoothCliTest, AWrongCallIsToldBeforeAnythingIsDone) {
    EXPECT_EQ(press({"--mail", "anna"}).code, 2);
    EXPECT_EQ(press({"--mail", "anna@example.org", "--print", "2"}).code, 2);
    EXPECT_EQ(press({"--phone", "12345"}).code, 2);
    EXPECT_EQ(booth({"--once", "--page", "no such page"}).code, 2);
    EXPECT_EQ(booth({"--once", "--paper", "no such paper"}).code, 2);
    EXPECT_EQ(test::runCli({"booth"}).code, 2);
    EXPECT_EQ(test::runCli({"booth", "--once", "--output", out_ + "/gone"}).code, 2);
    for (const auto& entry : fs::directory_iterator(out_.toStdString()))
        EXPECT_NE(entry.path().extension(), ".qlx");
}

}  // namespace
}  // namespace tavrin

// What tavrin-cli leaves when it is ended from outside: nothing; and what becomes of what a kill leaves.
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

#include "support/Cli.h"
#include "support/Faults.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class EndingsCliTest : public testing::Test {
  protected:
    void SetUp() override {
        if (test::kSanitized) GTEST_SKIP() << "moments and loads are those of the program as users get it";
    }
    EndingsCliTest() {
        for (const char* name : {"fg", "out", "tmp"})
            fs::create_directory(folder_.path() / name);
        for (int i = 0; i < 40; ++i)
            test::savePng(test::discOnScreen(60, 36), folder_.file("fg/p" + std::to_string(i) + ".png"));
        test::savePng(test::noisePicture(300, 180, 4), folder_.file("sea.png"));
    }
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    void start(QProcess& process, const QStringList& arguments) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", file("tmp"));
        process.setProcessEnvironment(environment);
        process.start(test::kCliProgram, arguments);
        ASSERT_TRUE(process.waitForStarted());
    }
    /// Takes its time to write.
    QStringList render(const char* out = "out/large.png") const {
        return {"render",  "--bare",   "--foreground", file("fg/p0.png"), "--background", file("sea.png"), "--out",
                file(out), "--inches", "16x9",         "--dpi",           "200"};
    }
    QStringList batch(const QStringList& more = {}) const {
        return QStringList{"batch", "--bare",    "--foregrounds", file("fg"), "--backgrounds", file("sea.png"),
                           "--out", file("out"), "--inches",      "5x3",      "--dpi",         "100"} +
               more;
    }
    std::vector<std::string> parts() const { return test::partsIn(folder_.file("out")); }
    std::vector<std::string> temporary() const { return test::namesLike(folder_.file("tmp"), "tavrin-"); }
    bool waitForPart() const {
        return test::waitUntil([this] { return !parts().empty(); });
    }

    test::TempFolder folder_;
};

TEST_F(EndingsCliTest, ARenderEndsBySignalsAndLeavesNothing) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess process;
        start(process, render());
        ASSERT_TRUE(waitForPart());
        test::sendSignal(process, signal);
        EXPECT_EQ(test::outcomeOf(process).code, -2) << signal;
        EXPECT_TRUE(parts().empty());
        EXPECT_FALSE(fs::exists(folder_.file("out/large.png")));
        EXPECT_TRUE(temporary().empty());
    }
    for (int milliseconds = 0; milliseconds < 150; milliseconds += 10) {  // whatever it is at
        QProcess process;
        start(process, render());
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        test::sendSignal(process, SIGTERM);
        EXPECT_EQ(test::outcomeOf(process).code, -2);
        EXPECT_TRUE(parts().empty() && temporary().empty()) << milliseconds;
    }
}

TEST_F(EndingsCliTest, ABatchFinishesWhatItHasInHandAndTheSecondSignalEndsIt) {
    const auto signalled = [this](std::initializer_list<int> signals) {
        QProcess process;
        start(process, batch({"--again"}));
        EXPECT_TRUE(process.waitForReadyRead(60000));
        for (const int signal : signals)
            test::sendSignal(process, signal);
        const auto outcome = test::outcomeOf(process);
        EXPECT_TRUE(parts().empty());
        EXPECT_TRUE(temporary().empty());
        return outcome;
    };
    const auto once = signalled({SIGHUP});
    EXPECT_EQ(once.code, 1);
    EXPECT_TRUE(once.err.contains(" left, in ")) << once.err.toStdString();
    EXPECT_EQ(signalled({SIGTERM, SIGHUP}).code, -2);
}

TEST_F(EndingsCliTest, AClosedPipeIsToldAndEndsNothing) {
    QProcess process;
    process.setChildProcessModifier([] {
        int ends[2];
        if (::pipe(ends) != 0 || ::close(ends[0]) != 0 || ::dup2(ends[1], STDOUT_FILENO) < 0) ::_exit(99);
    });
    start(process, batch());
    const auto outcome = test::outcomeOf(process);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err.count("The standard output could not be written: Broken pipe."), 1)
        << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("40 pictures made")) << outcome.err.toStdString();
    EXPECT_TRUE(temporary().empty());
}

/// As the system tells it: T when it is stopped, Z when it has ended and nobody has asked for its code yet.
char stateOf(const QProcess& process) {
    const std::string stat = test::readFile("/proc/" + std::to_string(process.processId()) + "/stat");
    const std::size_t name = stat.rfind(')');
    return name == std::string::npos || name + 2 >= stat.size() ? 'Z' : stat[name + 2];
}

TEST_F(EndingsCliTest, TheNextRunClearsWhatAKillLeftAndNothingOfTheLiving) {
    QProcess killed;
    start(killed, render("out/killed.png"));
    ASSERT_TRUE(waitForPart());
    test::sendSignal(killed, SIGKILL);
    test::outcomeOf(killed);
    ASSERT_EQ(parts().size(), 1u);
    ASSERT_EQ(temporary().size(), 1u);
    const std::string left = parts()[0];

    // A process goes on for a moment after it was told to stop, perhaps to its end.
    std::unique_ptr<QProcess> living;
    for (int tries = 0; tries < 10; ++tries) {
        living = std::make_unique<QProcess>();
        start(*living, render("out/living.png"));
        const auto writes = [&] {  // an empty one may not be locked yet, and is made again where it is taken away
            const std::vector<std::string> now = parts();
            std::error_code gone;
            return !now.empty() && now[0] != left && fs::file_size(folder_.file("out/" + now[0]), gone) > 0 && !gone;
        };
        ASSERT_TRUE(test::waitUntil([&] { return writes() || stateOf(*living) == 'Z'; }));
        test::sendSignal(*living, SIGSTOP);
        ASSERT_TRUE(test::waitUntil([&] { return stateOf(*living) == 'T' || stateOf(*living) == 'Z'; }));
        if (writes()) break;
        test::sendSignal(*living, SIGCONT);
        test::outcomeOf(*living);
    }
    ASSERT_EQ(parts().size(), 1u);
    fs::last_write_time(folder_.file("out/" + parts()[0]), fs::file_time_type::clock::now() - std::chrono::hours(50));
    for (const QStringList& next : {batch(), render("out/next.png")}) {
        QProcess process;
        start(process, next);
        EXPECT_EQ(test::outcomeOf(process).code, 0);
        EXPECT_EQ(parts().size(), 1u);
        EXPECT_EQ(temporary().size(), 1u);
    }
    test::sendSignal(*living, SIGCONT);
    EXPECT_EQ(test::outcomeOf(*living).code, 0);
    EXPECT_TRUE(fs::exists(folder_.file("out/living.png")));
    EXPECT_TRUE(parts().empty() && temporary().empty());
}

/// Seconds of processor time that a process has taken.
double workOf(const QProcess& process) {
    const std::string stat = test::readFile("/proc/" + std::to_string(process.processId()) + "/stat");
    std::istringstream fields(stat.substr(stat.rfind(')') + 1));
    std::string skipped;
    for (int i = 0; i < 11; ++i)
        fields >> skipped;
    double user = 0.0, system = 0.0;
    fields >> user >> system;
    return (user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

// Files that grew and went away, broken ones and ones that may not be read: none keeps an idle watch busy.
TEST_F(EndingsCliTest, AWatchRestsWhateverBecameOfItsFiles) {
    const std::vector<QStringList> ways = {{"--watch"}, {"--watch", "--poll", "--out", file("out2")}};
    std::vector<std::unique_ptr<QProcess>> watches;
    for (const QStringList& way : ways) {
        QStringList arguments = batch() + QStringList{"--stop-file", file("stop")} + way;
        if (way.contains("--out")) arguments.remove(arguments.indexOf("--out"), 2);
        watches.push_back(std::make_unique<QProcess>());
        test::takeRootsPower(*watches.back());
        start(*watches.back(), arguments);
    }
    for (const char* out : {"out", "out2"})
        ASSERT_TRUE(test::waitUntil([&] { return test::namesLike(folder_.file(out), "", ".jpg").size() == 40; }));
    std::ofstream gone(folder_.file("fg/gone.png")), renamed(folder_.file("fg/renamed.png"));
    gone << "growing" << std::flush;
    renamed << "growing" << std::flush;
    test::writeFile(folder_.file("fg/broken.png"), "no picture");
    fs::copy_file(folder_.file("fg/p0.png"), folder_.file("fg/closed.png"));
    fs::permissions(folder_.file("fg/closed.png"), fs::perms::none);
    std::this_thread::sleep_for(std::chrono::milliseconds(3000));
    fs::remove(folder_.file("fg/gone.png"));
    fs::rename(folder_.file("fg/renamed.png"), folder_.file("fg/renamed.txt"));
    fs::rename(folder_.file("fg"), folder_.file("away"));
    fs::create_directory(folder_.file("fg"));
    std::this_thread::sleep_for(std::chrono::milliseconds(4000));
    std::vector<double> before;
    for (const auto& watch : watches)
        before.push_back(workOf(*watch));
    std::this_thread::sleep_for(std::chrono::milliseconds(4000));
    for (std::size_t i = 0; i < watches.size(); ++i)
        EXPECT_LT(workOf(*watches[i]) - before[i], 0.4) << ways[i].join(' ').toStdString();
    test::savePng(test::discOnScreen(60, 36), folder_.file("fg/late.png"));
    EXPECT_TRUE(test::waitUntil([this] { return fs::exists(folder_.file("out/late_sea.jpg")); }));
    EXPECT_TRUE(test::waitUntil([this] { return fs::exists(folder_.file("out2/late_sea.jpg")); }));
    test::writeFile(folder_.file("stop"), "");
    for (const auto& watch : watches)
        EXPECT_GE(test::outcomeOf(*watch).code, 0);
}

}  // namespace
}  // namespace tavrin

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "farm/BatchRun.h"
#include "formats/ImageState.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SaveImage.h"
#include "session/OutputSizes.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Names = std::vector<std::string>;
using Status = JobResult::Status;

struct Listener : BatchObserver {
    void finished(const JobResult& result, const BatchCounts&) override {
        results.push_back(result);
        if (onFinished) onFinished(result);
    }
    void note(const std::string& line) override { notes.push_back(line); }
    void idle(const BatchCounts& counts) override {
        if (onIdle) onIdle(counts);
    }

    std::vector<JobResult> results;
    Names notes;
    std::function<void(const JobResult&)> onFinished;
    std::function<void(const BatchCounts&)> onIdle;
};

class BatchRunTest : public testing::Test {
  protected:
    BatchRunTest() {
        for (const char* name : {"fg", "bg", "out", "qlx"})
            fs::create_directory(folder_.path() / name);
        options_.sources.foregrounds = folder_.file("fg");
        options_.sources.backgrounds = folder_.file("bg");
        options_.sources.out = folder_.file("out");
        options_.sources.fileType = 2;
    }

    void portrait(const std::string& name, QColor color = QColor(200, 60, 50)) {
        test::savePng(test::discOnScreen(60, 40, QColor(40, 160, 60), color), folder_.file(name));
    }
    void background(const std::string& name, unsigned seed = 1) {
        test::savePng(test::noisePicture(60, 40, seed), folder_.file(name));
    }
    static LoadedState bare(SystemInfo&) { return {}; }
    static std::string settings(SystemInfo& info, const LoadedState&) {
        info.iSmoothMode = 1;  // draws random numbers
        chooseOwnSize(info, "test", 1.5, 1.0, 40);
        return "";
    }
    BatchCounts run() {
        listener_.results.clear();
        PictureMaker maker(base_, bare, settings);
        BatchRun run(options_, maker, listener_, [this] { return stop_.load(); });
        problem_ = run.run();
        return run.counts();
    }
    /// What one picture alone comes to.
    std::string alone(const std::string& foreground, const std::string& background) {
        const auto info = std::make_unique<SystemInfo>();
        settings(*info, {});
        info->pForegroundBitmapInfo->sSourceImageFullPath = folder_.file(foreground);
        info->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file(background);
        useChosenSize(*info);
        CombineThread(*info).runUntilIdle();
        const std::string path = folder_.file("alone.png");
        EXPECT_TRUE(saveImageToDisk(*info, path, kPngFile, 1));
        return test::readFile(path);
    }
    Names made() const {
        Names names;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.path() / "out")) {
            const std::string name = fs::relative(entry.path(), folder_.path() / "out").string();
            if (entry.is_regular_file() && name[0] != '.') names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    std::string reasonOf(const std::string& foreground) const {
        for (const JobResult& result : listener_.results)
            if (result.job.foreground == folder_.file(foreground)) return result.reason;
        return "(no such job)";
    }

    test::TempFolder folder_;
    BatchOptions options_;
    SystemInfo base_;
    Listener listener_;
    std::atomic<bool> stop_ = false;
    std::string problem_;
};

TEST_F(BatchRunTest, SideBySideGivesTheBytesOfOneAlone) {
    for (int i = 0; i < 7; ++i)
        portrait("fg/p" + std::to_string(i) + ".png", QColor(150 + 10 * i, 60, 200 - 20 * i));
    background("bg/a.png", 1);
    background("bg/b.png", 2);
    for (const int inHand : {1, 5}) {
        options_.inHand = inHand;
        options_.again = true;
        EXPECT_EQ(run().done, 14);
        for (const char* name : {"p0", "p3", "p6"}) {
            const std::string fg = std::string("fg/") + name + ".png";
            EXPECT_EQ(test::readFile(folder_.file(std::string("out/") + name + "a.png")), alone(fg, "bg/a.png"));
            EXPECT_EQ(test::readFile(folder_.file(std::string("out/") + name + "b.png")), alone(fg, "bg/b.png"));
        }
    }
}

TEST_F(BatchRunTest, ALaterRunMakesWhatIsMissingOrChanged) {
    portrait("fg/a.png");
    portrait("fg/b.png");
    background("bg/x.png");
    EXPECT_EQ(run().done, 2);
    EXPECT_EQ(run().skipped, 2);

    fs::remove(folder_.path() / "out" / "ax.png");
    BatchCounts counts = run();
    EXPECT_EQ(counts.done, 1);
    EXPECT_EQ(counts.skipped, 1);

    portrait("fg/a.png", QColor(1, 2, 250));
    EXPECT_EQ(run().done, 1);
    fs::last_write_time(folder_.path() / "fg" / "b.png", fs::file_time_type::clock::now());  // the same bytes
    EXPECT_EQ(run().skipped, 2);
    background("bg/x.png", 9);
    EXPECT_EQ(run().done, 2);
    base_.iSelecteImageSize = 0;
    ASSERT_EQ(saveImageStateToXML(base_, folder_.file("qlx/s.qlx")), "");
    options_.sources.states = folder_.file("qlx/s.qlx");
    EXPECT_EQ(run().done, 2);  // other names
    base_.iBlendEdges = 3;
    ASSERT_EQ(saveImageStateToXML(base_, folder_.file("qlx/s.qlx")), "");
    EXPECT_EQ(run().done, 2);  // another recipe under the same names
    EXPECT_EQ(run().skipped, 2);
    options_.again = true;
    EXPECT_EQ(run().done, 2);
}

TEST_F(BatchRunTest, WhatCannotBeReadIsNamedAndLeftUntilItChanges) {
    test::writeFile(folder_.file("fg/bad.png"), "no picture");
    portrait("fg/good.png");
    background("bg/x.png");
    BatchCounts counts = run();
    EXPECT_EQ(counts.done, 1);
    EXPECT_EQ(counts.failed, 1);
    EXPECT_TRUE(reasonOf("fg/bad.png").starts_with("bad.png: ")) << reasonOf("fg/bad.png");
    EXPECT_EQ(made(), Names{"goodx.png"});

    counts = run();
    EXPECT_EQ(counts.skipped, 1);
    EXPECT_EQ(counts.failed, 1);
    EXPECT_NE(reasonOf("fg/bad.png").find("--retry-failed"), std::string::npos);
    options_.retryFailed = true;
    EXPECT_EQ(run().failed, 1);
    EXPECT_EQ(reasonOf("fg/bad.png").find("--retry-failed"), std::string::npos);
    options_.retryFailed = false;
    portrait("fg/bad.png");
    EXPECT_EQ(run().done, 1);
}

TEST_F(BatchRunTest, StopsWithThePicturesInHandAndGoesOnLater) {
    for (int i = 0; i < 9; ++i)
        portrait("fg/" + std::to_string(i) + ".png");
    background("bg/x.png");
    options_.inHand = 2;
    listener_.onFinished = [this](const JobResult&) { stop_ = listener_.results.size() >= 3; };
    const BatchCounts counts = run();
    EXPECT_GE(counts.done, 3);
    EXPECT_LE(counts.done, 5);
    EXPECT_EQ(counts.left(), 9 - counts.done);
    EXPECT_EQ(made().size(), static_cast<std::size_t>(counts.done));
    stop_ = false;
    listener_.onFinished = nullptr;
    options_.stopFile = folder_.file("stop");
    test::writeFile(options_.stopFile, "");
    EXPECT_EQ(run().done, 0);
    fs::remove(options_.stopFile);
    EXPECT_EQ(run().skipped, counts.done);
    EXPECT_EQ(made().size(), 9u);
}

TEST_F(BatchRunTest, NumbersStayWithTheirPictures) {
    options_.sources.style = 2;
    portrait("fg/b.png");
    portrait("fg/d.png", QColor(1, 2, 250));
    background("bg/x.png");
    EXPECT_EQ(run().done, 2);
    const std::string second = test::readFile(folder_.file("out/BatchFile2.png"));
    portrait("fg/a.png");
    portrait("fg/c.png");
    EXPECT_EQ(run().done, 2);
    EXPECT_EQ(made(), (Names{"BatchFile1.png", "BatchFile2.png", "BatchFile3.png", "BatchFile4.png"}));
    EXPECT_EQ(test::readFile(folder_.file("out/BatchFile2.png")), second);
    EXPECT_EQ(run().skipped, 4);
}

TEST_F(BatchRunTest, PicturesOfOneNameAreNotLost) {
    portrait("fg/a.png");
    test::discOnScreen(60, 40).save(QString::fromStdString(folder_.file("fg/a.jpg")));
    background("bg/x.png");
    BatchCounts counts = run();
    EXPECT_EQ(counts.done, 1);
    EXPECT_EQ(counts.failed, 1);
    EXPECT_NE(reasonOf("fg/a.png").find("a.jpg"), std::string::npos);
    // What has the name keeps it, whatever sorts before it.
    fs::rename(folder_.path() / "fg" / "a.jpg", folder_.path() / "fg" / "a.tif");
    EXPECT_EQ(run().done, 1);
    EXPECT_EQ(reasonOf("fg/a.png"), "");
}

TEST_F(BatchRunTest, ShardsMakeEveryPictureOnceAndTheirReportsJoin) {
    for (int i = 0; i < 11; ++i)
        portrait("fg/" + std::to_string(i) + ".png");
    test::writeFile(folder_.file("fg/4.png"), "no picture");
    background("bg/x.png");
    Names reports;
    int done = 0;
    for (int k = 1; k <= 3; ++k) {
        options_.shard = {k, 3};
        options_.report = folder_.file("part-" + std::to_string(k));
        reports.push_back(options_.report);
        done += run().done;
    }
    EXPECT_EQ(done, 10);
    EXPECT_EQ(made().size(), 10u);
    MergedReport merged = mergeReports(reports, folder_.file("all"));
    EXPECT_EQ(merged.problem, "");
    EXPECT_EQ(merged.warning, "");
    EXPECT_EQ(merged.counts.jobs, 11);
    EXPECT_EQ(merged.counts.done, 10);
    ASSERT_EQ(merged.failures.size(), 1u);
    EXPECT_NE(merged.failures[0].find("4.png"), std::string::npos);

    // A shard that ran again, and one that is not there.
    options_.shard = {2, 3};
    options_.report = folder_.file("part-2b");
    run();
    merged = mergeReports({reports[0], reports[1], options_.report}, folder_.file("all"));
    EXPECT_EQ(merged.counts.left(), 3);
    EXPECT_EQ(mergeReports({folder_.file("all"), reports[2]}, folder_.file("all2")).counts.left(), 0);
    portrait("fg/new.png");
    run();
    EXPECT_NE(mergeReports({reports[0], options_.report}, folder_.file("all")).warning, "");
    EXPECT_NE(mergeReports({folder_.file("fg/0.png")}, folder_.file("all")).problem, "");
}

TEST_F(BatchRunTest, FoldersThatCannotBeAreRefusedAndADryRunWritesNothing) {
    portrait("fg/a.png");
    background("bg/x.png");
    options_.dryRun = true;
    options_.sources.out = folder_.file("new");
    run();
    ASSERT_EQ(listener_.results.size(), 1u);
    EXPECT_EQ(listener_.results[0].status, Status::planned);
    EXPECT_FALSE(fs::exists(folder_.path() / "new"));

    PictureMaker maker(base_, bare, settings);
    const auto check = [&] { return BatchRun(options_, maker, listener_, [] { return false; }).check(); };
    EXPECT_EQ(check(), "");
    options_.sources.out = folder_.file("fg/../fg");
    EXPECT_NE(check(), "");
    options_.sources.out = folder_.file("out");
    options_.sources.backgrounds = folder_.file("none");
    EXPECT_NE(check().find("none"), std::string::npos);
    options_.sources.backgrounds = "";
    options_.dryRun = false;
    EXPECT_EQ(run().failed, 1);  // neither a background nor a state that names one
    EXPECT_EQ(reasonOf("fg/a.png"), "there is no background for it");

    Journal other;
    ASSERT_EQ(other.open(folder_.file("out"), Journal::Use::alone), "");
    run();
    EXPECT_NE(problem_.find("Another batch"), std::string::npos);
}

TEST_F(BatchRunTest, AListNamesItsOwnJobs) {
    portrait("p.png");
    background("b.png");
    const auto job = [&](const std::string& lines) { return "<image>\n" + lines + "</image>\n"; };
    const std::string both = "<foreground>" + folder_.file("p.png") + "</foreground>\n<background>" +
                             folder_.file("b.png") + "</background>\n";
    test::writeFile(folder_.file("jobs.xml"),
                    job(both) +
                        job(both + "<outputnamestyle>createsubfolders</outputnamestyle>\n"
                                   "<nogreenscreenprocessing>YES</nogreenscreenprocessing>\n") +
                        job("<outputnamestyle>numberfiles</outputnamestyle>\n"));
    options_.sources.listFile = folder_.file("jobs.xml");
    options_.sources.foregrounds = options_.sources.backgrounds = "";
    const BatchCounts counts = run();
    EXPECT_EQ(counts.done, 2);
    EXPECT_EQ(counts.failed, 1);  // no foreground
    EXPECT_EQ(made(), (Names{"b/p.png", "pb.png"}));
    EXPECT_NE(test::readFile(folder_.file("out/b/p.png")), test::readFile(folder_.file("out/pb.png")));
    EXPECT_EQ(run().skipped, 2);
}

TEST_F(BatchRunTest, AHotFolderTakesWhatArrivesOnceItIsComplete) {
    background("bg/x.png");
    portrait("fg/first.png");
    portrait("whole.png", QColor(9, 9, 200));
    const std::string bytes = test::readFile(folder_.file("whole.png"));
    options_.watch = true;
    options_.report = folder_.file("report");
    const auto has = [this](const char* name) { return fs::exists(folder_.path() / "out" / name); };
    std::thread user([&] {
        const auto await = [&](const char* name) {
            for (int i = 0; i < 600 && !has(name); ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
        };
        await("firstx.png");
        {
            std::ofstream slow(folder_.file("fg/slow.png"), std::ios::binary);
            slow << bytes.substr(0, bytes.size() / 2) << std::flush;
            test::writeFile(folder_.file("fg/.part"), bytes);
            fs::rename(folder_.path() / "fg" / ".part", folder_.path() / "fg" / "moved.png");
            await("movedx.png");
            test::writeFile(folder_.file("fg/gone.png"), "half");
            fs::remove(folder_.path() / "fg" / "gone.png");
            slow << bytes.substr(bytes.size() / 2);
        }
        await("slowx.png");
        fs::remove(folder_.path() / "out" / "firstx.png");  // taken away by whoever waited for it
        portrait("fg/moved.png", QColor(250, 250, 20));     // another one under the same name
        portrait("fg/last.png");
        await("lastx.png");
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        stop_ = true;
    });
    const BatchCounts counts = run();
    user.join();
    EXPECT_EQ(made(), (Names{"lastx.png", "movedx.png", "slowx.png"}));
    EXPECT_EQ(counts.done, 5);
    EXPECT_EQ(counts.failed, 0);
    EXPECT_EQ(test::readFile(folder_.file("out/slowx.png")), alone("whole.png", "bg/x.png"));
    EXPECT_EQ(test::readFile(folder_.file("out/movedx.png")), alone("fg/moved.png", "bg/x.png"));
    EXPECT_EQ(mergeReports({options_.report}, folder_.file("all")).counts.done, 5);
    // A new watch remembers, although one of the pictures is gone.
    listener_.onIdle = [this](const BatchCounts&) { stop_ = true; };
    stop_ = false;
    EXPECT_EQ(run().done, 0);
}

// Nobody sees a background arrive that only a state names.
TEST_F(BatchRunTest, AWatchTellsOfABackgroundThatIsMissingAndTakesItWhenItComes) {
    portrait("fg/a.png");
    base_.pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("late.png");
    base_.iSelecteImageSize = 0;
    ASSERT_EQ(saveImageStateToXML(base_, folder_.file("qlx/s.qlx")), "");
    options_.sources.backgrounds = "";
    options_.sources.states = folder_.file("qlx");
    options_.watch = options_.pollOnly = true;
    int looks = 0;
    listener_.onIdle = [&](const BatchCounts& counts) {
        if (++looks == 2) background("late.png");
        stop_ = counts.done > 0 || looks > 10;
    };
    const BatchCounts counts = run();
    EXPECT_EQ(counts.failed, 1);
    EXPECT_EQ(counts.done, 1);
    EXPECT_TRUE(reasonOf("fg/a.png").ends_with("the file is not there")) << reasonOf("fg/a.png");
}

}  // namespace
}  // namespace tavrin

// What a batch run is made of: shards, the job list, the journal, arrivals, the folder watch.
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

#include "core/files/AtomicFile.h"
#include "farm/BatchPlan.h"
#include "farm/Journal.h"
#include "farm/Shard.h"
#include "folders/Arrivals.h"
#include "folders/FolderWatch.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Names = std::vector<std::string>;
using std::chrono::milliseconds;

std::string shardOf(const std::string& text, const std::map<std::string, std::string>& variables = {}) {
    const ShardChoice choice = chooseShard(text, [&](const std::string& name) {
        const auto at = variables.find(name);
        return at == variables.end() ? std::string() : at->second;
    });
    return choice.problem.empty() ? std::to_string(choice.shard.index) + "/" + std::to_string(choice.shard.count)
                                  : "refused";
}

TEST(Shard, ComesFromTheCommandLineOrTheScheduler) {
    EXPECT_EQ(shardOf("2/6"), "2/6");
    for (const char* wrong : {"0/6", "7/6", "2", "2/", "/6", "a/6", "2/6x", "2/0", "", "auto", "auto/6"})
        EXPECT_EQ(shardOf(wrong), "refused") << wrong;
    const auto slurm = [](const char* id, const char* count, const char* min, const char* step) {
        return std::map<std::string, std::string>{{"SLURM_ARRAY_TASK_ID", id},
                                                  {"SLURM_ARRAY_TASK_COUNT", count},
                                                  {"SLURM_ARRAY_TASK_MIN", min},
                                                  {"SLURM_ARRAY_TASK_STEP", step}};
    };
    EXPECT_EQ(shardOf("auto", slurm("3", "6", "1", "1")), "3/6");
    EXPECT_EQ(shardOf("auto", slurm("0", "6", "0", "1")), "1/6");
    EXPECT_EQ(shardOf("auto", slurm("14", "3", "10", "2")), "3/3");
    EXPECT_EQ(shardOf("auto", slurm("5", "2", "3", "1")), "refused");  // an array of 3,5
    EXPECT_EQ(shardOf("auto/6", slurm("5", "2", "3", "1")), "5/6");
    EXPECT_EQ(shardOf("auto/6", slurm("7", "2", "3", "1")), "refused");
    EXPECT_EQ(shardOf("auto", {{"JOB_COMPLETION_INDEX", "0"}}), "refused");
    EXPECT_EQ(shardOf("auto/4", {{"JOB_COMPLETION_INDEX", "0"}}), "1/4");
    EXPECT_EQ(shardOf("auto", {{"AWS_BATCH_JOB_ARRAY_INDEX", "9"}, {"AWS_BATCH_JOB_ARRAY_SIZE", "10"}}), "10/10");
    for (int n = 1; n <= 20; ++n) {
        int owners = 0;
        for (int k = 1; k <= 6; ++k)
            owners += Shard{k, 6}.has(n);
        EXPECT_EQ(owners, 1);
    }
}

class JobListTest : public testing::Test {
  protected:
    JobListTest() {
        for (const char* name : {"fg", "bg", "qlx", "fg/sea", "fg/odd"})
            fs::create_directory(folder_.path() / name);
        for (const char* name : {"fg/b.jpg", "fg/A.PNG", "fg/._b.jpg", "fg/notes.txt", "fg/sea/c.jpg", "fg/odd/d.jpg",
                                 "bg/sea.jpg", "bg/wood.png", "qlx/x.qlx", "qlx/Y.QLX"})
            test::writeFile(folder_.file(name), "");
        sources_.foregrounds = folder_.file("fg");
        sources_.backgrounds = folder_.file("bg");
        sources_.out = "/out";
    }
    Names outs(const GivenNames* given = nullptr) {
        Names names;
        for (const BatchJob& job : planJobs(sources_, given).jobs)
            names.push_back(job.problem.empty() ? job.out : "clash " + job.out);
        return names;
    }

    test::TempFolder folder_;
    JobSources sources_;
};

TEST_F(JobListTest, CombinationsInTheOrderOfTheDesktop) {
    sources_.states = folder_.file("qlx");
    EXPECT_EQ(outs(), (Names{"/out/Aseax.jpg", "/out/bseax.jpg", "/out/Awoodx.jpg", "/out/bwoodx.jpg",
                             "/out/AseaY.jpg", "/out/bseaY.jpg", "/out/AwoodY.jpg", "/out/bwoodY.jpg"}));
    sources_.style = 3;
    sources_.fileType = 3;
    sources_.backgrounds = folder_.file("bg/wood.png");
    sources_.states = "";
    EXPECT_EQ(outs(), (Names{"/out/wood/A.tif", "/out/wood/b.tif"}));
    sources_.subfolders = true;
    sources_.backgrounds = folder_.file("bg");
    EXPECT_EQ(outs(), Names{"/out/sea/c.tif"});
    sources_.states = folder_.file("bg");  // a folder without states
    EXPECT_TRUE(outs().empty());
}

TEST_F(JobListTest, NumbersAndClashes) {
    sources_.style = 2;
    EXPECT_EQ(outs(),
              (Names{"/out/BatchFile1.jpg", "/out/BatchFile2.jpg", "/out/BatchFile3.jpg", "/out/BatchFile4.jpg"}));
    const GivenNames given = {{"b.jpg|sea.jpg|", "BatchFile1.jpg"}, {"gone|x|", "BatchFile3.jpg"}};
    EXPECT_EQ(outs(&given),
              (Names{"/out/BatchFile2.jpg", "/out/BatchFile1.jpg", "/out/BatchFile4.jpg", "/out/BatchFile5.jpg"}));
    sources_.style = 1;
    sources_.backgrounds = folder_.file("bg/sea.jpg");
    test::writeFile(folder_.file("fg/b.png"), "");
    EXPECT_EQ(outs(), (Names{"/out/Asea.jpg", "/out/bsea.jpg", "clash /out/bsea.jpg"}));
    const GivenNames older = {{"b.png|sea.jpg|", "bsea.jpg"}};
    EXPECT_EQ(outs(&older), (Names{"/out/Asea.jpg", "clash /out/bsea.jpg", "/out/bsea.jpg"}));
}

TEST_F(JobListTest, NamesAreBytesAndNoTwoJobsShareOne) {
    for (const char* name : {"fg/M\xf6ller.jpg", "fg/M\xfcller.jpg", "fg/m.png|x.png", "bg/y.png", "bg/x.png|y.png"})
        test::writeFile(folder_.file(name), "");
    test::writeFile(folder_.file("fg/m.png"), "");
    const BatchPlan list = planJobs(sources_);
    std::set<std::string> names;
    for (const BatchJob& job : list.jobs)
        names.insert(job.name);
    EXPECT_EQ(list.jobs.size(), 6u * 4u);
    EXPECT_EQ(names.size(), list.jobs.size());
    // The same on every machine, whatever order its folders are in.
    EXPECT_EQ(fs::path(list.jobs[4].foreground).filename(), "M\xf6ller.jpg");
    EXPECT_EQ(fs::path(list.jobs[5].foreground).filename(), "M\xfcller.jpg");
    EXPECT_EQ(names.count("A.PNG|sea.jpg|"), 1u);  // as journals have always had them
}

TEST_F(JobListTest, ANumberIsNeitherTakenTwiceNorAPath) {
    fs::create_directory(folder_.path() / "out");
    sources_.out = folder_.file("out");
    sources_.backgrounds = folder_.file("bg/sea.jpg");
    sources_.style = 2;
    test::writeFile(folder_.file("out/BatchFile1.jpg"), "of another run");
    fs::create_symlink(folder_.file("nowhere"), folder_.file("out/BatchFile3.jpg"));
    const auto below = [this](const char* name) { return folder_.file(std::string("out/") + name); };
    for (const char* evil : {"BatchFile/../../victim.jpg", "BatchFile7/../x.jpg", "/BatchFile8.jpg", "BatchFile.jpg",
                             "BatchFile9.png", "BatchFile-1.jpg", ""}) {
        const GivenNames given = {{"A.PNG|sea.jpg|", evil}};
        EXPECT_EQ(outs(&given), (Names{below("BatchFile2.jpg"), below("BatchFile4.jpg")})) << evil;
    }
}

class JournalTest : public testing::Test {
  protected:
    JournalTest() { fs::create_directory(hidden_); }
    static JobRecord record(const std::string& name, JobRecord::Status status, const std::string& out = "o.jpg") {
        JobRecord made;
        made.name = name;
        made.out = out;
        made.status = status;
        return made;
    }
    void line(const std::string& file, const std::string& text) const {
        test::writeFile((hidden_ / file).string(), text + "\n");
    }
    void open(Journal& journal, Journal::Use use = Journal::Use::alone) const {
        ASSERT_EQ(journal.open(folder_.path().string(), use), "");
    }

    test::TempFolder folder_;
    const fs::path hidden_ = folder_.path() / ".tavrin-batch";
};

TEST_F(JournalTest, GoesByTheOrderOfItsRecordsAndNotByTheClock) {
    // From a program that knew no order, on a machine whose clock is ahead; and one with rubbish in it.
    line("a.jsonl", R"({"name":"x","out":"x.jpg","status":"failed","at":"99999999999999","inputs":[]})");
    line("b.jsonl", R"({"name":"y","out":"y.jpg","status":"failed","at":"99999999999998","order":1e300})");
    for (const std::string name : {"x", "y"}) {
        Journal journal;
        open(journal);
        ASSERT_EQ(journal.find(name)->status, JobRecord::Status::failed);
        ASSERT_EQ(journal.add(record(name, JobRecord::Status::done)), "");
    }
    {
        Journal journal;
        open(journal);
        EXPECT_EQ(journal.find("x")->status, JobRecord::Status::done);
        EXPECT_EQ(journal.find("y")->status, JobRecord::Status::done);
        ASSERT_EQ(journal.add(record("x", JobRecord::Status::failed)), "");
    }
    Journal last;
    open(last, Journal::Use::look);
    EXPECT_EQ(last.find("x")->status, JobRecord::Status::failed);
}

TEST_F(JournalTest, KeepsNamesOfAnyBytesAndUnderstandsOldOnes) {
    line("old.jsonl", R"({"name":"Möller.jpg|sea.jpg|","out":"Möllersea.jpg","status":"done","at":"5"})");
    {
        Journal journal;
        open(journal);
        journal.add(record("M\xf6ller.jpg|sea.jpg|", JobRecord::Status::done, "1.jpg"));
        journal.add(record("M\xfcller.jpg|sea.jpg|", JobRecord::Status::done, "2.jpg"));
    }
    Journal journal;
    open(journal, Journal::Use::look);
    ASSERT_NE(journal.find("Möller.jpg|sea.jpg|"), nullptr);
    EXPECT_EQ(journal.find("Möller.jpg|sea.jpg|")->out, "Möllersea.jpg");
    ASSERT_NE(journal.find("M\xf6ller.jpg|sea.jpg|"), nullptr);
    EXPECT_EQ(journal.find("M\xf6ller.jpg|sea.jpg|")->out, "1.jpg");
    EXPECT_EQ(journal.find("M\xfcller.jpg|sea.jpg|")->out, "2.jpg");
}

TEST_F(JournalTest, KnowsWhichPicturesAreItsOwn) {
    auto other = std::make_unique<Journal>();
    open(*other, Journal::Use::shared);
    {
        Journal journal;
        open(journal, Journal::Use::shared);
        journal.add(record("a", JobRecord::Status::done, "a.jpg"));
        journal.add(record("a", JobRecord::Status::done, "BatchFile1.jpg"));
        journal.add(record("b", JobRecord::Status::failed, "b.jpg"));
        journal.add(record("c", JobRecord::Status::begun, "c.jpg"));
    }
    // A task beside it, which opened the journal before.
    EXPECT_TRUE(other->owns("a.jpg"));
    EXPECT_FALSE(other->owns("b.jpg"));
    EXPECT_TRUE(other->owns("c.jpg"));
    other->add(record("d", JobRecord::Status::begun, "d.jpg"));
    for (int i = 0; i < 20; ++i)
        line("empty" + std::to_string(i) + ".jsonl", "");
    other = std::make_unique<Journal>();
    open(*other);  // joins the files
    Journal last;
    open(last, Journal::Use::look);
    for (const char* out : {"a.jpg", "BatchFile1.jpg", "c.jpg", "d.jpg"})
        EXPECT_TRUE(last.owns(out)) << out;
    EXPECT_EQ(last.find("a")->out, "BatchFile1.jpg");
}

TEST_F(JournalTest, OpensPlainFilesOnly) {
    ASSERT_EQ(::mkfifo((hidden_ / "x.jsonl").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo((hidden_ / "turn").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", hidden_ / "y.jsonl");
    fs::create_directory(hidden_ / "z.jsonl");
    Journal journal;
    open(journal);
    EXPECT_EQ(journal.add(record("a", JobRecord::Status::done)), "");
}

TEST(Journal, OutlivesTornLinesAndJoinsManyRuns) {
    test::TempFolder folder;
    const auto record = [](const std::string& name, JobRecord::Status status) {
        JobRecord made;
        made.name = name;
        made.out = name + ".jpg";
        made.status = status;
        made.recipe = "r";
        made.inputs = {{{12345678901234ull, 1700000000123456789}, "d"}};
        made.reason = status == JobRecord::Status::failed ? "why" : "";
        return made;
    };
    for (int run = 0; run < 20; ++run) {
        Journal journal;
        ASSERT_EQ(journal.open(folder.path().string(), Journal::Use::alone), "");
        ASSERT_EQ(journal.add(record("a", JobRecord::Status::failed)), "");
        ASSERT_EQ(journal.add(record("b" + std::to_string(run), JobRecord::Status::done)), "");
        ASSERT_EQ(journal.add(record("a", JobRecord::Status::done)), "");
    }
    const fs::path hidden = folder.path() / ".tavrin-batch";
    test::writeFile((hidden / "torn.jsonl").string(),
                    "{\"name\":\"c\",\"status\":\"do\n\nrubbish\n{\"name\":\"d\",\"sta");
    Journal last;
    ASSERT_EQ(last.open(folder.path().string(), Journal::Use::shared), "");
    Journal beside;
    EXPECT_EQ(beside.open(folder.path().string(), Journal::Use::shared), "");
    EXPECT_EQ(last.givenNames().size(), 21u);
    EXPECT_EQ(last.find("c"), nullptr);
    ASSERT_NE(last.find("a"), nullptr);
    EXPECT_EQ(last.find("a")->status, JobRecord::Status::done);
    EXPECT_EQ(last.find("b3")->inputs[0].facts, (FileFacts{12345678901234ull, 1700000000123456789}));
    const auto files = std::distance(fs::directory_iterator(hidden), fs::directory_iterator());
    EXPECT_LT(files, 20);  // those of the first runs were joined
}

TEST(Arrivals, CompleteIsClosedOrAtRest) {
    test::TempFolder folder;
    const std::string path = folder.file("a.jpg");
    test::writeFile(path, "x");
    Arrivals arrivals;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(arrivals.isComplete(path, start));
    EXPECT_FALSE(arrivals.isComplete(path, start + milliseconds(1900)));
    EXPECT_EQ(arrivals.nextMoment(start + milliseconds(5000)), start + Arrivals::kRest);
    test::writeFile(path, "xy");
    EXPECT_FALSE(arrivals.isComplete(path, start + milliseconds(2100)));
    EXPECT_TRUE(arrivals.isComplete(path, start + milliseconds(4200)));

    test::writeFile(path, "xyz");
    arrivals.closed(path);
    EXPECT_TRUE(arrivals.isComplete(path, start + milliseconds(4300)));
    test::writeFile(path, "xyz1");  // opened again
    EXPECT_FALSE(arrivals.isComplete(path, start + milliseconds(4400)));

    const std::string old = folder.file("old.jpg");
    test::writeFile(old, "x");
    fs::last_write_time(old, fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_TRUE(arrivals.isComplete(old, start));
    EXPECT_TRUE(arrivals.isBroken(old, start));
    EXPECT_FALSE(arrivals.isComplete(folder.file("none.jpg"), start));
}

TEST(Arrivals, WaitForNoFileThatALookHasMissed) {
    test::TempFolder folder;
    const std::string path = folder.file("a.jpg");
    test::writeFile(path, "x");
    Arrivals arrivals;
    const auto start = std::chrono::steady_clock::now();
    const auto limit = start + milliseconds(60000);
    arrivals.beginLook();
    EXPECT_FALSE(arrivals.isComplete(path, start));
    EXPECT_LT(arrivals.nextMoment(limit), limit);
    arrivals.beginLook();  // the file was renamed
    EXPECT_EQ(arrivals.nextMoment(limit), limit);
    arrivals.closed(path);  // news that came before the next look
    arrivals.beginLook();
    EXPECT_TRUE(arrivals.isComplete(path, start));
}

TEST(Arrivals, ABrokenFileGetsTimeAndAFreshStart) {
    test::TempFolder folder;
    const std::string path = folder.file("a.jpg");
    test::writeFile(path, "x");
    Arrivals arrivals;
    arrivals.closed(path);
    const auto now = std::chrono::steady_clock::now();
    EXPECT_TRUE(arrivals.isComplete(path, now));
    EXPECT_FALSE(arrivals.isBroken(path, now));
    EXPECT_FALSE(arrivals.isComplete(path, now + milliseconds(5000)));
    EXPECT_TRUE(arrivals.isComplete(path, now + milliseconds(10100)));
    EXPECT_TRUE(arrivals.isBroken(path, now + milliseconds(10100)));
    test::writeFile(path, "longer");
    EXPECT_FALSE(arrivals.isBroken(path, now + milliseconds(10200)));  // not the one that was read
    EXPECT_FALSE(arrivals.isComplete(path, now + milliseconds(10200)));
    EXPECT_TRUE(arrivals.isComplete(path, now + milliseconds(12300)));
}

#ifdef __linux__
TEST(FolderWatch, TellsOfClosedAndMovedFilesOnly) {
    test::TempFolder folder;
    fs::create_directory(folder.path() / "in");
    const auto watch = makeFolderWatch();
    watch->watch({folder.file("in"), folder.file("none")});
    watch->watch({folder.file("in")});  // again: nothing is lost and nothing comes twice
    std::ofstream open(folder.file("in/open.jpg"));
    open << "x" << std::flush;
    test::writeFile(folder.file("in/closed.jpg"), "x");
    test::writeFile(folder.file("outside"), "x");
    fs::rename(folder.path() / "outside", folder.path() / "in" / "moved.jpg");
    Names closed;
    for (int i = 0; i < 20 && closed.size() < 2; ++i) {
        for (const std::string& path : watch->wait(milliseconds(100)).closed)
            closed.push_back(path);
    }
    EXPECT_EQ(closed, (Names{folder.file("in/closed.jpg"), folder.file("in/moved.jpg")}));
    open.close();
    EXPECT_EQ(watch->wait(milliseconds(1000)).closed, Names{folder.file("in/open.jpg")});
    fs::create_directory(folder.path() / "in" / "sub");
    EXPECT_TRUE(watch->wait(milliseconds(1000)).lost);
    EXPECT_TRUE(watch->wait(milliseconds(1)).closed.empty());
}
#endif

// Whoever replaces a file while it is read gets a picture of one state of it, or none.
TEST(ReadSettledFile, NeverMixesTwoStatesOfAFile) {
    test::TempFolder folder;
    const std::string path = folder.file("a.png");
    const QImage pictures[] = {test::noisePicture(200, 150, 1), test::noisePicture(200, 150, 2)};
    std::string bytes[2];
    for (int i : {0, 1})
        bytes[i] = test::readFile(test::savePng(pictures[i], folder.file(std::to_string(i) + ".png")));
    std::atomic<bool> ended = false;
    std::thread writer([&] {
        for (int i = 0; !ended; ++i) {
            test::writeFile(path, bytes[i % 2].substr(0, bytes[i % 2].size() / (1 + i % 3)));
            std::this_thread::sleep_for(milliseconds(i % 7));
        }
    });
    for (int i = 0; i < 60; ++i) {
        const ReadFile file = readSettledFile(path);
        if (!file.picture.error.empty()) continue;
        const QImage read = file.picture.pixels.convertToFormat(QImage::Format_RGB888);
        EXPECT_TRUE(read == pictures[0] || read == pictures[1]);
    }
    ended = true;
    writer.join();
    test::writeFile(path, bytes[1]);
    const ReadFile last = readSettledFile(path);
    EXPECT_EQ(last.picture.error, "");
    EXPECT_EQ(last.digest, digestOfFile(folder.file("1.png")));
    fs::remove(path);
    EXPECT_TRUE(readSettledFile(path).missing);
}

TEST(AtomicFileParts, OfKilledProgramsGoAfterAWhile) {
    test::TempFolder folder;
    for (const char* name : {".tavrin-1-0.part", ".tavrin-2-0.part", ".other.part"})
        test::writeFile(folder.file(name), "x");
    for (const char* name : {".tavrin-1-0.part", ".other.part"})
        fs::last_write_time(folder.file(name), fs::file_time_type::clock::now() - std::chrono::minutes(61));
    AtomicFile::removeAbandonedParts(folder.path().string());
    EXPECT_FALSE(fs::exists(folder.file(".tavrin-1-0.part")));
    EXPECT_TRUE(fs::exists(folder.file(".tavrin-2-0.part")));
    EXPECT_TRUE(fs::exists(folder.file(".other.part")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
    AtomicFile::removeAbandonedParts(folder.file("none"));
}

// As a shared folder shows the part of another machine: its name has another mark, and a lock if locks get through.
TEST(AtomicFileParts, OfAnotherMachineStayWhileTheyMayBeInUse) {
    test::TempFolder folder;
    const std::string part = folder.file(".tavrin-0123456789abcdef-fedcba9876543210-0.part");
    const auto age = [&part](int hours) {
        fs::last_write_time(part, fs::file_time_type::clock::now() - std::chrono::hours(hours));
        AtomicFile::removeAbandonedParts(fs::path(part).parent_path().string());
        return fs::exists(part);
    };
    test::writeFile(part, "x");
    EXPECT_TRUE(age(0));
    const int handle = ::open(part.c_str(), O_RDWR);
    ASSERT_EQ(::flock(handle, LOCK_EX), 0);
    EXPECT_TRUE(age(100));
    ::close(handle);
    EXPECT_FALSE(age(100));
}

}  // namespace
}  // namespace tavrin

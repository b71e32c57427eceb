#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "core/raster/Rows.h"

namespace tavrin {
namespace {

TEST(Rows, EveryRowRunsOnceAndItsWritesAreSeenAfterwards) {
    for (const int rows : {0, 1, 7, 1000}) {
        for (const int grain : {0, 1, 16, 5000}) {
            std::vector<int> runs(static_cast<std::size_t>(rows), 0);
            EXPECT_TRUE(runRows({}, rows, grain, [&](int y) { ++runs[static_cast<std::size_t>(y)]; }));
            EXPECT_EQ(runs, std::vector<int>(static_cast<std::size_t>(rows), 1)) << rows << " rows, grain " << grain;
        }
    }
}

TEST(Rows, RangesAreNeverLongerThanTheGrain) {
    std::mutex mutex;
    std::vector<int> covered(100, 0);
    EXPECT_TRUE(runRowRanges({}, 100, 9, [&](int first, int last) {
        const std::lock_guard lock(mutex);
        EXPECT_LE(last - first, 9);
        for (int y = first; y < last; ++y)
            ++covered[static_cast<std::size_t>(y)];
    }));
    EXPECT_EQ(covered, std::vector<int>(100, 1));
}

TEST(Rows, ASupersededRunStopsAndSaysSo) {
    std::atomic<int> done = 0;
    RunContext context;
    context.superseded = [&] { return done >= 10; };
    EXPECT_FALSE(runRows(context, 100000, 1, [&](int) { ++done; }));
    EXPECT_LT(done, 100);  // ten rows and what the other cores had begun
    context.superseded = [] { return true; };
    EXPECT_FALSE(runRows(context, 10, 1, [](int) { FAIL() << "a row ran in a superseded run"; }));
}

TEST(Rows, ProgressComesInOrderOnTheCallersThreadWithItsRowsFinished) {
    std::vector<int> picture(95, 0);
    RunContext context;
    int next = 0;
    context.progressRows = 10;
    context.progress = [&, caller = std::this_thread::get_id()](int first, int last) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_EQ(first, next);
        for (int y = first; y < last; ++y)
            EXPECT_EQ(picture[static_cast<std::size_t>(y)], y + 1);
        next = last;
    };
    EXPECT_TRUE(runRows(context, 95, 2, [&](int y) { picture[static_cast<std::size_t>(y)] = y + 1; }));
    EXPECT_EQ(next, 95);
}

TEST(Rows, ThreadLimitHoldsWhileItLives) {
    const ThreadLimit one(1);
    std::mutex mutex;
    std::set<std::thread::id> threads;
    EXPECT_TRUE(runRows({}, 500, 1, [&](int) {
        const std::lock_guard lock(mutex);
        threads.insert(std::this_thread::get_id());
    }));
    EXPECT_EQ(threads.size(), 1U);
}

}  // namespace
}  // namespace tavrin

// A thread that polls.
#include <atomic>
#include <gtest/gtest.h>

#include "core/Worker.h"

namespace tavrin {
namespace {

using namespace std::chrono_literals;
using Next = Worker::Next;

bool comes(const std::function<bool()>& what) {
    const auto end = Worker::Clock::now() + 20s;
    while (!what() && Worker::Clock::now() < end)
        std::this_thread::sleep_for(1ms);
    return what();
}

TEST(WorkerTest, StepsAtOnceWhileThereIsMoreAndPausesThen) {
    std::atomic<int> steps = 0;
    Worker worker([&] { return ++steps < 3 ? Next::atOnce : Next::pause; }, 1h);
    EXPECT_TRUE(worker.start());
    EXPECT_TRUE(comes([&] { return steps == 3; }));
    EXPECT_FALSE(worker.start()) << "it runs";
    worker.wake();
    EXPECT_TRUE(comes([&] { return steps == 4; })) << "the pause is cut short";
    const auto before = worker.lastSign();
    worker.wake();
    EXPECT_TRUE(comes([&] { return worker.lastSign() > before; }));
}

TEST(WorkerTest, AStopFinishesTheStepInHandAndCutsThePauseShort) {
    std::atomic<bool> isIn = false, mayGo = false, isDone = false;
    std::atomic<int> ends = 0;
    Worker worker(
        [&] {
            isIn = true;
            while (!mayGo)
                std::this_thread::sleep_for(1ms);
            isDone = true;
            return Next::pause;
        },
        1h, [&] { ++ends; });
    worker.start();
    EXPECT_TRUE(comes([&] { return isIn.load(); }));
    worker.stop();
    EXPECT_TRUE(worker.isRunning()) << "the step is not done";
    mayGo = true;
    worker.join();
    EXPECT_TRUE(isDone);
    EXPECT_FALSE(worker.isRunning());
    EXPECT_EQ(ends, 1);

    isDone = false;
    EXPECT_TRUE(worker.start()) << "once more";
    EXPECT_TRUE(comes([&] { return isDone.load(); }));
    worker.stop();  // in the pause of an hour
    worker.join();
    EXPECT_EQ(ends, 2);
}

}  // namespace
}  // namespace tavrin

// The photo booth: a press, and a look into a folder in which nearly everything is done.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "booth/Ticket.h"
#include "booth/TicketList.h"
#include "session/Sources.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

/// A folder of the benchmark's own.
struct Folder {
    Folder() { fs::create_directories(path); }
    ~Folder() { fs::remove_all(path); }
    static inline int made = 0;  // each has a name that none had before
    const fs::path path =
        fs::temp_directory_path() / ("tavrin-bench-" + std::to_string(::getpid()) + "-" + std::to_string(++made));
};

void BM_Press(benchmark::State& state) {
    const Folder folder;
    SystemInfo info;
    setForeground(info, "/portraits/anna.jpg");
    for (auto run : state) {
        const Press press = writeTicket(info, folder.path.string());
        if (!press.isDone()) state.SkipWithError(press.problem.c_str());
    }
}

void BM_LookOver10000DoneTickets(benchmark::State& state) {
    const Folder folder;
    for (int i = 0; i < 10'000; ++i) {
        const std::string stem = (folder.path / ("anna_" + std::to_string(53'000'000'000 + i))).string();
        std::ofstream(stem + ".qlx") << "x";
        std::ofstream(stem + ".jpg") << "x";
    }
    const BoothFolder booth(folder.path.string());
    for (auto run : state) {
        const TicketList list = listTickets(booth);
        if (list.photos != 10'000 || !list.pending.empty()) state.SkipWithError("the look is wrong");
    }
}

BENCHMARK(BM_Press)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_LookOver10000DoneTickets)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tavrin

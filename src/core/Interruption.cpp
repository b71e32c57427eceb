#include "core/Interruption.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <set>
#include <thread>

namespace tavrin {

namespace {

struct State {
    std::shared_mutex steps;  ///< shared: a step is under way; held alone: the program ends
    std::mutex mutex;         ///< of what follows
    std::multiset<std::string> leftovers;
    std::function<void()> stop;
};

/// Never destroyed: the waiting thread outlives the objects of the process.
State& state() {
    static State& state = *new State;
    return state;
}

[[noreturn]] void dieOf(int signal) {
    std::signal(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
    std::raise(signal);
    std::_Exit(128 + signal);  // the first process of a container survives its own signals
}

[[noreturn]] void endBy(int signal) {
    using namespace std::chrono_literals;
    // From here on no step begins any more; nobody gets this lock back.
    for (int i = 0; i < 200 && !state().steps.try_lock(); ++i)
        std::this_thread::sleep_for(10ms);
    std::lock_guard lock(state().mutex);
    for (const std::string& path : state().leftovers) {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    dieOf(signal);
}

void waitForSignals(sigset_t signals) {
    for (;;) {
        int signal = 0;
        if (sigwait(&signals, &signal) != 0) continue;
        std::function<void()> stop;
        {
            std::lock_guard lock(state().mutex);
            stop.swap(state().stop);
        }
        if (!stop) endBy(signal);
        stop();
    }
}

}  // namespace

void Interruption::watch() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        const bool ignored = sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
        // A shell lets the commands in its background ignore SIGINT, yet whoever sends it to one means it.
        if (ignored && signal == SIGHUP) continue;
        std::signal(signal, SIG_DFL);
        sigaddset(&signals, signal);
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);  // all threads to come inherit this
    state();
    std::thread(waitForSignals, signals).detach();
}

void Interruption::stopFirst(std::function<void()> stop) {
    std::lock_guard lock(state().mutex);
    state().stop = std::move(stop);
}

Interruption::Hold::Hold() : lock_(state().steps) {}

Leftover::Leftover(std::string path) : path_(std::move(path)) {
    std::lock_guard lock(state().mutex);
    state().leftovers.insert(path_);
}

Leftover::~Leftover() {
    std::lock_guard lock(state().mutex);
    state().leftovers.extract(path_);
}

}  // namespace tavrin

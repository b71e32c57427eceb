#include "apps/desktop/EndSignals.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};
int ends[2] = {-1, -1};  // a pipe: nearly nothing else may be called while a signal is handled

void noteSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(ends[1], &byte, 1);
}

int openPipe() {
    return ::pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0 ? ends[0] : -1;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) : notifier_(openPipe(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [end = std::move(end)] {
        char bytes[16];
        [[maybe_unused]] const auto taken = ::read(ends[0], bytes, sizeof bytes);
        end();
    });
    for (const int signal : kSignals) {
        struct sigaction action {};
        const bool ignored = sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
        if (ignored && signal == SIGHUP) continue;  // nohup
        action = {};
        action.sa_handler = noteSignal;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : kSignals)
        std::signal(signal, SIG_IGN);  // the program ends already
}

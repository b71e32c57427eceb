#pragma once

#include <csignal>
#include <filesystem>
#include <string>
#include <sys/prctl.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QProcess>

#ifdef __linux__
#include <linux/capability.h>
#endif

namespace tavrin::test {

/// Names of what a folder holds that begin and end like this, hidden ones too.
inline std::vector<std::string> namesLike(const std::string& folder, const std::string& begin,
                                          const std::string& end = "") {
    std::vector<std::string> names;
    std::error_code gone;
    for (std::filesystem::directory_iterator entry(folder, gone), last; !gone && entry != last;
         entry.increment(gone)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(begin) && name.ends_with(end)) names.push_back(name);
    }
    return names;
}

/// Pictures that are being written into a folder, or were left there.
inline std::vector<std::string> partsIn(const std::string& folder) {
    return namesLike(folder, ".tavrin-", ".part");
}

/// Waits for something for at most half a minute.
template <class Condition>
bool waitUntil(const Condition& condition) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > limit) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

inline void sendSignal(const QProcess& process, int signal) {
    ::kill(static_cast<pid_t>(process.processId()), signal);
}

/// Starts programs for whom permissions hold although the tests are root's. Others need no change.
inline void takeRootsPower(QProcess& process) {
    process.setChildProcessModifier([] {
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
    });
}

/// Whether permissions hold for such a program here: not where the tests are root's and may not give it up.
inline bool mayNotRead(const std::string& path) {
    QProcess copy;
    takeRootsPower(copy);
    copy.start("cp", {"-r", QString::fromStdString(path), QString::fromStdString(path) + ".copy"});
    const bool failed = copy.waitForFinished() && copy.exitCode() != 0;
    std::error_code ignored;
    std::filesystem::remove_all(path + ".copy", ignored);
    return failed;
}

}  // namespace tavrin::test

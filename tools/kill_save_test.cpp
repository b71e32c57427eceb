// Kills a program in the middle of its saves, over and over, and looks whether the file can still be read whole:
// kill_save_test [KILLS] [FOLDER]

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "formats/ImageState.h"

namespace {

namespace fs = std::filesystem;
using tavrin::SystemInfo;

constexpr int kItems = 20;

/// A state of which every part tells which save it comes from, so that a file mixed of two saves shows.
void mark(SystemInfo& info, int number) {
    info.iBlendEdges = number;
    info.oFontObject.resize(kItems);
    for (tavrin::FontObject& item : info.oFontObject)
        item.sText = "save " + std::to_string(number);
    info.oReflectionTexture->iTextureType = number;
}

bool isWhole(const SystemInfo& info) {
    const int number = info.iBlendEdges;
    for (const tavrin::FontObject& item : info.oFontObject) {
        if (item.sText.load() != "save " + std::to_string(number)) return false;
    }
    return info.oFontObject.size() == kItems && info.oReflectionTexture->iTextureType == number;
}

/// Saves without end, and tells through the pipe the number of each save that was reported as done.
[[noreturn]] void saveForEver(const std::string& path, int firstNumber, int pipe) {
    SystemInfo info;
    for (int number = firstNumber;; ++number) {
        mark(info, number);
        if (!tavrin::saveImageStateToXML(info, path).empty()) std::_Exit(1);
        if (write(pipe, &number, sizeof number) != sizeof number) std::_Exit(1);
    }
}

struct Tally {
    int readWhole = 0, setAside = 0, stopped = 0, failed = 0;
};

/// One kill: true when the file was read whole afterwards and no save that was reported as done is lost.
bool killOnce(const std::string& path, int& number, double seconds, Tally& tally) {
    int ends[2];
    if (pipe(ends) != 0) return false;
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        saveForEver(path, number + 1, ends[1]);
    }
    close(ends[1]);
    int done = number;
    if (read(ends[0], &done, sizeof done) != sizeof done) return false;  // it is well under way
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (int next = 0; read(ends[0], &next, sizeof next) == sizeof next;)
        done = next;
    close(ends[0]);

    tally.setAside += !fs::exists(path);
    tally.stopped += fs::exists(path + "tmp") || fs::exists(path + ".set-aside");
    SystemInfo info;
    const std::string problem = tavrin::LoadImageStateFromXML(info, path, tavrin::kLoadAll);
    if (!problem.empty()) std::fprintf(stderr, "%s\n", problem.c_str());
    number = info.iBlendEdges;
    return problem.empty() && isWhole(info) && number >= done;
}

}  // namespace

int main(int count, char** arguments) {
    const int kills = count > 1 ? std::atoi(arguments[1]) : 500;
    std::random_device device;
    const fs::path folder = (count > 2 ? fs::path(arguments[2]) : fs::temp_directory_path()) /
                            ("tavrin-kill-" + std::to_string(device()));
    fs::create_directory(folder);
    const std::string path = (folder / "state.qlx").string();
    std::mt19937 random(device());
    std::uniform_real_distribution<double> moment(0.0, 0.02);
    Tally tally;
    int number = 0;
    for (int i = 0; i < kills; ++i) {
        if (killOnce(path, number, moment(random), tally)) {
            ++tally.readWhole;
        } else {
            ++tally.failed;
        }
    }
    std::printf("%d kills during %d saves: %d times the file was read whole, %d times not.\n", kills, number,
                tally.readWhole, tally.failed);
    std::printf("A save was cut short %d times; in %d of them only the old file was there, set aside.\n",
                tally.stopped, tally.setAside);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    return tally.failed == 0 && kills > 0 ? 0 : 1;
}

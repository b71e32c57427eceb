// Kills a batch that watches a folder, over and over at random moments, while portraits arrive, and looks whether
// every picture is there in the end, once and whole: kill_batch_test TAVRIN_CLI [KILLS] [FOLDER]

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <signal.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QImage>

#include "core/image/ImageReader.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kSide = 48;

std::string readBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A coloured square before a green screen, another one for each number.
QImage portrait(int number) {
    QImage image(kSide, kSide, QImage::Format_RGB888);
    image.fill(QColor(40, 160, 60));
    const QColor colour(150 + number % 100, 20 + number / 100 * 11 % 100, 60 + number % 7 * 9);
    for (int y = 12; y < 36; ++y) {
        for (int x = 12; x < 36; ++x)
            image.setPixelColor(x, y, colour);
    }
    return image;
}

/// Portraits come in all the ways in which files come: written in one go, slowly, and moved into place.
void bring(const fs::path& folder, int number, std::mt19937& random) {
    const std::string name = "portrait" + std::to_string(number) + ".png";
    const fs::path ready = folder.parent_path() / name;
    portrait(number).save(QString::fromStdString(ready.string()), "PNG");
    const std::string bytes = readBytes(ready);
    switch (random() % 3) {
        case 0:
            fs::rename(ready, folder / name);
            return;
        case 1:
            fs::copy_file(ready, folder / name);
            break;
        default: {
            std::ofstream slow(folder / name, std::ios::binary);
            slow << bytes.substr(0, bytes.size() / 2) << std::flush;
            std::this_thread::sleep_for(std::chrono::milliseconds(random() % 300));
            slow << bytes.substr(bytes.size() / 2);
        }
    }
    fs::remove(ready);
}

struct Setting {
    std::string cli;
    fs::path folder;
    fs::path portraits() const { return folder / "portraits"; }

    pid_t start(const fs::path& out, bool watch) const {
        const pid_t child = fork();
        if (child != 0) return child;
        std::vector<std::string> arguments = {cli,
                                              "batch",
                                              "--bare",
                                              "--foregrounds",
                                              portraits().string(),
                                              "--backgrounds",
                                              (folder / "sea.png").string(),
                                              "--out",
                                              out.string(),
                                              "--style",
                                              "number",
                                              "--type",
                                              "png",
                                              "--inches",
                                              "1x1",
                                              "--dpi",
                                              "500"};
        if (watch) arguments.push_back("--watch");
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        const std::string log = (folder / "log").string();
        if (!std::freopen("/dev/null", "w", stdout) || !std::freopen(log.c_str(), "a", stderr)) std::_Exit(1);
        execv(cli.c_str(), pointers.data());
        std::_Exit(1);
    }
};

int waitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The visible pictures of a folder by name.
std::map<std::string, std::string> picturesIn(const fs::path& folder) {
    std::map<std::string, std::string> pictures;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name[0] != '.') pictures[name] = readBytes(entry->path());
    }
    return pictures;
}

struct Tally {
    int kills = 0, pictures = 0, broken = 0, changed = 0, writing = 0;
};

/// Names of the pictures that were being written; the next life removes them.
std::set<std::string> partsIn(const fs::path& folder) {
    std::set<std::string> parts;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing)) {
        if (entry.path().extension() == ".part") parts.insert(entry.path().filename().string());
    }
    return parts;
}

/// One life of the watching batch. What stood before must stand as it was, and everything that stands must be whole.
void liveAndDie(const Setting& setting, double seconds, std::map<std::string, std::string>& known, Tally& tally) {
    const fs::path out = setting.folder / "out";
    const std::set<std::string> before = partsIn(out);
    const pid_t child = setting.start(out, true);
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    kill(child, SIGKILL);
    waitFor(child);
    ++tally.kills;
    const std::set<std::string> after = partsIn(out);
    tally.writing += !std::includes(before.begin(), before.end(), after.begin(), after.end());
    for (auto& [name, bytes] : picturesIn(out)) {
        const auto earlier = known.find(name);
        if (earlier == known.end()) {
            if (!tavrin::readPicture((out / name).string()).error.empty()) ++tally.broken;
            known[name] = std::move(bytes);
        } else if (earlier->second != bytes) {
            ++tally.changed;
        }
    }
}

/// Every picture of a run without kills stands in the other folder exactly once, and nothing else does.
bool isEqual(const fs::path& expected, const fs::path& made) {
    std::map<std::string, int> open;
    for (const auto& [name, bytes] : picturesIn(expected))
        ++open[bytes];
    for (const auto& [name, bytes] : picturesIn(made))
        --open[bytes];
    int missing = 0, tooMany = 0;
    for (const auto& [bytes, count] : open) {
        missing += count > 0 ? count : 0;
        tooMany -= count < 0 ? count : 0;
    }
    if (missing > 0 || tooMany > 0) std::printf("%d pictures are missing, %d are too many\n", missing, tooMany);
    return missing == 0 && tooMany == 0;
}

bool test(const Setting& setting, int kills) {
    std::random_device device;
    std::mt19937 random(device());
    fs::create_directories(setting.portraits());
    portrait(5000).save(QString::fromStdString((setting.folder / "sea.png").string()), "PNG");

    std::atomic<bool> ended = false;
    int brought = 0;
    std::thread feeder([&, seed = random()] {
        std::mt19937 own(seed);
        while (!ended) {
            bring(setting.portraits(), brought++, own);
            std::this_thread::sleep_for(std::chrono::milliseconds(own() % 600));
        }
    });
    Tally tally;
    std::map<std::string, std::string> known;
    // Lives are as long as this machine needs at this moment to get something done in most of them.
    double longest = 1.5;
    while (tally.kills < kills) {
        const std::size_t before = known.size();
        liveAndDie(setting, std::uniform_real_distribution<double>(0.02, longest)(random), known, tally);
        longest = known.size() == before ? std::min(longest * 1.2, 20.0) : std::max(longest * 0.9, 0.5);
    }
    ended = true;
    feeder.join();

    tally.pictures = static_cast<int>(known.size());
    const bool finished = waitFor(setting.start(setting.folder / "out", false)) == 0 &&
                          waitFor(setting.start(setting.folder / "expected", false)) == 0;
    const bool equal = finished && isEqual(setting.folder / "expected", setting.folder / "out");
    const std::size_t left = partsIn(setting.folder / "out").size();
    std::printf(
        "%d kills while %d portraits arrived: %d pictures stood at the last kill, %d of them not whole, %d changed "
        "afterwards.\n",
        tally.kills, brought, tally.pictures, tally.broken, tally.changed);
    std::printf(
        "A run to the end then had %s, and %zu parts were left. Pictures were being written in %d of the kills.\n",
        equal ? "every picture once" : "NOT every picture once", left, tally.writing);
    return equal && left == 0 && tally.broken == 0 && tally.changed == 0 && tally.pictures > 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "Usage: kill_batch_test TAVRIN_CLI [KILLS] [FOLDER]\n");
        return 2;
    }
    const int kills = count > 2 ? std::atoi(arguments[2]) : 300;
    std::random_device device;
    const fs::path folder = (count > 3 ? fs::path(arguments[3]) : fs::temp_directory_path()) /
                            ("tavrin-kill-batch-" + std::to_string(device()));
    const bool good = kills > 0 && test({fs::absolute(arguments[1]).string(), folder}, kills);
    std::error_code ignored;
    if (good) fs::remove_all(folder, ignored);
    if (!good) std::printf("What was found lies in %s.\n", folder.c_str());
    return good ? 0 : 1;
}

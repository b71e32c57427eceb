// A whole batch beside what nobody can leave out of it: batch_bench FOLDER [PICTURES [only-portraits]]
//
// Portraits of 12 megapixels (the sample, enlarged, each lit a little differently) become JPEGs of 8 x 10 inches at
// 300 dots an inch. The floor is decoding each portrait and encoding a picture of the output's size, one after the
// other and on all cores at once. The portraits are kept in FOLDER for the next time.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QImage>
#include <QPainter>

#include "core/RandomSource.h"
#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "core/raster/Rows.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kPortraitWidth = 3024, kPortraitHeight = 4032, kOutWidth = 2400, kOutHeight = 3000;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double load() {
    double average[1] = {0.0};
    return getloadavg(average, 1) == 1 ? average[0] : -1.0;
}

/// The noise of a camera's chip, without which a portrait is decoded too quickly.
QImage noise() {
    QImage tile(kPortraitWidth, 256, QImage::Format_RGB32);
    tavrin::RandomSource random(7);
    for (int y = 0; y < tile.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(tile.scanLine(y));
        for (int x = 0; x < tile.width(); ++x)
            row[x] = qRgb(static_cast<int>(random.below(18)), static_cast<int>(random.below(18)),
                          static_cast<int>(random.below(18)));
    }
    return tile;
}

/// Makes those that are missing.
std::vector<std::string> portraits(const fs::path& folder, int count) {
    fs::create_directories(folder);
    std::vector<std::string> paths;
    QImage large;
    const QImage chip = noise();
    for (int i = 0; i < count; ++i) {
        paths.push_back((folder / ("portrait" + std::to_string(10000 + i) + ".jpg")).string());
        if (fs::exists(paths.back())) continue;
        if (large.isNull()) {
            large = QImage(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg")
                        .scaled(kPortraitWidth, kPortraitHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_RGB32);
        }
        QImage lit = large;
        QPainter painter(&lit);
        painter.fillRect(lit.rect(), QColor(255, 250, 240, i % 40));
        painter.setCompositionMode(QPainter::CompositionMode_Plus);
        for (int y = 0; y < lit.height(); y += chip.height())
            painter.drawImage(0, y, chip);
        painter.end();
        lit.save(QString::fromStdString(paths.back() + ".new"), "JPEG", 92);
        fs::rename(paths.back() + ".new", paths.back());
    }
    return paths;
}

struct Cost {
    double seconds = 0.0, cpuSeconds = 0.0, megabytes = 0.0;
};

double cpuOf(const rusage& used) {
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double ownCpu() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    return cpuOf(used);
}

/// What decoding all portraits and encoding as many pictures takes.
Cost floorOf(const std::vector<std::string>& paths, const QImage& picture, const fs::path& out, int threads) {
    const tavrin::ThreadLimit limit(threads);
    const double cpu = ownCpu();
    const Clock::time_point start = Clock::now();
    tavrin::runRows({}, static_cast<int>(paths.size()), 1, [&](int i) {
        if (!tavrin::readPicture(paths[static_cast<std::size_t>(i)]).error.empty()) std::abort();
        const std::string path = (out / ("floor" + std::to_string(i) + ".jpg")).string();
        const std::string problem =
            tavrin::writePicture(path, {picture.constBits(), kOutWidth, kOutHeight, tavrin::kJpegFile, 300, {}});
        if (!problem.empty()) std::abort();
    });
    return {secondsSince(start), ownCpu() - cpu, 0.0};
}

/// A whole process of the command line.
/// @param more words that say what the pictures start from, and where the portraits stand
Cost runBatch(const fs::path& folder, const fs::path& out, const char* inHand, const std::vector<const char*>& more) {
    std::fflush(stdout);
    const Clock::time_point start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        if (!std::freopen("/dev/null", "w", stdout)) std::_Exit(1);
        std::vector<const char*> words = {
            "tavrin-cli",   "batch",         "--foregrounds",
            folder.c_str(), "--backgrounds", TAVRIN_SOURCE_DIR "/data/sample/background.jpg",
            "--out",        out.c_str(),     "--inches",
            "8x10",         "--dpi",         "300",
            "--jobs",       inHand};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(nullptr);
        execv(TAVRIN_CLI, const_cast<char**>(words.data()));
        std::_Exit(1);
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::fprintf(stderr, "The batch failed.\n");
    return {secondsSince(start), cpuOf(used), static_cast<double>(used.ru_maxrss) / 1024.0};
}

void tell(const char* what, const Cost& cost, std::size_t pictures, const Cost& serial, const Cost& parallel) {
    const double count = static_cast<double>(pictures);
    std::printf("%-46s %7.1f s %7.1f a minute, CPU %.3f s a picture", what, cost.seconds, 60.0 * count / cost.seconds,
                cost.cpuSeconds / count);
    if (cost.megabytes > 0.0) {
        std::printf(", %.0f MB; floors times %.2f and %.2f, in CPU %.2f", cost.megabytes,
                    cost.seconds / serial.seconds, cost.seconds / parallel.seconds,
                    cost.cpuSeconds / serial.cpuSeconds);
    }
    std::printf("\n");
    std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "Usage: batch_bench FOLDER [PICTURES [only-portraits]]\n");
        return 2;
    }
    const fs::path folder = arguments[1];
    const int pictures = count > 2 ? std::atoi(arguments[2]) : 200;
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const std::vector<std::string> paths = portraits(folder / ("portraits" + std::to_string(pictures)), pictures);
    const fs::path out = folder / "out";
    if (count > 3) return 0;

    // The batch first: one of its pictures is what the floor encodes.
    std::printf("%d portraits of %d x %d to %d x %d, %d cores, load %.1f at the start\n", pictures, kPortraitWidth,
                kPortraitHeight, kOutWidth, kOutHeight, cores, load());
    const struct {
        const char *what, *inHand;
        std::vector<const char*> more;
    } runs[] = {
        {"batch as it comes, the subject framed", "3", {}},
        {"batch, --place corner", "3", {"--place", "corner"}},
        {"batch, --bare, one picture in hand", "1", {"--bare"}},
        {"batch, --bare, three in hand", "3", {"--bare"}},
    };
    std::vector<Cost> batches;
    for (const auto& run : runs) {
        fs::remove_all(out);
        batches.push_back(runBatch(folder / ("portraits" + std::to_string(pictures)), out, run.inHand, run.more));
    }
    const QImage picture = tavrin::readPicture((out / "portrait10000_background.jpg").string()).pixels;
    if (picture.width() != kOutWidth || picture.height() != kOutHeight) return 1;
    fs::remove_all(out);
    fs::create_directories(out);
    const Cost serial = floorOf(paths, picture, out, 1), parallel = floorOf(paths, picture, out, cores);
    fs::remove_all(out);
    tell("floor: decode and encode, one after the other", serial, paths.size(), serial, parallel);
    tell("floor: decode and encode, on all cores", parallel, paths.size(), serial, parallel);
    for (std::size_t i = 0; i < batches.size(); ++i)
        tell(runs[i].what, batches[i], paths.size(), serial, parallel);
    std::printf("load %.1f at the end\n", load());
    return 0;
}

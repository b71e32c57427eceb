// A whole batch beside what nobody can leave out of it: batch_bench FOLDER [PICTURES]
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

/// Makes those that are missing.
std::vector<std::string> portraits(const fs::path& folder, int count) {
    fs::create_directories(folder);
    std::vector<std::string> paths;
    QImage large;
    for (int i = 0; i < count; ++i) {
        paths.push_back((folder / ("portrait" + std::to_string(10000 + i) + ".jpg")).string());
        if (fs::exists(paths.back())) continue;
        if (large.isNull()) {
            large = QImage(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg")
                        .scaled(kPortraitWidth, kPortraitHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_RGB32);
        }
        QImage lit = large;
        QPainter(&lit).fillRect(lit.rect(), QColor(255, 250, 240, i % 40));
        lit.save(QString::fromStdString(paths.back() + ".new"), "JPEG", 92);
        fs::rename(paths.back() + ".new", paths.back());
    }
    return paths;
}

/// Seconds for decoding all portraits and encoding as many pictures.
double floorOf(const std::vector<std::string>& paths, const QImage& picture, const fs::path& out, int threads) {
    const tavrin::ThreadLimit limit(threads);
    const Clock::time_point start = Clock::now();
    tavrin::runRows({}, static_cast<int>(paths.size()), 1, [&](int i) {
        if (!tavrin::readPicture(paths[static_cast<std::size_t>(i)]).error.empty()) std::abort();
        const std::string path = (out / ("floor" + std::to_string(i) + ".jpg")).string();
        const std::string problem =
            tavrin::writePicture(path, {picture.constBits(), kOutWidth, kOutHeight, tavrin::kJpegFile, 300, {}});
        if (!problem.empty()) std::abort();
    });
    return secondsSince(start);
}

struct Batch {
    double seconds = 0.0, cpuSeconds = 0.0, megabytes = 0.0;
};

/// A whole process of the command line.
Batch runBatch(const fs::path& folder, const fs::path& out, int inHand) {
    const Clock::time_point start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const std::string jobs = std::to_string(inHand);
        if (!std::freopen("/dev/null", "w", stdout)) std::_Exit(1);
        execl(TAVRIN_CLI, "tavrin-cli", "batch", "--foregrounds", folder.c_str(), "--backgrounds",
              TAVRIN_SOURCE_DIR "/data/sample/background.jpg", "--out", out.c_str(), "--inches", "8x10", "--dpi",
              "300", "--jobs", jobs.c_str(), static_cast<char*>(nullptr));
        std::_Exit(1);
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::fprintf(stderr, "The batch failed.\n");
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {secondsSince(start), seconds(used.ru_utime) + seconds(used.ru_stime),
            static_cast<double>(used.ru_maxrss) / 1024.0};
}

void tell(const char* what, double seconds, std::size_t pictures, const std::string& more) {
    std::printf("%-44s %8.1f s %8.1f a minute  %s\n", what, seconds, 60.0 * static_cast<double>(pictures) / seconds,
                more.c_str());
    std::fflush(stdout);
}

std::string ratios(double seconds, double serial, double parallel) {
    char text[120];
    std::snprintf(text, sizeof text, "%.2f x one after the other, %.2f x on all cores", seconds / serial,
                  seconds / parallel);
    return text;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "Usage: batch_bench FOLDER [PICTURES]\n");
        return 2;
    }
    const fs::path folder = arguments[1];
    const int pictures = count > 2 ? std::atoi(arguments[2]) : 200;
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const std::vector<std::string> paths = portraits(folder / ("portraits" + std::to_string(pictures)), pictures);
    const fs::path out = folder / "out";

    // The batch first: one of its pictures is what the floor encodes.
    std::printf("%d portraits of %d x %d to %d x %d, %d cores, load %.1f at the start\n", pictures, kPortraitWidth,
                kPortraitHeight, kOutWidth, kOutHeight, cores, load());
    std::vector<Batch> batches;
    for (const int inHand : {1, 3}) {
        fs::remove_all(out);
        batches.push_back(runBatch(folder / ("portraits" + std::to_string(pictures)), out, inHand));
    }
    const QImage picture = tavrin::readPicture((out / "portrait10000background.jpg").string()).pixels;
    if (picture.width() != kOutWidth || picture.height() != kOutHeight) return 1;
    fs::remove_all(out);
    fs::create_directories(out);
    const double serial = floorOf(paths, picture, out, 1), parallel = floorOf(paths, picture, out, cores);
    fs::remove_all(out);
    tell("floor: decode and encode, one after the other", serial, paths.size(), "");
    tell("floor: decode and encode, on all cores", parallel, paths.size(), "");
    const char* names[] = {"batch, one picture in hand", "batch, three in hand"};
    for (std::size_t i = 0; i < batches.size(); ++i) {
        tell(names[i], batches[i].seconds, paths.size(), ratios(batches[i].seconds, serial, parallel));
        std::printf("    CPU %.2f s a picture, peak memory %.0f MB\n",
                    batches[i].cpuSeconds / static_cast<double>(paths.size()), batches[i].megabytes);
    }
    std::printf("load %.1f at the end\n", load());
    return 0;
}

// What bench/peers needs of Tavrin: pictures read and scaled as Tavrin does, the screen's colour, Tavrin's own key
// with its time, and the errors of anybody's alpha. Each command prints one line of numbers.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <QColorSpace>
#include <QImage>

#include "core/image/ImageReader.h"
#include "core/raster/Rows.h"
#include "core/state/SystemInfo.h"
#include "formats/ImageState.h"
#include "key/Combine.h"
#include "key/screen/BaseGreen.h"
#include "pipeline/CombineThread.h"
#include "quality/AlphaErrors.h"
#include "session/OutputSizes.h"

namespace {

using namespace tavrin;

constexpr int kDpi = 300;

void save(const QImage& image, const std::string& path) {
    if (!image.save(QString::fromStdString(path), "PNG", 90)) throw std::runtime_error(path + ": cannot be written.");
}

QImage read(const std::string& path) {
    const ReadPicture picture = readPicture(path);
    if (picture.pixels.isNull()) throw std::runtime_error(path + ": " + picture.error);
    return picture.pixels;
}

QImage readMatte(const std::string& path) {
    const QImage matte = quality::readTruth(path);
    if (matte.isNull()) throw std::runtime_error(path + ": this is no grey picture.");
    return matte;
}

/// Writes a picture as plain RGB, which every peer reads alike: 8 bits, no profile. A width of 0 keeps its size.
/// @return its size
QSize convert(const std::string& path, const std::string& out, int width, int height) {
    QImage image = read(path).convertToFormat(QImage::Format_RGB888);
    if (width > 0) image = image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setColorSpace({});
    save(image, out);
    return image.size();
}

/// Prints the mean colour of the pixels that are nothing but screen.
void printScreen(const std::string& picture, const std::string& matte) {
    const QImage image = read(picture), truth = readMatte(matte);
    if (image.size() != truth.size()) throw std::runtime_error(picture + ": picture and alpha differ in size.");
    double sums[3] = {}, count = 0.0;
    for (int y = 0; y < truth.height(); ++y) {
        const std::uint8_t *alpha = truth.constScanLine(y), *pixel = image.constScanLine(y);
        for (int x = 0; x < truth.width(); ++x, pixel += 4) {
            if (alpha[x] != 0) continue;
            for (int c = 0; c < 3; ++c)
                sums[c] += pixel[c];
            count += 1.0;
        }
    }
    if (count == 0.0) throw std::runtime_error(matte + ": there is no bare screen.");
    std::printf("%.2f %.2f %.2f\n", sums[0] / count, sums[1] / count, sums[2] / count);
}

struct KeyJob {
    std::string foreground, background, state, alpha, result;
    bool blue = false;
    int threads = 2, repeats = 5;
};

/// A state through which the loop has gone once, at the foreground's own size: layers placed, screen measured.
std::unique_ptr<SystemInfo> prepare(const KeyJob& job, QSize size) {
    auto info = std::make_unique<SystemInfo>();
    const std::string problem = job.state.empty() ? "" : LoadImageStateFromXML(*info, job.state, kLoadAll);
    if (!problem.empty()) throw std::runtime_error(problem);
    info->bUseBlueLogic = job.blue;
    info->pForegroundBitmapInfo->sSourceImageFullPath = job.foreground;
    info->pBackgroundBitmapInfo->sSourceImageFullPath = job.background;
    const double width = size.width(), height = size.height();
    chooseOwnSize(*info, "peers", width / kDpi, height / kDpi, kDpi);
    if (const std::string size = useChosenSize(*info); !size.empty())
        throw std::runtime_error(job.foreground + ": " + size);
    CombineThread(*info).runUntilIdle();
    if (info->pForegroundBitmapInfo->orgImage.size() != size) {
        throw std::runtime_error(job.foreground + ": the picture was not read.");
    }
    info->iNewThreadCount = info->iCurrentThreadCount.load();
    return info;
}

/// Writes what the loop made: the key's alpha as a grey picture, and the composite.
void saveResults(const SystemInfo& info, const KeyJob& job, QSize size) {
    QImage alpha(size, QImage::Format_Grayscale8);
    const std::uint8_t* pixel = info.pBackgroundBitmapInfo->pBitmapData;
    for (int y = 0; y < size.height(); ++y) {
        std::uint8_t* line = alpha.scanLine(y);
        for (int x = 0; x < size.width(); ++x, pixel += 4)
            line[x] = pixel[3];
    }
    if (!job.alpha.empty()) save(alpha, job.alpha);
    if (job.result.empty()) return;
    const std::uint8_t* combined = info.pCombinedBitmapInfo->pBitmapData;
    save(QImage(combined, size.width(), size.height(), QImage::Format_RGBX8888), job.result);
}

/// Seconds: of the clock, and of all threads together.
struct Times {
    double wall, cpu;
};

double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

/// The middle one of the times that `work` takes, after one that is not counted.
template <class Work>
Times middleTimes(int repeats, Work work) {
    std::vector<double> wall, cpu;
    work();
    for (int i = 0; i < repeats; ++i) {
        const auto start = std::chrono::steady_clock::now();
        const std::clock_t used = std::clock();
        work();
        wall.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        cpu.push_back(static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC);
    }
    return {middle(wall), middle(cpu)};
}

/// Prints the measured screen colour, then the times of the key with composite, and of measuring the screen.
void key(const KeyJob& job) {
    const QSize size = read(job.foreground).size();
    const ThreadLimit limit(job.threads);
    const auto info = prepare(job, size);
    saveResults(*info, job, size);
    const Times combine = middleTimes(job.repeats, [&] { Combine(*info, 1, 1); });
    const Times screen = middleTimes(job.repeats, [&] { ComputeBaseGreen(*info, 1, 0); });
    double green = info->baseGreen, blue = info->baseBlue;
    if (job.blue) std::swap(green, blue);  // the state names them by their roles
    std::printf("%.2f %.2f %.2f %.9f %.9f %.9f %.9f\n", static_cast<double>(info->baseRed), green, blue, combine.wall,
                combine.cpu, screen.wall, screen.cpu);
}

/// Prints the mean error of a grey picture as alpha, and that near edges, in percent.
void printErrors(const std::string& matte, const std::string& truthPath) {
    const QImage alpha = readMatte(matte), truth = readMatte(truthPath);
    if (alpha.size() != truth.size()) throw std::runtime_error(matte + ": not of the true alpha's size.");
    QImage rgba(alpha.size(), QImage::Format_RGBA8888);
    rgba.fill(Qt::black);
    rgba.setAlphaChannel(alpha);
    const quality::AlphaErrors errors = quality::measureAlpha(rgba.constBits(), truth);
    std::printf("%.4f %.4f\n", errors.mean * 100.0, errors.edges * 100.0);
}

void run(CLI::App& app, int count, char** arguments) {
    std::string in, out;
    int width = 0, height = 0;
    KeyJob job;
    CLI::App& picture = *app.add_subcommand("picture", "Writes a picture as plain RGB, scaled where a size is given");
    picture.add_option("in", in)->required();
    picture.add_option("out", out)->required();
    picture.add_option("width", width);
    picture.add_option("height", height);
    picture.callback([&] {
        const QSize size = convert(in, out, width, height);
        std::printf("%d %d\n", size.width(), size.height());
    });

    CLI::App& screen = *app.add_subcommand("screen", "The mean colour of a picture where its true alpha is zero");
    screen.add_option("picture", in)->required();
    screen.add_option("truth", out)->required();
    screen.callback([&] { printScreen(in, out); });

    CLI::App& key = *app.add_subcommand("key", "Keys a picture: screen colour, seconds of key, seconds of measuring");
    key.add_option("foreground", job.foreground)->required();
    key.add_option("background", job.background)->required();
    key.add_option("--state", job.state);
    key.add_option("--alpha", job.alpha);
    key.add_option("--result", job.result);
    key.add_option("--threads", job.threads);
    key.add_option("--repeats", job.repeats);
    key.add_flag("--blue", job.blue);
    key.callback([&] { ::key(job); });

    CLI::App& errors = *app.add_subcommand("errors", "The errors of a grey picture as alpha, in percent");
    errors.add_option("alpha", in)->required();
    errors.add_option("truth", out)->required();
    errors.callback([&] { printErrors(in, out); });
    app.require_subcommand(1);
    app.parse(count, arguments);
}

}  // namespace

int main(int count, char** arguments) {
    CLI::App app("Tavrin's part in bench/peers");
    try {
        run(app, count, arguments);
    } catch (const CLI::ParseError& problem) {
        return app.exit(problem);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
    return 0;
}

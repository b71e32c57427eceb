#include "desk/StripFigures.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <QCoreApplication>
#include <QScrollBar>

#include "browse/ThumbnailLoader.h"
#include "pipeline/PreviewMaker.h"
#include "session/Looks.h"
#include "session/SidePictures.h"

namespace tavrin::bench {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kFiles = 10000, kPictures = 8;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

bool waitFor(const std::function<bool()>& condition) {
    const auto start = Clock::now();
    while (!condition() && since(start) < 60000.0) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return condition();
}

/// The sample at 12 megapixels with the noise of a camera's chip, in some lights; each file has many names.
std::string makeFolder(const std::string& folder, const std::string& name, int files) {
    const std::string place = folder + "/" + name;
    fs::create_directories(place);
    const QImage sample = QImage(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg")
                              .scaled(3024, 4032, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_RGB888);
    std::mt19937 random(7);
    for (int i = 0; i < files; ++i) {
        const std::string path = place + "/IMG_" + std::to_string(10000 + i) + ".jpg";
        if (i >= kPictures) {
            fs::create_hard_link(place + "/IMG_" + std::to_string(10000 + i % kPictures) + ".jpg", path);
            continue;
        }
        QImage noisy = sample;
        for (int y = 0; y < noisy.height(); ++y) {
            std::uint8_t* row = noisy.scanLine(y);
            for (int x = 0; x < 3 * noisy.width(); ++x)
                row[x] =
                    static_cast<std::uint8_t>(std::clamp(row[x] + static_cast<int>(random() % 9) - 4 + i, 0, 255));
        }
        noisy.save(QString::fromStdString(path), "JPEG", 92);
    }
    return place;
}

/// Of all threads together: with other programs at work the clock on the wall tells of them.
double processMs() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double megabytes(const char* what) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (double kilobytes = 0.0; word == what && status >> kilobytes) return kilobytes / 1024.0;
    return 0.0;
}

bool pageIsThere(Shelf& shelf) {
    const auto [first, last] = shelf.view()->visibleRows();
    return last >= first && shelf.list().wanted(first, last).empty();
}

void measureRate(const std::string& place, const char* what, int first) {
    constexpr int kCount = 200;
    std::vector<std::string> paths;
    for (int i = first; i < first + kCount; ++i)
        paths.push_back(place + "/IMG_" + std::to_string(10000 + i) + ".jpg");
    std::atomic<int> made = 0;
    ThumbnailLoader loader([&](const std::string&, const Thumbnail&) { ++made; });
    const auto start = Clock::now();
    const double used = processMs();
    loader.want(paths, paths.size(), ThumbnailSize::normal);
    while (made < kCount)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    std::printf("small pictures, %s: %.0f a second, %.1f ms of CPU each\n", what, 1000.0 * kCount / since(start),
                (processMs() - used) / kCount);
}

/// Notes the first paint of a preview that belongs to the picture asked for.
class PreviewWatch : public QObject {
  public:
    explicit PreviewWatch(PictureView& view) : view_(view) { view_.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !view_.isFull()) painted = true;
        return false;
    }
    bool painted = false;

  private:
    PictureView& view_;
};

enum class Ahead { keyed, read, nothing };

void walk(const Desk& desk, const char* what, Ahead ahead) {
    PictureView& view = *desk.window.view();
    Strip& strip = *desk.window.strip();
    view.setFocus();
    std::vector<double> times, used;
    for (int i = 0; i < 20; ++i) {
        const PictureList& list = strip.portraits()->list();
        const int step = ahead == Ahead::nothing ? 50 : 1;  // 50: nobody expected it
        const int next = list.neighbour(step);
        const QString path = QString::fromStdString(list.path(next));
        if (ahead == Ahead::keyed) waitFor([&] { return strip.results().previewOf(list.path(next)).has_value(); });
        if (ahead == Ahead::read) waitFor([&] { return strip.isReadAhead(path); });
        desk.waitForPicture();
        if (ahead == Ahead::read) strip.results().forget();
        PreviewWatch watch(view);
        const auto start = Clock::now();
        const double before = processMs();
        strip.walk(step);
        waitFor([&] { return watch.painted; });
        times.push_back(since(start));
        used.push_back(processMs() - before);
        desk.waitForPicture();
    }
    std::ranges::sort(times);
    std::ranges::sort(used);
    std::printf(
        "next portrait to its preview on the screen, %s: median %.0f ms, longest %.0f ms; "
        "%.0f ms of CPU of all threads\n",
        what, times[times.size() / 2], times.back(), used[used.size() / 2]);
}

/// The portrait that is open over 20 backgrounds, keyed once, beside as many single previews.
void measureBackgrounds(const Desk& desk, const std::string& folder) {
    constexpr int kCount = 20;
    std::vector<std::string> files;
    const QImage sample(TAVRIN_SOURCE_DIR "/data/sample/background.jpg");
    for (int i = 0; i < kCount; ++i) {
        files.push_back(folder + "/background" + std::to_string(i) + ".jpg");
        sample.scaled(512, 512, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            .save(QString::fromStdString(files.back()), "JPEG", 90);
    }
    const Scene scene = sceneOf(desk.info);
    const Recipe present{scene.settings, {}, {}};
    const SideWish wish{present.portrait(), "", 0, false, false};
    for (const bool together : {true, false}) {
        auto maker = std::make_unique<PreviewMaker>(stateFor(scene, wish));
        const auto start = Clock::now();
        const double used = processMs();
        for (const std::string& file : files) {
            if (!together) maker = std::make_unique<PreviewMaker>(stateFor(scene, wish));
            if (maker->over(file).isNull()) std::printf("%s\n", maker->problem().c_str());
        }
        std::printf("%d backgrounds of 512 pixels, %s: %.0f ms, %.0f ms of CPU\n", kCount,
                    together ? "keyed once" : "keyed each time", since(start), processMs() - used);
    }
}

void measurePaste(const Desk& desk, const std::string& place) {
    constexpr int kCount = 300;
    std::vector<std::string> portraits;
    for (int i = 5000; i < 5000 + kCount; ++i)
        portraits.push_back(place + "/IMG_" + std::to_string(10000 + i) + ".jpg");
    const auto start = Clock::now();
    PortraitPaste paste(portraits, "Look", lookOf(desk.info));
    const std::string problems = paste.paste();
    std::printf("a look pasted on %zu portraits: %.0f ms%s\n", paste.changed(), since(start), problems.c_str());
}

}  // namespace

void measureLargePortrait(const Desk& desk, const std::string& folder) {
    fs::create_directories(folder + "/large");
    const QString path = QString::fromStdString(folder + "/large/portrait.jpg");
    QImage(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg")
        .scaled(4000, 6000, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation)
        .copy(0, 0, 4000, 6000)
        .save(path, "JPEG", 92);
    const double before = megabytes("VmRSS:");
    desk.window.openForeground(path);
    desk.waitForPicture();
    std::printf("a portrait of 24 megapixels at %d x %d: memory %.0f MB, %.0f MB before; %.0f MB at most so far\n",
                desk.info.iOutputPixelWidth.load(), desk.info.iOutputPixelHeight.load(), megabytes("VmRSS:"), before,
                megabytes("VmHWM:"));
}

void measureStrip(const Desk& desk, const std::string& folder) {
    const std::string place = makeFolder(folder, "portraits", kFiles);
    Shelf& shelf = *desk.window.strip()->portraits();
    const double before = megabytes("VmRSS:");
    desk.beginEvents();
    const auto start = Clock::now();
    desk.window.openFolder(QString::fromStdString(place));
    waitFor([&] { return shelf.list().rowCount() == kFiles; });
    const double listed = since(start);
    waitFor([&] { return pageIsThere(shelf); });
    std::printf("folder of %d portraits: list %.0f ms, page of small pictures %.0f ms\n", kFiles, listed,
                since(start));
    desk.waitForPicture();
    QScrollBar& bar = *shelf.view()->horizontalScrollBar();
    std::vector<double> pages;
    for (int part = 1; part <= 20; ++part) {
        const auto jump = Clock::now();
        bar.setValue(bar.maximum() / 20 * part);
        waitFor([&] { return pageIsThere(shelf); });
        pages.push_back(since(jump));
    }
    std::ranges::sort(pages);
    std::printf("a page elsewhere in it: median %.0f ms, longest %.0f ms\n", pages[10], pages.back());
    for (int value = 0; value < bar.maximum(); value += bar.maximum() / 2000) {  // through all of it
        bar.setValue(value);
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
    std::printf("longest event of the main thread meanwhile: %.1f ms of CPU; memory %.0f MB, %.0f MB before\n",
                desk.longestEvent(), megabytes("VmRSS:"), before);
    measureRate(place, "made", 3000);
    measureRate(place, "from the cache", 3000);
    walk(desk, "keyed ahead", Ahead::keyed);
    walk(desk, "read ahead", Ahead::read);
    walk(desk, "not read ahead", Ahead::nothing);
    measureBackgrounds(desk, folder);
    measurePaste(desk, place);
}

}  // namespace tavrin::bench

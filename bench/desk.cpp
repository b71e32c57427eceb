// How the window feels, in figures: start, the longest event of the main thread while a slider is dragged, from a
// move to the preview on the screen, painting, tiles, and the strip. desk_bench [SECONDS of dragging [tiles |
// scribble | grid | gallery]]; the last word leaves everything else out.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QThread>

#include "core/BackgroundThread.h"
#include "core/files/Places.h"
#include "core/raster/PixelMemory.h"
#include "desk/BoothFigures.h"
#include "desk/GalleryFigures.h"
#include "desk/Scribble.h"
#include "desk/StripFigures.h"
#include "desk/TileFigures.h"
#include "desk/Times.h"
#include "session/OutputSizes.h"
#include "session/StartUp.h"
#include "ui/bind/Groove.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/Theme.h"

namespace {

using namespace tavrin;
using bench::Clock, bench::since, bench::threadMs;

/// Times every event that is not inside another.
class TimedApplication : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_ > 0) return QApplication::notify(receiver, event);
        const QEvent::Type type = event->type();
        ++depth_;
        const auto start = Clock::now();
        const double used = threadMs();
        const bool done = QApplication::notify(receiver, event);
        longest = std::max(longest, since(start));
        --depth_;
        double& most = longestUsed[type];
        most = std::max(most, threadMs() - used);
        return done;
    }
    double longest = 0.0;
    std::map<int, double> longestUsed;  ///< CPU of the main thread, by type of event

  private:
    int depth_ = 0;
};

/// Notes when the view has painted.
class PaintWatch : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        painted = true;
        ++count;
        return false;
    }
    bool painted = false;
    int count = 0;
};

bool isFinished(const MainWindow& window, const SystemInfo& info) {
    return window.view()->isFull() && info.iCurrentThreadCount > info.iNewThreadCount;
}

void waitForPicture(const MainWindow& window, const SystemInfo& info) {
    for (int rests = 0; rests < 20;) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        rests = isFinished(window, info) ? rests + 1 : 0;
        QThread::usleep(500);
    }
}

void moveTo(QWidget* widget, QEvent::Type type, double x) {
    const QPointF at(x, widget->height() / 2.0);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget->mapToGlobal(at), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// A move every 16 ms, as a screen shows them.
void drag(MainWindow& window, SystemInfo& info, TimedApplication& application, const char* name, double seconds) {
    auto* groove = window.panel()->findChild<Groove*>(name);
    waitForPicture(window, info);
    PaintWatch watch;
    window.view()->installEventFilter(&watch);
    application.longest = 0.0;
    application.longestUsed.clear();
    std::vector<double> toScreen;
    moveTo(groove, QEvent::MouseButtonPress, groove->width() / 2.0);
    const auto start = Clock::now();
    for (int i = 0; since(start) < 1000.0 * seconds; ++i) {
        const auto moved = Clock::now();
        const double share = std::abs(i % 100 - 50) / 50.0;  // there and back
        watch.painted = false;
        moveTo(groove, QEvent::MouseMove, 10.0 + share * (groove->width() - 20.0));
        bool shown = false;
        while (since(moved) < 16.0) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            if (watch.painted && !shown) toScreen.push_back(since(moved));
            shown = shown || watch.painted;
            QThread::usleep(200);
        }
    }
    moveTo(groove, QEvent::MouseButtonRelease, groove->width() / 2.0);
    std::sort(toScreen.begin(), toScreen.end());
    const auto part = [&](double share) {
        return toScreen.empty()
                   ? 0.0
                   : toScreen[static_cast<std::size_t>(share * static_cast<double>(toScreen.size() - 1))];
    };
    std::printf(
        "drag of %s: longest event %.1f ms; %d paints, %zu of them before the next move: median %.1f, 95 of 100 "
        "%.1f ms after theirs\n",
        name, application.longest, watch.count, toScreen.size(), part(0.5), part(0.95));
    for (const auto& [type, used] : application.longestUsed)
        if (used > 1.0) std::printf("    events of type %d: at most %.1f ms of CPU\n", type, used);
}

void paint(MainWindow& window, SystemInfo& info, const char* what) {
    waitForPicture(window, info);
    for (int i = 0; i < 60; ++i) {  // the small picture is made elsewhere
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(2);
    }
    std::vector<double> times, used;
    for (int i = 0; i < 50; ++i) {
        const auto start = Clock::now();
        const double before = threadMs();
        window.view()->repaint();
        used.push_back(threadMs() - before);
        times.push_back(since(start));
    }
    std::sort(times.begin(), times.end());
    std::sort(used.begin(), used.end());
    std::printf("paint of %d x %d, %s: median %.2f ms, %.2f ms of CPU; at most %.2f ms of CPU\n",
                window.view()->width(), window.view()->height(), what, times[times.size() / 2], used[used.size() / 2],
                used.back());
}

}  // namespace

int main(int argc, char** argv) {
    const auto start = Clock::now();
    const double seconds = argc > 1 ? std::atof(argv[1]) : 10.0;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir account;  // nothing of the user's own is read or written
    Places::current().setSharedFolder(account.filePath("shared").toStdString() + "/");
    Places::current().setPicturesFolder(account.filePath("pictures").toStdString() + "/");
    TimedApplication application(argc, argv);
    putMainThreadFirst();
    keepPixelMemory(std::size_t{1} << 28);
    useTheme(Theme::dark);
    const auto info = std::make_unique<SystemInfo>();
    static_cast<void>(startSystem(*info));
    const double prepared = since(start);
    MainWindow window(*info);
    window.show();
    window.view()->repaint();
    const double shown = since(start);
    waitForPicture(window, *info);
    std::printf("start: account %.0f ms, window %.0f ms, sample keyed %.0f ms\n", prepared, shown, since(start));

    chooseSizeByName(*info, "8x10 300 Vert");
    info->StartUpdate();
    window.resize(1600, 1000);
    const bench::Desk desk{window, *info, [&] { waitForPicture(window, *info); },
                           [&] { application.longestUsed.clear(); },
                           [&] {
                               double most = 0.0;
                               for (const auto& [type, used] : application.longestUsed)
                                   most = std::max(most, used);
                               return most;
                           }};
    const std::string only = argc > 2 ? argv[2] : "";
    if (only == "booth") {
        bench::measureBooth(desk, account.path().toStdString());
        return 0;
    }
    if (only == "gallery") {
        bench::measureGallery(desk);
        return 0;
    }
    if (only != "tiles" && only != "grid") {
        for (const int brush : {kPaint, kEraseForeground, kRestoreHair, kBlendEdge})
            bench::measureScribble(desk, brush, seconds);
    }
    if (only == "scribble") return 0;
    const std::string pictures = account.filePath("pictures").toStdString();
    waitForPicture(window, *info);
    bench::measureBackgrounds(*info, account.path().toStdString());
    if (only == "grid") return 0;
    window.binder().run("", [](SettingEditor& editor) { editor.set("iHaveShadow", "5"); });
    bench::measureTiles(desk, [&](const char* name) { drag(window, *info, application, name, seconds); });
    window.binder().undo();
    if (only == "tiles") return 0;

    for (GroupBox* group : window.panel()->groups())
        group->setFolded(false);
    for (const char* name : {"sliderRemoveGreenAreas", "sliderBrightness", "sliderScale"})
        drag(window, *info, application, name, seconds);
    window.view()->setFixedSize(1600, 1000);
    paint(window, *info, "fitted");
    window.commands().action("ShowSplit")->setChecked(true);
    paint(window, *info, "fitted, before and after");
    window.commands().action("ShowSplit")->setChecked(false);
    window.view()->zoomToPixels();
    paint(window, *info, "at 100 percent");
    window.view()->zoomBy(3.0);
    paint(window, *info, "at 300 percent");

    window.view()->setZoomHome();
    qputenv("XDG_CACHE_HOME", account.filePath("cache").toLocal8Bit());
    bench::measureLargePortrait(desk, pictures);
    bench::measureStrip(desk, pictures);
    bench::measureBooth(desk, account.path().toStdString());
    return 0;
}

#include "desk/TileFigures.h"

#include <algorithm>
#include <cstdio>
#include <future>
#include <vector>

#include <QCoreApplication>
#include <QThread>

#include "desk/Times.h"
#include "session/SidePictures.h"
#include "ui/tiles/Tile.h"

namespace tavrin::bench {

namespace {

struct Count {
    int seen = 0, made = 0;
};
Count countTiles(const MainWindow& window) {
    Count count;
    for (const Tile* tile : window.panel()->findChildren<Tile*>()) {
        if (tile->visibleRegion().isEmpty()) continue;
        ++count.seen;
        count.made += !tile->isStale();
    }
    return count;
}

void foldAll(MainWindow& window, bool folded) {
    for (GroupBox* group : window.panel()->groups())
        group->setFolded(folded);
    QCoreApplication::processEvents();
}

void measureOpening(MainWindow& window) {
    double worst = 0.0;
    std::string name;
    for (const PanelPage* page : window.panel()->pages()) {
        foldAll(window, true);
        window.panel()->selectMainTab(page->title().key);
        QCoreApplication::processEvents();
        for (GroupBox* group : page->groups()) {
            const double before = threadMs();
            group->setFolded(false);
            QCoreApplication::processEvents();
            window.panel()->repaint();
            const double used = threadMs() - before;
            if (used > worst) name = group->group().name;
            worst = std::max(worst, used);
            group->setFolded(true);
            QCoreApplication::processEvents();
        }
    }
    std::printf("opening a panel: at most %.1f ms of CPU (%s)\n", worst, name.c_str());
}

void measureUpdate(const Desk& desk) {
    desk.info.oFontObject.resize(200);
    std::vector<double> times;
    for (int i = 0; i < 50; ++i) {
        const double before = threadMs();
        desk.window.binder().UpdateAllUI();
        times.push_back(threadMs() - before);
    }
    std::ranges::sort(times);
    std::printf("UpdateAllUI of %zu rows beside 200 items: median %.1f, at most %.1f ms of CPU\n",
                desk.window.binder().rows().size(), times[25], times.back());
    desk.info.oFontObject.resize(0);
}

}  // namespace

void measureTiles(const Desk& desk, const std::function<void(const char*)>& drag) {
    MainWindow& window = desk.window;
    measureOpening(window);
    measureUpdate(desk);
    window.panel()->setFloating(true);
    window.panel()->resize(460, 9000);
    window.panel()->selectMainTab(1);
    for (const bool folded : {true, false}) {
        foldAll(window, folded);
        desk.waitForPicture();
        const auto start = Clock::now();
        Count count;
        while (since(start) < 60000.0) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            count = countTiles(window);
            if (since(start) > 500.0 && count.made == count.seen) break;
        }
        std::printf("%d of %d tiles in view made in %.0f ms; then\n    ", count.made, count.seen, since(start));
        drag("sliderShadowRightLeft");
    }
    window.panel()->setFloating(false);
    window.panel()->selectMainTab(0);
}

void measureBackgrounds(const SystemInfo& info, const std::string& folder) {
    constexpr int kCount = 20, kSide = 512;
    std::vector<SideWish> wishes;
    const QImage picture = info.pBackgroundBitmapInfo->orgImage;
    for (int i = 0; i <= kCount; ++i) {
        const std::string path = folder + "/background" + std::to_string(i) + ".png";
        picture.scaledToHeight(kSide + i).save(QString::fromStdString(path));
        wishes.push_back({info.pForegroundBitmapInfo->sSourceImageFullPath, path, kSide, false, false, {}});
    }
    std::promise<void> all;
    std::vector<std::pair<double, double>> times;
    const auto start = Clock::now();
    SidePictures pictures([] { return true; },
                          [&](const SidePictures::Made&) {
                              times.emplace_back(since(start), threadMs());
                              if (times.size() == wishes.size()) all.set_value();
                          });
    pictures.setScene(sceneOf(info), 1);
    pictures.want(wishes);
    all.get_future().wait();
    std::printf("over a first background in %.0f ms, %.0f of CPU; over %d more in %.0f ms, %.0f of CPU\n",
                times.front().first, times.front().second, kCount, times.back().first - times.front().first,
                times.back().second - times.front().second);
}

}  // namespace tavrin::bench

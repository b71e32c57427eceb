#include "desk/GalleryFigures.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include <QCoreApplication>

#include "desk/Times.h"

namespace tavrin::bench {

void measureGallery(const Desk& desk) {
    qputenv("TAVRIN_WEB_PAGES", "none");  // the page alone, which no platform without a screen shows
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
        desk.waitForPicture();
        desk.info.bHaveAdjGallery = false;
        desk.beginEvents();
        const auto start = Clock::now();
        desk.window.galleries().showAdjustGallery();
        while (desk.window.galleries().isRunning())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        times.push_back(since(start));
    }
    std::ranges::sort(times);
    std::printf("gallery of twelve adjustments: %.0f to %.0f ms, longest event of the main thread %.1f ms of CPU\n",
                times.front(), times.back(), desk.longestEvent());
}

}  // namespace tavrin::bench

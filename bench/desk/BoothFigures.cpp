#include "desk/BoothFigures.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

#include <QCoreApplication>
#include <QThread>
#include <QToolButton>

#include "desk/Times.h"
#include "ui/booth/EventPage.h"

namespace tavrin::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kGuests = 12;
constexpr double kPatience = 60000.0;  // milliseconds

bool waitUntil(const std::function<bool()>& condition) {
    const auto start = Clock::now();
    while (!condition() && since(start) < kPatience) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QThread::usleep(200);
    }
    return condition();
}

std::string nameOf(int guest) {
    return "guest" + std::to_string(100 + guest) + ".jpg";
}

int picturesIn(const std::string& folder) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(folder))
        count += entry.path().extension() == ".jpg";
    return count;
}

void tell(const char* what, std::vector<double> times) {
    std::ranges::sort(times);
    std::printf("booth, %s: median %.0f ms, at most %.0f\n", what, times[times.size() / 2], times.back());
}

}  // namespace

void measureBooth(const Desk& desk, const std::string& folder) {
    const std::string in = folder + "/event-in", scenes = folder + "/event-scenes", out = folder + "/event-out";
    for (const std::string& one : {in, scenes, out})
        fs::create_directories(one);
    fs::copy(TAVRIN_SOURCE_DIR "/data/sample/background.jpg", scenes);
    QLXInfo& settings = *desk.info.oQLXInfo;
    settings.bAutoQLXSave = true;
    settings.sEventModeForegroundFolder = in;
    settings.sEventModeBackgroundVertFolder = scenes;
    settings.sEventModeOutputFolder = out;
    EventBooth& booth = *desk.window.booth();
    desk.window.panel()->selectMainTab(booth.page()->title().key);
    TapeDeckFileSelector& deck = booth.foregroundSelector()->deck();
    waitUntil([&] { return deck.folder() == in; });
    QThread::msleep(500);  // what lies there before it is watched rests for two seconds
    booth.eventModeStart();
    std::vector<double> toStrip, toFree, toPicture;
    desk.beginEvents();
    for (int guest = 0; guest < kGuests; ++guest) {
        const std::string arriving = folder + "/" + nameOf(guest);
        fs::copy(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg", arriving);
        const auto arrived = Clock::now();
        fs::rename(arriving, in + "/" + nameOf(guest));
        const auto isShown = [&] {
            return std::ranges::any_of(deck.shown(), [&](const DeckSlot& place) {
                return place.path.ends_with(nameOf(guest)) && !place.picture.isNull();
            });
        };
        if (!waitUntil([&] {
                if (!isShown()) deck.tapeDeckButtonPushed(5);
                return isShown();
            }))
            return;
        toStrip.push_back(since(arrived));
        booth.eventImageSelected(QString::fromStdString(in + "/" + nameOf(guest)));
        waitUntil([&] {
            return desk.info.pForegroundBitmapInfo->sSourceImageFullPath.load().ends_with(nameOf(guest)) &&
                   desk.info.iCurrentThreadCount > desk.info.iNewThreadCount;
        });
        bool isFree = false;
        QObject::connect(
            &booth, &EventBooth::pressEnded, &booth, [&] { isFree = true; }, Qt::SingleShotConnection);
        const auto pressed = Clock::now();
        booth.page()->button("eventModeSave")->click();
        waitUntil([&] { return isFree; });
        toFree.push_back(since(pressed));
        if (!waitUntil([&] { return picturesIn(out) == guest + 1; })) return;
        toPicture.push_back(since(pressed));
    }
    tell("a new portrait to its small picture", toStrip);
    tell("a press to free hands", toFree);
    tell("a press to its picture on the disk", toPicture);
    std::printf("booth: longest event of the main thread %.1f ms of CPU\n", desk.longestEvent());
    booth.eventModeStop();
    waitUntil([&] { return !booth.isRunning(); });
    desk.window.panel()->selectMainTab(0);
    desk.waitForPicture();
}

}  // namespace tavrin::bench

#include "desk/Scribble.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QThread>

namespace tavrin::bench {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kMovesInSecond = 60;

template <class Condition>
void waitFor(const Condition& holds) {
    for (const auto from = Clock::now(); !holds() && Clock::now() - from < std::chrono::seconds(20);)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

/// Where the hand is at a move, in parts of the picture: lines to and fro, a little aslant, each beside the last one,
/// so that every move changes pixels. 36 pixels of 2400 a move.
QPointF placeOf(int move) {
    constexpr int kMovesInLine = 40;
    const int line = move / kMovesInLine, along = move % kMovesInLine;
    const double x = static_cast<double>(line % 2 == 0 ? along : kMovesInLine - along) / kMovesInLine;
    return {0.2 + 0.6 * x, 0.1 + 0.04 * line + 0.04 * along / kMovesInLine};
}

/// Notes which moves a paint shows: the editor says how many it has recorded before it hands its rows on.
class Shown : public QObject {
  public:
    /// @param before items that were recorded before the first move
    Shown(MainWindow& window, std::vector<Clock::time_point>& times, std::size_t before)
        : window_(window), times_(times), before_(before) {
        picture_ = window.view()->fullPicture().cacheKey();
        window.view()->installEventFilter(this);
    }
    ~Shown() override { window_.view()->removeEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        const auto recorded = static_cast<std::size_t>(window_.airbrush()->face().recorded);
        const qint64 picture = window_.view()->fullPicture().cacheKey();
        if (event->type() != QEvent::Paint || picture == picture_) return false;
        picture_ = picture;
        for (; shown < std::min(recorded - before_, times_.size()); ++shown)
            lags.push_back(Milliseconds(Clock::now() - times_[shown]).count());
        return false;
    }

    std::size_t shown = 0;
    std::vector<double> lags;

  private:
    MainWindow& window_;
    std::vector<Clock::time_point>& times_;
    std::size_t before_;
    qint64 picture_;
};

}  // namespace

void measureScribble(const Desk& desk, int brush, double seconds) {
    MainWindow& window = desk.window;
    window.panel()->selectMainTab(2);
    const Airbrush& airbrush = *window.airbrush();
    desk.waitForPicture();
    waitFor([&] { return airbrush.isOpen(); });
    window.findChild<QAbstractButton*>(QString("buttonBrush%1").arg(brush))->click();
    waitFor([&] { return airbrush.face().iActiveButton == brush; });
    PictureView* view = window.view();
    const QRectF frame = view->zoom().frame();
    const auto post = [&](QEvent::Type type, const QPointF& place) {
        const QPointF at = frame.topLeft() + QPointF(frame.width() * place.x(), frame.height() * place.y());
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QCoreApplication::postEvent(view, new QMouseEvent(type, at, at, button, held, Qt::NoModifier));
    };
    const int moves = static_cast<int>(seconds * kMovesInSecond);
    std::vector<Clock::time_point> times(static_cast<std::size_t>(moves));
    const int recorded = airbrush.face().recorded;
    post(QEvent::MouseButtonPress, placeOf(0));
    waitFor([&] { return airbrush.face().recorded > recorded; });
    desk.waitForPicture();
    Shown shown(window, times, static_cast<std::size_t>(airbrush.face().recorded));
    desk.beginEvents();
    std::atomic<bool> ended = false;
    std::thread hand([&] {
        auto at = Clock::now();
        for (int i = 0; i < moves; ++i) {
            at += std::chrono::microseconds(1'000'000 / kMovesInSecond);
            std::this_thread::sleep_until(at);
            times[static_cast<std::size_t>(i)] = Clock::now();
            post(QEvent::MouseMove, placeOf(i + 1));
        }
        ended = true;
    });
    while (!ended) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QThread::usleep(200);
    }
    hand.join();
    waitFor([&] { return shown.shown == times.size(); });
    post(QEvent::MouseButtonRelease, placeOf(moves));
    std::vector<double> lags = shown.lags;
    const auto third = lags.size() / 3;
    const auto median = [](std::vector<double> of) {
        std::sort(of.begin(), of.end());
        return of.empty() ? 0.0 : of[of.size() / 2];
    };
    const double first = median({lags.begin(), lags.begin() + static_cast<std::ptrdiff_t>(third)});
    const double last = median({lags.end() - static_cast<std::ptrdiff_t>(third), lags.end()});
    std::sort(lags.begin(), lags.end());
    if (!lags.empty())
        std::printf(
            "scribble with tool %d: %zu of %d moves shown; lag median %.1f, 99 of 100 %.1f, longest %.1f ms; median "
            "of the "
            "first third %.1f, of the last %.1f ms; longest event %.1f ms of CPU\n",
            brush, lags.size(), moves, lags[lags.size() / 2], lags[lags.size() * 99 / 100], lags.back(), first, last,
            desk.longestEvent());
    std::fflush(stdout);
    window.panel()->selectMainTab(0);
    waitFor([&] { return !airbrush.isOpen(); });
}

}  // namespace tavrin::bench

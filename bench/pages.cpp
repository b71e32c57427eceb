// How the pages of results and of portraits feel: 10,000 results to their first page, 1,000 portraits scrolled
// through. pages_bench
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QImage>
#include <QTemporaryDir>
#include <QTimer>
#include <QtWebEngineWidgets/QWebEngineView>

#include "core/files/Places.h"
#include "delivery/pages/ReviewPages.h"
#include "desk/Times.h"
#include "ui/review/ReviewDesk.h"

namespace {

using namespace tavrin;
using bench::Clock, bench::since;
namespace fs = std::filesystem;

constexpr int kResults = 10000, kPortraits = 1000, kPictures = 8, kPatienceMs = 120000;

/// The sample as a picture of a size, in some lights; each file has many names.
void makeFolder(const std::string& place, int files, QSize size) {
    fs::create_directories(place + "/Thumbs");
    const auto nameOf = [](int i) { return "IMG_" + std::to_string(10000 + i) + ".jpg"; };
    const QImage sample(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg");
    for (int i = 0; i < files; ++i) {
        if (i < kPictures) {
            QImage picture =
                sample.scaled(size.width() - i, size.height(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            picture.save(QString::fromStdString(place + "/" + nameOf(i)), "JPEG", 92);
            picture.scaled(200, 250).save(QString::fromStdString(place + "/Thumbs/TQTQ" + nameOf(i)), "JPEG");
            continue;
        }
        for (const char* kind : {"/", "/Thumbs/TQTQ"})
            fs::create_hard_link(place + kind + nameOf(i % kPictures), place + kind + nameOf(i));
    }
}

/// The longest time that the main thread was not at its queue, looked at each millisecond.
class Pulse : public QObject {
  public:
    Pulse() { startTimer(1, Qt::PreciseTimer); }
    void timerEvent(QTimerEvent*) override {
        longest = std::max(longest, since(last_));
        last_ = Clock::now();
    }
    double longest = 0.0;

  private:
    Clock::time_point last_ = Clock::now();
};

/// Lets the program run as it does for a person, without a pause between its events, until the condition holds.
void waitFor(const std::function<bool()>& condition) {
    const auto start = Clock::now();
    while (!condition() && since(start) < kPatienceMs) {
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

QWebEngineView* viewOf(QWidget& window, const char* panel) {
    return window.findChild<QWidget*>(panel)->findChild<QWebEngineView*>();
}

QVariant ask(QWebEngineView* view, const QString& script) {
    QVariant answer;
    bool came = false;
    view->page()->runJavaScript(script, [&](const QVariant& value) {
        answer = value;
        came = true;
    });
    waitFor([&] { return came; });
    return answer;
}

/// Milliseconds since 1970 at which the page first painted something, or 0 as long as it has not.
double paintedAt(QWebEngineView* view) {
    return ask(view,
               "(function(){ var paints=performance.getEntriesByName('first-contentful-paint');"
               " return paints.length ? performance.timeOrigin+paints[0].startTime : 0; })()")
        .toDouble();
}

constexpr const char* kSeenAreThere =
    "Array.from(document.images).filter(i => i.getBoundingClientRect().top < innerHeight).every(i => i.complete)";

void measureResults(ReviewDesk& desk, QWidget& window, const char* what) {
    Pulse pulse;
    const auto begin = static_cast<double>(QDateTime::currentMSecsSinceEpoch());
    const auto start = Clock::now();
    desk.showReviewBatchOutput();
    const auto view = [&] { return viewOf(window, "MyReviewBatchOutputPanel"); };
    double painted = 0.0;
    const auto isPainted = [&] { return view() && (painted = paintedAt(view())) > begin; };
    waitFor(isPainted);
    waitFor([&] { return ask(view(), kSeenAreThere).toBool(); });
    std::printf(
        "%d results, %s: first page painted after %.0f ms, with the pictures that are seen after %.0f; the main "
        "thread "
        "away for %.1f ms at most\n",
        kResults, what, painted - begin, since(start), pulse.longest);
    std::fflush(stdout);
}

/// Pixels are scrolled in every frame that the engine makes, back and forth, as the time between two of them says.
void measureStrip(ReviewDesk& desk, QWidget& window) {
    desk.showCompareFiles();
    const auto view = [&] { return viewOf(window, "MyCompareFilesPanel"); };
    waitFor([&] { return view() && view()->url().isLocalFile() && !view()->page()->isLoading(); });
    waitFor([start = Clock::now()] { return since(start) > 2000; });
    ask(view(),
        "window.gaps=[]; (function(){"
        "var strip=document.getElementById('ImageDiv'), begin=performance.now(), last=begin;"
        "function frame(now){ gaps.push(now-last); strip.scrollLeft+=2.0*(now-last); last=now;"
        " if(now-begin<10000) requestAnimationFrame(frame); else window.isDone=true; }"
        "requestAnimationFrame(frame); })(); 1");
    waitFor([&] { return ask(view(), "window.isDone===true").toBool(); });
    std::vector<double> gaps;
    for (const QVariant& gap : ask(view(), "gaps.slice(1)").toList())
        gaps.push_back(gap.toDouble());
    std::ranges::sort(gaps);
    if (gaps.empty()) return;
    double all = 0.0;
    for (const double gap : gaps)
        all += gap;
    const auto late = gaps.end() - std::ranges::lower_bound(gaps, 50.0);
    std::printf(
        "%d portraits of 12 megapixels, ten seconds at 2000 pixels a second: %.1f frames a second, between two of "
        "them %.0f ms in the middle, %.0f for 99 of 100, %.0f at most; %td over 50 ms; scrolled to %.0f\n",
        kPortraits, 1000.0 * static_cast<double>(gaps.size()) / all, gaps[gaps.size() / 2],
        gaps[gaps.size() * 99 / 100], gaps.back(), late,
        ask(view(), "document.getElementById('ImageDiv').scrollLeft").toDouble());
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    if (!qEnvironmentVariableIsSet("QTWEBENGINE_CHROMIUM_FLAGS"))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu --disable-dev-shm-usage");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("TavrinBench");
    const QTemporaryDir account;
    const std::string folder = account.path().toStdString();
    Places::current().setSharedFolder(folder + "/data/Tavrin/");
    makeFolder(folder + "/out", kResults, {2400, 3000});
    makeFolder(folder + "/shots", kPortraits, {3024, 4032});
    SystemInfo info;
    info.oQLXInfo->sLastBatchOutput = folder + "/out";
    info.oQLXInfo->sForegroundPath = folder + "/shots/IMG_10000.jpg";
    QWidget window;
    window.show();
    ReviewDesk desk(info, &window);
    const auto start = Clock::now();
    const WrittenPages written = setupReviewBatchOutput({folder + "/out", 1600});
    std::printf("all %d pages written in %.0f ms\n", written.count, since(start));
    measureResults(desk, window, "the web engine started for it");
    waitFor([start = Clock::now()] { return since(start) > 3000; });
    measureResults(desk, window, "the web engine there");
    measureStrip(desk, window);
    return 0;
}

#include "apps/cli/BatchConsole.h"

#include <cmath>
#include <cstdio>
#include <filesystem>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/KeyOptions.h"
#include "apps/cli/Output.h"
#include "core/files/NameText.h"

namespace fs = std::filesystem;

namespace tavrin::cli {

namespace {

using Clock = std::chrono::steady_clock;
using Status = JobResult::Status;

std::string nameOf(const std::string& path) {
    return fs::path(path).filename().string();
}

std::string counted(int count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string spanOf(double seconds) {
    const auto whole = static_cast<long>(std::lround(seconds));
    if (whole < 60) return std::to_string(whole) + " s";
    if (whole < 3600) return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
    return std::to_string(whole / 3600) + " h " + std::to_string(whole % 3600 / 60) + " min";
}

/// Slow work is counted by the hour.
std::string rateOf(double perSecond) {
    const bool slow = perSecond * 60 < 2;
    return std::to_string(std::lround(perSecond * (slow ? 3600 : 60))) + (slow ? " an hour" : " a minute");
}

QJsonObject sumsOf(const BatchCounts& counts) {
    return {{"done", counts.done}, {"skipped", counts.skipped}, {"failed", counts.failed}, {"left", counts.left()}};
}

}  // namespace

BatchConsole::BatchConsole(Form form, std::string outFolder)
    : form_(form), isTerminal_(Console::isTerminal() && !isQuiet()), outFolder_(std::move(outFolder)) {}

BatchConsole::~BatchConsole() {
    clearBar();
}

void BatchConsole::finished(const JobResult& result, const BatchCounts& counts) {
    clearBar();
    waits_ = false;
    if (form_.json) {
        printJsonLine(describeResult(result, outFolder_));
        flushOutput();
    } else if (form_.dryRun) {
        tellPlan(result);
    }
    const bool failed = result.status == Status::failed || result.status == Status::gone;
    if (failed && !form_.dryRun) complain(relativeTo(outFolder_, result.job.out) + ": " + result.reason);
    for (const PictureWarning& warning : result.warnings)
        warn(relativeTo(outFolder_, result.job.out) + ": " + withAdvice(warning));
    if (result.status == Status::done) {
        constexpr std::size_t kWindow = 40;
        made_.push_back(Clock::now());
        if (made_.size() > kWindow) made_.pop_front();
    }
    if (!form_.dryRun) drawBar(counts);
}

void BatchConsole::tellPlan(const JobResult& result) {
    const BatchJob& job = result.job;
    const std::string out = relativeTo(outFolder_, job.out);
    if (result.status != Status::planned)
        return printLine((result.status == Status::failed ? "fails  " : "skip   ") + out + ": " + result.reason);
    std::string line = "make   " + out + " from " + nameOf(job.foreground);
    if (!job.background.empty()) line += " over " + nameOf(job.background);
    if (!job.state.empty()) line += " with " + nameOf(job.state);
    printLine(line);
}

void BatchConsole::tellEvent(const char* event, QJsonObject facts) const {
    if (!form_.events) return;
    facts["event"] = event;
    facts["at"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    printJson(QJsonDocument(facts), true);
    flushOutput();
}

void BatchConsole::note(const std::string& line) {
    clearBar();
    // Beside the words, since a program that reads the lines may have nobody who reads the rest.
    tellEvent("note", {{"text", textOfName(line)}});
    line.starts_with("warning: ") ? tell(line) : complain(line);
}

void BatchConsole::idle(const BatchCounts& counts) {
#ifdef __GLIBC__
    if (!made_.empty()) malloc_trim(0);
#endif
    made_.clear();
    if (!waits_) tellEvent("waiting", sumsOf(counts));
    waits_ = true;
    if (!isTerminal_) return;
    clearBar();
    std::fprintf(stderr, "Waiting for pictures. %d made, %d failed.", counts.done, counts.failed);
    std::fflush(stderr);
    barShown_ = true;
}

void BatchConsole::stopping() const {
    if (isTerminal_) std::fputs("\r\033[KStopping with the pictures in hand. Once more stops at once.\n", stderr);
}

double BatchConsole::perSecond() const {
    if (made_.empty()) return 0.0;
    // The first picture took its time from the start.
    const bool sinceStart = made_.size() < 5;
    const std::chrono::duration<double> span = Clock::now() - (sinceStart ? start_ : made_.front());
    const double pictures = static_cast<double>(made_.size()) - (sinceStart ? 0.0 : 1.0);
    return span.count() > 0.0 ? pictures / span.count() : 0.0;
}

void BatchConsole::drawBar(const BatchCounts& counts) {
    if (!isTerminal_) return;
    constexpr int kWidth = 24;
    const int ended = counts.jobs - counts.left();
    const int filled = counts.jobs > 0 ? ended * kWidth / counts.jobs : kWidth;
    std::string line = "[" + std::string(static_cast<std::size_t>(filled), '#') +
                       std::string(static_cast<std::size_t>(kWidth - filled), '.') + "] " + std::to_string(ended) +
                       " of " + std::to_string(counts.jobs);
    if (const double rate = perSecond(); rate > 0.0)
        line += ", " + rateOf(rate) + ", " + spanOf(counts.left() / rate) + " left";
    std::fprintf(stderr, "\r\033[K%s", line.c_str());
    std::fflush(stderr);
    barShown_ = true;
}

void BatchConsole::clearBar() {
    if (!barShown_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    barShown_ = false;
}

void BatchConsole::summarize(const BatchCounts& counts, bool watch) {
    clearBar();
    tellEvent("end", sumsOf(counts));
    std::string line;
    if (form_.dryRun) {
        line = counted(counts.jobs - counts.skipped - counts.failed, "picture") + " to make";
    } else {
        line = counted(counts.done, "picture") + " made";
    }
    if (counts.skipped > 0) line += ", " + std::to_string(counts.skipped) + " made before";
    if (counts.failed > 0) line += ", " + std::to_string(counts.failed) + " failed";
    if (!form_.dryRun && !watch && counts.left() > 0) line += ", " + std::to_string(counts.left()) + " left";
    const std::chrono::duration<double> taken = Clock::now() - start_;
    if (!form_.dryRun) line += ", in " + spanOf(taken.count());
    if (counts.done > 1 && !watch) line += " (" + rateOf(counts.done / taken.count()) + ")";
    tell(line + ".");
}

}  // namespace tavrin::cli

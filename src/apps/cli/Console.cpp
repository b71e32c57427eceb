#include "apps/cli/Console.h"

#include <algorithm>
#include <atomic>
#include <cstdio>

#ifdef _WIN32
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

#include "core/Log.h"
#include "core/Printable.h"

namespace tavrin::cli {

void complain(const std::string& line) {
    std::fprintf(stderr, "tavrin-cli: %s\n", printable(line).c_str());
}

namespace {

std::atomic<bool> quiet = false;

/// The alert about a source has words for a window and asks to check permissions, whatever the reason is. Here the
/// reason stands behind the file's name.
std::string plainAlert(const std::string& message, const std::string& reason) {
    static constexpr std::string_view kBefore = "Cound not load file: ", kBehind = ", check your file permissions";
    if (!message.starts_with(kBefore) || !message.ends_with(kBehind)) return message + " (" + reason + ")";
    return message.substr(kBefore.size(), message.size() - kBefore.size() - kBehind.size()) + ": " + reason + ".";
}

}  // namespace

void setQuiet() {
    quiet = true;
    setQuietLog(true);
}

bool isQuiet() {
    return quiet;
}

void warn(const std::string& line) {
    if (!quiet) complain("warning: " + line);
}

void tell(const std::string& line) {
    if (!quiet) complain(line);
}

bool Console::isTerminal(std::FILE* stream) {
    return isatty(fileno(stream)) != 0;
}

Console::Console() : isTerminal_(isTerminal() && !isQuiet()) {}

Console::~Console() {
    clearProgress();
}

void Console::repaint(const PublishedRows& rows) {
    if (!isTerminal_ || rows.height < 1) return;
    if (rows.isPreview()) {
        std::fputs("\r\033[Kpreview done", stderr);
    } else {
        std::fprintf(stderr, "\r\033[K%3d %%", (rows.firstRow + rows.rowCount) * 100 / rows.height);
    }
    std::fflush(stderr);
    lineShown_ = true;
}

void Console::showAlert(const std::string& message, const std::string& reason) {
    clearProgress();
    hadAlert_ = true;
    std::string line = plainAlert(message, reason);
    std::replace(line.begin(), line.end(), '\n', ' ');
    complain(line);
}

void Console::clearProgress() {
    if (!lineShown_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    lineShown_ = false;
}

}  // namespace tavrin::cli

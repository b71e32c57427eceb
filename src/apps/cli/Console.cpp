#include "apps/cli/Console.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

#include "core/Printable.h"

namespace tavrin::cli {

void complain(const std::string& line) {
    std::fprintf(stderr, "tavrin-cli: %s\n", printable(line).c_str());
}

bool Console::isTerminal(std::FILE* stream) {
    return isatty(fileno(stream)) != 0;
}

Console::Console() : isTerminal_(isTerminal()) {}

Console::~Console() {
    clearProgress();
}

void Console::repaint(const PublishedRows& rows) {
    if (!isTerminal_ || rows.height < 1) return;
    if (rows.lowRes) {
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
    std::string line = message;
    for (char& c : line) {
        if (c == '\n') c = ' ';
    }
    complain(line + " (" + reason + ")");
}

void Console::clearProgress() {
    if (!lineShown_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    lineShown_ = false;
}

}  // namespace tavrin::cli

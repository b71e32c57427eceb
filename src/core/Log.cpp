#include "core/Log.h"

#include <atomic>
#include <cstdio>

#include "core/Printable.h"

namespace tavrin {

namespace {
std::atomic<bool> traceOn = false, quiet = false;
std::string errorStart;

// One call a line, so that lines of several threads do not mix. Many hold names of files.
void writeLine(const std::string& line) {
    const std::string text = printable(line) + "\n";
    std::fwrite(text.data(), 1, text.size(), stderr);
}
}  // namespace

void logTrace(const std::string& line) {
    if (traceOn.load(std::memory_order_relaxed)) writeLine(line);
}

void logError(const std::string& line) {
    writeLine(errorStart + line);
}

void logWarning(const std::string& line) {
    if (!quiet.load(std::memory_order_relaxed)) writeLine(errorStart + "warning: " + line);
}

void setQuietLog(bool on) {
    quiet.store(on, std::memory_order_relaxed);
}

void setLogName(const std::string& program) {
    errorStart = program.empty() ? program : program + ": ";
}

void setTraceLog(bool on) {
    traceOn.store(on, std::memory_order_relaxed);
}

}  // namespace tavrin

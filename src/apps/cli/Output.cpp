#include "apps/cli/Output.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

#include <QJsonDocument>

#include "apps/cli/Console.h"
#include "core/Printable.h"

namespace tavrin::cli {

void keepStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) >= 0) continue;
        // Open the wrong way round, so that using it stays an error.
        const int handle = ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        if (handle >= 0 && handle != stream) ::close(handle);
    }
}

void printLine(const std::string& line) {
    std::printf("%s\n", printable(line).c_str());
}

void printJsonLine(const std::string& json) {
    std::printf("%s\n", printableJson(json).c_str());
}

void printJson(const QJsonDocument& document, bool oneLine) {
    const auto form = oneLine ? QJsonDocument::Compact : QJsonDocument::Indented;
    std::string text = document.toJson(form).toStdString();
    if (text.ends_with('\n')) text.pop_back();
    printJsonLine(text);
}

bool flushOutput() {
    static std::atomic<bool> told = false;
    errno = 0;
    const bool failed = std::fflush(stdout) != 0;
    const int reason = failed ? errno : 0;
    if (!failed && std::ferror(stdout) == 0) return true;
    if (!told.exchange(true)) {
        complain(std::string("The standard output could not be written") +
                 (reason != 0 ? std::string(": ") + std::strerror(reason) : "") + ".");
    }
    return false;
}

}  // namespace tavrin::cli

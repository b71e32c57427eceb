#include "delivery/print/CupsWords.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "delivery/words/Says.h"

namespace tavrin {

namespace {

/// By the beginning of the keyword, since makers add to its end.
constexpr std::array<std::pair<std::string_view, Says>, 22> kWords{{
    {"media-empty", Says::outOfPaper},
    {"media-needed", Says::outOfPaper},
    {"media-jam", Says::paperJam},
    {"input-tray-missing", Says::noTray},
    {"cover-open", Says::coverOpen},
    {"door-open", Says::doorOpen},
    {"interlock-open", Says::coverOpen},
    {"toner-empty", Says::outOfToner},
    {"marker-supply-empty", Says::outOfInk},
    {"marker-waste-full", Says::wasteFull},
    {"output-area-full", Says::outputFull},
    {"output-tray-missing", Says::noOutputTray},
    {"offline", Says::switchedOffOrAway},
    {"connecting-to-device", Says::notReachedYet},
    {"timed-out", Says::doesNotAnswer},
    {"shutdown", Says::switchedOff},
    {"paused", Says::stopped},
    {"moving-to-paused", Says::stopped},
    {"printer-stopped", Says::stopped},
    {"stopped-partly", Says::partlyStopped},
    {"job-hold-until", Says::heldForLater},
    {"cups-missing-filter", Says::driverIncomplete},
}};

std::string wordOf(std::string_view keyword, bool warnings) {
    if (!warnings && (keyword.ends_with("-warning") || keyword.ends_with("-report"))) return "";
    for (const auto& [beginning, words] : kWords) {
        if (keyword.starts_with(beginning)) return said(words);
    }
    return "";
}

}  // namespace

std::string wordsOf(const std::string& keywords, bool warnings) {
    std::string all;
    std::string_view rest = keywords;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        const std::string words = wordOf(rest.substr(0, end), warnings);
        if (!words.empty() && all.find(words) == std::string::npos) all += (all.empty() ? "" : ", ") + words;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return all;
}

std::string troubleIn(const std::string& message) {
    // How the programs that speak to printers begin such lines.
    for (const char* beginning :
         {"The printer ", "Unable to ", "Network host ", "Could not ", "Destination ", "No "}) {
        if (message.starts_with(beginning)) return message;
    }
    return "";
}

}  // namespace tavrin

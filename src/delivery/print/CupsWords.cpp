#include "delivery/print/CupsWords.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tavrin {

namespace {

/// By the beginning of the keyword, since makers add to its end.
constexpr std::array<std::pair<std::string_view, const char*>, 22> kWords{{
    {"media-empty", "out of paper"},
    {"media-needed", "out of paper"},
    {"media-jam", "a paper jam"},
    {"input-tray-missing", "the paper tray is missing"},
    {"cover-open", "a cover is open"},
    {"door-open", "a door is open"},
    {"interlock-open", "a cover is open"},
    {"toner-empty", "out of toner"},
    {"marker-supply-empty", "out of ink or ribbon"},
    {"marker-waste-full", "the waste box is full"},
    {"output-area-full", "the output tray is full"},
    {"output-tray-missing", "the output tray is missing"},
    {"offline", "switched off or not connected"},
    {"connecting-to-device", "cannot be reached yet"},
    {"timed-out", "does not answer"},
    {"shutdown", "switched off"},
    {"paused", "stopped"},
    {"moving-to-paused", "stopped"},
    {"printer-stopped", "stopped"},
    {"stopped-partly", "partly stopped"},
    {"job-hold-until", "held back"},
    {"cups-missing-filter", "its driver is incomplete"},
}};

std::string wordOf(std::string_view keyword, bool warnings) {
    if (!warnings && (keyword.ends_with("-warning") || keyword.ends_with("-report"))) return "";
    for (const auto& [beginning, words] : kWords) {
        if (keyword.starts_with(beginning)) return words;
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

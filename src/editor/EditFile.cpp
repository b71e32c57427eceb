#include "editor/EditFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "core/files/FileIdentity.h"
#include "editor/EditRules.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kFirstWord = "tavrin-edits";
constexpr const char* kVersion = "1";
constexpr const char* kFirstLine = "tavrin-edits 1";
constexpr std::int64_t kLargestSide = 100'000;
constexpr double kLeastZoom = 0.001, kMostZoom = 1000.0;
constexpr std::uintmax_t kMostBytes = 64u << 20;

using Words = std::vector<std::string>;

// A whole word as a number of this type.
template <class Number>
std::optional<Number> numberOf(const std::string& word) {
    Number value{};
    const char* end = word.data() + word.size();
    const auto [stopped, code] = std::from_chars(word.data(), end, value);
    if (code != std::errc() || stopped != end) return {};
    return value;
}

Words wordsIn(std::string line) {
    if (const std::size_t comment = line.find('#'); comment != std::string::npos) line.resize(comment);
    std::istringstream text(line);
    return {std::istream_iterator<std::string>(text), {}};
}

/// Reads a file line by line; each says what is wrong with it.
class EditReader {
  public:
    EditMessage take(const Words& words) {
        if (words.empty()) return {};
        if (!begun_) return takeFirst(words);
        if (words[0] == "view") return takeView(words);
        if (words[0] == "zoom") return takeZoom(words);
        if (words[0] == "seed") return takeSeed(words);
        return takeItem(words);
    }

    // What the file lacks at its end.
    EditMessage lacks() const {
        if (!begun_) return {EditSays::doesNotBegin, {verbatim(kFirstLine)}};
        return {file.width == 0 ? EditSays::lacksView : EditSays::nothing};
    }

    EditFile file;

  private:
    EditMessage takeFirst(const Words& words) {
        begun_ = true;
        if (words[0] != kFirstWord) return {EditSays::beginsWith, {verbatim(kFirstLine)}};
        if (words.size() != 2 || words[1] != kVersion) return {EditSays::onlyVersion, {verbatim(kVersion)}};
        return {};
    }

    EditMessage takeView(const Words& words) {
        if (file.width > 0) return {EditSays::viewTwice};
        if (words.size() == 3) {
            const auto width = numberOf<std::int64_t>(words[1]), height = numberOf<std::int64_t>(words[2]);
            const auto fits = [](const auto& side) { return side && *side >= 1 && *side <= kLargestSide; };
            if (fits(width) && fits(height)) {
                file.width = static_cast<int>(*width);
                file.height = static_cast<int>(*height);
                return {};
            }
        }
        return {EditSays::viewTakes};
    }

    EditMessage takeZoom(const Words& words) {
        if (!file.items.empty()) return {EditSays::zoomLate};
        const auto zoom = words.size() == 2 ? numberOf<double>(words[1]) : std::nullopt;
        if (!zoom || !(*zoom >= kLeastZoom && *zoom <= kMostZoom)) return {EditSays::zoomTakes};
        file.zoom = *zoom;
        return {};
    }

    EditMessage takeSeed(const Words& words) {
        const auto seed = words.size() == 2 ? numberOf<std::uint64_t>(words[1]) : std::nullopt;
        if (!seed) return {EditSays::seedTakes};
        file.seed = *seed;
        return {};
    }

    EditMessage takeItem(const Words& words) {
        if (file.width == 0) return {EditSays::viewLate};
        if (words.size() > 5) return {EditSays::itemIs};
        std::int64_t values[5] = {};
        for (std::size_t i = 0; i < words.size(); ++i) {
            const auto value = numberOf<std::int64_t>(words[i]);
            if (!value) return {EditSays::noWholeNumber, {verbatim(words[i])}};
            values[i] = *value;
        }
        const EditItem item{values[0], values[1], values[2], values[3], values[4]};
        if (EditMessage problem = whyNoItem(item, static_cast<int>(words.size()) - 1); !problem.isEmpty())
            return problem;
        if (nameOfKind(item.kind).empty()) ++file.unknown;
        if (file.items.size() < static_cast<std::size_t>(kMostEditItems)) {
            file.items.push_back(item);
        } else {
            ++file.dropped;
        }
        return {};
    }

    bool begun_ = false;
};

ReadEdits refused(const std::string& path, EditMessage why) {
    return {{}, {EditSays::fileProblem, {verbatim(path), std::move(why)}}};
}

}  // namespace

bool EditFile::undoes() const {
    return std::any_of(items.begin(), items.end(), [](const EditItem& item) {
        return item.kind == kUndo || (item.kind == kKeyPressed && (item.V3 & 223) == 'Z');
    });
}

ReadEdits parseEdits(const std::string& path, const std::string& text) {
    EditReader reader;
    reader.file.path = path;
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const EditMessage problem = reader.take(wordsIn(line));
        if (!problem.isEmpty()) return {{}, {EditSays::fileLine, {verbatim(path), verbatim(number), problem}}};
    }
    if (const EditMessage problem = reader.lacks(); !problem.isEmpty()) return refused(path, problem);
    return {std::move(reader.file), {}};
}

ReadEdits readEditFile(const std::string& path) {
    std::error_code failed;
    if (!fs::exists(path, failed)) return refused(path, {EditSays::noSuchFile});
    if (!isPlainFile(path)) return refused(path, {EditSays::noFileOfEdits});
    if (fs::file_size(path, failed) > kMostBytes) return refused(path, {EditSays::tooLarge});
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file) return refused(path, {EditSays::unreadable});
    return parseEdits(path, text.str());
}

std::string editText(const EditFile& file) {
    std::string text = std::string(kFirstLine) + "\n";
    text += "view " + std::to_string(file.width) + " " + std::to_string(file.height) + "\n";
    if (file.zoom != 1.0) {
        char digits[40];  // the shortest ones that are read as the same number
        const auto end = std::to_chars(digits, digits + sizeof digits, file.zoom).ptr;
        text += "zoom " + std::string(digits, end) + "\n";
    }
    if (file.seed) text += "seed " + std::to_string(*file.seed) + "\n";
    for (const EditItem& item : file.items) {
        text += std::to_string(item.kind);
        for (const std::int64_t value : {item.V1, item.V2, item.V3, item.V4})
            text += " " + std::to_string(value);
        text += "\n";
    }
    return text;
}

std::string editsBeside(const std::string& portrait) {
    for (const std::string& path : {portrait + ".edits", fs::path(portrait).replace_extension(".edits").string()}) {
        if (isPlainFile(path)) return path;
    }
    return "";
}

}  // namespace tavrin

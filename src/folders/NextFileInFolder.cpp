#include "folders/NextFileInFolder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <unordered_set>

#include <QCollator>

#include "core/Log.h"
#include "core/image/PictureTypes.h"
#include "folders/FolderListing.h"
#include "folders/HistoryFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

std::string upperExtension(const std::string& name) {
    const std::size_t dot = name.rfind('.');
    // A name that begins with its only dot is hidden and has no extension.
    if (dot == std::string::npos || dot == 0) return {};
    std::string extension = name.substr(dot + 1);
    for (char& c : extension) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return extension;
}

std::int32_t countOf(const std::vector<std::string>& names) {
    return static_cast<std::int32_t>(names.size());
}

std::vector<std::string> extensionsOf(bool onlyWritten) {
    std::vector<std::string> names;
    for (const PictureType& type : pictureTypes()) {
        if (onlyWritten && type.fileType == 0) continue;
        for (const std::string& extension : type.extensions)
            names.push_back(upperExtension("x." + extension));
    }
    return names;
}

}  // namespace

const std::vector<std::string>& photoExtensions() {
    static const std::vector<std::string> known = extensionsOf(true);
    return known;
}

const std::vector<std::string>& pictureExtensions() {
    static const std::vector<std::string> known = extensionsOf(false);
    return known;
}

// Only names directly in the folder ever count, so a walk need not descend. Nobody asks whether an entry is a folder:
// one that is called "x.jpg" is a candidate, and fails later like any other file that is no picture.
std::vector<std::string> namesInFolder(const std::string& folder, const std::vector<std::string>& extensions,
                                       std::string* problem, const std::atomic<bool>* stop) {
    FolderListing listing = listFolder(folder, stop);
    if (problem && problem->empty()) *problem = std::move(listing.problem);
    std::erase_if(listing.names, [&extensions](const std::string& name) {
        return std::find(extensions.begin(), extensions.end(), upperExtension(name)) == extensions.end();
    });
    return std::move(listing.names);
}

// A comparison by the rules of a language is slow; one key a name makes the many comparisons of a sort cheap. The
// plain "C" language has no notion of case, so the names are folded first.
void sortAsPeopleDo(std::vector<std::string>& names) {
    const QCollator collator;
    std::vector<std::pair<QCollatorSortKey, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) {
        QCollatorSortKey key = collator.sortKey(QString::fromStdString(name).toCaseFolded());
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) {
        const int order = a.first.compare(b.first);
        return order != 0 ? order < 0 : a.second < b.second;
    });
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](auto& entry) { return std::move(entry.second); });
}

std::string stemOf(const std::string& path) {
    return fs::path(path).stem().string();
}

void NextFileInFolder::setHistoryFileLocation(const std::string& folder, const std::string& name) {
    sHistoryFileName = (fs::path(folder) / name).string();
    historyRead_.reset();
}

void NextFileInFolder::ReadHistoryFile() {
    if (!sHistoryFileName) return;
    const std::optional<FileFacts> facts = factsOf(*sHistoryFileName);
    if (facts && facts == historyRead_) return;
    std::vector<std::string> keys = readHistory(*sHistoryFileName).value_or(std::vector<std::string>());
    if (keys != oProcessedFiles) ++changes_;
    oProcessedFiles = std::move(keys);
    iProcessedCount = countOf(oProcessedFiles);
    // Clocks of files tick slowly: one that was just written may be written again and look the same.
    const bool rests = facts && isOlderThan(*facts, std::chrono::seconds(2));
    historyRead_ = rests ? facts : std::nullopt;
}

void NextFileInFolder::ClearHistoryFile() {
    std::error_code ignored;
    if (sHistoryFileName) fs::remove(*sHistoryFileName, ignored);
}

void NextFileInFolder::AddProcessedFiles(const std::string& key) {
    oProcessedFiles.push_back(key);
    ++changes_;
    historyRead_.reset();
    iProcessedCount = countOf(oProcessedFiles);
    if (!sHistoryFileName) return;
    const std::string problem = writeHistory(*sHistoryFileName, oProcessedFiles);
    if (!problem.empty()) logError(problem);
}

std::optional<std::string> NextFileInFolder::NextFileToProcess() {
    ReadHistoryFile();
    FindPhotosInFolder();
    const std::unordered_set<std::string_view> done(oProcessedFiles.begin(), oProcessedFiles.end());
    for (const std::string& name : oFilesInFolder) {
        if (!done.contains(name)) return name;
    }
    return std::nullopt;
}

// A folder that lists the same names in the same order as last time sorts as it did then.
void NextFileInFolder::take(std::vector<std::string> names, bool sorted) {
    if (names != unsorted_) {
        ++changes_;
        sorted_.clear();
        unsorted_ = std::move(names);
    }
    if (sorted && sorted_.size() != unsorted_.size()) {
        sorted_ = unsorted_;
        sortAsPeopleDo(sorted_);
    }
    oFilesInFolder = sorted ? sorted_ : unsorted_;
    iFileCount = countOf(oFilesInFolder);
}

void NextFileInFolder::FindPhotosInFolder() {
    take(namesInFolder(sFolderToCheck, photoExtensions()), true);
}

void NextFileInFolder::FindQLXInFolder() {
    take(namesInFolder(sFolderToCheck, {"QLX"}), false);
}

void NextFileInFolder::FindXMLFilesInFolder() {
    take(namesInFolder(sFolderToCheck, {"XML"}), false);
}

void NextFileInFolder::FindPhotosInFolderAndSubfolders() {
    std::vector<std::string> names = namesInFolder(sFolderToCheck, photoExtensions());
    std::error_code failed;
    for (fs::directory_iterator entry(sFolderToCheck, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code ignored;
        if (!entry->is_directory(ignored)) continue;
        const std::string folder = entry->path().filename().string();
        for (const std::string& name : namesInFolder(entry->path().string(), photoExtensions()))
            names.push_back(folder + "/" + name);
    }
    take(std::move(names), true);
}

}  // namespace tavrin

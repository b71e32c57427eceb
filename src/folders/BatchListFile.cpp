#include "folders/BatchListFile.h"

#include <filesystem>
#include <string_view>
#include <utility>

#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

struct KeyValue {
    std::string_view key, value;
};

bool holds(std::string_view line, std::string_view text) {
    return line.find(text) != std::string_view::npos;
}

/// The one pair of a line; an empty key when there is none.
KeyValue pairOf(std::string_view line) {
    const std::size_t open = line.find('<'), close = line.find('>');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
    const std::string_view key = line.substr(open + 1, close - open - 1);
    const std::size_t end = line.find("</" + std::string(key));
    if (end == std::string_view::npos || end < close + 1) return {};
    return {key, line.substr(close + 1, end - close - 1)};
}

bool isYes(std::string_view value) {
    return value == "YES" || value == "yes";
}

int fileTypeOf(std::string_view value) {
    if (value == "outputpng") return 2;
    return value == "outputtif" || value == "outputtiff" ? 3 : 1;
}

/// A job between its two lines.
class Draft {
  public:
    Draft(const BatchListDefaults& defaults, const MakeFolder& makeFolder)
        : defaults_(defaults), makeFolder_(makeFolder), folder_(defaults.outputFolder) {
        job_.sForegroundFile = defaults.foregroundPath;
        job_.sBackgroundFile = defaults.backgroundPath;
        // The background's path: no state file has that name, so the settings in force stay.
        job_.sQLXFile = defaults.backgroundPath;
        job_.sOutputFolder = defaults.outputFolder;
        job_.OutputTransparency = defaults.outputTransparency;
        job_.NoGreenScreenProcessing = defaults.noGreenScreenProcessing;
        job_.BlueScreenProcessing = defaults.blueScreenProcessing;
        job_.iOutputFileType = defaults.outputFileType;
        numbers_ = defaults.outputStyle == kNumberFiles;
        splits_ = defaults.outputStyle == kSplitIntoFolders;
    }

    void set(const KeyValue& line) {
        const std::string value(line.value);
        if (line.key == "qlxfile") {
            job_.sQLXFile = stems_.state = value;
        } else if (line.key == "foreground") {
            job_.sForegroundFile = stems_.foreground = value;
        } else if (line.key == "background") {
            job_.sBackgroundFile = stems_.background = value;
        } else if (line.key == "outputtransparency") {
            job_.OutputTransparency = isYes(value);
        } else if (line.key == "nogreenscreenprocessing") {
            job_.NoGreenScreenProcessing = isYes(value);
        } else if (line.key == "bluescreenprocessing") {
            job_.BlueScreenProcessing = isYes(value);
        } else if (line.key == "outputnamestyle") {
            numbers_ = value == "numberfiles";
            splits_ = value == "createsubfolders";
            folderHasName_ = value == "outputfolderhasname";
        } else if (line.key == "outputfiletype") {
            job_.iOutputFileType = fileTypeOf(value);
        } else if (line.key == "outputfolder") {
            setFolder(value);
        }
    }

    BatchElement close(int& nextNumber) {
        if (numbers_) {
            if (defaults_.skipTakenNumbers) nextNumber = freeNumber(folder_, nextNumber, job_.iOutputFileType);
            job_.sOutputFile = numberedName(folder_, nextNumber++);
        } else if (splits_) {
            // The pictures of the moment count by their own names. State files play no part here.
            const auto named = [](const std::string& stem, const std::string& current) {
                return stem == kUseCurrent ? current : stem;
            };
            job_.sOutputFile = splitName(folder_,
                                         {named(stems_.foreground, defaults_.foregroundPath),
                                          named(stems_.background, defaults_.backgroundPath), kUseCurrent},
                                         makeFolder_);
        } else if (folderHasName_) {
            job_.sOutputFile = fs::path(folder_).replace_extension().string();
        } else {
            job_.sOutputFile = combinedName(folder_, stems_, defaults_.betweenNames);
        }
        return std::move(job_);
    }

  private:
    void setFolder(const std::string& value) {
        job_.sOutputFolder = folder_ = value;
        // A value with a full stop names a file.
        makeFolder_(holds(value, ".") ? fs::path(value).parent_path().string() : value);
    }

    const BatchListDefaults& defaults_;
    const MakeFolder& makeFolder_;
    BatchElement job_;
    BatchSources stems_ = {kUseCurrent, kUseCurrent, kUseCurrent};
    std::string folder_;
    bool numbers_ = false, splits_ = false, folderHasName_ = false;
};

}  // namespace

ParsedBatchList parseBatchList(const std::string& text, const BatchListDefaults& defaults, int& nextNumber,
                               std::size_t limit, const MakeFolder& makeFolder) {
    ParsedBatchList list;
    std::vector<Draft> open;  // one or none
    std::string_view rest = text;
    int number = 0, opened = 0;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        ++number;
        if (holds(line, "<image>")) {
            if (!open.empty() && list.unclosedLine == 0) list.unclosedLine = opened;
            opened = number;
            open.clear();
            open.emplace_back(defaults, makeFolder);
        } else if (open.empty()) {
            continue;
        } else if (!holds(line, "</image>")) {
            open[0].set(pairOf(line));
        } else if (list.jobs.size() < limit) {
            list.jobs.push_back(open[0].close(nextNumber));
            open.clear();
        } else {
            ++list.refused;
            open.clear();
        }
    }
    if (!open.empty() && list.unclosedLine == 0) list.unclosedLine = opened;
    return list;
}

}  // namespace tavrin

#include "session/Overlays.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include <QString>

#include "core/files/NameText.h"
#include "core/image/PictureTypes.h"

namespace tavrin {

namespace {

namespace fs = std::filesystem;

QString capitals(const std::string& name) {
    return textOfName(name).toUpper();
}

std::vector<fs::path> filesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code problem;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, problem);
    for (; !problem && entry != fs::recursive_directory_iterator(); entry.increment(problem)) {
        std::error_code none;
        if (!entry->is_directory(none)) files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

std::string automaticNameOf(const std::string& file) {
    return nameOfText(capitals(fs::path(file).filename().string()).mid(3));
}

OverlaySet searchFolder(const std::string& folder, const std::string& automaticName) {
    OverlaySet set;
    const QString wanted = textOfName(automaticName);
    if (wanted.isEmpty()) return set;
    for (const fs::path& file : filesIn(folder)) {
        if (!capitals(file.lexically_relative(folder).string()).endsWith(wanted)) continue;
        const QString name = capitals(file.filename().string());
        if (name.startsWith("FR_")) set.frame = file.string();
        if (name.startsWith("FG_")) set.foreground = file.string();
        if (name.startsWith("BG_")) set.background = file.string();
    }
    return set;
}

std::vector<NamedOverlaySet> overlaySetsIn(const std::string& folder) {
    std::vector<NamedOverlaySet> sets;
    for (const fs::path& file : filesIn(folder)) {
        const std::string stem = file.stem().string();
        if (stem.size() < 4 || !typeOfName(file.string())) continue;
        const QString start = capitals(stem).left(3);
        std::string OverlaySet::*const layer = start == "FR_"   ? &OverlaySet::frame
                                               : start == "FG_" ? &OverlaySet::foreground
                                               : start == "BG_" ? &OverlaySet::background
                                                                : nullptr;
        if (!layer) continue;
        const std::string name = stem.substr(3);
        auto set = std::ranges::find(sets, capitals(name), [](const auto& one) { return capitals(one.name); });
        if (set == sets.end()) set = sets.insert(sets.end(), {name, {}});
        if (std::string& own = set->files.*layer; own.empty()) own = file.string();
    }
    return sets;
}

}  // namespace tavrin

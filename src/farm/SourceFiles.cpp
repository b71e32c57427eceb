#include "farm/SourceFiles.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include <QString>

#include "core/files/NameText.h"
#include "folders/FolderListing.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// Not by the user's language: shards on other machines must find the same order.
void sortByFixedRules(std::vector<std::string>& names) {
    std::vector<std::pair<QString, std::string>> keyed;
    for (std::string& name : names) {
        QString folded = textOfName(name).toCaseFolded();
        keyed.emplace_back(std::move(folded), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](auto& entry) { return std::move(entry.second); });
}

}  // namespace

void SourceFiles::add(std::string name, std::string path) {
    names.push_back(std::move(name));
    paths.push_back(std::move(path));
}

SourceFiles SourceLister::list(const std::string& place, const std::vector<std::string>& extensions) {
    SourceFiles files;
    std::error_code ignored;
    if (place.empty()) return files;
    if (!fs::is_directory(place, ignored)) {
        if (!accept_ || accept_(place)) files.add(fs::path(place).filename().string(), place);
        return files;
    }
    std::vector<std::string> names = namesInFolder(place, extensions, &problem);
    sortByFixedRules(names);
    for (std::string& name : names) {
        std::string path = place + "/" + name;
        if (name[0] != '.' && (!accept_ || accept_(path))) files.add(std::move(name), std::move(path));
    }
    return files;
}

SourceFiles SourceLister::listOrNone(const std::string& place, const std::vector<std::string>& extensions) {
    SourceFiles files = list(place, extensions);
    if (place.empty()) files.add("", "");
    return files;
}

SourceFiles SourceLister::listSubfolders(const std::string& folder, const SubfolderBackgrounds& backgrounds) {
    SourceFiles files;
    for (const std::string& subfolder : subfoldersOf(folder)) {
        if (!backgrounds.find(subfolder)) continue;
        SourceFiles inside = list(folder + "/" + subfolder, pictureExtensions());
        for (std::size_t i = 0; i < inside.names.size(); ++i)
            files.add(subfolder + "/" + inside.names[i], std::move(inside.paths[i]));
    }
    return files;
}

std::vector<std::string> findPassedOver(const JobSources& sources) {
    std::vector<std::string> paths;
    for (const std::string& place : {sources.foregrounds, sources.backgrounds}) {
        std::error_code ignored;
        if (!fs::is_directory(place, ignored)) continue;
        std::vector<std::string> names = listFolder(place).names;
        sortByFixedRules(names);
        const std::vector<std::string> taken = namesInFolder(place, pictureExtensions());
        const std::set<std::string> pictures(taken.begin(), taken.end());
        for (const std::string& name : names) {
            const std::string path = place + "/" + name;
            if (sources.editsBeside && place == sources.foregrounds && name.ends_with(".edits")) continue;
            if (name[0] != '.' && !pictures.contains(name) && !fs::is_directory(path, ignored)) paths.push_back(path);
        }
    }
    return paths;
}

std::vector<std::string> SourceLister::subfoldersOf(const std::string& folder) {
    FolderListing listing = listFolder(folder);
    if (problem.empty()) problem = std::move(listing.problem);
    std::erase_if(listing.names, [&folder](const std::string& name) {
        std::error_code ignored;
        return name[0] == '.' || !fs::is_directory(fs::path(folder) / name, ignored);
    });
    sortByFixedRules(listing.names);
    return std::move(listing.names);
}

}  // namespace tavrin

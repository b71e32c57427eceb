#include "folders/BatchNames.h"

#include <algorithm>
#include <filesystem>

#include "core/image/PictureTypes.h"
#include "folders/BatchElement.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

std::string stemOrNothing(const std::string& file) {
    return file == kUseCurrent ? std::string() : stemOf(file);
}

}  // namespace

void makeFolders(const std::string& folder) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
}

std::string numberedName(const std::string& folder, int number) {
    return folder + "/BatchFile" + std::to_string(number);
}

int freeNumber(const std::string& folder, int number, int fileType) {
    const auto isTaken = [](const std::string& path) {
        std::error_code ignored;
        return fs::exists(fs::symlink_status(path, ignored));
    };
    for (;; ++number) {
        const std::string name = numberedName(folder, number);
        if (!isTaken(name + extensionFor(fileType)) && !isTaken(name + ".qlx")) return number;
    }
}

std::string combinedName(const std::string& folder, const BatchSources& sources, const std::string& between) {
    std::string name;
    for (const std::string& part : {sources.foreground, sources.background, sources.state}) {
        const std::string stem = stemOrNothing(part);
        if (!name.empty() && !stem.empty()) name += between;
        name += stem;
    }
    return folder + "/" + name;
}

std::string splitName(const std::string& folder, const BatchSources& sources, const MakeFolder& makeFolder) {
    std::string name = folder + "/";
    for (const std::string& part : {sources.background, sources.state}) {
        if (part == kUseCurrent) continue;
        name += stemOf(part);
        makeFolder(name);
        name += "/";
    }
    return name + stemOrNothing(sources.foreground);
}

std::string extensionFor(int fileType) {
    const auto type = std::ranges::find(pictureTypes(), fileType, &PictureType::fileType);
    return fileType == 0 || type == pictureTypes().end() ? "" : "." + type->extensions.front();
}

}  // namespace tavrin

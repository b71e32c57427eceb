#include "session/NamedLooks.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "formats/ImageState.h"
#include "formats/SafeFile.h"
#include "session/RecipeStore.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kEnd = ".qlx";

std::string deletedFile(const std::string& name) {
    return Places::current().looksFolder() + ".deleted/" + name + kEnd;
}

std::string move(const std::string& from, const std::string& to) {
    std::error_code failed;
    fs::create_directories(fs::path(to).parent_path(), failed);
    fs::rename(from, to, failed);
    return failed ? from + " cannot be moved to " + to + ": " + failed.message() + "." : "";
}

std::string copyFile(const std::string& from, const std::string& to) {
    const FileBytes file = readSafeFile(from, kMostBytes);
    return file.problem.empty() ? writeWhole(to, file.bytes) : file.problem;
}

bool isTaken(const std::string& name) {
    std::error_code ignored;
    return fs::exists(lookFile(name), ignored);
}

}  // namespace

std::string lookFile(const std::string& name) {
    return Places::current().looksFolder() + name + kEnd;
}

std::vector<std::string> lookNames() {
    std::vector<std::string> names;
    std::error_code failed;
    for (fs::directory_iterator entry(Places::current().looksFolder(), failed), end; !failed && entry != end;
         entry.increment(failed))
        if (entry->path().extension() == kEnd) names.push_back(entry->path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string lookNameProblem(const std::string& name) {
    constexpr std::size_t kLongest = 100;
    if (name.empty()) return "A look needs a name.";
    if (name.size() > kLongest) return "The name of a look is too long.";
    if (name[0] == '.' || name.find('/') != std::string::npos)
        return "The name of a look begins with no full stop and has no slash.";
    return "";
}

std::string freeLookName(const std::string& name) {
    std::string free = name;
    for (int i = 2; isTaken(free); ++i)
        free = name + ' ' + std::to_string(i);
    return free;
}

// The format crosses the two output modes with every load.
std::string saveLook(const SettingValues& settings, const std::string& name) {
    if (std::string problem = lookNameProblem(name); !problem.empty()) return problem;
    const auto state = std::make_unique<SystemInfo>();
    static_cast<void>(useSettings(*state, settings));  // the list of sizes is not there
    const std::int32_t foreground = state->iForegroundOutputMode;
    state->iForegroundOutputMode = state->iBackgroundOutputMode.load();
    state->iBackgroundOutputMode = foreground;
    std::error_code ignored;
    fs::create_directories(Places::current().looksFolder(), ignored);
    return saveImageStateToXML(*state, lookFile(name));
}

std::string readLook(const SystemInfo& info, const std::string& file, SettingValues& look) {
    const auto state = std::make_unique<SystemInfo>();
    static_cast<void>(useSettings(*state, settingsOf(info)));
    std::string problem = LoadImageStateFromXML(*state, file, kLoadForForeground);
    if (!problem.empty()) return problem;
    look = lookOf(*state);
    std::erase_if(look, [](const auto& setting) { return setting.first.starts_with("background."); });
    return "";
}

std::string renameLook(const std::string& from, const std::string& to) {
    if (std::string problem = lookNameProblem(to); !problem.empty()) return problem;
    if (isTaken(to)) return "There is a look " + to + " already.";
    return move(lookFile(from), lookFile(to));
}

std::string deleteLook(const std::string& name) {
    return move(lookFile(name), deletedFile(name));
}

std::string restoreLook(const std::string& name) {
    return move(deletedFile(name), lookFile(freeLookName(name)));
}

std::string importLook(const SystemInfo& info, const std::string& file, const std::string& name) {
    SettingValues look;
    std::string problem = lookNameProblem(name);
    if (problem.empty()) problem = readLook(info, file, look);
    return problem.empty() ? copyFile(file, lookFile(name)) : problem;
}

std::string exportLook(const std::string& name, const std::string& file) {
    return copyFile(lookFile(name), file);
}

}  // namespace tavrin

#include "apps/cli/Refusal.h"

#include <filesystem>

#include "apps/cli/Console.h"

namespace fs = std::filesystem;

namespace tavrin::cli {

Refusal checkTarget(const std::string& path) {
    const fs::path folder = fs::absolute(path).parent_path();
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored)) return {kFailed, path + ": there is no folder " + folder.string() + "."};
    if (fs::is_directory(path, ignored)) return {kFailed, path + ": that is a folder."};
    return {};
}

}  // namespace tavrin::cli

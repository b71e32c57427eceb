#include "core/files/StandardPath.h"

#include <filesystem>
#include <string_view>

#include <QDir>

namespace tavrin {

namespace {

namespace fs = std::filesystem;

std::string withHomeFolder(const std::string& path) {
    if (path != "~" && !path.starts_with("~/")) return path;
    return QDir::homePath().toStdString() + path.substr(1);
}

/// The folder above an absolute one. Only a link makes a difference to dropping the last name.
std::string parentOf(const std::string& folder) {
    std::error_code ignored;
    std::string real = folder;
    if (fs::is_symlink(folder, ignored)) {
        const fs::path target = fs::canonical(folder, ignored);
        if (!ignored) real = target.string();
    }
    return real.substr(0, real.find_last_of('/'));
}

}  // namespace

std::string standardizePath(const std::string& path) {
    const std::string full = withHomeFolder(path);
    const bool absolute = full.starts_with('/');
    std::string clean;
    for (std::string_view rest = full; !rest.empty();) {
        const std::size_t slash = rest.find('/');
        const std::string_view part = rest.substr(0, slash);
        rest.remove_prefix(slash == std::string_view::npos ? rest.size() : slash + 1);
        if (part.empty() || part == ".") continue;
        if (absolute && part == "..") {
            if (!clean.empty()) clean = parentOf(clean);
            continue;
        }
        if (absolute || !clean.empty()) clean += '/';
        clean += part;
    }
    return clean.empty() && absolute ? "/" : clean;
}

std::string lastPathComponent(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

}  // namespace tavrin

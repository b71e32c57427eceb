#include "core/files/FileIdentity.h"

#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace tavrin {

std::optional<FileIdentity> identityOf(const std::string& path) {
    struct stat facts {};
    if (path.empty() || ::stat(path.c_str(), &facts) != 0) return std::nullopt;
    return FileIdentity{facts.st_dev, facts.st_ino};
}

bool isPlainFile(const std::string& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

bool isSameFile(const std::string& one, const std::string& other) {
    if (one.empty() || other.empty()) return false;
    const std::optional<FileIdentity> first = identityOf(one), second = identityOf(other);
    if (first || second) return first == second;
    if (fs::path(one).filename() != fs::path(other).filename()) return false;
    std::error_code failed;
    const auto folderOf = [&failed](const std::string& path) {
        return fs::weakly_canonical(fs::absolute(path).parent_path(), failed);
    };
    return folderOf(one) == folderOf(other) && !failed;
}

void KnownFiles::add(const std::string& path) {
    if (const std::optional<FileIdentity> file = identityOf(path)) names_.try_emplace(*file, path);
}

const std::string* KnownFiles::find(const std::string& path) const {
    const std::optional<FileIdentity> file = identityOf(path);
    return file ? find(*file) : nullptr;
}

const std::string* KnownFiles::find(const FileIdentity& file) const {
    const auto known = names_.find(file);
    return known == names_.end() ? nullptr : &known->second;
}

}  // namespace tavrin

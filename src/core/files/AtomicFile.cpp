#include "core/files/AtomicFile.h"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "core/files/Tenancy.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr std::string_view kBegin = ".tavrin-", kEnd = ".part";

// Unique among all machines that share the folder: in containers even the numbers of processes are alike.
std::string hiddenName() {
    static const std::uint64_t process = [] {
        std::random_device device;
        return (static_cast<std::uint64_t>(device()) << 32) | device();
    }();
    static std::atomic<std::uint32_t> counter = 0;
    char rest[48];
    std::snprintf(rest, sizeof rest, "-%016llx-%u", static_cast<unsigned long long>(process), counter++);
    return std::string(kBegin) + machineMark() + rest + std::string(kEnd);
}

// Where a link leads to; the path itself where it is none.
fs::path followLink(const fs::path& path) {
    std::error_code error;
    const fs::path target = fs::weakly_canonical(path, error);
    return error || !fs::is_symlink(path, error) ? path : target;
}

bool mayBeWritten(const std::string& path, const fs::file_status& status) {
    constexpr fs::perms kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    // The administrator may write to anything, which is not what a picture without a right to write to it wants.
    return (status.permissions() & kWrite) != fs::perms::none && ::access(path.c_str(), W_OK) == 0;
}

bool isHiddenName(std::string_view name) {
    return name.starts_with(kBegin) && name.ends_with(kEnd) && name.size() >= kBegin.size() + kEnd.size();
}

std::string_view markOf(std::string_view name) {
    name.remove_prefix(kBegin.size());
    return name.substr(0, name.find('-'));
}

}  // namespace

std::string writeProblem(int code, const std::string& folder) {
    switch (code) {
        case ENOENT:
            return "the folder " + folder + " does not exist";
        case ENOTDIR:
            return folder + " is not a folder";
        case EACCES:
        case EPERM:
            return "no permission to write into the folder " + folder;
        case EROFS:
            return "the folder " + folder + " can only be read";
        case ENOSPC:
        case EDQUOT:
            return kDiskFull;
        case EFBIG:
            return "the file would be larger than this disk allows";
        case EISDIR:
            return "there is a folder of that name";
        case ENAMETOOLONG:
            return "the name is too long";
        default:
            return std::strerror(code);
    }
}

void AtomicFile::removeAbandonedParts(const std::string& folder) {
    // The folder's own clock, which may be that of another machine.
    std::optional<fs::file_time_type> now;
    const auto clock = [&folder, &now] {
        if (now) return *now;
        AtomicFile probe(folder + "/clock");
        std::error_code failed;
        const auto time = fs::last_write_time(probe.hidden_, failed);
        now = failed ? fs::file_time_type::min() : time;
        return *now;
    };
    std::vector<std::string> parts;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        std::error_code gone;
        const bool isFile = fs::is_regular_file(entry->symlink_status(gone));
        if (isFile && isHiddenName(entry->path().filename().native())) parts.push_back(entry->path().filename());
    }
    for (const std::string& part : parts) {
        const std::string path = folder + "/" + part;
        removeIfAbandoned(path, markOf(part), [&] {
            std::error_code gone;
            const auto written = fs::last_write_time(path, gone);
            return !gone && written + kPartAge < clock();
        });
    }
}

AtomicFile::AtomicFile(const std::string& target) {
    const fs::path path = followLink(target);
    target_ = path.string();
    folder_ = path.has_parent_path() ? path.parent_path().string() : ".";
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status) || !path.has_filename()) {
        fail(EISDIR);
        return;
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        error_ = target_ + " is not a plain file";
        return;
    }
    // Moving a new file over it would get around what its owner has asked for.
    if (fs::exists(status) && !mayBeWritten(target_, status)) {
        error_ = path.filename().string() + " is write-protected and stays as it is";
        return;
    }
    if (!create(path.parent_path().string())) {
        fail(errno);
    } else if (fs::exists(status)) {
        ::fchmod(file_, static_cast<mode_t>(status.permissions() & fs::perms::all));
    }
}

// Another program that clears the folder may meet the new file before it is locked, and take it for abandoned.
bool AtomicFile::create(const fs::path& folder) {
    constexpr int kTries = 10;
    const Interruption::Hold hold;
    for (int i = 0; i < kTries; ++i) {
        hidden_ = (folder / hiddenName()).string();
        file_ = ::open(hidden_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file_ < 0) return false;
        if (takePossession(file_)) {
            leftover_.emplace(hidden_);
            return true;
        }
        close();
        ::unlink(hidden_.c_str());
    }
    errno = EAGAIN;
    return false;
}

AtomicFile::~AtomicFile() {
    const bool created = file_ >= 0;
    // First the name, then the lock: nobody else is to find it abandoned.
    if (created) ::unlink(hidden_.c_str());
    close();
}

void AtomicFile::close() {
    if (file_ >= 0) ::close(file_);
    file_ = -1;
}

bool AtomicFile::fail(int code) {
    if (error_.empty()) error_ = writeProblem(code, folder_);
    return false;
}

bool AtomicFile::isStopped() {
    if (error_.empty() && stop_ && *stop_) error_ = kWritingStopped;
    return !error_.empty();
}

bool AtomicFile::write(const void* bytes, std::size_t size) {
    const char* from = static_cast<const char*>(bytes);
    if (isStopped()) return false;
    while (size > 0) {
        const ssize_t done = ::write(file_, from, size);
        if (done < 0 && errno == EINTR) continue;
        if (done < 0) return fail(errno);
        from += done;
        size -= static_cast<std::size_t>(done);
    }
    return true;
}

std::ptrdiff_t AtomicFile::read(void* bytes, std::size_t size) {
    if (!error_.empty()) return -1;
    char* to = static_cast<char*>(bytes);
    std::size_t got = 0;
    while (got < size) {
        const ssize_t done = ::read(file_, to + got, size - got);
        if (done < 0 && errno == EINTR) continue;
        if (done < 0) return fail(errno) - 1;
        if (done == 0) break;
        got += static_cast<std::size_t>(done);
    }
    return static_cast<std::ptrdiff_t>(got);
}

long long AtomicFile::seek(long long offset, int origin) {
    if (!error_.empty()) return -1;
    const long long place = ::lseek(file_, static_cast<off_t>(offset), origin);
    if (place < 0) fail(errno);
    return place;
}

long long AtomicFile::size() {
    struct stat facts {};
    return file_ >= 0 && ::fstat(file_, &facts) == 0 ? facts.st_size : -1;
}

bool AtomicFile::commit() {
    if (isStopped()) return false;
    if (::fsync(file_) != 0) return fail(errno);
    return commitUnflushed();
}

bool AtomicFile::commitUnflushed() {
    if (isStopped()) return false;
    const Interruption::Hold hold;
    if (::rename(hidden_.c_str(), target_.c_str()) != 0) return fail(errno);
    leftover_.reset();
    close();
    return true;
}

}  // namespace tavrin

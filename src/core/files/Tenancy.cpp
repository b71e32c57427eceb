#include "core/files/Tenancy.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr std::size_t kDigits = 16;

std::string madeMark() {
    std::ifstream file("/proc/sys/kernel/random/boot_id");
    std::string id;
    std::getline(file, id);
    std::erase(id, '-');
    if (id.size() >= kDigits) return id.substr(0, kDigits);
    std::random_device device;
    char text[kDigits + 1];
    std::snprintf(text, sizeof text, "%08x%08x", static_cast<unsigned>(device()), static_cast<unsigned>(device()));
    return text;
}

enum class Use {
    locked,
    free,
    untold,  ///< this file system knows no locks
    closed   ///< not ours to open
};

/// A look that keeps the lock as long as it lasts, so that nobody takes possession meanwhile.
class Look {
  public:
    explicit Look(const std::string& path) {
        std::error_code ignored;
        const fs::file_status status = fs::symlink_status(path, ignored);
        if (!fs::is_regular_file(status) && !fs::is_directory(status)) return;
        // Network folders lock only what is open for writing.
        constexpr int kHow = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
        if (fs::is_regular_file(status)) handle_ = ::open(path.c_str(), O_RDWR | kHow);
        if (handle_ < 0) handle_ = ::open(path.c_str(), O_RDONLY | kHow);
        if (handle_ < 0) return;
        const bool locked = ::flock(handle_, LOCK_EX | LOCK_NB) == 0;
        use = locked ? Use::free : errno == EWOULDBLOCK ? Use::locked : Use::untold;
    }
    ~Look() {
        if (handle_ >= 0) ::close(handle_);
    }
    Look(const Look&) = delete;
    Look& operator=(const Look&) = delete;

    Use use = Use::closed;

  private:
    int handle_ = -1;
};

}  // namespace

const std::string& machineMark() {
    static const std::string mark = madeMark();
    return mark;
}

bool takePossession(int handle) {
    struct stat facts {};
    if (::flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
    return ::fstat(handle, &facts) == 0 && facts.st_nlink > 0;
}

void removeIfAbandoned(const std::string& path, std::string_view mark, const std::function<bool()>& isOld) {
    const Look look(path);
    if (look.use == Use::locked || look.use == Use::closed) return;
    const bool certain = look.use == Use::free && mark == machineMark();
    std::error_code ignored;
    if (certain || isOld()) fs::remove_all(path, ignored);
}

}  // namespace tavrin

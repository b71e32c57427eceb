#include "booth/TicketClaim.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tavrin {

namespace {

constexpr std::time_t kAge = 10 * 60;  // seconds

enum class Got { ours, theirs, gone };

/// Whether the open file is ours now, and still the one of that name.
Got lock(const std::string& path, int handle, bool isNew) {
    const bool isLocked = ::flock(handle, LOCK_EX | LOCK_NB) == 0;
    if (!isLocked && errno == EWOULDBLOCK) return Got::theirs;
    struct stat mine {
    }, named{};
    if (::fstat(handle, &mine) != 0 || mine.st_nlink == 0) return Got::gone;
    if (::stat(path.c_str(), &named) != 0 || named.st_ino != mine.st_ino) return Got::gone;
    if (isLocked || isNew) return Got::ours;
    if (std::time(nullptr) - mine.st_mtime < kAge) return Got::theirs;
    ::unlink(path.c_str());
    return Got::gone;
}

}  // namespace

std::optional<TicketClaim> TicketClaim::take(const BoothFolder& folder, const std::string& stem) {
    constexpr int kTries = 3;  // whoever had it may just be giving it up
    constexpr int kHow = O_RDWR | O_CLOEXEC | O_NOFOLLOW;
    const std::string path = folder.claim(stem);
    for (int i = 0; i < kTries; ++i) {
        int handle = ::open(path.c_str(), kHow | O_CREAT | O_EXCL, 0666);
        const bool isNew = handle >= 0;
        if (!isNew) handle = ::open(path.c_str(), kHow);
        if (handle < 0) continue;
        const Got got = lock(path, handle, isNew);
        if (got == Got::ours) return TicketClaim(path, handle);
        ::close(handle);
        if (got == Got::theirs) return {};
    }
    return {};
}

TicketClaim::TicketClaim(TicketClaim&& other) noexcept
    : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, -1)) {}

TicketClaim& TicketClaim::operator=(TicketClaim&& other) noexcept {
    std::swap(path_, other.path_);
    std::swap(handle_, other.handle_);
    return *this;
}

TicketClaim::~TicketClaim() {
    if (handle_ < 0) return;
    ::unlink(path_.c_str());  // first the name, then the lock
    ::close(handle_);
}

}  // namespace tavrin

#include "core/files/FreeName.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin {

namespace {

bool knowsNot(int code) {
    return code == EINVAL || code == ENOSYS || code == EPERM || code == EOPNOTSUPP;
}

}  // namespace

int moveToFreeName(const std::string& file, const std::string& name) {
#ifdef RENAME_NOREPLACE
    if (::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (!knowsNot(errno)) return errno;
#endif
    if (::link(file.c_str(), name.c_str()) == 0) {
        ::unlink(file.c_str());
        return 0;
    }
    if (!knowsNot(errno)) return errno;
    struct stat facts {};
    if (::lstat(name.c_str(), &facts) == 0) return EEXIST;
    return ::rename(file.c_str(), name.c_str()) == 0 ? 0 : errno;
}

void bringNamesToDisk(const std::string& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
}

}  // namespace tavrin

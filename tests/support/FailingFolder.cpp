// Loaded into a program before the system's library: folders named "fails-half-way" fail after three entries, as one
// on a network may.
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <string_view>
#include <unistd.h>

namespace {

bool failsHalfWay(DIR* folder) {
    char link[64], path[4096];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", dirfd(folder));
    const ssize_t size = readlink(link, path, sizeof path);
    return size > 0 && std::string_view(path, static_cast<std::size_t>(size)).ends_with("/fails-half-way");
}

template <class Entry>
Entry* next(DIR* folder, const char* name) {
    static int count = 0;
    if (failsHalfWay(folder) && ++count > 3) {
        count = 0;
        errno = EIO;
        return nullptr;
    }
    return reinterpret_cast<Entry* (*)(DIR*)>(dlsym(RTLD_NEXT, name))(folder);
}

}  // namespace

extern "C" dirent* readdir(DIR* folder) {
    return next<dirent>(folder, "readdir");
}

extern "C" dirent64* readdir64(DIR* folder) {
    return next<dirent64>(folder, "readdir64");
}

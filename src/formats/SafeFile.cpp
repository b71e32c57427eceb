#include "formats/SafeFile.h"

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <QFile>
#include <QLockFile>
#include <QUuid>

#include "core/Log.h"
#include "core/files/AtomicFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr fs::perms kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;
// What the user's own mask leaves of this is what any new file gets.
constexpr fs::perms kEveryone =
    kOwnerOnly | fs::perms::group_read | fs::perms::group_write | fs::perms::others_read | fs::perms::others_write;
constexpr int kTurnMilliseconds = 5000;
constexpr int kEmptyLockMilliseconds = 200;

fs::path toPath(const std::string& name) {
    return fs::path(std::u8string(name.begin(), name.end()));
}
QString toQt(const std::string& name) {
    return QString::fromStdString(name);
}
std::string temporaryName(const std::string& path) {
    return path + "tmp";
}
std::string setAsideName(const std::string& path) {
    return path + ".set-aside";
}
std::string lockName(const std::string& path) {
    return path + ".lock";
}

/// Something has this name, be it a link that leads nowhere.
bool isThere(const std::string& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(toPath(path), ignored));
}

/// @return what went wrong; converts to false when nothing did
std::error_code moveFile(const std::string& from, const std::string& to) {
    std::error_code problem;
    fs::rename(toPath(from), toPath(to), problem);
    return problem;
}

void removeFile(const std::string& path) {
    std::error_code ignored;
    fs::remove(toPath(path), ignored);
}

/// Makes a new file by the bytes of its name, which need not be text.
bool openNew(QFile& file, const std::string& path, fs::perms permissions) {
#ifdef _WIN32
    file.setFileName(toQt(path));
    return file.open(QFile::WriteOnly | QFile::NewOnly) && permissions != fs::perms::none;
#else
    const int handle =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, static_cast<mode_t>(permissions));
    return handle >= 0 && file.open(handle, QFile::WriteOnly, QFile::AutoCloseHandle);
#endif
}

std::string folderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// Why a call on a file failed just now.
std::string reasonOf(const QFile& file, const std::string& path) {
    return errno != 0 ? writeProblem(errno, folderOf(path)) : file.errorString().toStdString();
}

/// Why a lock file cannot be made beside a file, which nobody tells.
std::string reasonOfLock(const std::string& path) {
    AtomicFile probe(path);
    const std::string bytes(100, ' ');
    probe.write(bytes.data(), bytes.size());
    return probe.error().empty() ? "its folder may not be written to" : probe.error();
}

bool bringToDisk(QFile& file) {
#ifdef _WIN32
    return file.flush() && ::_commit(file.handle()) == 0;
#else
    return file.flush() && ::fsync(file.handle()) == 0;
#endif
}

/// Brings the names of a file's folder to the disk. File systems that have no use for it refuse, which is fine.
void bringNamesToDisk([[maybe_unused]] const std::string& path) {
#ifndef _WIN32
    const int handle = ::open(folderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#endif
}

/// Puts the file back that an unfinished save set aside. Only for whoever has the turn at this file.
void putBack(const std::string& path) {
    if (!isThere(path) && isThere(setAsideName(path))) moveFile(setAsideName(path), path);
}

}  // namespace

SafeSave::SafeSave() = default;

SafeSave::~SafeSave() {
    giveUp();
}

bool SafeSave::fail(const std::string& why) {
    if (problem_.empty()) problem_ = why;
    giveUp();
    return false;
}

bool SafeSave::begin(const std::string& path, Readers readers) {
    giveUp();
    problem_.clear();
    path_ = path;
    hold_.emplace();
    if (path.empty()) return fail("A file to be saved needs a name.");
    return takeTurn() && openTemporary(readers) && setOldFileAside(readers);
}

/// A program that was killed between making its lock and writing its name into it leaves an empty one, of which
/// nobody can tell whose it is. Writing the name takes no time, so a lock that stays empty is abandoned.
static void removeAbandonedLock(const std::string& lock) {
    std::error_code gone;
    const auto size = fs::file_size(toPath(lock), gone);
    if (gone || size != 0) return;
    const auto written = fs::last_write_time(toPath(lock), gone);
    if (!gone && fs::file_time_type::clock::now() - written > std::chrono::milliseconds(kEmptyLockMilliseconds))
        removeFile(lock);
}

bool SafeSave::takeTurn() {
    std::error_code ignored;
    const fs::file_status lock = fs::status(toPath(lockName(path_)), ignored);
    if (fs::exists(lock) && !fs::is_regular_file(lock))
        return fail(path_ + " cannot be saved: " + lockName(path_) + " is no file.");
    auto turn = std::make_unique<QLockFile>(toQt(lockName(path_)));
    bool mine = turn->tryLock(2 * kEmptyLockMilliseconds);
    if (!mine) {
        removeAbandonedLock(lockName(path_));
        mine = turn->tryLock(kTurnMilliseconds);
    }
    if (!mine) {
        return fail(turn->error() == QLockFile::LockFailedError
                        ? path_ + " cannot be saved: another program is saving it."
                        : path_ + " cannot be saved: " + reasonOfLock(path_) + ".");
    }
    turn_ = std::move(turn);
    // With both files there, an earlier save was stopped after the new file had arrived.
    if (isThere(path_)) {
        removeFile(setAsideName(path_));
    } else {
        putBack(path_);
    }
    return true;
}

bool SafeSave::openTemporary(Readers readers) {
    // A leftover might be open to more readers than this file may be, so it is never written to again.
    removeFile(temporaryName(path_));
    file_ = std::make_unique<QFile>();
    errno = 0;
    if (openNew(*file_, temporaryName(path_), readers == Readers::ownerOnly ? kOwnerOnly : kEveryone)) return true;
    return fail(path_ + " cannot be saved: " + reasonOf(*file_, path_) + ".");
}

bool SafeSave::setOldFileAside(Readers readers) {
    if (!isThere(path_)) return true;
    if (!fs::is_regular_file(toPath(path_)) && !fs::is_symlink(toPath(path_)))
        return fail(path_ + " cannot be saved: it is no file.");
    std::error_code ignored;
    if (readers == Readers::ownerOnly) {
        fs::permissions(toPath(path_), kOwnerOnly, ignored);
    } else if (const fs::file_status old = fs::status(toPath(path_), ignored); fs::exists(old)) {
        fs::permissions(toPath(temporaryName(path_)), old.permissions(), ignored);
    }
    const std::error_code problem = moveFile(path_, setAsideName(path_));
    return problem ? fail(path_ + " cannot be replaced: " + writeProblem(problem.value(), folderOf(path_)) + ".")
                   : true;
}

void SafeSave::write(std::string_view bytes) {
    if (!file_) return;
    errno = 0;
    if (file_->write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size()))
        fail(path_ + " cannot be saved: " + reasonOf(*file_, path_) + ".");
}

bool SafeSave::commit() {
    if (!file_) return fail("No save is under way.");
    errno = 0;
    if (!bringToDisk(*file_)) return fail(path_ + " cannot be saved: " + reasonOf(*file_, path_) + ".");
    file_->close();
    if (const std::error_code problem = moveFile(temporaryName(path_), path_))
        return fail(path_ + " cannot be saved: " + writeProblem(problem.value(), folderOf(path_)) + ".");
    file_.reset();
    bringNamesToDisk(path_);
    removeFile(setAsideName(path_));
    turn_.reset();
    hold_.reset();
    return true;
}

void SafeSave::giveUp() {
    if (file_) {
        file_->close();
        removeFile(temporaryName(path_));
        putBack(path_);
        file_.reset();
    }
    turn_.reset();
    hold_.reset();
}

namespace {

/// Reads a file; false when there is none, or when it went away or could not be opened, for which `result` has the
/// reason.
bool readExisting(const std::string& path, std::size_t limit, FileBytes& result) {
    std::error_code ignored;
    const fs::file_status status = fs::status(toPath(path), ignored);
    if (!fs::exists(status)) return false;
    if (!fs::is_regular_file(status)) {
        result.problem = path + " is no file.";
        return true;
    }
    std::ifstream file(toPath(path), std::ios::binary);
    if (!file) {
        result.problem = path + " cannot be opened: " + std::strerror(errno) + ".";
        return false;
    }
    result.problem.clear();
    const auto size = file.seekg(0, std::ios::end).tellg();
    if (size > static_cast<std::streamoff>(limit)) {
        result.problem = path + " is longer than any file of its kind (" + std::to_string(limit) + " bytes).";
        return true;
    }
    result.bytes.resize(static_cast<std::size_t>(std::max<std::streamoff>(size, 0)));
    file.seekg(0).read(result.bytes.data(), static_cast<std::streamsize>(result.bytes.size()));
    if (size < 0 || file.bad()) result.problem = path + " cannot be read: " + std::strerror(errno) + ".";
    result.bytes.resize(static_cast<std::size_t>(file.gcount()));
    return true;
}

}  // namespace

FileBytes readSafeFile(const std::string& path, std::size_t limit) {
    FileBytes result;
    // A save under way may rename and remove the files between one look and the next.
    constexpr int kLooks = 20;
    for (int look = 0; look < kLooks; ++look) {
        if (readExisting(path, limit, result)) return result;
        if (readExisting(setAsideName(path), limit, result)) {
            logError(path + " is missing; the file that an unfinished save set aside is taken in its place.");
            QLockFile turn(toQt(lockName(path)));
            if (turn.tryLock(0)) putBack(path);  // no save is under way
            return result;
        }
    }
    if (!safeFileExists(path)) {
        result.missing = true;
        result.problem = "There is no file " + path + ".";
    }
    return result;
}

bool safeFileExists(const std::string& path) {
    return isThere(path) || isThere(setAsideName(path));
}

bool claimName(const std::string& file, const std::string& path) {
    if (QFile::rename(toQt(file), toQt(path))) return true;  // refuses a name that is taken
    removeFile(file);
    return isThere(path);
}

std::string setDamagedFileAside(const std::string& path) {
    constexpr int kMostKept = 100;
    QLockFile turn(toQt(lockName(path)));
    if (!turn.tryLock(0)) return "";
    std::string kept = path + ".damaged";
    for (int number = 2; isThere(kept) && number <= kMostKept; ++number)
        kept = path + ".damaged-" + std::to_string(number);
    return QFile::rename(toQt(path), toQt(kept)) ? kept : "";  // refuses a name that is taken
}

std::string ownNameBeside(const std::string& path) {
    return path + ".new-" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

}  // namespace tavrin

#include "delivery/mail/Outbox.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include <QUuid>

#include "core/Interruption.h"
#include "core/files/AtomicFile.h"
#include "core/files/FreeName.h"
#include "core/files/Places.h"
#include "delivery/mail/OutboxFiles.h"
#include "delivery/words/Says.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using State = OutboxEntry::State;

constexpr const char *kBeingMade = ".new-", *kBeingRemoved = ".gone-", *kPrepared = ".ready-";

bool makePrivateFolder(const std::string& path) {
    return ::mkdir(path.c_str(), S_IRWXU) == 0;
}

/// @return -1 when somebody else has it
int lockOf(const std::string& folder, int how, int flags) {
    const int handle = ::open((folder + kOutboxLock).c_str(), how | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (handle < 0) return -1;
    struct stat facts {};
    if (::flock(handle, flags | LOCK_NB) == 0 && ::fstat(handle, &facts) == 0 && facts.st_nlink > 0) return handle;
    ::close(handle);
    return -1;
}

bool isLocked(const std::string& folder) {
    const int handle = lockOf(folder, O_RDWR, LOCK_SH);
    if (handle >= 0) ::close(handle);
    return handle < 0;
}

/// Of programs that were killed while they put a mail in or took one out. A younger one may be under work.
void removeIfOld(const fs::path& path) {
    constexpr std::chrono::minutes kAge{10};
    std::error_code failed;
    const auto changed = fs::last_write_time(path, failed);
    if (!failed && fs::file_time_type::clock::now() - changed > kAge) fs::remove_all(path, failed);
}

/// @return "" or why not all of a mail is in its folder
std::string fill(const std::string& folder, const OutboxEntry& entry, const QByteArray& attachment) {
    std::string problem;
    if (!entry.mail.attachment.empty()) problem = writePrivateFile(folder + kOutboxAttachment, attachment);
    if (problem.empty()) problem = writeOutboxEntry(entry, folder);
    if (problem.empty()) bringNamesToDisk(folder);
    return problem;
}

OutboxEntry lookAt(const std::string& folder) {
    std::error_code none;
    OutboxEntry entry = readOutboxEntry(folder);
    if (fs::exists(folder + kOutboxHandedOver, none)) {
        entry.state = State::maybeGone;
        std::ifstream note(folder + kOutboxHandedOver);
        if (!std::getline(note, entry.reason))  // whoever sent it never came to an end
            entry.reason = said(Says::endedMeanwhile);
    }
    return entry;
}

}  // namespace

OutboxClaim::OutboxClaim(OutboxClaim&& other) noexcept
    : folder_(std::move(other.folder_)), lock_(std::exchange(other.lock_, -1)), entry_(std::move(other.entry_)) {}

OutboxClaim& OutboxClaim::operator=(OutboxClaim&& other) noexcept {
    std::swap(folder_, other.folder_);
    std::swap(lock_, other.lock_);
    std::swap(entry_, other.entry_);
    return *this;
}

OutboxClaim::~OutboxClaim() {
    if (lock_ >= 0) ::close(lock_);
}

bool OutboxClaim::noteHandedOver() const {
    return writePrivateFile(folder_ + kOutboxHandedOver, {}).empty();
}

void OutboxClaim::remove() {
    const Interruption::Hold hold;
    const fs::path folder(folder_);
    const fs::path leaving = folder.parent_path() / (kBeingRemoved + folder.filename().string());
    std::error_code failed;
    fs::rename(folder, leaving, failed);  // gone in one step
    if (failed) return;
    bringNamesToDisk(folder.parent_path().string());
    fs::remove_all(leaving, failed);
}

void OutboxClaim::settle(const MailResult& result) {
    if (result.end == MailEnd::sent) return remove();
    const Interruption::Hold hold;
    entry_.reason = result.reason;
    ++entry_.tries;
    entry_.state = result.end == MailEnd::notSent ? State::waiting : State::held;
    entry_.nextTry = QDateTime::currentDateTime().addSecs(Outbox::pauseSeconds(entry_.tries));
    static_cast<void>(writeOutboxEntry(entry_, folder_));  // else the old words stay, and the mail with them
    if (result.end == MailEnd::unknown) {
        static_cast<void>(writePrivateFile(folder_ + kOutboxHandedOver, QByteArray::fromStdString(result.reason)));
        return;
    }
    std::error_code none;
    fs::remove(folder_ + kOutboxHandedOver, none);
}

Outbox::Outbox(std::string folder, OutboxLimits limits) : folder_(std::move(folder)), limits_(limits) {}

std::string Outbox::usualFolder() {
    return Places::current().sharedFolder() + "Outbox/";
}

/// @param more bytes that are to be attached. @return "" while there is room
std::string Outbox::whyFull(long long more) const {
    int mails = 0;
    long long bytes = 0;
    std::error_code failed;
    for (fs::directory_iterator at(folder_, failed), end; !failed && at != end; at.increment(failed)) {
        if (at->path().filename().native().starts_with('.')) continue;
        std::error_code none;
        const auto size = fs::file_size(at->path().native() + kOutboxAttachment, none);
        bytes += none ? 0 : static_cast<long long>(size);
        ++mails;
    }
    if (mails < limits_.mails && bytes + more <= limits_.bytes) return "";
    constexpr long long kMega = 1'000'000;
    return said(Says::outboxFull, {std::to_string(mails), std::to_string(bytes / kMega),
                                   std::to_string(limits_.mails), std::to_string(limits_.bytes / kMega)});
}

/// @return "" or why there is none
std::string Outbox::makeFolder() const {
    std::error_code failed;
    fs::create_directories(fs::path(folder_).parent_path().parent_path(), failed);
    return makePrivateFolder(folder_) || errno == EEXIST ? "" : writeProblem(errno, folder_);
}

std::optional<OutboxClaim> Outbox::add(const OutgoingMail& mail, const QByteArray& attachment,
                                       std::string& problem) const {
    const auto fail = [&](const std::string& why) {
        problem = said(Says::outboxFails, {folder_, why});
        return std::optional<OutboxClaim>();
    };
    if (problem = whyFull(attachment.size()); !problem.empty()) return {};
    if (const std::string why = makeFolder(); !why.empty()) return fail(why);
    const Interruption::Hold hold;
    const QDateTime now = QDateTime::currentDateTime();
    const std::string id =
        (now.toString("yyyyMMdd-HHmmss-zzz-") + QUuid::createUuid().toString(QUuid::Id128).left(8)).toStdString();
    const std::string being = folder_ + kBeingMade + id;
    if (!makePrivateFolder(being)) return fail(writeProblem(errno, folder_));
    OutboxClaim claim(pathOf(id), lockOf(being, O_RDWR | O_CREAT, LOCK_EX));
    claim.entry_.id = id;
    claim.entry_.mail = mail;
    claim.entry_.created = claim.entry_.nextTry = now;
    if (claim.lock_ < 0) problem = said(Says::noLocks);
    if (problem.empty()) problem = fill(being, claim.entry_, attachment);
    if (problem.empty() && ::rename(being.c_str(), claim.folder_.c_str()) != 0)
        problem = writeProblem(errno, folder_);
    if (!problem.empty()) {
        std::error_code failed;
        fs::remove_all(being, failed);
        return fail(problem);
    }
    bringNamesToDisk(folder_);
    // As it is read from the disk.
    if (!mail.attachment.empty()) claim.entry_.mail.attachment = claim.folder_ + kOutboxAttachment;
    claim.entry_.mail.keepLocation = true;
    return claim;
}

std::string Outbox::prepare(const std::string& id, const OutgoingMail& mail, const QByteArray& attachment) const {
    if (const std::string why = makeFolder(); !why.empty()) return said(Says::outboxFails, {folder_, why});
    const std::string being = folder_ + kPrepared + id;
    const Interruption::Hold hold;
    withdraw(id);
    if (!makePrivateFolder(being)) return said(Says::outboxFails, {folder_, writeProblem(errno, folder_)});
    OutboxEntry entry;
    entry.id = id;
    entry.mail = mail;
    entry.created = entry.nextTry = QDateTime::currentDateTime();
    std::string problem = writePrivateFile(being + kOutboxLock, {});
    if (problem.empty()) problem = fill(being, entry, attachment);
    if (problem.empty()) return "";
    withdraw(id);
    return said(Says::outboxFails, {folder_, problem});
}

bool Outbox::release(const std::string& id) const {
    const bool isNew = ::rename((folder_ + kPrepared + id).c_str(), pathOf(id).c_str()) == 0;
    bringNamesToDisk(folder_);
    return isNew;
}

void Outbox::withdraw(const std::string& id) const {
    std::error_code ignored;
    fs::remove_all(folder_ + kPrepared + id, ignored);
}

std::vector<OutboxEntry> Outbox::entries() const {
    std::vector<OutboxEntry> entries;
    std::error_code failed;
    for (fs::directory_iterator at(folder_, failed), end; !failed && at != end; at.increment(failed)) {
        const std::string name = at->path().filename().string();
        if (name.starts_with(kBeingMade) || name.starts_with(kBeingRemoved)) {
            removeIfOld(at->path());
            continue;
        }
        std::error_code none;
        if (name.starts_with('.') || !at->is_directory(none)) continue;
        OutboxEntry entry = lookAt(at->path().string());
        if (!fs::exists(at->path(), none)) continue;  // it has just gone
        if (isLocked(at->path().string())) entry.state = State::underWay;
        entries.push_back(std::move(entry));
    }
    std::ranges::sort(entries, {}, &OutboxEntry::id);
    return entries;
}

std::optional<OutboxClaim> Outbox::claim(const std::string& id) const {
    if (id.empty() || id.front() == '.' || id.find('/') != std::string::npos) return {};
    constexpr int kTries = 5;
    constexpr std::chrono::milliseconds kPause{10};
    for (int i = 0; i < kTries; ++i) {  // whoever only looks has the lock for a moment
        OutboxClaim claim(pathOf(id), lockOf(pathOf(id), O_RDWR, LOCK_EX));
        std::error_code none;
        if (claim.lock_ >= 0 && fs::exists(claim.folder_ + kOutboxLock, none)) {
            claim.entry_ = lookAt(claim.folder_);
            return claim;
        }
        std::this_thread::sleep_for(kPause);
    }
    return {};
}

bool Outbox::discard(const std::string& id) const {
    std::optional<OutboxClaim> claimed = claim(id);
    if (claimed) claimed->remove();
    return claimed.has_value();
}

long long Outbox::pauseSeconds(int tries) {
    constexpr long long kFirst = 60, kLongest = 4 * 60 * 60;
    constexpr int kDoublings = 8;
    return std::min(kFirst << std::clamp(tries - 1, 0, kDoublings), kLongest);
}

}  // namespace tavrin

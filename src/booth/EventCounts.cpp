#include "booth/EventCounts.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include "booth/BoothFolder.h"
#include "core/files/NameText.h"
#include "folders/FolderListing.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char *kBegin = "counts-", *kEnd = ".jsonl";
constexpr const char *kPicture = "picture", *kPrints = "prints", *kMail = "mail", *kFailure = "failed",
                     *kRefill = "refill";

std::string dayOf(long long at) {
    return QDateTime::fromMSecsSinceEpoch(at).date().toString(Qt::ISODate).toStdString();
}

long long now() {
    return QDateTime::currentMSecsSinceEpoch();
}

}  // namespace

EventCounts::EventCounts(std::string outputFolder, const std::string& installation)
    : folder_(BoothFolder(std::move(outputFolder)).hidden()),
      own_(folder_ + kBegin + installation + "-" + std::to_string(::getpid()) + kEnd) {
    refresh();
}

void EventCounts::append(const Line& line) {
    const QJsonObject object{
        {"what", textOfName(line.what)}, {"ticket", textOfName(line.stem)}, {"at", line.at}, {"number", line.number}};
    // A line that a kill or a full disk tore is no line; whatever comes behind it begins anew.
    const QByteArray text = '\n' + QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    const int file = ::open(own_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (file < 0) return;
    static_cast<void>(!::write(file, text.constData(), static_cast<std::size_t>(text.size())));
    ::close(file);
}

void EventCounts::addPicture(const std::string& stem) {
    append({kPicture, stem, now(), 1});
    refresh();
}

void EventCounts::addPrints(const std::string& stem, int prints) {
    append({kPrints, stem, now(), prints});
    refresh();
}

void EventCounts::addMail(const std::string& stem) {
    append({kMail, stem, now(), 1});
    refresh();
}

void EventCounts::addFailure(const std::string& stem) {
    append({kFailure, stem, now(), 1});
    refresh();
}

void EventCounts::refill(int prints) {
    append({kRefill, "", now(), prints});
    refresh();
}

void EventCounts::refresh() {
    std::lock_guard lock(mutex_);
    for (const std::string& name : listFolder(folder_).names) {
        if (name.starts_with(kBegin) && name.ends_with(kEnd)) readOn(folder_ + name);
    }
}

/// Whole lines only: the last one may be under way.
void EventCounts::readOn(const std::string& path) {
    std::error_code failed;
    std::streamoff& done = read_[path];
    const std::uintmax_t size = fs::file_size(path, failed);
    if (failed || size <= static_cast<std::uintmax_t>(done)) return;
    std::ifstream file(path, std::ios::binary);
    file.seekg(done);
    for (std::string text; std::getline(file, text) && !file.eof();) {
        done = file.tellg();
        const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
        const auto word = [&object](const char* key) { return nameOfText(object[QLatin1String(key)].toString()); };
        if (!object.isEmpty())
            take({word("what"), word("ticket"), object["at"].toInteger(), object["number"].toInt()});
    }
}

void EventCounts::take(const Line& line) {
    if (line.what == kRefill) {
        if (!refill_ || refill_->first <= line.at) refill_ = {line.at, line.number};
        return;
    }
    // A ticket that was set aside and put back may fail once more.
    if (line.what != kFailure && !known_.insert(line.what + "/" + line.stem).second) return;
    EventTally& day = days_[dayOf(line.at)];
    if (line.what == kPicture) ++day.pictures;
    if (line.what == kMail) ++day.mails;
    if (line.what == kFailure) ++day.failed;
    if (line.what != kPrints) return;
    day.prints += line.number;
    prints_[line.at] += line.number;
}

EventTally EventCounts::today() const {
    std::lock_guard lock(mutex_);
    const auto day = days_.find(dayOf(now()));
    return day == days_.end() ? EventTally() : day->second;
}

int EventCounts::printsLeft() const {
    std::lock_guard lock(mutex_);
    if (!refill_ || refill_->second < 0) return -1;
    int used = 0;
    for (auto print = prints_.upper_bound(refill_->first); print != prints_.end(); ++print)
        used += print->second;
    return std::max(refill_->second - used, 0);
}

std::string EventCounts::csv() const {
    std::lock_guard lock(mutex_);
    std::string text = "day,pictures,prints,mails,failed\n";
    for (const auto& [day, tally] : days_) {
        text += day;
        for (const int number : {tally.pictures, tally.prints, tally.mails, tally.failed})
            text += "," + std::to_string(number);
        text += "\n";
    }
    return text;
}

int allowedCopies(int wanted, int limit) {
    const int copies = std::max(wanted, 1);
    return limit > 0 ? std::min(copies, limit) : copies;
}

}  // namespace tavrin

#include "delivery/print/PrintQueue.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>

#include "core/Log.h"
#include "core/files/AtomicFile.h"
#include "core/files/FreeName.h"
#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "delivery/words/Says.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr auto kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;
constexpr const char *kSeen = ".json", *kPrepared = ".prepared";
constexpr const char* kStages[] = {"waiting", "sending", "atPrinter", "unsure"};

QJsonObject objectOf(const QueuedSheet& sheet) {
    const PrintJob& job = sheet.job;
    return {{"printer", textOfName(job.printer)},
            {"title", QString::fromStdString(job.title)},
            {"paper", QString::fromStdString(job.paper.name)},
            {"width", job.paper.width},
            {"height", job.paper.height},
            {"picture", textOfName(sheet.picture)},
            {"page", QString::fromStdString(sheet.page)},
            {"stage", kStages[static_cast<int>(sheet.stage)]},
            {"number", sheet.number},
            {"byItself", sheet.byItself},
            {"reason", QString::fromStdString(sheet.reason)}};
}

/// @return whether the object tells of a sheet
bool take(const QJsonObject& object, QueuedSheet& sheet) {
    const auto text = [&object](const char* key) { return object[QLatin1String(key)].toString(); };
    const auto stage = std::ranges::find(kStages, text("stage").toStdString());
    if (stage == std::end(kStages) || text("printer").isEmpty()) return false;
    sheet.job = {nameOfText(text("printer")),
                 text("title").toStdString(),
                 {object["width"].toDouble(), object["height"].toDouble(), text("paper").toStdString()}};
    sheet.picture = nameOfText(text("picture"));
    sheet.page = text("page").toStdString();
    sheet.stage = static_cast<QueuedSheet::Stage>(stage - std::begin(kStages));
    sheet.number = object["number"].toInt();
    sheet.byItself = object["byItself"].toBool();
    sheet.reason = text("reason").toStdString();
    return true;
}

void keepFromOthers(const std::string& path) {
    std::error_code ignored;
    fs::permissions(path, kOwnerOnly, ignored);
}

/// Older names come before younger ones, and no two programs make the same.
std::string newName() {
    static std::atomic<unsigned> made = 0;
    return QStringLiteral("%1-%2-%3")
        .arg(QDateTime::currentMSecsSinceEpoch(), 14, 10, QLatin1Char('0'))
        .arg(QCoreApplication::applicationPid(), 8, 10, QLatin1Char('0'))
        .arg(++made, 6, 10, QLatin1Char('0'))
        .toStdString();
}

std::string makeFolder(const std::string& folder) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (failed) return said(Says::noRoomForSheets, {folder, failed.message()});
    fs::permissions(folder, fs::perms::owner_all, failed);
    return "";
}

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

PrintQueue::PrintQueue(std::string folder) : folder_(std::move(folder)) {}

std::string PrintQueue::usualFolder() {
    return Places::current().sharedFolder() + "PrintQueue/";
}

std::string PrintQueue::newDocument(std::string& problem) const {
    problem = makeFolder(folder_);
    return folder_ + newName() + ".pdf";
}

std::string PrintQueue::keepDocument(const std::string& id, const std::string& document) const {
    const std::string own = this->document(id);
    std::error_code failed;
    fs::remove(own, failed);
    fs::create_hard_link(document, own, failed);
    if (failed) fs::copy_file(document, own, failed);
    if (failed) return said(Says::sheetNotKept, {folder_, failed.message()});
    keepFromOthers(own);
    return "";
}

std::string PrintQueue::add(QueuedSheet& sheet, const std::string& document) {
    const std::string id = newName();
    std::string problem = keepDocument(id, document);
    if (!problem.empty()) return problem;
    sheet.id = id;
    problem = note(sheet);
    if (!problem.empty()) {
        std::error_code failed;
        fs::remove(this->document(id), failed);
        sheet.id.clear();
    }
    return problem;
}

std::string PrintQueue::prepare(const QueuedSheet& sheet, const std::string& document) const {
    std::error_code failed;
    if (fs::exists(folder_ + sheet.id + kSeen, failed)) return "";
    std::string problem = keepDocument(sheet.id, document);
    if (problem.empty()) problem = write(sheet, kPrepared);
    if (!problem.empty()) withdraw(sheet.id);
    return problem;
}

bool PrintQueue::release(const std::string& id) const {
    std::error_code failed;
    fs::rename(folder_ + id + kPrepared, folder_ + id + kSeen, failed);
    bringNamesToDisk(folder_);
    return !failed;
}

void PrintQueue::withdraw(const std::string& id) const {
    std::error_code ignored;
    fs::remove(folder_ + id + kPrepared, ignored);
    if (!fs::exists(folder_ + id + kSeen, ignored)) fs::remove(document(id), ignored);
}

std::vector<QueuedSheet> PrintQueue::sheets() const {
    std::vector<std::string> ids;
    std::error_code ended;
    for (auto entry = fs::directory_iterator(folder_, ended); !ended && entry != fs::directory_iterator();
         entry.increment(ended)) {
        if (entry->path().extension() == ".json" && !entry->path().filename().string().starts_with('.'))
            ids.push_back(entry->path().stem().string());
    }
    std::ranges::sort(ids);
    std::vector<QueuedSheet> all;
    for (const std::string& id : ids) {
        QueuedSheet found = sheet(id);
        if (!found.id.empty()) all.push_back(std::move(found));
    }
    return all;
}

QueuedSheet PrintQueue::sheet(const std::string& id) const {
    const std::string path = folder_ + id + ".json";
    std::error_code failed;
    QueuedSheet sheet;
    if (!fs::exists(path, failed)) return sheet;
    if (take(QJsonDocument::fromJson(QByteArray::fromStdString(bytesOf(path))).object(), sheet)) {
        sheet.id = id;
    } else if (fs::exists(path, failed)) {  // and was not removed meanwhile
        logError(path + " tells of no sheet; it is passed over.");
    }
    return sheet;
}

std::string PrintQueue::note(const QueuedSheet& sheet) const {
    return write(sheet, kSeen);
}

std::string PrintQueue::write(const QueuedSheet& sheet, const char* ending) const {
    const std::string path = folder_ + sheet.id + ending;
    const QByteArray bytes = QJsonDocument(objectOf(sheet)).toJson();
    AtomicFile file(path);
    file.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!file.commit()) return said(Says::sheetNotKept, {folder_, file.error()});
    keepFromOthers(path);
    return "";
}

/// The document goes last, so that no sheet is ever without one.
void PrintQueue::remove(const std::string& id) const {
    std::error_code ignored;
    fs::remove(folder_ + id + ".json", ignored);
    fs::remove(document(id), ignored);
}

std::unique_ptr<QLockFile> PrintQueue::hold(const std::string& id) const {
    auto lock = std::make_unique<QLockFile>(textOfName(folder_ + id + ".held"));
    lock->setStaleLockTime(0);  // only the end of its process frees it
    if (!lock->tryLock(0)) return nullptr;
    return lock;
}

void PrintQueue::removeLeftDocuments() const {
    AtomicFile::removeAbandonedParts(folder_);
    constexpr std::chrono::hours kAge{1};  // a younger one may be about to become a sheet
    std::error_code ended, failed;
    for (auto entry = fs::directory_iterator(folder_, ended); !ended && entry != fs::directory_iterator();
         entry.increment(ended)) {
        const std::string sheet = folder_ + entry->path().stem().string();
        if (entry->path().extension() != ".pdf" || fs::exists(sheet + kSeen) || fs::exists(sheet + kPrepared))
            continue;
        const auto age = fs::file_time_type::clock::now() - entry->last_write_time(failed);
        if (!failed && age > kAge) fs::remove(entry->path(), failed);
    }
}

}  // namespace tavrin

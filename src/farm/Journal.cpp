#include "farm/Journal.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include "core/files/AtomicFile.h"
#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "farm/BatchReport.h"
#include "farm/JudgementText.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kFolder = ".tavrin-batch";
constexpr const char* kEnding = ".jsonl";
/// Runs that may leave their files before one that is alone joins them.
constexpr std::size_t kMostFiles = 16;

constexpr const char* kStatusNames[] = {"begun", "done", "failed"};

std::int64_t now() {
    const auto since = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

/// No run gets that far: a number beyond it was not written by one.
constexpr std::int64_t kHighestOrder = std::int64_t{1} << 52;

/// File times have more digits than a JSON number holds, so they are written as text.
QJsonObject describe(const InputFile& input) {
    return {{"size", QString::number(input.facts.size)},
            {"time", QString::number(input.facts.time)},
            {"digest", textOfName(input.digest)}};
}

InputFile inputOf(const QJsonObject& object) {
    return {{object["size"].toString().toULongLong(), object["time"].toString().toLongLong()},
            object["digest"].toString().toStdString()};
}

std::string lineOf(const JobRecord& record) {
    QJsonArray inputs;
    for (const InputFile& input : record.inputs)
        inputs.append(describe(input));
    QJsonObject object{{"name", textOfName(record.name)},
                       {"out", textOfName(record.out)},
                       {"status", kStatusNames[static_cast<int>(record.status)]},
                       {"order", static_cast<qint64>(record.order)},
                       {"at", QString::number(record.time)},
                       {"recipe", textOfName(record.recipe)},
                       {"inputs", inputs}};
    if (!record.reason.empty()) object["reason"] = textOfName(record.reason);
    if (!record.warnings.empty()) object["warnings"] = describeWarnings(record.warnings);
    if (record.judgement) addJudgement(object, *record.judgement);
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() + "\n";
}

/// Nothing when the line was cut short.
std::optional<JobRecord> recordOf(const std::string& line) {
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    const QString status = object["status"].toString();
    const auto* known = std::find_if(std::begin(kStatusNames), std::end(kStatusNames),
                                     [&status](const char* name) { return status == QLatin1String(name); });
    if (known == std::end(kStatusNames) || !object.contains("name")) return std::nullopt;
    JobRecord record;
    record.name = nameOfText(object["name"].toString());
    record.out = nameOfText(object["out"].toString());
    record.status = static_cast<JobRecord::Status>(known - std::begin(kStatusNames));
    record.order = object["order"].toInteger();
    if (record.order < 0 || record.order > kHighestOrder) record.order = 0;
    record.time = object["at"].toString().toLongLong();
    record.recipe = object["recipe"].toString().toStdString();
    record.reason = nameOfText(object["reason"].toString());
    for (const auto& input : object["inputs"].toArray())
        record.inputs.push_back(inputOf(input.toObject()));
    for (const auto& warning : object["warnings"].toArray()) {
        const QJsonObject told = warning.toObject();
        record.warnings.push_back({nameOfText(told["kind"].toString()), nameOfText(told["text"].toString())});
    }
    record.judgement = judgementOf(object);
    return record;
}

bool isLater(const JobRecord& record, const JobRecord& than) {
    return record.order != than.order ? record.order > than.order : record.time >= than.time;
}

bool writeAll(int file, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t count = ::write(file, text.data() + done, text.size() - done);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        done += static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace

Journal::Journal() = default;

Journal::~Journal() {
    for (const int handle : {file_, turn_}) {
        if (handle >= 0) ::close(handle);
    }
}

// The system gives the turn back when the process ends, however that comes about.
bool Journal::takeTurn(Use use) {
    turn_ = ::open((folder_ + "/turn").c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    if (turn_ < 0) return true;  // the journal's own file tells why
    return ::flock(turn_, (use == Use::alone ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

std::string Journal::open(const std::string& outFolder, Use use) {
    use_ = use;
    folder_ = (fs::path(outFolder) / kFolder).string();
    std::error_code failed;
    if (use != Use::look) {
        fs::create_directories(folder_, failed);
        if (failed) return "The folder " + outFolder + " cannot be written to: " + failed.message() + ".";
        if (!takeTurn(use)) return "Another batch is writing into " + outFolder + ".";
    }
    const std::vector<std::string> files = this->files();
    for (const std::string& file : files)
        readFile(file);
    path_ = folder_ + "/" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + kEnding;
    if (use == Use::alone && files.size() > kMostFiles) tidy(files);
    return "";
}

/// Anything but a plain file of that ending is none of the journal's, and might keep a reader waiting.
std::vector<std::string> Journal::files() const {
    std::vector<std::string> files;
    std::error_code failed;
    for (fs::directory_iterator entry(folder_, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string path = entry->path().string();
        if (path.ends_with(kEnding) && isPlainFile(path)) files.push_back(path);
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// What has come to the file since it was read last. A last line without its end may be under way, and is read again.
void Journal::readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::streamoff& end = read_[path];
    file.seekg(end);
    for (std::string line; std::getline(file, line);) {
        if (!file.eof()) end += static_cast<std::streamoff>(line.size()) + 1;
        if (std::optional<JobRecord> record = recordOf(line)) take(std::move(*record));
    }
}

void Journal::take(JobRecord record) {
    order_ = std::max(order_, record.order);
    if (record.status != JobRecord::Status::failed) owners_.try_emplace(record.out, record.name);
    JobRecord& known = records_[record.name];
    if (known.name.empty() || isLater(record, known)) known = std::move(record);
}

// The old files go when their records stand in the new one. A picture that its job has left behind for another name
// stays known by a record that is older than any.
void Journal::tidy(const std::vector<std::string>& files) {
    AtomicFile joined(folder_ + "/" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + kEnding);
    for (const auto& [name, record] : records_) {
        const std::string line = lineOf(record);
        joined.write(line.data(), line.size());
    }
    for (const auto& [out, name] : owners_) {
        if (records_[name].out == out) continue;
        JobRecord left;
        left.name = name;
        left.out = out;
        const std::string line = lineOf(left);
        joined.write(line.data(), line.size());
    }
    if (!joined.commit()) return;
    for (const std::string& file : files)
        ::unlink(file.c_str());
}

const JobRecord* Journal::find(const std::string& name) const {
    const auto known = records_.find(name);
    return known == records_.end() ? nullptr : &known->second;
}

bool Journal::owns(const std::string& out) {
    if (owners_.contains(out)) return true;
    // Another task may be at work on the same share.
    if (use_ != Use::shared) return false;
    for (const std::string& file : files()) {
        if (file != path_) readFile(file);
    }
    return owners_.contains(out);
}

/// A folder that was removed while the run goes on is made anew with the next picture, and its journal with it.
void Journal::openFile() {
    struct stat facts {};
    if (file_ >= 0 && ::fstat(file_, &facts) == 0 && facts.st_nlink == 0) {
        ::close(file_);
        file_ = -1;
        std::error_code ignored;
        fs::create_directories(folder_, ignored);
    }
    if (file_ < 0) file_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
}

std::string Journal::add(JobRecord record) {
    record.order = order_ + 1;
    record.time = now();
    const bool isBegun = record.status == JobRecord::Status::begun;
    const std::string line = lineOf(record);
    take(std::move(record));
    return append(line, isBegun);
}

std::string Journal::append(const std::string& line, bool onDisk) {
    openFile();
    // A line that a full disk cut short ends here, so that it spoils no other.
    if (file_ >= 0 && writeAll(file_, torn_ ? "\n" + line : line)) {
        torn_ = false;
        if (onDisk) ::fdatasync(file_);
        return "";
    }
    const int reason = errno;
    torn_ = file_ >= 0;
    return reason == ENOSPC || reason == EDQUOT ? kDiskFull : std::strerror(reason);
}

GivenNames Journal::givenNames() const {
    GivenNames names;
    for (const auto& [name, record] : records_)
        names[name] = record.out;
    return names;
}

}  // namespace tavrin

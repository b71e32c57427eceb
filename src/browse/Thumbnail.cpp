#include "browse/Thumbnail.h"

#include <filesystem>
#include <glib.h>
#include <memory>
#include <optional>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "core/image/SmallPicture.h"
#include "folders/FileFacts.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kUri = "Thumb::URI";
constexpr const char* kTime = "Thumb::MTime";
constexpr const char* kBytes = "Thumb::Size";
constexpr const char* kProblem = "Tavrin::Problem";
constexpr const char* kFailures = "fail/tavrin-1";  // what this program cannot read another one may

/// How a picture file is known to the cache.
struct Entry {
    QString uri, time, bytes;
    QString name;  ///< of its file in each folder of the cache
};

QString cacheFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/thumbnails";
}

const char* folderOf(ThumbnailSize size) {
    return size == ThumbnailSize::normal ? "normal" : "large";
}

/// Whole seconds since 1970, as other programs compare them.
std::optional<std::int64_t> secondsOf(const std::string& path) {
    std::error_code gone;
    const auto time = fs::last_write_time(path, gone);
    if (gone) return std::nullopt;
    const auto since = std::chrono::file_clock::to_sys(time).time_since_epoch();
    return std::chrono::floor<std::chrono::seconds>(since).count();
}

/// Nothing for a file that is not there, or whose name makes no address.
std::optional<Entry> entryOf(const std::string& path) {
    const std::optional<FileFacts> facts = factsOf(path);
    const std::optional<std::int64_t> seconds = secondsOf(path);
    // All desktops write an address the same way, or they would not find each other's pictures.
    const std::unique_ptr<char, void (*)(void*)> uri(g_filename_to_uri(path.c_str(), nullptr, nullptr), g_free);
    if (!facts || !seconds || !uri) return std::nullopt;
    const QByteArray digest = QCryptographicHash::hash(QByteArrayView(uri.get()), QCryptographicHash::Md5).toHex();
    return Entry{QString::fromLatin1(uri.get()), QString::number(*seconds), QString::number(facts->size),
                 QString::fromLatin1(digest) + ".png"};
}

/// Null when it is not that of the file as it stands.
QImage readEntry(const QString& folder, const Entry& entry) {
    const QString file = cacheFolder() + '/' + folder + '/' + entry.name;
    if (!isPlainFile(file.toStdString())) return {};
    QImage image = QImageReader(file, "png").read();
    const QString bytes = image.text(kBytes);  // not everybody writes it
    const bool same =
        image.text(kUri) == entry.uri && image.text(kTime) == entry.time && (bytes.isEmpty() || bytes == entry.bytes);
    return same ? image : QImage();
}

/// With what is missing above it; what belongs to the cache is nobody else's to look into.
void makeFolder(const fs::path& place) {
    std::error_code failed;
    const bool isTop = place.filename() == "thumbnails";
    if (!isTop) makeFolder(place.parent_path());
    if (isTop) fs::create_directories(place.parent_path(), failed);
    if (fs::create_directory(place, failed)) fs::permissions(place, fs::perms::owner_all, failed);
}

/// For the owner's eyes only, under a temporary name until it is whole. Nothing waits for the disk: what a power cut
/// leaves torn is made anew.
void writeEntry(const QString& folder, const Entry& entry, QImage image) {
    const fs::path place = QFile::encodeName(cacheFolder() + '/' + folder).toStdString();
    std::error_code failed;
    if (!fs::is_directory(place, failed)) makeFolder(place);
    image.setText(kUri, entry.uri);
    image.setText(kTime, entry.time);
    image.setText(kBytes, entry.bytes);
    QTemporaryFile file(QString::fromStdString((place / "tavrin-XXXXXX").string()));
    if (!file.open()) return;
    QImageWriter writer(&file, "png");
    writer.setCompression(20);  // of 100: a third of the time, a tenth more bytes
    if (!writer.write(image) || !file.flush()) return;
    fs::rename(file.fileName().toStdString(), place / entry.name.toStdString(), failed);
    file.setAutoRemove(bool(failed));
}

bool isInCache(const std::string& path) {
    return path.starts_with(cacheFolder().toStdString() + '/');
}

bool stillStands(const std::string& path, const Entry& entry) {
    const std::optional<Entry> now = entryOf(path);
    return now && now->time == entry.time && now->bytes == entry.bytes;
}

QImage failureMark(const std::string& problem) {
    QImage mark(1, 1, QImage::Format_ARGB32);
    mark.fill(Qt::transparent);
    mark.setText(kProblem, QString::fromStdString(problem));
    return mark;
}

}  // namespace

Thumbnail thumbnailOf(const std::string& path, ThumbnailSize size) {
    const std::optional<Entry> entry = entryOf(path);
    if (!entry) return {{}, "the file is not there"};
    if (QImage kept = readEntry(folderOf(size), *entry); !kept.isNull()) return {kept, ""};
    const QImage failure = readEntry(kFailures, *entry);
    if (!failure.isNull()) return {{}, failure.text(kProblem).toStdString()};
    ReadPicture read = readSmallPicture(path, static_cast<int>(size));
    if (isInCache(path) || !stillStands(path, *entry)) return {std::move(read.pixels), std::move(read.error)};
    if (read.error.empty()) {
        writeEntry(folderOf(size), *entry, read.pixels);
    } else if (read.error != kNoMemory && QFileInfo(textOfName(path)).isReadable()) {
        writeEntry(kFailures, *entry, failureMark(read.error));
    }
    return {std::move(read.pixels), std::move(read.error)};
}

}  // namespace tavrin

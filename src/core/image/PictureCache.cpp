#include "core/image/PictureCache.h"

#include <filesystem>
#include <list>
#include <mutex>
#include <tuple>

#include "core/Log.h"
#include "core/image/ImageReader.h"

namespace tavrin {

namespace {

// What names a picture: the file as it stood on disk, and the size it was stretched to (0 x 0: as decoded).
struct PictureKey {
    std::string path;
    std::uintmax_t fileSize = 0;
    std::filesystem::file_time_type fileTime;
    int width = 0, height = 0;

    bool operator==(const PictureKey&) const = default;
    bool isSameFileAs(const PictureKey& other) const {
        return fileSize == other.fileSize && fileTime == other.fileTime;
    }
};

class PictureCache {
  public:
    static PictureCache& instance() {
        static PictureCache cache;
        return cache;
    }

    QImage find(const PictureKey& key) {
        std::lock_guard lock(mutex_);
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
            if (!(entry->key == key)) continue;
            entries_.splice(entries_.begin(), entries_, entry);
            return entry->picture;
        }
        return {};
    }

    void keep(const PictureKey& key, const QImage& picture) {
        std::lock_guard lock(mutex_);
        std::erase_if(entries_, [&](const Entry& entry) {
            return entry.key == key || (entry.key.path == key.path && !entry.key.isSameFileAs(key));
        });
        entries_.push_front({key, picture});
        trim();
    }

    void setLimit(std::size_t bytes) {
        std::lock_guard lock(mutex_);
        limit_ = bytes;
        trim();
    }

  private:
    struct Entry {
        PictureKey key;
        QImage picture;
    };

    void trim() {
        std::size_t bytes = 0;
        for (auto entry = entries_.begin(); entry != entries_.end();) {
            bytes += static_cast<std::size_t>(entry->picture.sizeInBytes());
            entry = bytes > limit_ ? entries_.erase(entry) : std::next(entry);
        }
    }

    std::mutex mutex_;
    std::list<Entry> entries_;  // the one asked for last stands first
    std::size_t limit_ = std::size_t{256} << 20;
};

// The file as it stands; false when it cannot be looked at.
bool describe(const std::string& path, PictureKey& key) {
    std::error_code error;
    key.path = path;
    key.fileSize = std::filesystem::file_size(path, error);
    if (!error) key.fileTime = std::filesystem::last_write_time(path, error);
    return !error;
}

QImage decode(const std::string& path, std::string* problem) {
    ReadPicture picture = readPicture(path);
    if (problem) *problem = picture.error;
    if (!picture.damage.empty()) logWarning(path + ": " + picture.damage + ".");
    return picture.error.empty() ? std::move(picture.pixels) : QImage();
}

}  // namespace

QImage readKeptPicture(const std::string& path, int width, int height, std::string* problem) {
    const bool stretched = width > 0 && height > 0;
    PictureKey key;
    const bool described = describe(path, key);
    if (stretched) std::tie(key.width, key.height) = std::pair(width, height);
    if (described) {
        if (QImage kept = PictureCache::instance().find(key); !kept.isNull()) return kept;
    }
    QImage picture = stretched ? readKeptPicture(path, 0, 0, problem) : decode(path, problem);
    if (picture.isNull()) return {};
    if (stretched && picture.size() != QSize(width, height)) {
        picture = picture.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (picture.isNull() && problem) *problem = "there is not enough memory for it";
    }
    if (described && !picture.isNull()) PictureCache::instance().keep(key, picture);
    return picture;
}

void setKeptPictureBytes(std::size_t bytes) {
    PictureCache::instance().setLimit(bytes);
}

}  // namespace tavrin

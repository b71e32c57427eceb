#pragma once

#include <string>

#include <QImage>

namespace tavrin {

/// The sizes in which desktops keep small pictures: most pixels each way.
enum class ThumbnailSize { normal = 128, large = 256 };

/// A small picture of a file.
struct Thumbnail {
    QImage pixels;      ///< upright; null on failure
    std::string error;  ///< why there is none, as one plain line
};

/// The small picture of a picture file, from the cache that desktops share (`thumbnails` in the account's cache), or
/// made and put there. It counts as long as the file has the time that it had. A file that cannot be read is kept
/// as such, too, so that nobody tries again before it has changed. Pictures of that cache get no picture of their own
/// kept. Safe on any thread and beside other programs; a cache that cannot be written only costs time.
/// @param path of the file, absolute
Thumbnail thumbnailOf(const std::string& path, ThumbnailSize size);

}  // namespace tavrin

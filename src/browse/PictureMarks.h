#pragma once

#include <map>
#include <mutex>
#include <string>
#include <unordered_map>

namespace tavrin {

/// What somebody thinks of a picture while looking through a folder.
enum class PictureMark { none, keep, reject, lookAgain };

/// The marks of pictures, kept in the account: a small file for each folder of pictures, to which every change adds a
/// line, so that neither a crash nor a second program loses one; what a power cut can tear is the last line. A mark
/// belongs to the name of a file. Safe on any thread.
class PictureMarks {
  public:
    /// @param place folder for the files, which is made when the first mark is set
    explicit PictureMarks(const std::string& place);

    /// @param path of a picture, absolute. The marks of a folder are read when its first one is asked for.
    PictureMark mark(const std::string& path);
    /// Reads the marks of a folder ahead, on a thread that may wait for the disk.
    void read(const std::string& folder);
    /// Sets a mark and writes it down.
    /// @return "" or why it could not be written; it holds until the program ends all the same
    std::string setMark(const std::string& path, PictureMark mark);

  private:
    using Marks = std::unordered_map<std::string, PictureMark>;  // by name; without a mark there is no entry

    std::string fileOf(const std::string& folder) const;
    Marks& marksOf(const std::string& folder);
    Marks readFile(const std::string& folder) const;

    const std::string place_;
    std::mutex mutex_;
    std::map<std::string, Marks> folders_;
};

}  // namespace tavrin

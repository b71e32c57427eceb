#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "folders/FileFacts.h"

namespace tavrin {

/// Lists the candidates in a folder, remembers in a small history file what was handled, and answers which file is
/// next. New files come to light because callers ask again: each question looks into the folder, and reads the
/// history anew unless it is the file of before. There are no messages: a missing folder holds nothing, a missing or
/// unreadable history is an empty one. Not safe on two threads at once; its owner guards it.
class NextFileInFolder {
  public:
    NextFileInFolder() { oFilesInFolder.reserve(100); }

    /// The history becomes the file `name` in `folder`.
    void setHistoryFileLocation(const std::string& folder, const std::string& name);
    /// Chooses the folder; does not look into it.
    void setFolderToCheck(const std::string& path) { sFolderToCheck = path; }

    /// Reads the history, if it has a place.
    void ReadHistoryFile();
    /// Removes the file. `oProcessedFiles` is left as it is; the next read replaces it.
    void ClearHistoryFile();
    /// Adds a key (whatever the caller counts by) and writes the whole history.
    void AddProcessedFiles(const std::string& key);
    /// Name of the first photo that is not in the history.
    std::optional<std::string> NextFileToProcess();

    /// Photos of the folder itself (JPG, JPEG, TIF, TIFF, PNG in any case), sorted as people sort names. A folder
    /// with such a name counts too; what lies inside any folder does not.
    void FindPhotosInFolder();
    /// State files, in the order that the platform gives.
    void FindQLXInFolder();
    /// Batch lists, in the order that the platform gives.
    void FindXMLFilesInFolder();
    /// Photos of the folder, and those of its subfolders as "subfolder/name". Sorted.
    void FindPhotosInFolderAndSubfolders();

    /// Goes up when a search or a reading comes to something else than the one before.
    std::uint64_t changes() const { return changes_; }

    std::string sFolderToCheck;
    std::int32_t iFileCount = 0;       ///< entries that the last search found, before any caller appended to them
    std::int32_t iProcessedCount = 0;  ///< keys in the history after the last read or write
    std::optional<std::string> sHistoryFileName;  ///< unset: no history is kept
    std::vector<std::string> oProcessedFiles;     ///< the history as last read
    std::vector<std::string> oFilesInFolder;      ///< what the last search found: names relative to the folder

  private:
    void take(std::vector<std::string> names, bool sorted);

    std::vector<std::string> unsorted_;     ///< the last listing
    std::vector<std::string> sorted_;       ///< the same in order; empty as long as nobody wanted that
    std::optional<FileFacts> historyRead_;  ///< of the file from which `oProcessedFiles` comes
    std::uint64_t changes_ = 0;
};

/// The names directly in a folder, folders among them, whose extension (without the dot, in capitals) is in the list;
/// in the order that the platform gives.
/// @param problem when it is there and empty: set to why the folder could not be read to its end
/// @param stop as `listFolder` takes it
std::vector<std::string> namesInFolder(const std::string& folder, const std::vector<std::string>& extensions,
                                       std::string* problem = nullptr, const std::atomic<bool>* stop = nullptr);

/// Extensions of what counts as a photo.
const std::vector<std::string>& photoExtensions();

/// Extensions of every picture that can be read; photos alone are what the desktop program's batch takes.
const std::vector<std::string>& pictureExtensions();

/// Sorts names as people do: without regard to case, by the rules of the user's language.
void sortAsPeopleDo(std::vector<std::string>& names);

/// The last part of a path without its extension: "a/b.c.jpg" gives "b.c".
std::string stemOf(const std::string& path);

}  // namespace tavrin

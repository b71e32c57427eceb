#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "editor/EditMessage.h"
#include "editor/brush/EditorPixels.h"

namespace tavrin {

/// Steps of undo as files. "Snapshot<n>.bin" holds the rows that stroke n touched as they were before it,
/// "RestoreSnapshot<n>.bin" those before it was undone. Both are records without a header: the row's number, 32 bits
/// in the machine's order, then 5 bytes a pixel (red, green, blue, alpha, percent).
///
/// A step whose file could not be written or read stays, and so do those below it: undoing these alone would mix two
/// states of the picture. `problem` says so.
class UndoFiles {
  public:
    explicit UndoFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Without files steps are only counted, and none can be undone: for a replay that undoes nothing.
    void keepFiles(bool on) { keepsFiles_ = on; }
    /// The picture as it stands is step 0.
    void begin();
    /// Removes all files of the folder.
    void clear();

    /// Writes the touched rows of the snapshot as the next step; rows above it can no longer be redone.
    void SaveSnapShot(const EditorPixels& pixels);
    /// One step back or forward.
    /// @return whether the snapshot was changed and has to be written back to the picture
    bool undo(EditorPixels& pixels);
    bool redo(EditorPixels& pixels);

    /// What the steps take on the disk, in bytes.
    std::uintmax_t sizeOnDisk() const;

    std::int32_t iSaveSnapShot = 0;         ///< step that the picture stands on
    std::int32_t iMaxSaveSnapShot = 0;      ///< highest step that exists
    bool canUndo = false, canRedo = false;  ///< state of the two buttons
    /// What went wrong last. Whoever tells it clears it.
    EditMessage problem;

  private:
    std::filesystem::path fileOf(const char* name, std::int32_t step) const;
    /// Writes these rows of the snapshot.
    bool write(const std::filesystem::path& path, const EditorPixels& pixels, const std::vector<std::int32_t>& rows);
    /// The records of a file, in a block that is not filled first.
    struct Records {
        std::unique_ptr<char[]> bytes;
        std::vector<std::int32_t> rows;  ///< their numbers, ascending
    };
    /// Without rows when the file cannot be read or holds no whole records of this picture.
    Records read(const std::filesystem::path& path, const EditorPixels& pixels);
    static void takeRows(EditorPixels& pixels, const Records& records);
    bool undoStep(EditorPixels& pixels, std::int32_t step);
    bool redoStep(EditorPixels& pixels, std::int32_t step);
    void setButtons();

    std::filesystem::path folder_;
    bool keepsFiles_ = true;
    std::set<std::int32_t> lost_;  // steps without a file
};

}  // namespace tavrin

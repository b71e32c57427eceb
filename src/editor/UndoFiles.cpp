#include "editor/UndoFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "core/Log.h"
#include "core/files/AtomicFile.h"
#include "core/files/TempFiles.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr std::size_t kRowNumberBytes = 4;

std::size_t rowBytes(const EditorPixels& pixels) {
    return static_cast<std::size_t>(pixels.iWidth) * sizeof(QLXPixel);
}

void appendRow(std::vector<char>& records, const EditorPixels& pixels, std::int32_t row) {
    const std::size_t at = records.size();
    records.resize(at + kRowNumberBytes + rowBytes(pixels));
    std::memcpy(&records[at], &row, kRowNumberBytes);
    std::memcpy(&records[at + kRowNumberBytes], &pixels.snapShot(0, row), rowBytes(pixels));
}

// Every record of a file: the row's number and its bytes.
template <class Visit>
void eachRecord(const std::vector<char>& records, const EditorPixels& pixels, const Visit& visit) {
    const std::size_t size = kRowNumberBytes + rowBytes(pixels);
    for (std::size_t at = 0; at + size <= records.size(); at += size) {
        std::int32_t row;
        std::memcpy(&row, &records[at], kRowNumberBytes);
        visit(row, &records[at + kRowNumberBytes]);
    }
}

void takeRows(EditorPixels& pixels, const std::vector<char>& records) {
    eachRecord(records, pixels, [&](std::int32_t row, const char* bytes) {
        std::memcpy(static_cast<void*>(&pixels.snapShot(0, row)), bytes, rowBytes(pixels));
    });
}

}  // namespace

void UndoFiles::begin() {
    iSaveSnapShot = iMaxSaveSnapShot = 0;
    canUndo = canRedo = false;
    problem.clear();
    lost_.clear();
}

void UndoFiles::clear() {
    ClearTempFiles(folder_);
}

fs::path UndoFiles::fileOf(const char* name, std::int32_t step) const {
    return folder_ / (name + std::to_string(step) + ".bin");
}

bool UndoFiles::write(const fs::path& path, const std::vector<char>& records) {
    std::error_code ignored;
    fs::create_directories(folder_, ignored);
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(records.data(), static_cast<std::streamsize>(records.size()));
    file.close();
    if (file) return true;
    const int code = errno;
    fs::remove(path, ignored);
    logError("Open of testout for writing failed");
    problem = "This step cannot be undone: " + writeProblem(code, folder_.string()) + ".";
    return false;
}

std::vector<char> UndoFiles::read(const fs::path& path, const EditorPixels& pixels) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : 0;
    std::vector<char> records(static_cast<std::size_t>(std::max<std::streamoff>(size, 0)));
    file.seekg(0);
    file.read(records.data(), static_cast<std::streamsize>(records.size()));
    bool whole = file && !records.empty() && records.size() % (kRowNumberBytes + rowBytes(pixels)) == 0;
    eachRecord(records, pixels,
               [&](std::int32_t row, const char*) { whole = whole && row >= 0 && row < pixels.iHeight; });
    if (whole) return records;
    problem = "This step stays: its file " + path.string() + " cannot be read.";
    return {};
}

void UndoFiles::SaveSnapShot(const EditorPixels& pixels) {
    if (pixels.oSnapShot.empty()) return;
    ++iSaveSnapShot;
    std::vector<char> records;
    bool touched = false;
    for (std::int32_t row = 0; row < pixels.iHeight; ++row) {
        if (pixels.oSnapShotTouch[static_cast<std::size_t>(row)] == 0) continue;
        touched = true;
        if (keepsFiles_) appendRow(records, pixels, row);
    }
    // A click that changed nothing leaves an empty file and is no step; even so there is nothing left to redo.
    lost_.erase(lost_.lower_bound(iSaveSnapShot), lost_.end());
    const bool written = keepsFiles_ && write(fileOf("Snapshot", iSaveSnapShot), records);
    if (!touched) {
        --iSaveSnapShot;
    } else if (!written) {
        lost_.insert(iSaveSnapShot);
    }
    iMaxSaveSnapShot = iSaveSnapShot;
    setButtons();
}

// While the step that the picture stands on has lost its file there is no way back.
void UndoFiles::setButtons() {
    canUndo = iSaveSnapShot > 0 && !lost_.contains(iSaveSnapShot);
    canRedo = iSaveSnapShot < iMaxSaveSnapShot;
}

bool UndoFiles::undo(EditorPixels& pixels) {
    const std::int32_t step = iSaveSnapShot;
    if (step > 0 && lost_.contains(step)) {
        problem = "The last stroke cannot be undone: its file could not be written.";
        return false;
    }
    const bool done = step > 0 && undoStep(pixels, step);
    if (done) --iSaveSnapShot;
    setButtons();
    return done;
}

bool UndoFiles::redo(EditorPixels& pixels) {
    const bool done = iSaveSnapShot < iMaxSaveSnapShot && redoStep(pixels, iSaveSnapShot + 1);
    if (done) ++iSaveSnapShot;
    setButtons();
    return done;
}

std::uintmax_t UndoFiles::sizeOnDisk() const {
    std::uintmax_t bytes = 0;
    std::error_code failed;
    for (fs::directory_iterator file(folder_, failed), end; !failed && file != end; file.increment(failed)) {
        std::error_code gone;
        const std::uintmax_t size = file->is_regular_file(gone) ? file->file_size(gone) : 0;
        if (!gone) bytes += size;
    }
    return bytes;
}

// What is needed to redo comes first: without it the step would be gone for good.
bool UndoFiles::undoStep(EditorPixels& pixels, std::int32_t step) {
    const std::vector<char> records = read(fileOf("Snapshot", step), pixels);
    if (records.empty()) return false;
    std::vector<char> present;
    present.reserve(records.size());
    eachRecord(records, pixels, [&](std::int32_t row, const char*) { appendRow(present, pixels, row); });
    if (!write(fileOf("RestoreSnapshot", step), present)) return false;
    takeRows(pixels, records);
    return true;
}

bool UndoFiles::redoStep(EditorPixels& pixels, std::int32_t step) {
    const std::vector<char> records = read(fileOf("RestoreSnapshot", step), pixels);
    takeRows(pixels, records);
    return !records.empty();
}

}  // namespace tavrin

#include "editor/UndoFiles.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "core/Log.h"
#include "core/files/AtomicFile.h"
#include "core/files/TempFiles.h"
#include "core/raster/Rows.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr std::size_t kRowNumberBytes = 4;
constexpr int kPiece = 64;  // rows of a piece of work that only moves bytes

std::size_t rowBytes(const EditorPixels& pixels) {
    return static_cast<std::size_t>(pixels.iWidth) * sizeof(QLXPixel);
}

std::size_t recordBytes(const EditorPixels& pixels) {
    return kRowNumberBytes + rowBytes(pixels);
}

EditMessage whyNotWritten(int code, const std::string& folder) {
    switch (code) {
        case ENOSPC:
        case EDQUOT:
            return {EditSays::diskFull};
        case ENOENT:
            return {EditSays::noFolder, {verbatim(folder)}};
        case ENOTDIR:
            return {EditSays::notAFolder, {verbatim(folder)}};
        case EACCES:
        case EPERM:
            return {EditSays::mayNotWrite, {verbatim(folder)}};
        case EROFS:
            return {EditSays::onlyReadable, {verbatim(folder)}};
        case EFBIG:
            return {EditSays::largerThanAllowed};
        default:
            return verbatim(writeProblem(code, folder));
    }
}

}  // namespace

void UndoFiles::begin() {
    iSaveSnapShot = iMaxSaveSnapShot = 0;
    canUndo = canRedo = false;
    problem = {};
    lost_.clear();
}

void UndoFiles::clear() {
    ClearTempFiles(folder_);
}

fs::path UndoFiles::fileOf(const char* name, std::int32_t step) const {
    return folder_ / (name + std::to_string(step) + ".bin");
}

// The first failure tells why: a call behind it may say something else.
bool UndoFiles::write(const fs::path& path, const EditorPixels& pixels, const std::vector<std::int32_t>& rows) {
    std::error_code ignored;
    fs::create_directories(folder_, ignored);
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    for (std::size_t i = 0; file && i < rows.size(); ++i) {
        file.write(reinterpret_cast<const char*>(&rows[i]), kRowNumberBytes);
        file.write(reinterpret_cast<const char*>(&pixels.snapShot(0, rows[i])),
                   static_cast<std::streamsize>(rowBytes(pixels)));
    }
    const bool written = static_cast<bool>(file);
    int code = errno;
    file.close();
    if (file) return true;
    if (written) code = errno;
    fs::remove(path, ignored);
    logError("Open of testout for writing failed");
    problem = {EditSays::stepNotKept, {whyNotWritten(code, folder_.string())}};
    return false;
}

UndoFiles::Records UndoFiles::read(const fs::path& path, const EditorPixels& pixels) {
    std::error_code failed;
    const std::uintmax_t found = fs::file_size(path, failed);
    const std::size_t record = recordBytes(pixels), size = failed ? 0 : static_cast<std::size_t>(found);
    std::atomic<bool> whole = size > 0 && size % record == 0 && size / record <= pixels.oSnapShotTouch.size();
    Records records;
    if (whole) {
        records.bytes = std::make_unique_for_overwrite<char[]>(size);
        records.rows.resize(size / record);
        runRowRanges({}, static_cast<int>(records.rows.size()), kPiece, [&](int first, int last) {
            std::ifstream file(path, std::ios::binary);
            const std::size_t from = static_cast<std::size_t>(first) * record;
            file.seekg(static_cast<std::streamoff>(from));
            file.read(&records.bytes[from],
                      static_cast<std::streamsize>(static_cast<std::size_t>(last) * record - from));
            if (!file) return whole.store(false);
            for (auto i = static_cast<std::size_t>(first); i < static_cast<std::size_t>(last); ++i)
                std::memcpy(&records.rows[i], &records.bytes[i * record], kRowNumberBytes);
        });
    }
    std::int32_t before = -1;
    for (const std::int32_t row : records.rows) {
        if (row <= before || row >= pixels.iHeight) whole = false;
        before = row;
    }
    if (whole) return records;
    problem = {EditSays::stepUnreadable, {verbatim(path.string())}};
    return {};
}

void UndoFiles::takeRows(EditorPixels& pixels, const Records& records) {
    const std::size_t record = recordBytes(pixels);
    runRows({}, static_cast<int>(records.rows.size()), kPiece, [&](int i) {
        const auto at = static_cast<std::size_t>(i);
        const std::int32_t row = records.rows[at];
        std::memcpy(static_cast<void*>(&pixels.snapShot(0, row)), &records.bytes[at * record + kRowNumberBytes],
                    rowBytes(pixels));
        pixels.oRowsToPutBack[static_cast<std::size_t>(row)] = 1;
    });
}

void UndoFiles::SaveSnapShot(const EditorPixels& pixels) {
    if (pixels.oSnapShot.empty()) return;
    ++iSaveSnapShot;
    std::vector<std::int32_t> rows;
    for (std::int32_t row = 0; row < pixels.iHeight; ++row) {
        if (pixels.oSnapShotTouch[static_cast<std::size_t>(row)] != 0) rows.push_back(row);
    }
    // A click that changed nothing leaves an empty file and is no step; even so there is nothing left to redo.
    lost_.erase(lost_.lower_bound(iSaveSnapShot), lost_.end());
    const bool written = keepsFiles_ && write(fileOf("Snapshot", iSaveSnapShot), pixels, rows);
    if (rows.empty()) {
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
        // Why it could not is not yet told where a file of edits is played in one go.
        if (problem.isEmpty()) problem = {EditSays::lastStepNotKept};
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
    const Records records = read(fileOf("Snapshot", step), pixels);
    if (records.rows.empty()) return false;
    if (!write(fileOf("RestoreSnapshot", step), pixels, records.rows)) return false;
    takeRows(pixels, records);
    return true;
}

bool UndoFiles::redoStep(EditorPixels& pixels, std::int32_t step) {
    const Records records = read(fileOf("RestoreSnapshot", step), pixels);
    takeRows(pixels, records);
    return !records.rows.empty();
}

}  // namespace tavrin

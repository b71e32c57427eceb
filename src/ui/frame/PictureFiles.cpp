#include "ui/frame/PictureFiles.h"

#include <filesystem>

#include <QFileInfo>
#include <QScopeGuard>

#include "core/state/NamedFiles.h"
#include "formats/ImageState.h"
#include "formats/SafeFile.h"
#include "pipeline/MaskThumbnail.h"
#include "pipeline/SaveImage.h"
#include "pipeline/SubjectPlace.h"
#include "session/Sources.h"
#include "session/States.h"
#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

constexpr const char* kRecentKey = "recentFiles";

}  // namespace

bool isStateFile(const QString& path) {
    return QFileInfo(path).suffix().compare("qlx", Qt::CaseInsensitive) == 0;
}

bool isFolder(const QString& path) {
    std::error_code none;
    return std::filesystem::is_directory(nameOfText(path), none);
}

PictureFiles::PictureFiles(SystemInfo& info, CombineThread& loop, WindowBridge& bridge, QObject* parent)
    : QObject(parent), info_(info), loop_(loop), bridge_(bridge) {
    connect(&bridge_, &WindowBridge::stateOpened, this, &PictureFiles::remember, Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::stateSaved, this, &PictureFiles::remember, Qt::QueuedConnection);
    connect(
        &bridge_, &WindowBridge::saveEnded, this,
        [this](const QString& path, bool done) {
            --saves_;
            emit saved(path, done);
        },
        Qt::QueuedConnection);
}

void PictureFiles::openForeground(const QString& path, bool frame) {
    ++opened_;
    tavrin::openPortrait(info_, nameOfText(path));
    if (frame) wantPlace(info_, PlaceRule::subject);
    remember(path);
    info_.StartUpdate();
    emit opened(path);
}

void PictureFiles::openForegroundReset(const QString& path, bool frame) {
    openInTurn(path, [this, path, frame] {
        const std::string problem = openPortraitReset(info_, nameOfText(path), info_.oQLXInfo->sDefaultQLXFilePath);
        if (frame) wantPlace(info_, PlaceRule::subject);
        if (!problem.empty())
            emit bridge_.failed(tr("The settings were not reset."), QString::fromStdString(problem));
        return std::string();
    });
}

void PictureFiles::openBackground(const QString& path, bool reset) {
    if (reset) {
        loop_.post([this, path] {
            const std::string problem =
                openBackgroundReset(info_, nameOfText(path), info_.oQLXInfo->sDefaultQLXFilePath);
            if (!problem.empty())
                emit bridge_.failed(tr("The settings were not reset."), QString::fromStdString(problem));
            emit bridge_.placed();
        });
    } else {
        tavrin::openBackground(info_, nameOfText(path));
    }
    remember(path);
    info_.StartUpdate();
    emit opened(path);
}

void PictureFiles::openState(const QString& path) {
    openInTurn(path, [this, path] { return tavrin::openState(info_, nameOfText(path)); });
}

/// Unless something else was opened meanwhile.
void PictureFiles::openInTurn(const QString& path, std::function<std::string()> open) {
    loop_.post([this, path, open = std::move(open), mine = ++opened_] {
        if (mine != opened_) return;
        const std::string problem = open();
        if (problem.empty()) {
            emit bridge_.stateOpened(path);
        } else {
            emit bridge_.failed(tr("The state file cannot be opened."), QString::fromStdString(problem));
        }
    });
}

std::string PictureFiles::writeState(const std::string& name) {
    const std::string problem = whyNoStateOver(info_, name);
    return problem.empty() ? saveImageStateToXML(info_, name) : problem;
}

void PictureFiles::saveState(const QString& path) {
    saveInTurn(path, [this, path](const auto&) {
        const std::string problem = writeState(nameOfText(path));
        if (problem.empty()) {
            emit bridge_.stateSaved(path);
        } else {
            emit bridge_.failed(tr("The state file cannot be saved."), QString::fromStdString(problem));
        }
        return problem.empty();
    });
}

/// @param then what follows in the same turn when the picture is there
bool PictureFiles::savePicture(const QString& path,
                               const std::function<void(const std::string& path, int type)>& then) {
    if (!isFinished()) return false;
    KnownFiles sources;  // another portrait may be opened before the picture has its turn
    for (const BitmapInfo* record : {info_.pForegroundBitmapInfo.get(), info_.pBackgroundBitmapInfo.get()})
        sources.add(record->sSourceImageFullPath);
    saveInTurn(path, [this, then, target = nameOfText(path), sources = std::move(sources)](const auto& stop) {
        const int type = fileTypeForPath(target);
        const bool done = saveImageToDisk(info_, target, type, 1, sources, &stop);
        if (done && then) then(target, type);
        return done;
    });
    return true;
}

bool PictureFiles::saveReviewed(const QString& path) {
    return savePicture(path, [this](const std::string& target, int type) {
        static_cast<void>(saveMaskThumbnail(info_, target, type));  // which tells its own failure
    });
}

/// The whole file is there beside the old one before it takes its name.
bool PictureFiles::saveOver(const QString& path) {
    if (!isFinished()) return false;
    saveInTurn(path, [this, target = nameOfText(path)](const auto& stop) {
        const std::string beside = ownNameBeside(target);
        if (!saveImageToDisk(info_, beside, fileTypeForPath(target), 1, {}, &stop)) return false;
        std::error_code problem;
        std::filesystem::rename(beside, target, problem);
        if (!problem) return true;
        emit bridge_.failed(tr("The picture cannot be saved."), textOfName(target + ": " + problem.message() + "."));
        std::filesystem::remove(beside, problem);
        return false;
    });
    return true;
}

bool PictureFiles::saveCopy(const std::string& path, std::function<void(bool done)> ended) {
    if (!isFinished()) return false;
    ++copies_;
    loop_.edit([this, path, ended = std::move(ended)]() -> std::vector<ChangedRows> {
        const bool done = saveImageToDisk(info_, path, kJpegFile, 1);
        QMetaObject::invokeMethod(
            this,
            [this, done, ended] {
                --copies_;
                ended(done);
            },
            Qt::QueuedConnection);
        return {};
    });
    return true;
}

bool PictureFiles::takePicture(std::function<void(const QImage&)> take) {
    if (!isFinished()) return false;
    loop_.edit([this, take = std::move(take)]() -> std::vector<ChangedRows> {
        QImage picture;
        const PassGeometry size = info_.geometry(Resolution::full);
        const std::uint8_t* pixels = info_.pCombinedBitmapInfo->bytes(Resolution::full);
        if (pixels && info_.whyNotFinished(Resolution::full).empty())
            picture = QImage(pixels, size.width, size.height,
                             info_.bOutputTransparency ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888)
                          .copy();
        QMetaObject::invokeMethod(
            this, [take, picture] { take(picture); }, Qt::QueuedConnection);
        return {};
    });
    return true;
}

/// Buffers and lists are the loop's, so what saves them is a job of the loop's. However it ends, the window hears of
/// it.
void PictureFiles::saveInTurn(const QString& path, std::function<bool(const std::atomic<bool>& stop)> save) {
    if (saves_++ == 0) stop_ = std::make_shared<std::atomic<bool>>(false);
    emit saving(path);
    loop_.edit([this, path, save = std::move(save), stop = stop_]() -> std::vector<ChangedRows> {
        bool done = false;
        const auto tell = qScopeGuard([&] {
            if (!done && *stop) emit stopped(path);
            emit bridge_.saveEnded(path, done);
        });
        done = save(*stop);
        return {};
    });
}

QStringList PictureFiles::recentFiles() {
    return windowSettings().value(kRecentKey).toStringList();
}

void PictureFiles::remember(const QString& path) {
    constexpr int kRecentFiles = 10;
    if (!path.isValidUtf16()) return;  // the name is no text, and settings hold nothing else
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    windowSettings().setValue(kRecentKey, files.mid(0, kRecentFiles));
}

}  // namespace tavrin

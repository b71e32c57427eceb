#include "ui/frame/PictureFiles.h"

#include <filesystem>

#include <QFileInfo>
#include <QScopeGuard>

#include "core/state/NamedFiles.h"
#include "formats/ImageState.h"
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
    tavrin::openPortrait(info_, nameOfText(path));
    if (frame) wantPlace(info_, PlaceRule::subject);
    remember(path);
    info_.StartUpdate();
    emit opened(path);
}

void PictureFiles::openBackground(const QString& path) {
    tavrin::openBackground(info_, nameOfText(path));
    remember(path);
    info_.StartUpdate();
    emit opened(path);
}

void PictureFiles::openState(const QString& path) {
    loop_.post([this, path] {
        const std::string problem = tavrin::openState(info_, nameOfText(path));
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
    saveInTurn(path, [this, path] {
        const std::string problem = writeState(nameOfText(path));
        if (problem.empty()) {
            emit bridge_.stateSaved(path);
        } else {
            emit bridge_.failed(tr("The state file cannot be saved."), QString::fromStdString(problem));
        }
        return problem.empty();
    });
}

bool PictureFiles::savePicture(QString path) {
    if (info_.iCurrentThreadCount <= info_.iNewThreadCount) return false;  // a pass is due or under work
    if (QFileInfo(path).suffix().isEmpty()) path += ".jpg";
    KnownFiles sources;  // another portrait may be opened before the picture has its turn
    for (const BitmapInfo* record : {info_.pForegroundBitmapInfo.get(), info_.pBackgroundBitmapInfo.get()})
        sources.add(record->sSourceImageFullPath);
    saveInTurn(path, [this, target = nameOfText(path), sources = std::move(sources)] {
        return saveImageToDisk(info_, target, fileTypeForPath(target), 1, sources);
    });
    return true;
}

/// Buffers and lists are the loop's, so what saves them is a job of the loop's. However it ends, the window hears of
/// it.
void PictureFiles::saveInTurn(const QString& path, std::function<bool()> save) {
    ++saves_;
    emit saving(path);
    loop_.edit([this, path, save = std::move(save)]() -> std::vector<ChangedRows> {
        bool done = false;
        const auto tell = qScopeGuard([&] { emit bridge_.saveEnded(path, done); });
        done = save();
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

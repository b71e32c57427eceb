#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include <QImage>
#include <QObject>
#include <QStringList>

#include "pipeline/CombineThread.h"
#include "ui/WindowBridge.h"

namespace tavrin {

/// The way for pictures and states in and out of the window's state. What reads or writes buffers and lists is a job
/// of the loop's; how it ended comes as a signal.
class PictureFiles : public QObject {
    Q_OBJECT

  public:
    PictureFiles(SystemInfo& info, CombineThread& loop, WindowBridge& bridge, QObject* parent = nullptr);

    /// Makes a file the source of a layer and asks for a new picture.
    /// @param frame whether the portrait is framed around its subject
    void openForeground(const QString& path, bool frame);
    /// The same, after all settings but those of the background and the output went back to the default state, by a
    /// job of the loop's.
    void openForegroundReset(const QString& path, bool frame);
    /// @param reset whether the layer's settings go back to those of the default state
    void openBackground(const QString& path, bool reset = false);
    /// Loads every setting and both pictures from a state file, between two passes of the loop. One that cannot be
    /// read changes nothing.
    void openState(const QString& path);
    /// Saves every setting into a state file, as soon as no pass is under work; otherwise the old file stays.
    void saveState(const QString& path);
    /// Has the full picture that stands saved after what was to be saved before; the type follows the name's
    /// extension.
    /// @return false when there is no finished picture
    bool savePicture(const QString& path) { return savePicture(path, {}); }
    /// The same in the place of a file that the picture may be made from.
    bool saveOver(const QString& path);
    /// The same for a result of a batch, with the small picture of its mask (`saveMaskThumbnail`).
    bool saveReviewed(const QString& path);
    /// Writes the full picture that stands as a JPEG file for something else than keeping it, and tells how that
    /// ended.
    /// @return false when there is no finished picture
    bool saveCopy(const std::string& path, std::function<void(bool done)> ended);
    int copiesUnderWay() const { return copies_; }
    /// Hands a copy of the full picture over, on the main thread, as soon as no pass is under work; null when it is
    /// not that of the present settings any more.
    /// @return false when there is no finished picture
    bool takePicture(std::function<void(const QImage&)> take);
    int savesUnderWay() const { return saves_; }
    /// Ends the saves that are under way or wait; the files that were there before stay.
    void stopSaving() { *stop_ = true; }

    /// The files that were opened last, the newest first.
    static QStringList recentFiles();
    void remember(const QString& path);

  signals:
    void opened(const QString& path);
    void saving(const QString& path);
    void saved(const QString& path, bool done);
    void stopped(const QString& path);

  private:
    bool savePicture(const QString& path, const std::function<void(const std::string& path, int type)>& then);
    void saveInTurn(const QString& path, std::function<bool(const std::atomic<bool>& stop)> save);
    void openInTurn(const QString& path, std::function<std::string()> open);
    bool isFinished() const { return info_.iCurrentThreadCount > info_.iNewThreadCount; }  // no pass is due
    std::string writeState(const std::string& name);

    SystemInfo& info_;
    CombineThread& loop_;
    WindowBridge& bridge_;
    int saves_ = 0, copies_ = 0;
    std::shared_ptr<std::atomic<bool>> stop_ = std::make_shared<std::atomic<bool>>(false);  ///< of these saves
    std::atomic<int> opened_ = 0;  ///< portraits and states, so that an older job steps back
};

/// Whether a name is that of a state file.
bool isStateFile(const QString& path);
/// Whether a folder lies there.
bool isFolder(const QString& path);

}  // namespace tavrin

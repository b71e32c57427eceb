#pragma once

#include <functional>

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
    void openBackground(const QString& path);
    /// Loads every setting and both pictures from a state file, between two passes of the loop. One that cannot be
    /// read changes nothing.
    void openState(const QString& path);
    /// Saves every setting into a state file, as soon as no pass is under work; otherwise the old file stays.
    void saveState(const QString& path);
    /// Has the full picture that stands saved after what was to be saved before; the type follows the name's
    /// extension, JPEG where there is none.
    /// @return false when there is no finished picture
    bool savePicture(QString path);
    int savesUnderWay() const { return saves_; }

    /// The files that were opened last, the newest first.
    static QStringList recentFiles();
    void remember(const QString& path);

  signals:
    void opened(const QString& path);
    void saving(const QString& path);
    void saved(const QString& path, bool done);

  private:
    void saveInTurn(const QString& path, std::function<bool()> save);
    std::string writeState(const std::string& name);

    SystemInfo& info_;
    CombineThread& loop_;
    WindowBridge& bridge_;
    int saves_ = 0;
};

/// Whether a name is that of a state file.
bool isStateFile(const QString& path);
/// Whether a folder lies there.
bool isFolder(const QString& path);

}  // namespace tavrin

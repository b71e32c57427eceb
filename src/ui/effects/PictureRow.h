#pragma once

#include <string>

#include <QThreadPool>
#include <QWidget>

#include "core/state/QLXInfo.h"
#include "ui/bind/Binder.h"

class QLabel;
class QToolButton;

namespace tavrin {

/// A picture file that a setting names. Texts are translated in the context "Panel".
struct PictureSetting {
    const char* control;             ///< name of the button that asks for a file
    const char *load, *clear;        ///< operations of choosing one and of having none
    const char* file;                ///< the setting
    const char* on;                  ///< a setting that tells whether the picture is used; "" for none
    const char *onValue, *offValue;  ///< what it becomes by choosing and by having none; "": stays
    const char *label, *toolTip, *dialogTitle;
    std::string (*folder)();     ///< where the dialog begins
    const char* none = nullptr;  ///< what stands there without a picture; null: that one is chosen here
    bool keepsFile = false;      ///< having none only switches it off, and the name of the file stays
    Field<std::string> QLXInfo::*lastFile = nullptr;  ///< where the dialog begins, once there is one
};

/// Shows the picture of a setting by its name and small, and takes another one by a dialog or a drop. One that cannot
/// be read is told below, and the old one stays.
class PictureRow : public QWidget {
    Q_OBJECT

  public:
    PictureRow(const PictureSetting& setting, Binder& binder, QWidget* parent = nullptr);

    /// Asks for a file.
    void choose();
    /// Reads a file beside the main thread, and takes it if it is a picture.
    void take(const QString& path);
    bool hasFile() const { return !file().empty(); }
    const PictureSetting& setting() const { return setting_; }
    /// Takes the picture away.
    void clear();
    /// Why the last file was not taken, or the present one cannot be shown; "" for no fault.
    QString problem() const;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    std::string file() const;
    void refresh();
    void read(const std::string& path, bool toTake);
    void takeRead(const std::string& path);
    void showPicture(const std::string& path, const QImage& small);
    void tell(const QString& problem);

    const PictureSetting& setting_;
    Binder& binder_;
    QToolButton *button_, *cross_;
    QLabel* problem_;
    std::string shown_;    ///< path whose picture is shown, or being read for it
    int readCount_ = 0;    ///< of the newest reading; older ones come too late
    QThreadPool readers_;  // goes first: it waits for what still runs
};

}  // namespace tavrin

#pragma once

#include <QObject>

#include "batch/Galleries.h"
#include "pipeline/CombineThread.h"
#include "ui/bind/Binder.h"
#include "ui/bind/Command.h"
#include "ui/review/PageWindow.h"

class QProgressDialog;

namespace tavrin {

/// Carries what the galleries say over to the main thread.
class GalleryBridge : public QObject, public GalleryInterface {
    Q_OBJECT

  public:
    using QObject::QObject;

    void galleryStepped(int done, int all) override { emit stepped(done, all); }
    void galleryEnded(const std::string& problem) override { emit ended(QString::fromStdString(problem)); }
    void showGalleryViewer() override { emit pageWanted(); }

  signals:
    void stepped(int done, int all);
    void ended(const QString& problem);
    void pageWanted();
};

/// The galleries at the window: how they are made, the window with their page, and what a click there does. While one
/// is made its alternatives pass through the window, so nothing else is done there.
class GalleryDesk : public QObject {
    Q_OBJECT

  public:
    GalleryDesk(Binder& binder, CombineThread& loop, QWidget* window);

    /// For the loop, before its thread starts; it ends before the desk.
    Galleries& engine() { return engine_; }
    bool isRunning() const { return running_; }
    void showAdjustGallery();
    void showGallery();
    /// Ends what is made before its time, since something else is opened or the program ends.
    void leave();
    void endShowGallery();

  signals:
    void runBegins();
    void runEnded();
    void backgroundChosen(const QString& path);
    void told(const QString& line);
    void failed(const QString& line, const QString& reason);
    void alerted(const QString& text, const QString& reason);

  private:
    void begin(bool (Galleries::*make)(int));
    void end(const QString& problem);
    void showGalleryViewer();
    bool mayGo(const QString& name);
    void choose(int number);

    Binder& binder_;
    CombineThread& loop_;
    QWidget* window_;
    GalleryBridge bridge_;
    Galleries engine_;
    PageWindow* page_;
    QProgressDialog* progress_ = nullptr;
    bool running_ = false;
};

/// What the menu has of it.
/// @param isFree whether the picture may be taken for a gallery now
std::vector<Command> galleryCommands(GalleryDesk& desk, const std::function<bool()>& isFree);

}  // namespace tavrin

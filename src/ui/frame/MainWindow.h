#pragma once

#include <functional>
#include <memory>

#include <QComboBox>
#include <QMainWindow>

#include "core/state/SystemInfo.h"
#include "pipeline/CombineThread.h"
#include "ui/PictureView.h"
#include "ui/WindowBridge.h"

namespace tavrin {

/// The main window: the running picture, and the way for pictures in and out of it. It owns the processing thread
/// of the state it shows, which ends with it.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit MainWindow(SystemInfo& info, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Makes a file the source of a layer and asks for a new picture.
    void openForeground(const QString& path);
    void openBackground(const QString& path);
    /// Loads every setting and both pictures from a state file, between two passes of the loop. A file that cannot
    /// be read shows an alert and changes nothing.
    void openState(const QString& path);
    /// Saves every setting into a state file, as soon as no pass is under work. The window tells when it is done;
    /// after an alert the old file is as it was.
    void saveState(const QString& path);
    /// Opens a file by its kind: a state file, or a picture for the portrait.
    void openFile(const QString& path);
    /// Has the full picture that stands saved on the loop's thread, after what was to be saved before; the type
    /// follows the name's extension, JPEG where there is none. The window tells when it is done, or why it is not.
    /// @return false when there is no finished picture
    bool saveTo(QString path);
    /// Pictures and states that are still to be saved. A window that is closed meanwhile goes when they are, and
    /// stays when one cannot be.
    int savesUnderWay() const { return saves_; }

    /// Shows what went wrong at the start, one line for each thing; work goes on beneath. "" shows nothing.
    void tellStartProblems(const std::string& lines);

    PictureView* view() const { return view_; }
    QComboBox* sizeBox() const { return sizeBox_; }
    /// Whether portraits that are opened are framed around their subject; kept for the next start.
    QAction* frameAction() const { return frameAction_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void makeMenus();
    void makeSizeBox();
    void frameNewPortraits(bool wanted);
    void showSelectedSize();
    void chooseSize(int index);
    void refillRecentFiles();
    void remember(const QString& path);
    void askForStateToOpen();
    void askForStateToSave();
    void connectBridge();
    void askForLayer(const BitmapInfo& record, const QString& title, void (MainWindow::*open)(const QString& path));
    void showOpened(const QString& path);
    void askForSave();
    void saveInTurn(const QString& path, std::function<bool()> save);
    void endSave(const QString& path, bool done);
    void takePublished();
    void showAlert(const QString& message, const QString& reason);
    void fitToOutput(int outputWidth, int outputHeight);
    bool loopRests() const;

    SystemInfo& info_;
    WindowBridge bridge_;
    std::unique_ptr<CombineThread> loop_;
    PictureView* view_;
    int saves_ = 0;
    bool closing_ = false;  // as soon as all is saved
    QAction* saveAction_ = nullptr;
    QAction* frameAction_ = nullptr;
    QMenu* recentMenu_ = nullptr;
    QComboBox* sizeBox_ = nullptr;
};

}  // namespace tavrin

#pragma once

#include <deque>
#include <functional>
#include <memory>

#include <QMainWindow>

#include "pipeline/CombineThread.h"
#include "ui/WindowBridge.h"
#include "ui/batch/BatchPage.h"
#include "ui/bind/Binder.h"
#include "ui/booth/EventBooth.h"
#include "ui/editor/Airbrush.h"
#include "ui/frame/Commands.h"
#include "ui/frame/MessageBar.h"
#include "ui/frame/PictureFiles.h"
#include "ui/frame/SidePanel.h"
#include "ui/frame/SizeBox.h"
#include "ui/look/HistoryPanel.h"
#include "ui/look/LooksPanel.h"
#include "ui/look/Safekeeping.h"
#include "ui/picture/PictureTools.h"
#include "ui/print/BatchPrintPanel.h"
#include "ui/review/GalleryDesk.h"
#include "ui/review/ReviewDesk.h"
#include "ui/settings/SettingsPage.h"
#include "ui/sizes/SizesPanel.h"
#include "ui/sizes/TemplatesPanel.h"
#include "ui/strip/Strip.h"
#include "ui/views/PictureView.h"

class QLabel;
class QMessageBox;
class QProgressBar;

namespace tavrin {

class MailPage;
struct Posted;
struct SaveTarget;
class TipGuard;
class WorkBar;

/// The settings of an overlay: whether there is one, and its file.
struct OverlaySetting {
    const char *have, *file;
};

/// The main window: the running picture, the controls beside it, and the way for pictures in and out. It owns the
/// processing thread of the state it shows, which ends with it.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit MainWindow(SystemInfo& info, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Makes a file the source of a layer and asks for a new picture.
    void openForeground(const QString& path);
    void openBackground(const QString& path);
    /// Loads every setting and both pictures from a state file. One that cannot be read is told and changes nothing.
    void openState(const QString& path);
    void saveState(const QString& path);
    /// Opens a file by its kind: a state file, a picture for the portrait, or a folder of portraits.
    void openFile(const QString& path);
    /// Fills the strip with a folder's pictures, or with these, and opens the first one.
    void openFolder(const QString& folder);
    void openPictures(const QStringList& paths);
    /// Opens a portrait of another program, which gets it back: what is saved next replaces that file.
    void openForHost(const QString& path);
    /// Opens the state of a batch's result to mend it: what is saved next replaces the result and its mask.
    void openForReview(const QString& path);
    /// Has the full picture that stands saved, as `saveTargetOf` tells, and its state where that is wanted. The
    /// window tells when it is done, or why it is not.
    /// @return false when there is no finished picture
    bool saveTo(const QString& path);
    /// The path that is proposed for saving the picture.
    QString suggestedName() const;
    /// Pictures and states that are still to be saved. A window that is closed meanwhile goes when they are, and
    /// stays when one cannot be.
    int savesUnderWay() const { return files_->savesUnderWay(); }
    /// Shows what went wrong at the start, one line for each thing. "" shows nothing.
    void tellStartProblems(const std::string& lines);
    /// Asks what becomes of the work that killed programs left.
    void offerLeftRecipes();
    /// The program is ended by a signal or with the session: the present recipe is kept for the next start.
    void endFromOutside();

    PictureView* view() const { return view_; }
    SizeBox* sizeBox() const { return sizeBox_; }
    SidePanel* panel() const { return panel_; }
    PictureTools* pictureTools() const { return tools_; }
    Airbrush* airbrush() const { return airbrush_; }
    Strip* strip() const { return strip_; }
    BatchPage* batch() const { return batch_; }
    MailPage* mail() const { return mail_; }
    EventBooth* booth() const { return booth_; }
    PrintDesk* printing() const { return printing_; }
    BatchPrintPanel* folderPrint() const { return folderPrint_; }
    HistoryPanel* history() const { return history_; }
    LooksPanel* looksPanel() const { return looksPanel_; }
    /// Looks: copied and pasted, also on portraits that are not shown, and those by name.
    LookDesk& looks() { return *looks_; }
    ReviewDesk& review() { return *review_; }
    GalleryDesk& galleries() { return *galleries_; }
    MessageBar* messages() const { return messages_; }
    Binder& binder() { return binder_; }
    Commands& commands() { return *commands_; }
    /// Whether portraits that are opened are framed around their subject; kept for the next start.
    QAction* frameAction() const { return commands_->action("FramePortraits"); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    friend std::vector<Command> commandTable(MainWindow& window);
    friend std::vector<Command> stripCommands(MainWindow& window);
    friend std::vector<Command> fileCommands(MainWindow& window);
    friend std::vector<Command> printCommands(MainWindow& window);

    void layOut();
    void makeToolBar();
    void makeStatusLine();
    WorkBar* makeSaveBar();
    void connectParts();
    void connectMaps();
    void connectBridge();
    void connectStrip();
    void connectAirbrush();
    void offerLostStrokes(int strokes);
    void connectSettings();
    void connectLists();
    void connectBatch();
    void connectReview();
    void connectGalleries();
    void connectMail();
    void sendQLXMail(const QString& to);
    void shareUsingEmail();
    void withMailPicture(std::function<void(const std::string& picture)> then);
    void tellMail(const Posted& posted, const QString& to);
    WorkBar* makeMailBar();
    int workUnderWay() const;
    void connectEvent();
    void showEventMode();
    void showJobAlert(const QString& message, const QString& reason);
    void ShowEventSetup();
    void connectPrinting();
    void printImage();
    void runPageLayout();
    void takeForSheet(std::function<void(const SheetPicture&)> take);
    void askForFolder();
    void askForPickDirectory();
    void dropFolder(const QString& folder, bool onBackground);
    void connectKeeping();
    void offerNextLeft();
    void askBeforeClosing();
    void askBeforeEndingBatch();
    void comeBack();
    void refillRecentFiles();
    void frameNewPortraits(bool wanted);
    QString selectImageToOpen(const QString& title, Field<std::string>& last, const QString& filter);
    void loadForeground();
    void loadBackground();
    void openReset(const QString& path);
    void loadOverlay(const OverlaySetting& overlay, const QString& title);
    void clearOverlays(const std::vector<std::size_t>& which, const QString& label);
    void loadAutomaticOverlays();
    void saveImage();
    void saveForHost();
    void saveReviewed();
    bool takeFinished(const std::function<bool()>& save);
    void saveStateBeside(const SaveTarget& target);
    void askForReview();
    void setBatchReviewActive(const QString& path);
    void setBatchReviewNotActive();
    void leaveWaysOfSaving();
    void tellSaveButton();
    void keepSettings();
    void askForStateToOpen();
    void askForStateToSave();
    void askForSave();
    void freeze();
    void clearFreeze();
    void endSave(const QString& path, bool done);
    void takePublished();
    void showState();
    void showAlert(const QString& message, const QString& reason);
    void sizeToOutput(int outputWidth, int outputHeight);
    void setFullScreen(bool on);
    void tellProgress();
    void tellUndo();
    void findAction();

    SystemInfo& info_;
    WindowBridge bridge_;
    std::unique_ptr<CombineThread> loop_;
    SettingEditor editor_;
    Binder binder_;
    PictureFiles* files_;
    Safekeeping* keeping_;
    LookDesk* looks_;
    ReviewDesk* review_;
    GalleryDesk* galleries_;
    PictureView* view_;
    Strip* strip_;
    MessageBar* messages_;
    SidePanel* panel_;
    SettingsPage* settings_;
    HeldLoop* heldLoop_;
    SizesPanel* sizes_;
    TemplatesPanel* templates_;
    PrintDesk* printing_;
    BatchPrintPanel* folderPrint_;
    BatchPage* batch_;
    MailPage* mail_;
    EventBooth* booth_;
    HistoryPanel* history_;
    LooksPanel* looksPanel_;
    SizeBox* sizeBox_;
    PictureTools* tools_;
    Airbrush* airbrush_;
    TipGuard* tips_;
    Commands* commands_ = nullptr;
    QLabel *sizeText_ = nullptr, *zoomText_ = nullptr, *stateText_ = nullptr;
    QProgressBar* progress_ = nullptr;
    std::vector<LeftRecipe> left_;              // the user has not answered yet
    std::deque<std::uint64_t> savedPositions_;  // of the saves under way
    QMessageBox* question_ = nullptr;
    bool closeUnsaved_ = false;
    bool returning_ = false;  // to the host application, as soon as its picture is saved
    bool closing_ = false;    // as soon as all is saved
    bool finished_ = false;   // a full picture stands
    bool cameBack_ = false;
};

/// Everything that the window does by itself, in the order of its menus.
std::vector<Command> commandTable(MainWindow& window);
/// The overlays, and what opening a picture resets.
std::vector<Command> fileCommands(MainWindow& window);
/// Printing.
std::vector<Command> printCommands(MainWindow& window);
/// What the strip below the picture adds to it.
std::vector<Command> stripCommands(MainWindow& window);

}  // namespace tavrin

#include "ui/frame/MainWindow.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "formats/SettingsFile.h"
#include "pipeline/SubjectPlace.h"
#include "session/Freeze.h"
#include "ui/DroppedFiles.h"
#include "ui/FileFilters.h"
#include "ui/WindowSettings.h"
#include "ui/booth/EventPage.h"
#include "ui/frame/Habits.h"
#include "ui/frame/TipGuard.h"
#include "ui/mail/MailPage.h"

namespace tavrin {

MainWindow::MainWindow(SystemInfo& info, QWidget* parent)
    : QMainWindow(parent),
      info_(info),
      loop_(std::make_unique<CombineThread>(info)),
      editor_(info),
      binder_(editor_),
      files_(new PictureFiles(info, *loop_, bridge_, this)),
      keeping_(new Safekeeping(editor_, *loop_, this)),
      looks_(new LookDesk(binder_, *keeping_, this)),
      review_(new ReviewDesk(info_, this)),
      galleries_(new GalleryDesk(binder_, *loop_, this)),
      view_(new PictureView),
      strip_(new Strip(info, this)),
      messages_(new MessageBar),
      panel_(new SidePanel(binder_, this)),
      settings_(new SettingsPage(binder_)),
      heldLoop_(new HeldLoop(*loop_, this)),
      sizes_(new SizesPanel(editor_, *heldLoop_)),
      templates_(new TemplatesPanel(editor_, *heldLoop_, [this] { return view_->fullPicture(); })),
      printing_(new PrintDesk(this)),
      folderPrint_(new BatchPrintPanel(info, *printing_, [this] { return view_->fullPicture(); })),
      batch_(new BatchPage(binder_)),
      mail_(new MailPage(binder_)),
      booth_(new EventBooth(binder_, *heldLoop_, this)),
      history_(new HistoryPanel(binder_, this)),
      looksPanel_(new LooksPanel(*looks_, this)),
      sizeBox_(new SizeBox(info)),
      tools_(new PictureTools(binder_, *loop_, bridge_, view_)),
      airbrush_(new Airbrush(binder_, *loop_, bridge_, view_)),
      tips_(new TipGuard(this)) {
    setObjectName("MainDisplay");
    setWindowTitle(tr("Main Window - Adjust/Load Mode"));
    setAcceptDrops(true);
    layOut();
    connectParts();
    connectBridge();
    connectStrip();
    connectAirbrush();
    connectKeeping();
    comeBack();
    connectSettings();
    connectLists();
    connectGalleries();  // whose idle work comes before that of the batch
    connectBatch();
    connectReview();
    connectMail();
    connectPrinting();
    connectEvent();
    info_.pInterface = &bridge_;
    loop_->StartMainThread();
}

MainWindow::~MainWindow() {
    hide();  // ends what is held, while there is a loop to tell
    heldLoop_->letGo();
    airbrush_->letGo();
    loop_.reset();  // the thread ends before the bridge it talks to
    heldLoop_->finish();
    info_.pInterface = nullptr;
}

void MainWindow::connectParts() {
    connect(&binder_, &Binder::told, messages_, &MessageBar::tell);
    connect(&binder_, &Binder::changed, this, [this] {
        view_->setTransparent(info_.bOutputTransparency);
        commands_->refresh();
        tellUndo();
    });
    connect(sizeBox_, &SizeBox::sizeChosen, this, &MainWindow::showState);
    connect(view_, &PictureView::zoomed, this, &MainWindow::tellProgress);
    connectMaps();
    connect(files_, &PictureFiles::opened, this, &MainWindow::showState);
    connect(files_, &PictureFiles::saved, this, &MainWindow::endSave);
    connect(findChild<QMenu*>("recentFiles"), &QMenu::aboutToShow, this, &MainWindow::refillRecentFiles);
}

/// The small maps follow what is done on the picture, and end the frame of what they move.
void MainWindow::connectMaps() {
    TextScaleView* item = panel_->textScaleView();
    connect(&tools_->items(), &ItemTool::selected, item, [this, item](int index) {
        if (index < 0) return;
        item->showItem(index);
        panel_->texts()->select(index);
    });
    connect(item, &PlaceView::grabbed, &tools_->items(), &ItemTool::hideFrame);
    connect(&tools_->items(), &ItemTool::editWanted, panel_->texts(), &TextPage::EditTextImage);
    connect(panel_->texts(), &TextPage::selected, &tools_->items(), &ItemTool::show);
    for (PlaceView* map : {static_cast<PlaceView*>(item), static_cast<PlaceView*>(panel_->scaleView())}) {
        connect(view_, &PictureView::dragged, map, qOverload<>(&QWidget::update));
        connect(&bridge_, &WindowBridge::placed, map, qOverload<>(&QWidget::update), Qt::QueuedConnection);
        connect(&bridge_, &WindowBridge::outputSized, map, &PlaceView::imageSizeChange, Qt::QueuedConnection);
    }
}

void MainWindow::connectBridge() {
    const auto queued = Qt::QueuedConnection;
    connect(&bridge_, &WindowBridge::published, this, &MainWindow::takePublished, queued);
    connect(&bridge_, &WindowBridge::alerted, this, &MainWindow::showAlert, queued);
    connect(&bridge_, &WindowBridge::failed, messages_, &MessageBar::fail, queued);
    connect(&bridge_, &WindowBridge::outputSized, this, &MainWindow::sizeToOutput, queued);
    connect(&bridge_, &WindowBridge::placed, &binder_, &Binder::UpdateAllUI, queued);
    connect(&bridge_, &WindowBridge::smoothProgress, panel_->effects(), &EffectsPage::showSmoothProgress, queued);
    connect(
        &bridge_, &WindowBridge::stateOpened, this,
        [this] {
            editor_.forgetSteps();  // they do not rest on what was loaded
            showState();
        },
        queued);
    connect(
        &bridge_, &WindowBridge::controlsEnabled, this,
        [this](bool enabled) {
            finished_ = enabled;
            tellSaveButton();
            commands_->refresh();
            tellProgress();
            airbrush_->setFinished(enabled);
            mail_->setFinished(enabled);
            if (!enabled) return;
            tools_->pictureFinished();
            templates_->view()->refresh();
        },
        queued);
}

void MainWindow::connectSettings() {
    connect(settings_, &SettingsPage::changed, this, &MainWindow::keepSettings);
    connect(settings_, &SettingsPage::pickDirectoryChanged, strip_, &Strip::followPickDirectory);
    connect(settings_, &SettingsPage::told, messages_, &MessageBar::tell);
    for (const char* id : {"FramePortraits", "AutoState", "ForegroundReset", "BackgroundReset"})
        settings_->addBox(commands_->action(id));
    for (ListSetting& list : habitLists())
        settings_->addList(std::move(list));
    for (const char* id : {"ThemeDesktop", "ThemeLight", "ThemeDark"})
        connect(commands_->action(id), &QAction::triggered, settings_, &SettingsPage::refresh);
}

/// Sizes and pages know each other, and a size in force may have become another one.
void MainWindow::connectLists() {
    connect(sizes_, &SizesPanel::failed, messages_, &MessageBar::fail);
    connect(templates_, &TemplatesPanel::failed, messages_, &MessageBar::fail);
    connect(templates_, &TemplatesPanel::pageChosen, this, &MainWindow::keepSettings);
    connect(templates_, &TemplatesPanel::listChanged, sizes_, &SizesPanel::refresh);
    connect(templates_, &TemplatesPanel::listChanged, folderPrint_, &BatchPrintPanel::refresh);
    connect(templates_, &TemplatesPanel::listChanged, this, &MainWindow::tellUndo);
    connect(sizes_, &SizesPanel::listChanged, this, [this] {
        tellUndo();
        sizeBox_->reload();
        templates_->refresh();
        if (!info_.bChangeImageSize) return;
        showState();
        info_.StartUpdate();
    });
}

/// A run through the window takes the portrait's place: its work is kept, and the steps do not rest on what comes.
void MainWindow::connectBatch() {
    loop_->addIdleJob(batch_->engine());
    connect(batch_, &BatchPage::told, messages_, &MessageBar::tell);
    connect(batch_, &BatchPage::failed, messages_, &MessageBar::fail);
    connect(batch_, &BatchPage::takesOver, this, [this] {
        keeping_->leavePortrait();
        editor_.forgetSteps();
        tellUndo();
    });
    connect(batch_, &BatchPage::ended, this, [this] {
        if (!batch_->lastWasFast()) {
            editor_.forgetSteps();
            showState();
            finished_ = info_.whyNotFinished(Resolution::full).empty();
            tellProgress();
        }
        if (closing_ && workUnderWay() == 0) close();
    });
}

/// The tips of both buttons say what they would do.
void MainWindow::tellUndo() {
    if (airbrush_->isOpen()) {
        commands_->action("UndoButton")->setToolTip(tr("Take the last stroke back"));
        commands_->action("RedoButton")->setToolTip(tr("Do the stroke again"));
        return;
    }
    const auto& steps = editor_.steps();
    const std::size_t done = editor_.stepsDone();
    const auto label = [&](std::size_t i) { return QString::fromStdString(steps[i].label); };
    commands_->action("UndoButton")
        ->setToolTip(done == 0 ? tr("Nothing to take back") : tr("Take back: %1").arg(label(done - 1)));
    commands_->action("RedoButton")
        ->setToolTip(done == steps.size() ? tr("Nothing to do again") : tr("Do again: %1").arg(label(done)));
}

/// Every control shows the state that is there now; it has no finished picture yet.
void MainWindow::showState() {
    finished_ = false;
    binder_.UpdateAllUI();
    sizeBox_->updateComboBoxImageSize();
    settings_->refresh();
    templates_->refresh();
    strip_->follow();
    view_->setTransparent(info_.bOutputTransparency);
    commands_->refresh();
    history_->refresh();
    tellUndo();
    tellProgress();
}

void MainWindow::refillRecentFiles() {
    QMenu* menu = findChild<QMenu*>("recentFiles");
    menu->clear();
    for (const QString& path : PictureFiles::recentFiles())
        menu->addAction(QFileInfo(path).fileName(), this, [this, path] { openFile(path); })->setToolTip(path);
    if (menu->isEmpty()) menu->addAction(tr("Nothing yet"))->setEnabled(false);
}

/// Turned on it frames the present portrait, too, unless that was placed by hand or by a state.
void MainWindow::frameNewPortraits(bool wanted) {
    windowSettings().setValue("framePortraits", wanted);
    wantPlace(info_, wanted ? PlaceRule::subject : PlaceRule::corner);
    if (wanted) info_.StartUpdate();
}

void MainWindow::freeze() {
    if (airbrush_->isReplaying()) return messages_->tell(tr("The edits are still being replayed."));
    airbrush_->withoutPattern([this] {
        loop_->edit([this]() -> std::vector<ChangedRows> {
            if (const std::string problem = freezeBackground(info_); !problem.empty()) {
                emit bridge_.failed(tr("The picture is not frozen."), QString::fromStdString(problem));
                return {};
            }
            info_.StartUpdate();
            emit bridge_.placed();
            return {};
        });
    });
}

void MainWindow::clearFreeze() {
    tavrin::clearFreeze(info_);
    info_.StartUpdate();
    showState();
}

void MainWindow::takePublished() {
    for (const PublishedRows& rows : bridge_.takePublished()) {
        view_->show(rows);
        if (rows.isPreview()) booth_->showPreview(rows.pixels);
    }
    tellProgress();
}

void MainWindow::showAlert(const QString& message, const QString& reason) {
    if (batch_->takeAlert(message, reason)) return;
    if (galleries_->isRunning()) return messages_->fail(message.section('\n', 0, 0), reason);
    auto* box = new QMessageBox(QMessageBox::Warning, "Tavrin", message, QMessageBox::Ok, this);
    box->setInformativeText(reason);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::tellStartProblems(const std::string& lines) {
    if (lines.empty()) return;
    messages_->fail(tr("Not everything is as it should be at the start."), QString::fromStdString(lines));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (droppedFiles(event->mimeData()).isEmpty()) return;
    event->acceptProposedAction();
    view_->setDropZone(view_->zoneAt(view_->mapFrom(this, event->position().toPoint())));
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    view_->setDropZone(view_->zoneAt(view_->mapFrom(this, event->position().toPoint())));
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent*) {
    view_->setDropZone(PictureView::DropZone::none);
}

void MainWindow::dropEvent(QDropEvent* event) {
    view_->setDropZone(PictureView::DropZone::none);
    const QStringList files = droppedFiles(event->mimeData());
    if (files.isEmpty()) return;
    event->acceptProposedAction();
    const bool onPortrait =
        view_->zoneAt(view_->mapFrom(this, event->position().toPoint())) == PictureView::DropZone::foreground;
    // Two files are a pair: portrait and background.
    if (isFolder(files[0])) {
        dropFolder(files[0], !onPortrait);
    } else if (files.size() > 2) {
        openPictures(files);
    } else if (files.size() == 2) {
        openForeground(files[0]);
        openBackground(files[1]);
    } else if (isStateFile(files[0]) || onPortrait) {
        openFile(files[0]);
    } else {
        openBackground(files[0]);
    }
}

}  // namespace tavrin

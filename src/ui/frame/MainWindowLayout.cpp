// How the main window is laid out, and what its status line says.
#include <algorithm>
#include <iterator>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "ui/WindowSettings.h"
#include "ui/booth/EventPage.h"
#include "ui/frame/ActionButton.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/PictureCommands.h"
#include "ui/frame/ViewBar.h"
#include "ui/frame/WorkBar.h"
#include "ui/mail/MailPage.h"
#include "ui/print/PrintPage.h"

namespace tavrin {

void MainWindow::layOut() {
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(messages_);
    column->addWidget(view_, 1);
    setCentralWidget(middle);
    settings_->addSizes(sizes_);
    panel_->addPage(settings_);
    panel_->addPage(airbrush_->page());
    panel_->addPage(new PrintPage(binder_, templates_, new WaitingSheets(*printing_), folderPrint_));
    panel_->addPage(booth_->page());
    panel_->addPage(batch_);
    panel_->addPage(mail_);
    addDockWidget(Qt::RightDockWidgetArea, panel_);
    tabifyDockWidget(panel_, history_);
    tabifyDockWidget(panel_, looksPanel_);
    history_->hide();
    looksPanel_->hide();
    std::vector<Command> table = commandTable(*this);
    std::ranges::move(pictureCommands(*tools_, binder_, [this] { return finished_; }), std::back_inserter(table));
    std::ranges::move(editorCommands(*airbrush_), std::back_inserter(table));
    std::ranges::move(stripCommands(*this), std::back_inserter(table));
    std::ranges::move(fileCommands(*this), std::back_inserter(table));
    std::ranges::move(reviewCommands(*review_), std::back_inserter(table));
    std::ranges::move(printCommands(*this), std::back_inserter(table));
    std::ranges::move(
        galleryCommands(
            *galleries_,
            [this] { return !batch_->isRunning() && !info_.bEventModeShowing && !info_.bEventModeAcvtive; }),
        std::back_inserter(table));
    std::ranges::move(pageCommands(*panel_), std::back_inserter(table));
    std::vector<Command> effects = effectCommands(*panel_->effects());
    const auto help =
        std::ranges::find(table, std::string_view("&Help"), [](const Command& one) { return one.menu; });
    table.insert(help, std::move_iterator(effects.begin()), std::move_iterator(effects.end()));
    commands_ = new Commands(*this, std::move(table));
    std::vector<QAction*> actions;
    for (const Command& command : commands_->table())
        actions.push_back(commands_->action(command.id));
    panel_->effects()->addFreeze(commands_->action("clickedButtonfreezebackground"),
                                 commands_->action("clickedButtonfreezebackgroundclear"));
    panel_->effects()->addOverlaySet(commands_->action("loadAutomaticOverlays"));
    panel_->setActions(std::move(actions));
    auto* recent = new QMenu(tr("Open &Recent"), this);
    recent->setObjectName("recentFiles");
    recent->setToolTipsVisible(true);
    commands_->menu("&File")->insertMenu(commands_->action("Save"), recent);
    column->addWidget(new ViewBar(*commands_, view_, this));  // below the picture, so that it covers none of it
    column->addWidget(strip_);
    auto* decks = new QWidget(middle);
    auto* both = new QHBoxLayout(decks);
    both->setContentsMargins(0, 0, 0, 0);
    both->addWidget(booth_->foregroundSelector(), 1);
    both->addWidget(booth_->backgroundSelector(), 1);
    column->addWidget(decks);
    makeToolBar();
    makeStatusLine();
    view_->setFocus();
}

void MainWindow::makeToolBar() {
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName("mainTools");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);  // it has no other way back
    auto* space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    for (const char* id : {"loadForeground", "loadBackground"})
        bar->addWidget(buttonOf(commands_->action(id), bar));
    bar->addSeparator();
    bar->addWidget(tools_->mouseMode());
    bar->addWidget(space);
    auto* label = new QLabel(tr("Output size "), bar);
    label->setBuddy(sizeBox_);
    bar->addWidget(label);
    bar->addWidget(sizeBox_);
    for (const char* id : {"Save", "mainButtonPrint"})
        bar->addWidget(buttonOf(commands_->action(id), bar, Qt::ToolButtonTextOnly));
}

void MainWindow::makeStatusLine() {
    sizeText_ = new QLabel(this);
    zoomText_ = new QLabel(this);
    stateText_ = new QLabel(this);
    progress_ = new QProgressBar(this);
    stateText_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Full picture %1 %").arg(100)));  // nothing moves
    stateText_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    progress_->setObjectName("fullPictureProgress");
    progress_->setAccessibleName(tr("Progress of the full picture"));
    progress_->setFixedWidth(120);
    progress_->setTextVisible(false);
    progress_->setMaximumHeight(8);
    statusBar()->addWidget(sizeText_);
    statusBar()->addWidget(zoomText_);
    auto* pixel = new QLabel(this);
    pixel->setObjectName("pixelReadOut");
    connect(tools_, &PictureTools::readOut, pixel, &QLabel::setText);
    statusBar()->addWidget(pixel);
    auto* work = new WorkBar("Work", tr("Ends this work; what is done stays, and can be taken back"), this);
    connect(keeping_, &Safekeeping::pasteBegun, work, [this, work](std::size_t all) {
        work->begin(tr("Pasting the look"), static_cast<int>(all), [this] { keeping_->stopPasting(); });
    });
    connect(keeping_, &Safekeeping::pasting, work,
            [work](std::size_t done) { work->setDone(static_cast<int>(done)); });
    connect(keeping_, &Safekeeping::pasted, work, &WorkBar::end);
    connect(keeping_, &Safekeeping::pasted, strip_, [this] { strip_->results().forget(); });
    statusBar()->addPermanentWidget(work);
    statusBar()->addPermanentWidget(makeSaveBar());
    statusBar()->addPermanentWidget(makeMailBar());
    statusBar()->addPermanentWidget(stateText_);
    statusBar()->addPermanentWidget(progress_);
}

void MainWindow::tellProgress() {
    if (!sizeText_) return;
    sizeText_->setText(tr("%1 x %2, %3 dpi")
                           .arg(info_.iOutputPixelWidth.load())
                           .arg(info_.iOutputPixelHeight.load())
                           .arg(info_.iOutputImageDPI.load()));
    zoomText_->setText(tr("%1 %").arg(qRound(100.0 * view_->zoom().pixelScale())));
    const bool previewOnly = info_.bSkipHiRes && !finished_;
    const int percent = finished_ ? 100 : static_cast<int>(100.0 * view_->progress());
    progress_->setValue(percent);
    stateText_->setText(savesUnderWay() > 0 ? tr("Saving...")
                        : finished_         ? tr("Ready")
                        : previewOnly       ? tr("Preview")
                                            : tr("Full picture %1 %").arg(percent));
}

WorkBar* MainWindow::makeSaveBar() {
    auto* bar = new WorkBar("Saving", tr("Ends the saving; what was there before under the name stays"), this);
    connect(files_, &PictureFiles::saving, bar, [this, bar](const QString& path) {
        if (savesUnderWay() == 1)
            bar->begin(tr("Saving %1").arg(QFileInfo(path).fileName()), 0, [this] { files_->stopSaving(); });
    });
    connect(files_, &PictureFiles::saved, bar, [this, bar] {
        if (savesUnderWay() == 0) bar->end();
    });
    return bar;
}

/// Size, place and folded panels are those of the last time, on the screens that there are now.
void MainWindow::comeBack() {
    const QSettings settings = windowSettings();
    const QSignalBlocker quiet(frameAction());  // what was wanted last is nothing new to want
    frameAction()->setChecked(settings.value("framePortraits", true).toBool());
    const QSignalBlocker quietToo(commands_->action("AutoState"));
    commands_->action("AutoState")->setChecked(info_.oQLXInfo->bAutoQLXSave);
    cameBack_ = restoreGeometry(settings.value("geometry").toByteArray());
    if (cameBack_) restoreState(settings.value("layout").toByteArray());
    showState();
}

/// The first time the window takes the shape of the output, with the controls beside it; later it stays as people
/// made it, and shows the whole picture.
void MainWindow::sizeToOutput(int outputWidth, int outputHeight) {
    if (outputWidth < 1 || outputHeight < 1) return;
    view_->setOutputSize(QSize(outputWidth, outputHeight));
    view_->setZoomHome();
    if (cameBack_ || isMaximized() || isFullScreen()) return;
    cameBack_ = true;
    const QRect available = screen()->availableGeometry();
    const double height = 0.95 * available.height();
    const double width = height * outputWidth / outputHeight + panel_->sizeHint().width();
    resize(static_cast<int>(std::min(width, 0.95 * available.width())), static_cast<int>(height));
    move(available.topLeft());
}

void MainWindow::setFullScreen(bool on) {
    setWindowState(on ? windowState() | Qt::WindowFullScreen : windowState() & ~Qt::WindowFullScreen);
}

}  // namespace tavrin

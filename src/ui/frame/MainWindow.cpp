#include "ui/MainWindow.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScopeGuard>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "core/image/PictureTypes.h"
#include "core/state/NamedFiles.h"
#include "formats/ImageState.h"
#include "pipeline/SaveImage.h"
#include "pipeline/SubjectPlace.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/States.h"

namespace tavrin {

namespace {

constexpr const char* kRecentKey = "recentFiles";
constexpr const char* kFrameKey = "framePortraits";

QString windowFile() {
    return textOfName(Places::current().windowFile());
}

bool isStateFile(const QString& path) {
    return QFileInfo(path).suffix().compare("qlx", Qt::CaseInsensitive) == 0;
}

QStringList patternsOf(const PictureType& type) {
    QStringList patterns;
    for (const std::string& extension : type.extensions)
        patterns.append("*." + QString::fromStdString(extension));
    return patterns;
}

/// What a dialog opens: every type that is read.
QString pictureFilter() {
    QStringList patterns;
    for (const PictureType& type : pictureTypes())
        patterns += patternsOf(type);
    return MainWindow::tr("Pictures (%1)").arg(patterns.join(' '));
}

/// What a dialog saves: each type that is written.
QString saveFilter() {
    QStringList filters;
    for (const PictureType& type : pictureTypes()) {
        if (type.fileType != 0) filters.append(QString("%1 (%2)").arg(type.name, patternsOf(type).join(' ')));
    }
    return filters.join(";;");
}

QStringList localFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        // The path of a link is written in bytes, which need not be text.
        if (url.isLocalFile())
            files.append(
                textOfName(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString()));
    }
    return files;
}

}  // namespace

MainWindow::MainWindow(SystemInfo& info, QWidget* parent)
    : QMainWindow(parent), info_(info), loop_(std::make_unique<CombineThread>(info)), view_(new PictureView(this)) {
    setWindowTitle("Tavrin");
    setCentralWidget(view_);
    setAcceptDrops(true);
    makeMenus();
    makeSizeBox();
    connectBridge();
    statusBar();
    info_.pInterface = &bridge_;
    loop_->StartMainThread();
}

MainWindow::~MainWindow() {
    loop_.reset();  // the thread ends before the bridge it talks to
    info_.pInterface = nullptr;
}

void MainWindow::makeMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("Open &Portrait..."), QKeySequence::Open, this, [this] {
        askForLayer(*info_.pForegroundBitmapInfo, tr("Open Portrait"), &MainWindow::openForeground);
    });
    file->addAction(tr("Open &Background..."), QKeySequence(Qt::CTRL | Qt::Key_B), this, [this] {
        askForLayer(*info_.pBackgroundBitmapInfo, tr("Open Background"), &MainWindow::openBackground);
    });
    file->addAction(tr("Open S&tate..."), QKeySequence(Qt::CTRL | Qt::Key_T), this, &MainWindow::askForStateToOpen);
    recentMenu_ = file->addMenu(tr("Open &Recent"));
    connect(recentMenu_, &QMenu::aboutToShow, this, &MainWindow::refillRecentFiles);
    file->addSeparator();
    saveAction_ = file->addAction(tr("Save"), QKeySequence::Save, this, &MainWindow::askForSave);
    saveAction_->setEnabled(false);
    file->addAction(tr("Save State &As..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T), this,
                    &MainWindow::askForStateToSave);
    frameAction_ = file->addAction(tr("&Frame New Portraits"));
    frameAction_->setCheckable(true);
    frameAction_->setChecked(QSettings(windowFile(), QSettings::IniFormat).value(kFrameKey, true).toBool());
    connect(frameAction_, &QAction::toggled, this, &MainWindow::frameNewPortraits);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

/// Turned on it frames the present portrait, too, unless that was placed by hand or by a state.
void MainWindow::frameNewPortraits(bool wanted) {
    QSettings(windowFile(), QSettings::IniFormat).setValue(kFrameKey, wanted);
    wantPlace(info_, wanted ? PlaceRule::subject : PlaceRule::corner);
    if (wanted) info_.StartUpdate();
}

void MainWindow::makeSizeBox() {
    QToolBar* bar = addToolBar(tr("Output"));
    bar->setMovable(false);
    bar->addWidget(new QLabel(tr("Output size "), bar));
    sizeBox_ = new QComboBox(bar);
    sizeBox_->setMaxVisibleItems(24);
    for (const ImageSize& size : info_.oImageSize)
        sizeBox_->addItem(QString::fromStdString(size.sName));
    bar->addWidget(sizeBox_);
    showSelectedSize();
    connect(sizeBox_, &QComboBox::activated, this, &MainWindow::chooseSize);
}

// A picture with a size of its own has an entry behind those of the list, as long as that size is in force.
void MainWindow::showSelectedSize() {
    const int listed = info_.iImageSizeCount();
    while (sizeBox_->count() > listed)
        sizeBox_->removeItem(listed);
    int index = info_.iSelecteImageSize;
    if (const auto own = selectedSize(info_); own && index == kOwnImageSize) {
        sizeBox_->addItem(tr("%1 (this picture only)").arg(QString::fromStdString(own->sName)));
        index = listed;
    }
    sizeBox_->setCurrentIndex(index);
}

void MainWindow::chooseSize(int index) {
    if (!tavrin::chooseSize(info_, index)) return;
    showSelectedSize();
    saveAction_->setEnabled(false);
    info_.StartUpdate();
}

void MainWindow::remember(const QString& path) {
    constexpr int kRecentFiles = 10;
    if (!path.isValidUtf16()) return;  // the name is no text, and settings hold nothing else
    QSettings settings(windowFile(), QSettings::IniFormat);
    QStringList files = settings.value(kRecentKey).toStringList();
    files.removeAll(path);
    files.prepend(path);
    settings.setValue(kRecentKey, files.mid(0, kRecentFiles));
}

void MainWindow::refillRecentFiles() {
    recentMenu_->clear();
    for (const QString& path : QSettings(windowFile(), QSettings::IniFormat).value(kRecentKey).toStringList()) {
        recentMenu_->addAction(QFileInfo(path).fileName(), this, [this, path] { openFile(path); })->setToolTip(path);
    }
    if (recentMenu_->isEmpty()) recentMenu_->addAction(tr("Nothing yet"))->setEnabled(false);
}

void MainWindow::openFile(const QString& path) {
    if (isStateFile(path)) {
        openState(path);
    } else {
        openForeground(path);
    }
}

void MainWindow::askForStateToOpen() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open State"), QString(), tr("State files (*.qlx)"));
    if (!path.isEmpty()) openState(path);
}

void MainWindow::askForStateToSave() {
    QString path = QFileDialog::getSaveFileName(this, tr("Save State"), QString(), tr("State files (*.qlx)"));
    if (path.isEmpty()) return;
    if (QFileInfo(path).suffix().isEmpty()) path += ".qlx";
    saveState(path);
}

void MainWindow::openState(const QString& path) {
    saveAction_->setEnabled(false);
    loop_->post([this, path] {
        const std::string problem = tavrin::openState(info_, nameOfText(path));
        if (problem.empty()) {
            emit bridge_.stateOpened(path);
        } else {
            bridge_.showAlert(tr("The state file cannot be opened.").toStdString(), problem);
        }
    });
}

void MainWindow::saveState(const QString& path) {
    saveInTurn(path, [this, path] {
        const std::string name = nameOfText(path);
        std::string problem = whyNoStateOver(info_, name);
        if (problem.empty()) problem = saveImageStateToXML(info_, name);
        if (problem.empty()) {
            emit bridge_.stateSaved(path);
        } else {
            bridge_.showAlert(tr("The state file cannot be saved.").toStdString(), problem);
        }
        return problem.empty();
    });
}

void MainWindow::connectBridge() {
    connect(&bridge_, &WindowBridge::published, this, &MainWindow::takePublished, Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::alerted, this, &MainWindow::showAlert, Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::outputSized, this, &MainWindow::fitToOutput, Qt::QueuedConnection);
    connect(
        &bridge_, &WindowBridge::stateOpened, this,
        [this](const QString& path) {
            remember(path);
            showSelectedSize();
        },
        Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::stateSaved, this, &MainWindow::remember, Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::saveEnded, this, &MainWindow::endSave, Qt::QueuedConnection);
    connect(
        &bridge_, &WindowBridge::controlsEnabled, this,
        [this](bool enabled, bool hostApplication) {
            saveAction_->setText(hostApplication ? "Return To Lightroom" : "Save");
            saveAction_->setEnabled(enabled);
            statusBar()->showMessage(enabled ? tr("Ready") : tr("Working..."));
        },
        Qt::QueuedConnection);
}

void MainWindow::askForLayer(const BitmapInfo& record, const QString& title,
                             void (MainWindow::*open)(const QString& path)) {
    const QString folder = QFileInfo(textOfName(record.sSourceImageFullPath)).path();
    const QString path = QFileDialog::getOpenFileName(this, title, folder, pictureFilter());
    if (!path.isEmpty()) (this->*open)(path);
}

void MainWindow::openForeground(const QString& path) {
    openPortrait(info_, nameOfText(path));
    if (frameAction_->isChecked()) wantPlace(info_, PlaceRule::subject);
    showOpened(path);
}

void MainWindow::openBackground(const QString& path) {
    tavrin::openBackground(info_, nameOfText(path));
    showOpened(path);
}

void MainWindow::showOpened(const QString& path) {
    remember(path);
    saveAction_->setEnabled(false);
    info_.StartUpdate();
}

bool MainWindow::loopRests() const {
    return info_.iCurrentThreadCount > info_.iNewThreadCount;
}

void MainWindow::askForSave() {
    const QFileInfo source(textOfName(info_.pForegroundBitmapInfo->sSourceImageFullPath));
    const QString suggestion = source.completeBaseName() + "-combined.jpg";
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Picture"), suggestion, saveFilter());
    if (!path.isEmpty()) saveTo(path);
}

bool MainWindow::saveTo(QString path) {
    if (!loopRests()) {
        statusBar()->showMessage(tr("The picture is not finished yet."), 4000);
        return false;
    }
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
void MainWindow::saveInTurn(const QString& path, std::function<bool()> save) {
    ++saves_;
    statusBar()->showMessage(tr("Saving %1...").arg(path));
    loop_->edit([this, path, save = std::move(save)]() -> std::vector<ChangedRows> {
        bool done = false;
        const auto tell = qScopeGuard([&] { emit bridge_.saveEnded(path, done); });
        done = save();
        return {};
    });
}

void MainWindow::endSave(const QString& path, bool done) {
    --saves_;
    if (done) {
        statusBar()->showMessage(tr("Saved %1").arg(path), 4000);
    } else {
        statusBar()->clearMessage();
        closing_ = false;
    }
    if (closing_ && saves_ == 0) close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    closing_ = saves_ > 0;
    event->setAccepted(!closing_);
    if (closing_) statusBar()->showMessage(tr("The window closes when everything is saved."));
}

void MainWindow::takePublished() {
    for (const PublishedRows& rows : bridge_.takePublished())
        view_->show(rows);
}

void MainWindow::showAlert(const QString& message, const QString& reason) {
    auto* box = new QMessageBox(QMessageBox::Warning, "Tavrin", message, QMessageBox::Ok, this);
    box->setInformativeText(reason);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::tellStartProblems(const std::string& lines) {
    const QString apart = QString::fromStdString(lines).replace("\n", "\n\n");
    if (!lines.empty()) showAlert(tr("Not everything is as it should be at the start."), apart);
}

void MainWindow::fitToOutput(int outputWidth, int outputHeight) {
    if (outputWidth < 1 || outputHeight < 1 || isMaximized() || isFullScreen()) return;
    const QRect available = screen()->availableGeometry();
    const double height = 0.95 * available.height();
    const double width = height * outputWidth / outputHeight;
    resize(static_cast<int>(std::min(width, 0.95 * available.width())), static_cast<int>(height));
    move(available.topLeft());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (localFiles(event->mimeData()).isEmpty()) return;
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
    const QStringList files = localFiles(event->mimeData());
    if (files.isEmpty()) return;
    event->acceptProposedAction();
    // Two files are a pair: portrait and background.
    if (files.size() >= 2) {
        openForeground(files[0]);
        openBackground(files[1]);
    } else if (isStateFile(files[0]) || view_->zoneAt(view_->mapFrom(this, event->position().toPoint())) ==
                                            PictureView::DropZone::foreground) {
        openFile(files[0]);
    } else {
        openBackground(files[0]);
    }
}

}  // namespace tavrin

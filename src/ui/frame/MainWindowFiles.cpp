// What the main window opens and saves.
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "formats/SettingsFile.h"
#include "session/SaveTarget.h"
#include "ui/FileFilters.h"
#include "ui/frame/Habits.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {

void MainWindow::openFile(const QString& path) {
    if (isFolder(path)) return openFolder(path);
    isStateFile(path) ? openState(path) : openForeground(path);
}

void MainWindow::openForeground(const QString& path) {
    galleries_->leave();
    leaveWaysOfSaving();
    keeping_->leavePortrait();
    keeping_->forgetEdits();
    std::optional<Recipe> known = keeping_->knownOf(path);
    if (!known && commands_->action("ForegroundReset")->isChecked()) return openReset(path);
    files_->openForeground(path, (!known || known->settings.empty()) && frameAction()->isChecked());
    if (known) {
        keeping_->takeUp(std::move(*known));
    } else {
        editor_.forgetSteps();  // they belong to the portrait before
        showState();
    }
}

/// A portrait that nothing is known of begins with the settings of every start.
void MainWindow::openReset(const QString& path) {
    files_->openForegroundReset(path, frameAction()->isChecked());
    keeping_->waitForState();
}

void MainWindow::openBackground(const QString& path) {
    galleries_->leave();
    keeping_->chooseBackground(nameOfText(path));
    files_->openBackground(path, commands_->action("BackgroundReset")->isChecked());
}

void MainWindow::openState(const QString& path) {
    galleries_->leave();
    leaveWaysOfSaving();
    finished_ = false;
    commands_->refresh();
    keeping_->leavePortrait();
    keeping_->forgetEdits();
    files_->openState(path);
    keeping_->waitForState();
}

void MainWindow::saveState(const QString& path) {
    files_->saveState(path);
    tellProgress();
}

/// The last file is remembered, and the dialog begins in its folder.
QString MainWindow::selectImageToOpen(const QString& title, Field<std::string>& last, const QString& filter) {
    const QString folder = QFileInfo(textOfName(standardizePath(last))).path();
    const QString path = QFileDialog::getOpenFileName(this, title, folder, filter);
    if (path.isEmpty()) return {};
    last = nameOfText(path);
    keepSettings();
    return path;
}

/// What has ".qlx" anywhere in its name is taken for a state.
void MainWindow::loadForeground() {
    const QString path = selectImageToOpen(tr("Select Foreground File"), info_.oQLXInfo->sForegroundPath,
                                           pictureFilter() + ";;" + stateFilter());
    if (path.isEmpty()) return;
    path.contains(".qlx", Qt::CaseInsensitive) ? openState(path) : openForeground(path);
}

void MainWindow::loadBackground() {
    const QString path =
        selectImageToOpen(tr("Select Background File"), info_.oQLXInfo->sBackgroundPath, pictureFilter());
    if (!path.isEmpty()) openBackground(path);
}

void MainWindow::keepSettings() {
    const std::string problem = SaveQLXFile(*info_.oQLXInfo);
    if (!problem.empty()) messages_->fail(tr("The settings cannot be saved."), QString::fromStdString(problem));
}

void MainWindow::askForStateToOpen() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open State"), QString(), stateFilter());
    if (!path.isEmpty()) openState(path);
}

void MainWindow::askForStateToSave() {
    QString path = QFileDialog::getSaveFileName(this, tr("Save State"), QString(), stateFilter());
    if (path.isEmpty()) return;
    if (QFileInfo(path).suffix().isEmpty()) path += ".qlx";
    saveState(path);
}

/// The portrait's name behind the prefix. Where that would be the portrait itself, which is not saved over, another.
QString MainWindow::suggestedName() const {
    const QFileInfo source(textOfName(info_.pForegroundBitmapInfo->sSourceImageFullPath));
    const QString folder = textOfName(standardizePath(info_.oQLXInfo->sSavePath));
    const QString prefix = QString::fromStdString(info_.oQLXInfo->sPrefix);
    const QString type = info_.bOutputTransparency ? QStringLiteral(".png") : chosenFileType();
    const QString name = type.isEmpty() ? source.fileName() : source.completeBaseName() + type;
    const QString path = (folder.isEmpty() ? source.path() : folder) + '/' + prefix;
    const SaveTarget target = saveTargetOf(nameOfText(path + name));
    if (QFileInfo(textOfName(target.picture())) != source) return textOfName(target.picture());
    return path + source.completeBaseName() + "-combined" + textOfName(target.picture().substr(target.stem.size()));
}

/// The host application's file and a reviewed result are written again without a question; else a dialog asks.
void MainWindow::saveImage() {
    if (info_.bLightroomActive) {
        saveForHost();
    } else if (info_.bBatchReviewActive) {
        saveReviewed();
    } else {
        askForSave();
    }
}

void MainWindow::askForSave() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Picture"), suggestedName(), saveFilter());
    if (path.isEmpty()) return;
    const QString target = textOfName(saveTargetOf(nameOfText(path)).picture());
    if (target != path && QFileInfo::exists(target) &&
        QMessageBox::question(this, "Tavrin",
                              tr("The picture is saved as %1, which is there already. Replace it?").arg(target)) !=
            QMessageBox::Yes)
        return;  // the dialog has asked about another name
    info_.oQLXInfo->sSavePath = nameOfText(QFileInfo(path).path());
    keepSettings();
    saveTo(path);
}

bool MainWindow::saveTo(const QString& path) {
    const SaveTarget target = saveTargetOf(nameOfText(path));
    if (!takeFinished([&] { return files_->savePicture(textOfName(target.picture())); })) return false;
    saveStateBeside(target);
    return true;
}

/// @param save takes what is to be written, and says whether there was a finished picture
bool MainWindow::takeFinished(const std::function<bool()>& save) {
    if (airbrush_->isReplaying()) {
        messages_->tell(tr("The edits are still being replayed."));
        return false;
    }
    bool taken = false;
    airbrush_->withoutPattern([&] { taken = save(); });
    if (!taken) messages_->tell(tr("The picture is not finished yet."));
    tellProgress();
    return taken;
}

void MainWindow::saveStateBeside(const SaveTarget& target) {
    if (info_.oQLXInfo->bAutoQLXSave) files_->saveState(textOfName(target.state()));
}

/// A result of a batch is mended from the state that was saved beside it; without one it is shown with the settings
/// that are there.
void MainWindow::openForReview(const QString& path) {
    const QString state = textOfName(saveTargetOf(nameOfText(path)).state());
    if (QFileInfo::exists(state)) {
        openState(state);
    } else {
        messages_->fail(tr("%1 has no state, so the present settings stay.").arg(QFileInfo(path).fileName()),
                        tr("A batch saves one beside each picture while \"%1\" is on.")
                            .arg(commands_->action("AutoState")->text().remove('&')));
    }
    info_.oQLXInfo->sSavePath = nameOfText(QFileInfo(path).path());
    keepSettings();
    setBatchReviewActive(path);
}

void MainWindow::setBatchReviewActive(const QString& path) {
    info_.bLightroomActive = false;
    info_.bBatchReviewActive = true;
    info_.sBatchReviewFileSavePath = nameOfText(path);
    tellSaveButton();
}

void MainWindow::setBatchReviewNotActive() {
    info_.bBatchReviewActive = false;
    tellSaveButton();
}

/// What is saved in the place of a file belongs to the portrait that was opened for that, and to no other.
void MainWindow::leaveWaysOfSaving() {
    info_.bLightroomActive = false;
    setBatchReviewNotActive();
}

/// Written in the place of the result, with the mask that the review pages show beside it.
void MainWindow::saveReviewed() {
    const SaveTarget target = saveTargetOf(info_.sBatchReviewFileSavePath);
    if (!takeFinished([&] { return files_->saveReviewed(textOfName(target.picture())); })) return;
    review_->showAgainAfter(textOfName(target.picture()));
    saveStateBeside(target);
    setBatchReviewNotActive();
}

void MainWindow::connectReview() {
    connect(review_, &ReviewDesk::resultChosen, this, &MainWindow::openForReview);
    connect(review_, &ReviewDesk::portraitChosen, this, [this](const QString& path) {
        info_.oQLXInfo->sForegroundPath = nameOfText(path);
        keepSettings();
        openForeground(path);
    });
    connect(review_, &ReviewDesk::told, messages_, &MessageBar::tell);
    connect(review_, &ReviewDesk::failed, messages_, &MessageBar::fail);
    connect(files_, &PictureFiles::saved, review_, &ReviewDesk::noteSaved);
}

/// What passes through the window while a gallery is made is nobody's work.
void MainWindow::connectGalleries() {
    loop_->addIdleJob(galleries_->engine());
    connect(galleries_, &GalleryDesk::runBegins, keeping_, &Safekeeping::pause);
    connect(galleries_, &GalleryDesk::runEnded, this, [this] {
        keeping_->goOn();
        binder_.UpdateAllUI();
    });
    connect(galleries_, &GalleryDesk::backgroundChosen, this, &MainWindow::openBackground);
    connect(galleries_, &GalleryDesk::told, messages_, &MessageBar::tell);
    connect(galleries_, &GalleryDesk::failed, messages_, &MessageBar::fail);
    connect(galleries_, &GalleryDesk::alerted, this, &MainWindow::showAlert);
}

void MainWindow::askForReview() {
    const QString folder = textOfName(standardizePath(info_.oQLXInfo->sLastBatchOutput));
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Select a Result of a Batch"), folder, pictureFilter());
    if (!path.isEmpty()) openForReview(path);
}

void MainWindow::openForHost(const QString& path) {
    openForeground(path);
    info_.bLightroomActive = true;
    tellSaveButton();
}

/// No state is written beside the host's file. With the picture the host gets the screen back.
void MainWindow::saveForHost() {
    const SaveTarget target = saveTargetOf(info_.pForegroundBitmapInfo->sSourceImageFullPath);
    if (!takeFinished([&] { return files_->saveOver(textOfName(target.picture())); })) return;
    info_.bLightroomActive = false;
    returning_ = true;
    tellSaveButton();
}

void MainWindow::tellSaveButton() {
    commands_->action("Save")->setText(info_.bLightroomActive     ? tr("Return To Lightroom")
                                       : info_.bBatchReviewActive ? tr("Save to Batch")
                                                                  : tr("Save"));
}

}  // namespace tavrin

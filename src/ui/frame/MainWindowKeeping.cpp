// That the main window loses nothing: closing, ends from outside, and what an earlier program left.
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "core/files/NameText.h"
#include "ui/WindowSettings.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {

void MainWindow::connectKeeping() {
    connect(&binder_, &Binder::changed, keeping_, &Safekeeping::noteWork);
    connect(sizeBox_, &SizeBox::sizeChosen, keeping_, &Safekeeping::noteWork);
    connect(files_, &PictureFiles::opened, keeping_, &Safekeeping::touch);
    connect(&bridge_, &WindowBridge::stateOpened, keeping_, &Safekeeping::noteWork, Qt::QueuedConnection);
    connect(&bridge_, &WindowBridge::published, keeping_, &Safekeeping::look, Qt::QueuedConnection);
    connect(keeping_, &Safekeeping::failed, messages_, &MessageBar::fail);
    connect(keeping_, &Safekeeping::tookUp, this, [this](const QString& problems) {
        showState();
        if (!problems.isEmpty()) messages_->fail(tr("Not every setting could be taken up."), problems);
    });
    connect(keeping_, &Safekeeping::pasted, this, [this](std::size_t portraits, const QString& problems) {
        history_->refresh();
        commands_->refresh();
        tellUndo();
        const QString line = tr("The look waits, and is there when these portraits are opened: %1").arg(portraits);
        problems.isEmpty() ? messages_->tell(line) : messages_->fail(line, problems);
    });
    connect(looks_, &LookDesk::told, messages_, &MessageBar::tell);
    connect(looks_, &LookDesk::failed, messages_, &MessageBar::fail);
    looks_->setSelection([this] { return strip_->selectedPortraits(); });
    looks_->setPicture([this] { return finished_ ? view_->fullPicture() : QImage(); });
    connect(files_, &PictureFiles::saving, this, [this] { savedPositions_.push_back(editor_.position()); });
    connect(
        files_, &PictureFiles::stopped, this,
        [this](const QString& path) {
            messages_->tell(tr("Saving was stopped, and nothing under the name %1 was changed.").arg(path));
        },
        Qt::QueuedConnection);
    connect(files_, &PictureFiles::saved, this, [this](const QString&, bool done) {
        const std::uint64_t position = savedPositions_.front();
        savedPositions_.pop_front();
        if (done) editor_.markSaved(position);
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] {
        galleries_->leave();
        keeping_->keepNow();
    });
}

void MainWindow::offerLeftRecipes() {
    left_ = leftRecipes();
    offerNextLeft();
}

void MainWindow::offerNextLeft() {
    if (left_.empty()) return;
    const QString portrait = QFileInfo(textOfName(left_.front().recipe.portrait())).fileName();
    const auto next = [this] {
        LeftRecipe left = left_.front();
        left_.erase(left_.begin());
        return left;
    };
    messages_->ask(tr("Tavrin ended without being closed. The work on %1 was kept.").arg(portrait),
                   {{"TakeUp", tr("Take Up"), tr("Brings both pictures, every setting and the history back"),
                     [this, next] {
                         LeftRecipe left = next();
                         keeping_->leavePortrait();
                         keeping_->takeUp(left.recipe, left);
                         offerNextLeft();
                     }},
                    {"Discard", tr("Discard"), tr("Removes what was kept"), [this, next] {
                         next().remove();
                         offerNextLeft();
                     }}});
}

void MainWindow::endSave(const QString& path, bool done) {
    tellProgress();
    if (done) {
        messages_->tell(tr("Saved %1").arg(path));
    } else {
        closing_ = false;
    }
    if (std::exchange(returning_, false)) {
        if (done) showMinimized();  // the host application comes to the front
        info_.bLightroomActive = !done;
        tellSaveButton();
    }
    if (closing_ && workUnderWay() == 0) close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (question_) return;  // asked already
    galleries_->leave();
    if (batch_->isRunning()) return askBeforeEndingBatch();
    closing_ = workUnderWay() > 0;
    if (closing_)
        return messages_->tell(savesUnderWay() > 0 ? tr("The window closes when everything is saved.")
                                                   : tr("The window closes when the mail is sent."));
    if (editor_.isUnsaved() && !closeUnsaved_) return askBeforeClosing();
    event->accept();
    QSettings settings = windowSettings();
    settings.setValue("geometry", saveGeometry());
    settings.setValue("layout", QMainWindow::saveState());
    keeping_->endWell();
}

void MainWindow::askBeforeClosing() {
    const QString portrait = QFileInfo(textOfName(info_.pForegroundBitmapInfo->sSourceImageFullPath)).fileName();
    question_ = new QMessageBox(QMessageBox::Question, "Tavrin",
                                tr("The picture of %1 was changed and not saved since.").arg(portrait),
                                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question_->setObjectName("closeQuestion");
    question_->setInformativeText(tr("Its settings are kept, and come back when the portrait is opened again."));
    question_->button(QMessageBox::Discard)->setText(tr("Close &without Saving"));
    question_->button(QMessageBox::Save)->setEnabled(finished_);
    question_->setDefaultButton(finished_ ? QMessageBox::Save : QMessageBox::Cancel);
    question_->setAttribute(Qt::WA_DeleteOnClose);
    connect(question_, &QMessageBox::finished, this, [this](int answer) {
        question_ = nullptr;
        if (answer == QMessageBox::Save) {
            askForSave();
            closing_ = savesUnderWay() > 0;  // nothing was asked to be saved: it stays
        } else if (answer == QMessageBox::Discard) {
            closeUnsaved_ = true;
            close();
        }
    });
    question_->open();
}

/// The pictures in hand are finished, then the window goes.
void MainWindow::askBeforeEndingBatch() {
    question_ =
        new QMessageBox(QMessageBox::Question, "Tavrin", tr("A batch is running."), QMessageBox::Cancel, this);
    question_->setObjectName("batchQuestion");
    question_->setInformativeText(tr("The pictures in hand are finished first. The next run goes on with the rest."));
    QPushButton* stop = question_->addButton(tr("Stop and &Close"), QMessageBox::AcceptRole);
    stop->setObjectName("stopBatchAndClose");
    question_->setDefaultButton(QMessageBox::Cancel);
    question_->setAttribute(Qt::WA_DeleteOnClose);
    connect(question_, &QMessageBox::finished, this, [this] { question_ = nullptr; });
    connect(stop, &QPushButton::clicked, this, [this] {
        closing_ = true;
        question_ = nullptr;
        batch_->isRunning() ? batch_->clickedButtonStopBatch() : void(close());
    });
    question_->open();
}

void MainWindow::endFromOutside() {
    galleries_->leave();
    keeping_->keepNow();
    QSettings settings = windowSettings();
    settings.setValue("geometry", saveGeometry());
    settings.setValue("layout", QMainWindow::saveState());
}

}  // namespace tavrin

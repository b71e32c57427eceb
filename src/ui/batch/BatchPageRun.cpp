// The runs of the batch page: through this window, and beside it.
#include <utility>

#include <QLabel>

#include "core/files/NameText.h"
#include "session/Recipe.h"
#include "ui/batch/BatchLists.h"
#include "ui/batch/BatchPage.h"
#include "ui/batch/BatchProgress.h"

namespace tavrin {

void BatchPage::connectEngine() {
    connect(
        &bridge_, &BatchBridge::counted, this,
        [this](const QString& files, const QString& processed) {
            files_->setText(files);
            processed_->setText(processed);
        },
        Qt::QueuedConnection);
    connect(
        &bridge_, &BatchBridge::jobEnded, this,
        [this](const QString& portrait, const QString& picture, bool saved, const QString& problem) {
            saved ? last_->add(picture)
                  : failures_->add(picture, problem.isEmpty() ? alerts_ : portrait + ": " + problem);
            alerts_.clear();
            progress_->addOne(!saved);
            showButtons();
        },
        Qt::QueuedConnection);
    connect(
        &bridge_, &BatchBridge::startEnabled, this,
        [this](bool on) {
            if (on && running_ && !lastWasFast_) end({});
        },
        Qt::QueuedConnection);
}

void BatchPage::connectFast() {
    connect(&fast_, &FastBatch::planned, plan_, &PlanList::add);
    connect(&fast_, &FastBatch::looked, this, [this](int pictures) {
        if (!onlyLooks_) progress_->setAll(pictures);
    });
    connect(&fast_, &FastBatch::made, this, [this](const QString&, const QString& picture) {
        last_->add(picture);
        progress_->addOne(false);
    });
    connect(&fast_, &FastBatch::failed, this,
            [this](const QString& portrait, const QString& picture, const QString& reason) {
                failures_->add(picture, portrait + ": " + reason);
                progress_->addOne(true);
            });
    connect(&fast_, &FastBatch::skipped, progress_, &BatchProgress::addSkipped);
    connect(&fast_, &FastBatch::noted, this, [this](const QString& line) { failures_->add(line, {}); });
    connect(&fast_, &FastBatch::ended, this, &BatchPage::end, Qt::QueuedConnection);
}

/// An account that never chose has JPEG and joined names.
void BatchPage::takeFirstChoices() {
    if (extensionFor(settings_.iLastBatchLastOutputFileType).empty()) engine_.changeBatchOutputType("1");
    const int style = settings_.iLastBatchLastOutputStyle;
    if (style < kCombineNames || style > kSplitIntoFolders) engine_.changeBatchOutputStyle("1");
}

/// A run begins only where it can end well.
bool BatchPage::mayStart() {
    if (running_) return false;
    const QString words = problem();
    showProblem(words);
    if (!words.isEmpty()) return refuse(words);
    takeFirstChoices();
    return true;
}

bool BatchPage::refuse(const QString& reason) {
    emit failed(tr("The batch cannot start."), reason);
    return false;
}

void BatchPage::begin() {
    running_ = true;
    stopped_ = false;
    alerts_.clear();
    progress_->begin(0);
}

void BatchPage::clickedButtonStartBatch() {
    if (!mayStart()) return;
    lastWasFast_ = planIsFast_ = false;
    begin();
    progress_->setAll(engine_.outlook(0).left);
    emit takesOver();
    engine_.clickedButtonStartBatch();
    showButtons();
}

void BatchPage::clickedButtonStopBatch() {
    stopped_ = true;
    fast_.isRunning() ? fast_.stop() : engine_.clickedButtonStopBatch();
    showButtons();
    emit told(tr("The batch stops after the pictures in hand."));
}

void BatchPage::clickedButtonClearBatchHistory() {
    engine_.clickedButtonClearBatchHistory();
    failures_->clear();
    planIsFast_ = false;
    showButtons();
    lookAhead();
}

void BatchPage::again() {
    if (failures_->count() == 0) return;
    if (!running_ && !mayStart()) return;
    const int count = failures_->count();
    failures_->clear();
    if (lastWasFast_) return runFast(false, true);
    if (!running_) {
        begin();
        progress_->setAll(engine_.outlook(0).left + count);
        emit takesOver();
    }
    engine_.clickedButtonBatchAgain();
    showButtons();
}

void BatchPage::startFast() {
    runFast(false, false);
}

void BatchPage::runFast(bool onlyLook, bool retryFailed) {
    if (fast_.isRunning() || !mayStart()) return;
    FastBatchJob job = fastJob();
    if (settings_.bUseBatchXMLFile && !job.subfolders && job.list.isEmpty()) {
        refuse(tr("There is no list file in the portraits' folder."));
        return;
    }
    ++looks_;  // a look through the window's own history comes too late
    plan_->begin();
    planIsFast_ = lastWasFast_ = true;
    onlyLooks_ = onlyLook;
    if (!onlyLook) failures_->clear();
    begin();
    job.retryFailed = retryFailed;
    fast_.start(job, onlyLook);
    showButtons();
}

/// Without a folder of portraits it is the one that is open; the background that is open stands in the recipe.
FastBatchJob BatchPage::fastJob() const {
    const SystemInfo& info = binder_.editor().info();
    FastBatchJob job;
    job.foregrounds = textOfName(settings_.sLastBatchForeground);
    if (job.foregrounds.isEmpty()) job.foregrounds = textOfName(info.pForegroundBitmapInfo->sSourceImageFullPath);
    job.backgrounds = textOfName(settings_.sLastBatchBackground);
    job.states = textOfName(settings_.sLastBatchQLX);
    job.out = textOfName(settings_.sLastBatchOutput);
    job.style = settings_.iLastBatchLastOutputStyle;
    job.fileType = settings_.iLastBatchLastOutputFileType;
    job.subfolders = settings_.bUseBackgroundSubfolders;
    job.watch = settings_.bLastBatchCheckForNewFiles;
    if (settings_.bUseBatchXMLFile && !job.subfolders) job.list = textOfName(engine_.listFile());
    if (job.subfolders) job.states.clear();  // they play no part there
    job.recipe = bytesOf(presentRecipe(binder_.editor()));
    return job;
}

bool BatchPage::takeAlert(const QString& message, const QString& reason) {
    if (!running_ || lastWasFast_) return false;
    const QString words = message.section('\n', 0, 0) + ' ' + reason;
    alerts_ += (alerts_.isEmpty() ? "" : "; ") + words;
    emit failed(message, reason);
    return true;
}

void BatchPage::end(const QString& reason) {
    if (!running_) return;
    running_ = stopped_ = false;
    if (!alerts_.isEmpty()) failures_->add(alerts_, {});  // of the run, not of a picture
    alerts_.clear();
    if (!reason.isEmpty()) {
        failures_->add(reason, {});
        emit failed(tr("The batch has ended early."), reason);
    }
    showProblem(problem());
    if (std::exchange(onlyLooks_, false)) {
        progress_->hide();
        if (plan_->count() == 0 && reason.isEmpty()) plan_->addItem(tr("Nothing: all of it was made before."));
    } else {
        progress_->end();
        notify_(tr("The batch has ended."), progress_->sums());
        emit told(tr("The batch has ended. %1").arg(progress_->sums()));
        lastWasFast_ ? plan_->begin() : lookAhead();  // what the fast run made stands in no history of the window's
    }
    showButtons();
    emit ended();
}

}  // namespace tavrin

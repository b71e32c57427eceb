#include "ui/batch/BatchPage.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "ui/batch/BatchChoices.h"
#include "ui/batch/BatchLists.h"
#include "ui/batch/BatchProgress.h"
#include "ui/batch/DesktopNotice.h"
#include "ui/batch/FolderRow.h"
#include "ui/batch/SortPanel.h"

namespace tavrin {

namespace {

constexpr int kLookEvery = 3000;  // milliseconds between looks into the folders

const BindingGroup kFolderGroup{"groupBatchFolders", QT_TRANSLATE_NOOP("Panel", "Folders of the batch"), nullptr, {}};
const BindingGroup kChoiceGroup{"groupBatchChoices", QT_TRANSLATE_NOOP("Panel", "Files and names"), nullptr, {}};
const BindingGroup kRunGroup{"groupBatchRun", QT_TRANSLATE_NOOP("Panel", "Run"), nullptr, {}};
const BindingGroup kPlanGroup{"groupBatchPlan", QT_TRANSLATE_NOOP("Panel", "What will be made"), nullptr, {}};
const BindingGroup kLastGroup{"groupBatchResults", QT_TRANSLATE_NOOP("Panel", "Last pictures"), nullptr, {}};
const BindingGroup kSortGroup{"groupBatchSort", QT_TRANSLATE_NOOP("Panel", "Sort photos by shape"), nullptr, {}};
const BindingGroup kFailureGroup{"groupBatchFailures", QT_TRANSLATE_NOOP("Panel", "Failures"), nullptr, {}};

QLabel* makeLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QString extensionOf(const QLXInfo& settings) {
    return QString::fromStdString(extensionFor(settings.iLastBatchLastOutputFileType));
}

}  // namespace

BatchPage::BatchPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelBatch", "TabBatch", 5, QT_TRANSLATE_NOOP("Panel", "Batch"),
                 QT_TRANSLATE_NOOP("Panel", "Whole folders of portraits over folders of backgrounds")},
                parent),
      binder_(binder),
      settings_(*binder.editor().info().oQLXInfo),
      engine_(binder.editor().info(), &bridge_),
      choices_(new BatchChoices(engine_, settings_)),
      files_(makeLabel("textBatchFileCount")),
      processed_(makeLabel("textBatchProcessedCount")),
      problem_(makeLabel("textBatchProblem")),
      progress_(new BatchProgress),
      plan_(new PlanList),
      last_(new LastPictures),
      failures_(new FailureList),
      notify_(notifyDesktop) {
    looker_.setMaxThreadCount(1);
    addFolders();
    addGroup(kChoiceGroup, binder)->addItem(choices_);
    addRun();
    addLists();
    connectEngine();
    connectFast();
    connect(choices_, &BatchChoices::changed, this, &BatchPage::changedChoices);
    watch_.setInterval(kLookEvery);
    connect(&watch_, &QTimer::timeout, this, [this] {
        if (looker_.activeThreadCount() > 0) return;
        if (isVisible() || running_) checkFolders();
        if (isVisible() && !running_) lookAhead();
    });
    watch_.start();
    showButtons();
}

/// A run of a program that ends is not its end.
BatchPage::~BatchPage() {
    fast_.disconnect(this);
    looker_.clear();
    looker_.waitForDone();
}

void BatchPage::addFolders() {
    GroupBox* group = addGroup(kFolderGroup, binder_);
    for (const FolderSetting& setting : batchFolders()) {
        auto* row = new FolderRow(setting, settings_);
        folders_.push_back(row);
        group->addItem(row);
        connect(row, &FolderRow::chooseWanted, this, [this, row] { ask(row); });
        connect(row, &FolderRow::clearWanted, this, [this, row] {
            (engine_.*row->setting().clear)();
            changedChoices();
        });
    }
}

void BatchPage::addRun() {
    GroupBox* group = addGroup(kRunGroup, binder_);
    auto* counts = new QWidget;
    auto* line = new QGridLayout(counts);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(new QLabel(tr("Pictures in the batch")), 0, 0);
    line->addWidget(files_, 0, 1);
    line->addWidget(new QLabel(tr("In the history")), 1, 0);
    line->addWidget(processed_, 1, 1);
    group->addStatus(counts);
    auto* buttons = new QWidget;
    buttons->setAccessibleName(tr("Start, stop and history"));
    auto* grid = new QGridLayout(buttons);
    grid->setContentsMargins(0, 0, 0, 0);
    start_ = makeButton("buttonBatchStart", "clickedButtonStartBatch:", tr("Start"),
                        tr("Makes the pictures one by one in this window, where each is seen"));
    stop_ = makeButton("buttonBatchStop", "clickedButtonStopBatch:", tr("Stop"),
                       tr("Ends the run after the picture in hand; the next run goes on there"));
    clear_ = makeButton("buttonBatchClearHistory", "clickedButtonClearBatchHistory:", tr("Clear history"),
                        tr("Forgets what was made, so that a run makes all of it again"));
    fastStart_ = makeButton("buttonBatchFast", "startFast", tr("Start fast"),
                            tr("Makes the pictures beside this window, several at a time; the picture that is open "
                               "stays. It has a history of its own in the folder of the pictures."));
    fastLook_ = makeButton("buttonBatchFastLook", "lookFast", tr("Look ahead, fast"),
                           tr("Lists what the fast run would make, and makes nothing"));
    connect(start_, &QToolButton::clicked, this, &BatchPage::clickedButtonStartBatch);
    connect(stop_, &QToolButton::clicked, this, &BatchPage::clickedButtonStopBatch);
    connect(clear_, &QToolButton::clicked, this, &BatchPage::clickedButtonClearBatchHistory);
    connect(fastStart_, &QToolButton::clicked, this, &BatchPage::startFast);
    connect(fastLook_, &QToolButton::clicked, this, [this] { runFast(true, false); });
    int at = 0;
    for (QToolButton* button : {start_, fastStart_, stop_, fastLook_, clear_}) {
        grid->addWidget(button, at / 2, at % 2);
        ++at;
    }
    group->addItem(buttons);
    problem_->setProperty("problem", true);
    problem_->hide();
    group->addWidget(problem_);
    group->addWidget(progress_);
}

void BatchPage::addLists() {
    addGroup(kPlanGroup, binder_)->addItem(plan_);
    addGroup(kLastGroup, binder_)->addItem(last_);
    GroupBox* failures = addGroup(kFailureGroup, binder_);
    failures->addItem(failures_);
    again_ = makeButton("buttonBatchAgain", "clickedButtonBatchAgain", tr("Try these again"),
                        tr("Makes what failed once more, as soon as its cause is gone"));
    connect(again_, &QToolButton::clicked, this, &BatchPage::again);
    failures->addItem(again_);
    auto* sorter = new SortPanel;
    connect(sorter, &SortPanel::told, this, &BatchPage::told);
    connect(sorter, &SortPanel::failed, this, &BatchPage::failed);
    addGroup(kSortGroup, binder_)->addItem(sorter);
}

void BatchPage::showEvent(QShowEvent* event) {
    PanelPage::showEvent(event);
    updateBatchUI();
}

void BatchPage::updateBatchUI() {
    takeFirstChoices();
    for (FolderRow* row : folders_)
        row->refresh();
    choices_->refresh();
    showProblem(problem());
    lookAhead();
}

void BatchPage::changedChoices() {
    planIsFast_ = false;
    for (FolderRow* row : folders_)
        row->refresh();
    showProblem(problem());
    lookAhead();
}

void BatchPage::ask(FolderRow* row) {
    const QString last = textOfName(standardizePath(settings_.*row->setting().path));
    auto* dialog = new QFileDialog(this, tr("Choose a Folder: %1").arg(row->label()), last);
    dialog->setObjectName("batchFolderDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this, [this, row](const QString& folder) {
        bridge_.findFolder = [folder] { return nameOfText(folder); };
        (engine_.*row->setting().choose)();
        changedChoices();
    });
    dialog->open();
}

/// The folders may be far away, so they are looked into beside the main thread.
void BatchPage::lookAhead() {
    if (fast_.isRunning() || planIsFast_) return;
    const int mine = ++looks_;
    looker_.start([this, mine] {
        const BatchOutlook outlook = engine_.outlook(PlanList::kMost);
        QMetaObject::invokeMethod(
            this,
            [this, mine, outlook] {
                if (mine == looks_) plan_->show(outlook, extensionOf(settings_));
            },
            Qt::QueuedConnection);
    });
}

QString BatchPage::problem() const {
    for (const FolderRow* row : folders_)
        if (const QString problem = row->problem(); !problem.isEmpty()) return problem;
    return {};
}

void BatchPage::checkFolders() {
    looker_.start([this] {
        QMetaObject::invokeMethod(
            this, [this, words = problem()] { showProblem(words); }, Qt::QueuedConnection);
    });
}

void BatchPage::showProblem(const QString& words) {
    problem_->setText(words);
    problem_->setVisible(!words.isEmpty());
}

void BatchPage::showButtons() {
    for (QToolButton* button : {start_, fastStart_, fastLook_, clear_})
        button->setEnabled(!running_ && !fast_.isRunning());
    stop_->setEnabled(running_ && !stopped_);
    again_->setEnabled(failures_->count() > 0 && !fast_.isRunning());
    choices_->setEnabled(!running_);
    for (FolderRow* row : folders_)
        row->setEnabled(!running_);
}

}  // namespace tavrin

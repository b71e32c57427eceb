#pragma once

#include <functional>

#include <QThreadPool>
#include <QTimer>

#include "batch/BatchEngine.h"
#include "ui/batch/BatchBridge.h"
#include "ui/batch/FastBatch.h"
#include "ui/bind/PanelPage.h"

class QLabel;
class QToolButton;

namespace tavrin {

class BatchChoices;
class BatchProgress;
class FailureList;
class FolderRow;
class LastPictures;
class PlanList;

/// The batch: its folders and choices, the run through this window and the fast one beside it, what will be made,
/// what was made and what could not be.
class BatchPage : public PanelPage {
    Q_OBJECT

  public:
    explicit BatchPage(Binder& binder, QWidget* parent = nullptr);
    ~BatchPage() override;

    /// For the loop, before its thread starts; it ends before the page.
    BatchEngine& engine() { return engine_; }
    /// Whether a run is on, through this window or beside it.
    bool isRunning() const { return running_; }
    /// Whether the last run, or the one that is on, goes beside the window.
    bool lastWasFast() const { return lastWasFast_; }
    /// Shows folders, choices and counts as they are.
    void updateBatchUI();
    void clickedButtonStartBatch();
    /// Ends the run after the pictures in hand.
    void clickedButtonStopBatch();
    void clickedButtonClearBatchHistory();
    /// Makes what failed once more.
    void again();
    void startFast();
    /// While a run is on, an alert of the engine's stands in the list of failures and stops nobody.
    /// @return whether it was taken
    bool takeAlert(const QString& message, const QString& reason);
    /// Who tells the desktop that a run has ended.
    void setNotify(std::function<void(const QString& title, const QString& text)> notify) {
        notify_ = std::move(notify);
    }
    /// Why no run can begin, or what is wrong with the folders of the one that is on; "" for nothing.
    QString problem() const;

  signals:
    /// A run through this window begins, which takes the place of the picture that is open; it ended.
    void takesOver();
    void ended();
    void failed(const QString& message, const QString& reason);
    void told(const QString& line);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void addFolders();
    void addRun();
    void addLists();
    void connectEngine();
    void connectFast();
    void ask(FolderRow* row);
    void changedChoices();
    void takeFirstChoices();
    bool mayStart();
    bool refuse(const QString& reason);
    void begin();
    void runFast(bool onlyLook, bool retryFailed);
    FastBatchJob fastJob() const;
    void end(const QString& problem);
    void lookAhead();
    void checkFolders();
    void showProblem(const QString& words);
    void showButtons();

    Binder& binder_;
    QLXInfo& settings_;
    BatchBridge bridge_;
    BatchEngine engine_;
    FastBatch fast_;
    std::vector<FolderRow*> folders_;
    BatchChoices* choices_;
    QLabel *files_, *processed_, *problem_;
    BatchProgress* progress_;
    PlanList* plan_;
    LastPictures* last_;
    FailureList* failures_;
    QToolButton *start_ = nullptr, *stop_ = nullptr, *clear_ = nullptr, *fastStart_ = nullptr, *fastLook_ = nullptr,
                *again_ = nullptr;
    std::function<void(const QString&, const QString&)> notify_;
    QTimer watch_;
    QString alerts_;  ///< since the last job of the run ended
    bool running_ = false, lastWasFast_ = false, stopped_ = false;
    bool onlyLooks_ = false;   ///< what runs is a look of the fast batch
    bool planIsFast_ = false;  ///< the plan is that of the fast batch, which nothing replaces by itself
    int looks_ = 0;            ///< of the newest look ahead; older ones come too late
    QThreadPool looker_;       // goes first: it waits for what still runs
};

}  // namespace tavrin

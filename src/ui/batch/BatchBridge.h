#pragma once

#include <functional>
#include <mutex>

#include <QObject>

#include "batch/BatchInterface.h"

namespace tavrin {

/// Carries what the batch engine says over to the main thread. What is said again is not carried twice.
class BatchBridge : public QObject, public BatchInterface {
    Q_OBJECT

  public:
    using QObject::QObject;

    void showBatchCounts(const std::string& files, const std::string& processed) override;
    void enableBatchStart(bool on) override { emit startEnabled(on); }
    void enableBatchStop(bool on) override { emit stopEnabled(on); }
    void batchJobEnded(const BatchOutcome& outcome) override;
    void showBatchSettings() override { emit settingsShown(); }
    std::optional<std::string> FindFolder() override { return findFolder ? findFolder() : std::nullopt; }

    /// Asks for a folder; of the chooser that is at work.
    std::function<std::optional<std::string>()> findFolder;

  signals:
    void counted(const QString& files, const QString& processed);
    void startEnabled(bool on);
    void stopEnabled(bool on);
    /// @param problem "" when the picture was saved, or an alert told why not
    void jobEnded(const QString& portrait, const QString& picture, bool saved, const QString& problem);
    void settingsShown();

  private:
    std::mutex mutex_;
    std::string counts_;
};

}  // namespace tavrin

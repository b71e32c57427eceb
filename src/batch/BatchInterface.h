#pragma once

#include <optional>
#include <string>

namespace tavrin {

/// What became of one job of the desktop program's batch.
struct BatchOutcome {
    std::string foreground;  ///< its portrait, by name
    std::string picture;     ///< path of the picture, which is there when it was saved
    bool saved = false;
    std::string problem;  ///< why it was not, where no alert has told it
};

/// What the batch engine asks of the batch panel. The first four may be called from the processing thread: they post
/// and return at once. The default does nothing, so that a batch runs without a window.
class BatchInterface {
  public:
    virtual ~BatchInterface() = default;

    /// Texts of `textBatchFileCount` and `textBatchProcessedCount`.
    virtual void showBatchCounts(const std::string& /*files*/, const std::string& /*processed*/) {}
    /// `buttonBatchStart` and `buttonBatchStop`.
    virtual void enableBatchStart(bool) {}
    virtual void enableBatchStop(bool) {}
    /// A job came to its end.
    virtual void batchJobEnded(const BatchOutcome&) {}

    /// Shows the folders, boxes and choices of `QLXInfo` again. Main thread.
    virtual void showBatchSettings() {}
    /// Asks for a folder; nothing when the user gave up. Main thread.
    virtual std::optional<std::string> FindFolder() { return std::nullopt; }
};

}  // namespace tavrin

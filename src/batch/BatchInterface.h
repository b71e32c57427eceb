#pragma once

#include <optional>
#include <string>

namespace tavrin {

/// What the batch engine asks of the batch panel. The first three may be called from the processing thread: they post
/// and return at once. The default does nothing, so that a batch runs without a window.
class BatchInterface {
  public:
    virtual ~BatchInterface() = default;

    /// Texts of `textBatchFileCount` and `textBatchProcessedCount`.
    virtual void showBatchCounts(const std::string& /*files*/, const std::string& /*processed*/) {}
    /// `buttonBatchStart` and `buttonBatchStop`.
    virtual void enableBatchStart(bool) {}
    virtual void enableBatchStop(bool) {}

    /// Shows the folders, boxes and choices of `QLXInfo` again. Main thread.
    virtual void showBatchSettings() {}
    /// Asks for a folder; nothing when the user gave up. Main thread.
    virtual std::optional<std::string> FindFolder() { return std::nullopt; }
};

}  // namespace tavrin

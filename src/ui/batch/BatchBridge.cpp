#include "ui/batch/BatchBridge.h"

#include <utility>

#include "core/files/NameText.h"

namespace tavrin {

void BatchBridge::showBatchCounts(const std::string& files, const std::string& processed) {
    {
        std::lock_guard lock(mutex_);
        std::string counts = files + '/' + processed;
        if (std::exchange(counts_, counts) == counts) return;
    }
    emit counted(QString::fromStdString(files), QString::fromStdString(processed));
}

void BatchBridge::batchJobEnded(const BatchOutcome& outcome) {
    emit jobEnded(textOfName(outcome.foreground), textOfName(outcome.picture), outcome.saved,
                  QString::fromStdString(outcome.problem));
}

}  // namespace tavrin

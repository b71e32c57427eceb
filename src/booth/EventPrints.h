#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "booth/EventTeller.h"
#include "booth/EventWorker.h"
#include "delivery/print/Paper.h"
#include "delivery/print/PrintQueue.h"
#include "delivery/print/PrintRunner.h"

namespace tavrin {

/// What the booth's sheets are printed on.
struct PrintTarget {
    std::string printer;
    Paper paper;
};

/// Brings the booth's sheets from the queue to the printer, in order, and knows how the printer is. It alone speaks
/// to the printing system, on a thread of its own.
class EventPrints {
  public:
    EventPrints(std::shared_ptr<const EventSetup> setup, EventTeller& teller);

    /// Asks the printer, follows the sheets that it has, sends those that wait.
    void step();
    /// The printer and its paper, as soon as they are known; waits for the first answer so long.
    /// @param problem set to why they are not known, as one plain line
    std::optional<PrintTarget> target(std::chrono::milliseconds limit, std::string& problem);
    void tell(EventSigns& signs) const;

  private:
    void look();
    void findTarget(const Printer& printer);
    void sendWaiting(const std::vector<QueuedSheet>& sheets);
    void count(const std::vector<QueuedSheet>& sheets);

    const std::shared_ptr<const EventSetup> setup_;
    EventTeller& teller_;
    const std::unique_ptr<PrintService> service_;
    PrintQueue queue_;
    PrintRunner runner_;
    bool hasSheets_ = false;
    std::chrono::steady_clock::time_point nextLook_{};

    mutable std::mutex mutex_;
    std::condition_variable answered_;
    bool hasAnswer_ = false;
    std::optional<PrintTarget> target_;
    Printer printer_;
    int waiting_ = 0, unsure_ = 0;
};

}  // namespace tavrin

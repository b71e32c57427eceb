#pragma once

#include <string>
#include <vector>

#include "delivery/print/PrintQueue.h"
#include "delivery/print/PrintService.h"

namespace tavrin {

/// Brings the sheets of a queue to their printers, each once. A job is noted before it gets its document, so that
/// after a kill it is known, or asked of the printer, whether a sheet has gone. For one thread at a time; several
/// programs may work on one queue.
class PrintRunner {
  public:
    PrintRunner(PrintQueue& queue, PrintService& service) : queue_(queue), service_(service) {}

    /// Sends a sheet that waits. One that cannot go stays with its reason.
    /// @return the sheet as it stands then
    QueuedSheet send(const std::string& id);
    /// Sends it once more because a person wants that: also one that may have gone already, and one that is at the
    /// printer, which is taken back from there first.
    /// @return the sheet as it stands then; without an id when it was found to be printed
    QueuedSheet sendAgain(const std::string& id);
    /// Takes a sheet out of the queue, and back from the printer.
    /// @return "" or why it stays, as one plain line
    std::string discard(const std::string& id);

    /// Asks what became of the sheets at printers, and of those that a program was killed with. Printed ones leave
    /// the queue.
    /// @return those that are left
    std::vector<QueuedSheet> followUp();

  private:
    void follow(const std::string& id);
    QueuedSheet sendHeld(QueuedSheet sheet);
    QueuedSheet stay(QueuedSheet sheet, QueuedSheet::Stage stage, const std::string& reason);
    QueuedSheet taken(QueuedSheet sheet, const JobNews& news);
    bool takeBack(QueuedSheet& sheet);

    PrintQueue& queue_;
    PrintService& service_;
};

}  // namespace tavrin

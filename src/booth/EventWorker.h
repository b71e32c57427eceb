#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "booth/EventSigns.h"
#include "core/state/QLXInfo.h"
#include "delivery/mail/DeliveryConf.h"
#include "delivery/print/PrintService.h"
#include "delivery/print/SheetLayout.h"

namespace tavrin {

class SystemInfo;

/// What came of one ticket.
struct EventResult {
    enum class Status {
        done,     ///< the picture stands, and what follows it is on its way
        partly,   ///< the picture stands; `reason` says what is wrong
        failed,   ///< the ticket was set aside
        waiting,  ///< it cannot be made now, and is tried again
        skipped   ///< another booth had it
    };
    Status status = Status::done;
    std::string ticket, photo;  ///< paths
    std::string reason;         ///< one plain line; "" when done
    int mode = 0, copies = 0;   ///< as the ticket has them; copies that were ordered
    std::string email;
    double seconds = 0;
};

/// Hears what the booth does. Every call comes on one of its threads, never two at once, and must not wait for
/// whoever stops the booth.
class EventListener {
  public:
    virtual ~EventListener() = default;

    /// What `textQLXCount` and `textImageCount` show.
    virtual void counted(int /*tickets*/, int /*photos*/) {}
    virtual void finished(const EventResult&) {}
    /// Something has changed that an operator sees; comes at least once a second.
    virtual void changed(const EventSigns&) {}
    /// A message with the one button "OK". Each is told once, until what it is about has changed.
    virtual void alert(const std::string& /*message*/, const std::string& /*reason*/) {}
    /// The last thread has ended: the start button may be pressed again.
    virtual void ended() {}
};

/// What a booth works with, as it was when the booth was started.
struct EventSetup {
    std::string outputFolder;
    QLXInfo settings;  ///< mail server, letter, printer, and the page (`iEventModeSelectedTemplate`)
    DeliveryConf delivery;
    SheetLook look = {};
    std::string paper;           ///< as `paperOf` reads it; "" for the printer's own
    bool keepsLocation = false;  ///< whether mailed pictures say where they were taken
    bool keepsMails = true;      ///< mails that do not go wait in the outbox; else they are given up with an alert
    bool once = false;           ///< ends by itself when no ticket is left that can be made
    std::chrono::milliseconds pause{500};
    std::chrono::milliseconds jobLimit{120'000};  ///< a job that takes longer is given up
    std::string printQueue, outbox;               ///< folders; "" for the usual ones
    std::function<std::unique_ptr<PrintService>()> printers = systemPrintService;
};

/// `eventModeThread`: makes the pictures of the tickets in a folder, one after another, on a state object of its own
/// (`pEventSystemInfo`), and has them printed and mailed. What the tickets say alone decides. Sheets and mails go on
/// threads beside it, so that no printer and no server holds up a picture. Several booths, on one machine or on many,
/// may share a folder: each ticket is done once.
class EventWorker {
  public:
    /// @param base whose lists of sizes and pages the jobs use; read in `start` alone
    EventWorker(const SystemInfo& base, EventListener& listener);
    /// Stops, and waits for the job in hand.
    ~EventWorker();
    EventWorker(const EventWorker&) = delete;
    EventWorker& operator=(const EventWorker&) = delete;

    /// @return "" when it runs; otherwise why not, as one plain line: it still runs, there is no such folder
    std::string start(EventSetup setup);
    /// The job in hand is finished and nothing else begun. Returns at once; `ended` tells when it is so.
    void stop();
    /// From `start` until `ended`.
    bool isRunning() const;
    void join();
    /// A ticket was written: the pause is cut short.
    void wake();

    EventSigns signs() const;
    /// Puts the tickets that were set aside back to the others.
    /// @return how many
    int retryBroken();
    /// Prints left in the pack from now on; -1: nobody counts.
    void refillPack(int prints);

  private:
    class Run;
    const SystemInfo& base_;
    EventListener& listener_;
    std::unique_ptr<Run> run_;
};

}  // namespace tavrin

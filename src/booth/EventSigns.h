#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace tavrin {

/// What a booth has done on one day, all booths of its output folder together.
struct EventTally {
    int pictures = 0;
    int prints = 0;  ///< copies that were given to the printer's queue
    int mails = 0;   ///< mails and text messages that were given to the outbox
    int failed = 0;  ///< tickets that were set aside
};

/// A ticket that came to nothing, or to less than it asked for.
struct EventFailure {
    std::string ticket;  ///< name of the file, without a folder
    std::string reason;  ///< one plain line
    long long at = 0;    ///< milliseconds since 1970
};

/// How the worker of the booth stands; what an operator looks at.
struct EventSigns {
    using Clock = std::chrono::steady_clock;

    bool isRunning = false;        ///< from start until the last step is done
    bool isDraining = false;       ///< it was stopped, and finishes the job in hand
    std::string job;               ///< name of the ticket in hand; "" for none
    Clock::time_point since{};     ///< when that began
    Clock::time_point lastSign{};  ///< the last sign of life
    int hanging = 0;               ///< jobs given up that hang in a call of the system
    std::string trouble;           ///< why no picture can be made at present, as one plain line; "" when all is well

    int tickets = 0, photos = 0;  ///< in the folder, as the last pass counted them
    int jobsWaiting = 0;          ///< tickets without a photo
    int brokenTickets = 0;        ///< in the folder of those that were set aside
    EventTally today;

    std::string printer;         ///< that is printed on; "" before one is known
    std::string printerState;    ///< in plain words: "ready", "printing", "out of paper"
    std::string printerTrouble;  ///< why nothing is printed now, as one plain line; "" when it is
    int printsWaiting = 0;       ///< sheets that are not printed yet, those at the printer among them
    int printsUnsure = 0;        ///< only a person decides: may have been printed, or the printer gave them up
    int printsLeft = -1;         ///< in the pack; -1: nobody counts

    int mailsWaiting = 0;     ///< sent by themselves when the server takes them
    int mailsHeld = 0;        ///< wait for a person: refused, or may have gone
    std::string mailTrouble;  ///< why the last mail did not go; "" when it did

    std::vector<EventFailure> failures;  ///< the last ones, the newest first
};

}  // namespace tavrin

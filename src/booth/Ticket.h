#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

// A press at the booth. What it leaves is a ticket: a state file in the output folder, which has the picture's whole
// recipe and says what becomes of the picture (`iEventSaveMode`, `sEventEmail`, `iEventPrintCount`). A ticket without
// a photo of the same stem beside it is a job that waits.

/// What becomes of a picture (`iEventSaveMode`); anything else is only saved.
enum EventSaveMode : int { kEventSave = 1, kEventSaveAndPrint = 2, kEventSaveAndMail = 3 };

/// Hundredths of a second, cut off, from "2010-01-01 04:00:00 +0900" until now.
long long eventTicks();

/// Where a ticket of these ticks lies, without its extension: the portrait's name in the folder, with the ticks.
std::string ticketStem(const std::string& outputFolder, const std::string& foregroundPath, long long ticks);

/// What came of a press.
struct Press {
    std::string ticket;   ///< path of the state file; "" when none was written
    std::string problem;  ///< why, as one plain line
    bool isDone() const { return !ticket.empty(); }
};

/// `eventModeSaveNow` but for what it shows: writes the state as a ticket into the output folder of its settings.
/// With `bAutoQLXSave` off none is written. The ticket appears whole, under a name that nobody had: where two presses
/// fall into one hundredth of a second, or two booths work on one folder, the later one takes the next that is free.
/// No ticket and no photo is ever replaced. For the main thread: it waits for nothing but the disk.
Press eventModeSaveNow(const SystemInfo& info);

/// The same with the folder named, whatever the settings say.
Press writeTicket(const SystemInfo& info, const std::string& outputFolder);

}  // namespace tavrin

#pragma once

#include <string>

#include "booth/BoothFolder.h"

namespace tavrin {

// Tickets that cannot be made lie in the folder "Broken" of the output folder, each with a text that says why. They
// hold nobody up there, and go back when a person wants them to be tried again.

/// Puts a ticket there.
/// @return "" or why it stays where it is, as one plain line
std::string setTicketAside(const BoothFolder& folder, const std::string& stem, const std::string& reason);

int countBrokenTickets(const BoothFolder& folder);

/// Puts all of them back to the others, unless there is one of that name again.
/// @return how many
int putTicketsBack(const BoothFolder& folder);

}  // namespace tavrin

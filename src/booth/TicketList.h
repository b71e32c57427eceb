#pragma once

#include <string>
#include <vector>

#include "booth/BoothFolder.h"

namespace tavrin {

/// One look into an output folder.
struct TicketList {
    int tickets = 0, photos = 0;       ///< that lie there
    std::vector<std::string> pending;  ///< stems of tickets without a photo of any type, the oldest press first
    std::string problem;               ///< why the folder could not be read to its end, as one plain line
};

TicketList listTickets(const BoothFolder& folder);

/// Stems of the notes in the hidden folder; usually none.
std::vector<std::string> listNotes(const BoothFolder& folder);

}  // namespace tavrin

#pragma once

#include <optional>
#include <string>

#include "booth/BoothFolder.h"

namespace tavrin {

/// The right to work on a ticket. One worker has it at a time, on whatever machine; it goes with the object, or with
/// the program however that ends. Where a file system knows no locks, a claim that a killed program left counts for
/// ten minutes.
class TicketClaim {
  public:
    /// @return nothing when somebody else has it
    static std::optional<TicketClaim> take(const BoothFolder& folder, const std::string& stem);
    TicketClaim(TicketClaim&& other) noexcept;
    TicketClaim& operator=(TicketClaim&& other) noexcept;
    ~TicketClaim();

  private:
    TicketClaim(std::string path, int handle) : path_(std::move(path)), handle_(handle) {}
    std::string path_;
    int handle_;
};

}  // namespace tavrin

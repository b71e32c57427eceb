#pragma once

#include <ios>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "booth/EventSigns.h"

namespace tavrin {

/// What the booths of an output folder have done, kept in it (`.tavrin-booth/`) as lines that are only ever added, a
/// file for each process. What was told twice, because a kill came in between, counts once. Safe on any thread.
class EventCounts {
  public:
    /// @param installation letters and digits that no other machine has
    EventCounts(std::string outputFolder, const std::string& installation);

    /// A picture stands; its prints were given to the queue, its mail to the outbox; its ticket was set aside.
    /// @param stem of the ticket
    void addPicture(const std::string& stem);
    void addPrints(const std::string& stem, int prints);
    void addMail(const std::string& stem);
    void addFailure(const std::string& stem);
    /// The pack holds so many prints from now on; less than 0: nobody counts.
    void refill(int prints);

    /// Reads what was added since, here and by others.
    void refresh();
    EventTally today() const;
    /// Prints that the pack still has, 0 at least; -1 when nobody counts.
    int printsLeft() const;

    /// One line for each day: day, pictures, prints, mails, failed.
    std::string csv() const;

  private:
    struct Line {
        std::string what, stem;
        long long at = 0;  ///< milliseconds since 1970
        int number = 0;
    };
    void append(const Line& line);
    void take(const Line& line);
    void readOn(const std::string& path);

    const std::string folder_, own_;
    mutable std::mutex mutex_;
    std::map<std::string, std::streamoff> read_;  ///< how far each file was read
    std::map<std::string, EventTally> days_;
    std::set<std::string> known_;
    std::map<long long, int> prints_;                  ///< by when they were ordered
    std::optional<std::pair<long long, int>> refill_;  ///< the last one
};

/// How many copies a guest gets who wants so many, where the operator has set a limit; 0 for no limit. At least 1.
int allowedCopies(int wanted, int limit);

}  // namespace tavrin

#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "booth/EventSigns.h"

namespace tavrin {

/// What the booths of an output folder have done, kept beside it (`.tavrin-booth/`) as lines that are only ever
/// added, a file for each installation. What was told twice, because a kill came in between, counts once.
class EventCounts {
  public:
    /// @param installation letters and digits that no other machine has
    EventCounts(std::string outputFolder, std::string installation);

    /// A picture stands, with so many prints and mails ordered.
    /// @param stem of its ticket
    void add(const std::string& stem, int prints, int mails);
    /// A ticket was set aside.
    void addFailure(const std::string& stem);
    /// The pack holds so many prints from now on; less than 0: nobody counts.
    void refill(int prints);

    /// Reads what the others have added.
    void refresh();
    EventTally today() const;
    /// Prints that the pack still has, 0 at least; -1 when nobody counts.
    int printsLeft() const;

    /// One line for each day: day, pictures, prints, mails, failed.
    std::string csv() const;

  private:
    struct Line {
        long long at = 0;  ///< milliseconds since 1970
        std::string what, stem;
        int prints = 0, mails = 0;
    };
    void append(const Line& line);
    void take(const Line& line);

    const std::string folder_, own_;
    std::map<std::string, std::uintmax_t> read_;  ///< bytes of each file
    std::map<std::string, EventTally> days_;
    std::set<std::string> known_;
    std::vector<Line> refills_, prints_;
};

/// How many copies a guest gets who wants so many, where the operator has set a limit; 0 for no limit. At least 1.
int allowedCopies(int wanted, int limit);

}  // namespace tavrin

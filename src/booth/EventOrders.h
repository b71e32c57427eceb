#pragma once

#include <memory>
#include <string>

#include "booth/BoothFolder.h"
#include "booth/EventCounts.h"
#include "booth/EventPrints.h"
#include "booth/JobNote.h"
#include "delivery/mail/Outbox.h"
#include "delivery/print/PrintQueue.h"

namespace tavrin {

class SystemInfo;

/// What follows a picture. It is made ready before the picture gets its name, so that afterwards one step for each
/// sheet and each mail, which works once and no second time, lets it go. For the jobs of one booth, one at a time.
class EventOrders {
  public:
    /// @param lists a state whose print pages are used
    EventOrders(std::shared_ptr<const EventSetup> setup, std::shared_ptr<const SystemInfo> lists,
                std::shared_ptr<EventPrints> prints, std::shared_ptr<EventCounts> counts);

    /// Makes sheets and mail of a job ready. What cannot be made now is owed, with the reason.
    /// @param info the state that the ticket was loaded into
    /// @param file the picture, under whatever name it has yet
    JobNote prepare(SystemInfo& info, const std::string& stem, const std::string& file);
    /// Forgets what was made ready: its picture never came.
    void withdraw(const JobNote& note) const;
    /// The picture stands: lets all of it go, makes what is owed where it can be made now, and counts. The note is
    /// removed when nothing is owed any more.
    /// @return what is still owed, or is wrong with it for good, as one plain line; "" for nothing
    std::string letGo(const BoothFolder& folder, const std::string& stem, JobNote note);
    /// Whether this installation has what the note names.
    bool isOurs(const JobNote& note) const { return note.owner == owner_; }

    /// Whose queue and outbox those of a booth are.
    static std::string ownerOf(const EventSetup& setup);

  private:
    void prepareSheets(SystemInfo& info, const std::string& stem, const std::string& file, JobNote& note);
    void prepareMail(const std::string& stem, const std::string& file, JobNote& note);
    bool makeOwed(const BoothFolder& folder, const std::string& stem, JobNote& note);
    std::string nameOf(const std::string& stem) const;

    const std::shared_ptr<const EventSetup> setup_;
    const std::shared_ptr<const SystemInfo> lists_;
    const std::shared_ptr<EventPrints> prints_;
    const std::shared_ptr<EventCounts> counts_;
    PrintQueue queue_;
    const Outbox outbox_;
    const std::string owner_;
};

}  // namespace tavrin

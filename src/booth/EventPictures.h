#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "booth/EventJob.h"
#include "booth/EventTeller.h"
#include "booth/TicketList.h"
#include "core/Worker.h"

namespace tavrin {

/// The passes over the output folder: finds tickets without a photo and has each of them done.
class EventPictures {
  public:
    using Clock = std::chrono::steady_clock;

    EventPictures(EventShop shop, std::shared_ptr<EventCounts> counts, EventTeller& teller,
                  std::function<void()> changed);

    /// One pass. @param worker is asked whether to go on, and gets signs of life
    void pass(Worker& worker);
    /// No ticket is left that another pass could do soon.
    bool isAllDone() const { return allDone_; }
    /// Jobs that hang in a call of the system, which nobody waits for any longer.
    int hanging() const { return hanging_; }
    void tell(EventSigns& signs) const;

  private:
    /// A ticket whose portrait or background cannot be read yet.
    struct Wait {
        Clock::time_point first, next;
        int tries = 0;
    };

    bool look(TicketList& list);
    void workOffNotes(Worker& worker);
    std::string workOffNote(const std::string& stem);
    bool doTicket(const std::string& stem, Worker& worker);
    JobEnd watch(const std::shared_ptr<EventJob>& job, Worker& worker);
    bool settle(const std::string& stem, JobEnd end, EventResult result);
    bool mustWait(const std::string& stem);
    void setAside(const std::string& stem, JobEnd::Kind kind, EventResult& result);
    void setTrouble(const std::string& reason);
    void note(const std::string& stem, const std::string& reason);
    void setJob(const std::string& stem, std::shared_ptr<EventJob> job);

    const EventShop shop_;
    const std::shared_ptr<EventCounts> counts_;
    EventTeller& teller_;
    const std::function<void()> changed_;
    std::map<std::string, Wait> waits_;
    Clock::time_point nextNotes_{};
    std::atomic<int> photos_ = 0;
    int troubles_ = 0;  ///< pictures that could not be saved, one after another
    std::atomic<bool> allDone_ = false;
    std::atomic<int> hanging_ = 0;

    mutable std::mutex mutex_;
    std::string job_, trouble_;
    std::shared_ptr<EventJob> inHand_;
    Clock::time_point since_{};
    TicketList list_;
    int broken_ = 0, left_ = 0;
    std::deque<EventFailure> failures_;
};

}  // namespace tavrin

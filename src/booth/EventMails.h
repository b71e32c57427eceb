#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>

#include "booth/EventTeller.h"
#include "booth/EventWorker.h"
#include "delivery/mail/Posting.h"

namespace tavrin {

/// Sends what waits in the outbox, on a thread of its own. While the server does not take mails one is tried now and
/// then, and all of them as soon as it does again.
class EventMails {
  public:
    EventMails(std::shared_ptr<const EventSetup> setup, EventTeller& teller);

    void step();
    /// A mail under way is given back to the outbox, and no other begun. On any thread.
    void leave() { leaving_ = true; }
    /// Counts what waits. On any thread, also while a mail is under way.
    void count();
    void tell(EventSigns& signs) const;

  private:
    bool sendOne(const std::string& id);
    void tellEnd(const OutboxEntry& entry, const Posted& posted);

    const std::shared_ptr<const EventSetup> setup_;
    EventTeller& teller_;
    const Outbox outbox_;
    const MailRoute route_;
    std::atomic<bool> leaving_ = false;
    bool isDown_ = false;  ///< the server did not take the last mail
    std::chrono::steady_clock::time_point nextProbe_{};

    mutable std::mutex mutex_;
    int waiting_ = 0, held_ = 0;
    std::string trouble_;
};

}  // namespace tavrin

#include "booth/EventMails.h"

namespace tavrin {

namespace {

using State = OutboxEntry::State;

constexpr std::chrono::seconds kProbe{15};

}  // namespace

EventMails::EventMails(std::shared_ptr<const EventSetup> setup, EventTeller& teller)
    : setup_(std::move(setup)),
      teller_(teller),
      outbox_(setup_->outbox.empty() ? Outbox() : Outbox(setup_->outbox)),
      route_(routeOf(setup_->settings, setup_->delivery)) {}

void EventMails::step() {
    const bool probes = isDown_ && std::chrono::steady_clock::now() >= nextProbe_;
    if (!leaving_ && route_.problem.empty() && (!isDown_ || probes)) {
        for (const OutboxEntry& entry : outbox_.entries()) {
            if (leaving_) break;
            if (entry.state == State::waiting && !sendOne(entry.id)) break;
        }
    }
    count();
}

/// @return whether to go on with the next one
bool EventMails::sendOne(const std::string& id) {
    std::optional<OutboxClaim> claim = outbox_.claim(id);
    if (!claim || claim->entry().state != State::waiting) return true;  // another program was quicker
    const OutboxEntry entry = claim->entry();
    MailWatch watch;
    watch.stop = watch.leaving = &leaving_;
    const Posted posted = postAgain(std::move(*claim), route_, watch);
    if (leaving_ && !posted.isSent()) return false;
    isDown_ = posted.end == MailEnd::notSent;
    nextProbe_ = std::chrono::steady_clock::now() + kProbe;
    tellEnd(entry, posted);
    return !isDown_;
}

void EventMails::tellEnd(const OutboxEntry& entry, const Posted& posted) {
    // The server's trouble is one, however many mails wait for it; a mail that is refused is one of its own.
    const std::string reason = entry.mail.to + ": " + posted.reason;
    if (posted.end != MailEnd::notSent && !posted.isSent())
        teller_.alert("Error", "Message Failed to Send\n" + reason);
    if (isDown_ && !setup_->keepsMails) {
        outbox_.discard(entry.id);
        teller_.alert("Error", "Message Failed to Send\n" + reason);
    } else {
        teller_.trouble("mail", "Error", isDown_ ? "Message Failed to Send\n" + posted.reason : "");
    }
    std::lock_guard lock(mutex_);
    trouble_ = posted.isSent() ? "" : posted.reason;
}

void EventMails::count() {
    int waiting = 0, held = 0;
    for (const OutboxEntry& entry : outbox_.entries())
        entry.state == State::waiting || entry.state == State::underWay ? ++waiting : ++held;
    if (!route_.problem.empty())
        teller_.trouble("mail", "Error", waiting > 0 ? "Message Failed to Send\n" + route_.problem : "");
    std::lock_guard lock(mutex_);
    waiting_ = waiting;
    held_ = held;
    if (!route_.problem.empty()) trouble_ = waiting > 0 ? route_.problem : "";
}

void EventMails::tell(EventSigns& signs) const {
    std::lock_guard lock(mutex_);
    signs.mailsWaiting = waiting_;
    signs.mailsHeld = held_;
    signs.mailTrouble = trouble_;
}

}  // namespace tavrin

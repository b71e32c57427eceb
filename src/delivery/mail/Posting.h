#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>

#include "core/state/QLXInfo.h"
#include "delivery/mail/DeliveryConf.h"
#include "delivery/mail/Outbox.h"

namespace tavrin {

/// The server that the settings name, and who sends.
struct MailRoute {
    MailServer server;
    std::string from;
    std::string problem;  ///< what is missing for it, as a plain sentence; "" for nothing
};

/// The default server is the relay of the configuration, at port 25 without encryption. The sender is always the
/// relay's account; where there is none and the settings have a server of their own, the account of that.
MailRoute routeOf(const QLXInfo& settings, const DeliveryConf& conf);

/// How a port stands in the settings; a text that is no number is 0.
int portOf(const std::string& text);

/// What accompanies a sending.
struct MailWatch {
    const std::atomic<bool>* stop = nullptr;
    const std::atomic<bool>* leaving = nullptr;  ///< the program ends: what is stopped now goes on by itself later
    std::function<void(long long done, long long all)> progress = {};  ///< on the thread that sends
    std::chrono::seconds patience{30};                                 ///< with a server that keeps silent
};

/// How the sending of a mail ended, and what became of the mail.
struct Posted : MailResult {
    bool inOutbox = false;  ///< it is kept there
    bool isSent() const { return end == MailEnd::sent; }
};

/// A mail before it is sent: in the outbox, or in memory where it is not kept.
struct ReadyMail {
    std::optional<OutboxClaim> claim;
    OutgoingMail mail;    ///< without a claim
    Email email;          ///< without a claim
    std::string never;    ///< why no server would take it; "" for nothing
    std::string notKept;  ///< why it is not in the outbox that was to keep it; "" for nothing
};

/// Takes in what a mail is made of, and puts it into the outbox. From then on a kill leaves it there.
ReadyMail makeReady(const OutgoingMail& mail, const Outbox* outbox);
/// Sends such a mail, and blocks until that has come to an end.
Posted postReady(ReadyMail ready, const MailRoute& route, const MailWatch& watch = {});

/// Both: sends a mail, and blocks until that has come to an end. With an outbox the mail lies there meanwhile, and
/// stays when it does not go. A mail that no server would take, such as one without an address, does not get there.
/// @param route for a mail that names no server
Posted post(const OutgoingMail& mail, const MailRoute& route, const Outbox* outbox, const MailWatch& watch = {});

/// Sends a mail of the outbox.
Posted postAgain(OutboxClaim claim, const MailRoute& route, const MailWatch& watch = {});

/// Sends every mail of an outbox whose time has come, one after another.
/// @param told hears of each
void postDue(const Outbox& outbox, const MailRoute& route, const MailWatch& watch,
             const std::function<void(const OutboxEntry& entry, const Posted& posted)>& told);

}  // namespace tavrin

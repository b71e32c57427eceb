#include "delivery/mail/Posting.h"

#include <cstdlib>
#include <utility>

#include "core/Log.h"
#include "delivery/mail/MailText.h"

namespace tavrin {

namespace {

Email emailOf(const OutgoingMail& mail, const MailRoute& route) {
    Email email;
    email.setSubject(mail.subject);
    email.setBody(mail.body);
    if (const std::string& from = mail.from.empty() ? route.from : mail.from; !from.empty()) email.setFrom(from);
    if (!mail.replyTo.empty()) email.setReplyTo(mail.replyTo);
    email.AddTo("", mail.to);
    if (!mail.attachment.empty()) email.AddFileAttachment(mail.attachment, mail.attachmentName, mail.keepLocation);
    return email;
}

/// What is missing for a mail to set out at all, whichever way.
std::string whyNeverGoes(const OutgoingMail& mail, const Email& email) {
    if (!email.LastMethodSuccess()) return email.LastErrorText();
    return isAddress(mail.to) ? "" : "\"" + mail.to + "\" is no mail address.";
}

MailResult send(const OutgoingMail& mail, const Email& email, const MailRoute& route, const MailWatch& watch,
                std::function<bool()> beforeEnd) {
    if (!mail.server && !route.problem.empty()) {
        logError(route.problem);
        return {MailEnd::refused, false, route.problem};
    }
    MailMan manager;
    manager.setServer(mail.server ? *mail.server : route.server);
    manager.setPatience(watch.patience);
    manager.setStop(watch.stop);
    manager.setProgress(watch.progress);
    manager.setBeforeEnd(std::move(beforeEnd));
    if (manager.SendEmail(email) != 1) {
        if (manager.end() == MailEnd::stopped && watch.leaving && *watch.leaving)
            return {MailEnd::notSent, false, "Tavrin was closed while the mail was sent."};
        logError(manager.LastErrorText());
        return {manager.end(), false, manager.LastErrorText()};
    }
    const bool closed = manager.CloseSmtpConnection() == 1;
    if (closed) {
        logTrace("Mail with attachments sent!");
    } else {
        logWarning("Connection to SMTP server not closed cleanly.");
    }
    return {MailEnd::sent, closed, ""};
}

}  // namespace

int portOf(const std::string& text) {
    const long port = std::strtol(text.c_str(), nullptr, 10);
    return port >= 0 && port <= 65535 ? static_cast<int>(port) : 0;
}

MailRoute routeOf(const QLXInfo& settings, const DeliveryConf& conf) {
    MailServer server{
        settings.sSMTPHost, settings.sSMTPAccountName, settings.sSMTPAccoutPassword, portOf(settings.sSMTPort),
        settings.bSMTPSSL,  settings.bSMTPTSL,         conf.checkCertificates,       conf.caFile};
    MailRoute route{std::move(server), conf.relayAccount, ""};
    if (settings.bDefaultSMTPServer) {
        route.server = {conf.relayHost, conf.relayAccount,      conf.relayPassword, 25, false,
                        false,          conf.checkCertificates, conf.caFile};
        for (const auto& [name, value] :
             {std::pair{"relay-host", conf.relayHost}, std::pair{"relay-account", conf.relayAccount}})
            if (value.empty())
                route.problem += (route.problem.empty() ? "The default mail server is not set up: " : ", ") +
                                 std::string(name) + " is missing in " + deliveryConfFile();
        if (!route.problem.empty()) route.problem += ".";
    } else if (route.server.host.empty()) {
        route.problem = "There is no mail server in the settings.";
    } else if (route.from.empty()) {
        route.from = route.server.account;
        if (!isAddress(route.from))
            route.problem =
                "There is no address to send from: the account name of the mail server is none, and "
                "relay-account is missing in " +
                deliveryConfFile() + ".";
    }
    return route;
}

Posted post(const OutgoingMail& mail, const MailRoute& route, const Outbox* outbox, const MailWatch& watch) {
    const Email email = emailOf(mail, route);
    if (const std::string problem = whyNeverGoes(mail, email); !problem.empty()) {
        logError(problem);
        return {{MailEnd::refused, false, problem}};
    }
    std::string problem;
    std::optional<OutboxClaim> claim;
    if (outbox) {
        OutgoingMail kept = mail;
        kept.attachmentName = email.attachmentName();
        claim = outbox->add(kept, email.attachment(), problem);
    }
    if (!claim) {
        if (!problem.empty()) logError(problem);  // the mail may go all the same
        return {send(mail, email, route, watch, {})};
    }
    Posted posted{send(mail, email, route, watch, [&claim] { return claim->noteHandedOver(); })};
    claim->settle(posted);
    posted.inOutbox = !posted.isSent();
    return posted;
}

Posted postAgain(OutboxClaim claim, const MailRoute& route, const MailWatch& watch) {
    const OutgoingMail mail = claim.entry().mail;
    const Email email = emailOf(mail, route);
    Posted posted{{MailEnd::refused, false, whyNeverGoes(mail, email)}};
    if (posted.reason.empty())
        posted = {send(mail, email, route, watch, [&claim] { return claim.noteHandedOver(); })};
    claim.settle(posted);
    posted.inOutbox = !posted.isSent();
    return posted;
}

void postDue(const Outbox& outbox, const MailRoute& route, const MailWatch& watch,
             const std::function<void(const OutboxEntry& entry, const Posted& posted)>& told) {
    for (const OutboxEntry& listed : outbox.entries()) {
        const auto isDue = [](const OutboxEntry& entry) {
            return entry.state == OutboxEntry::State::waiting && entry.nextTry <= QDateTime::currentDateTime();
        };
        if (watch.stop && *watch.stop) return;
        if (!isDue(listed)) continue;
        std::optional<OutboxClaim> claim = outbox.claim(listed.id);
        if (!claim || !isDue(claim->entry())) continue;  // another program was quicker
        const OutboxEntry entry = claim->entry();
        told(entry, postAgain(std::move(*claim), route, watch));
    }
}

}  // namespace tavrin

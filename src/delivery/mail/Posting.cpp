#include "delivery/mail/Posting.h"

#include <cstdlib>
#include <utility>

#include "core/Log.h"
#include "delivery/mail/MailText.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

Email emailOf(const OutgoingMail& mail) {
    Email email;
    email.setSubject(mail.subject);
    email.setBody(mail.body);
    if (!mail.from.empty()) email.setFrom(mail.from);
    if (!mail.replyTo.empty()) email.setReplyTo(mail.replyTo);
    email.AddTo("", mail.to);
    if (!mail.attachment.empty()) email.AddFileAttachment(mail.attachment, mail.attachmentName, mail.keepLocation);
    return email;
}

/// What is missing for a mail to set out at all, whichever way.
std::string whyNeverGoes(const OutgoingMail& mail, const Email& email) {
    if (!email.LastMethodSuccess()) return email.LastErrorText();
    return isAddress(mail.to) ? "" : said(Says::noAddress, {mail.to});
}

MailResult send(const OutgoingMail& mail, Email email, const MailRoute& route, const MailWatch& watch,
                std::function<bool()> beforeEnd) {
    if (!mail.server && !route.problem.empty()) {
        logError(route.problem);
        return {MailEnd::refused, false, route.problem};
    }
    if (mail.from.empty() && !route.from.empty()) email.setFrom(route.from);
    MailMan manager;
    manager.setServer(mail.server ? *mail.server : route.server);
    manager.setPatience(watch.patience);
    manager.setStop(watch.stop);
    manager.setProgress(watch.progress);
    manager.setBeforeEnd(std::move(beforeEnd));
    if (manager.SendEmail(email) != 1) {
        if (manager.end() == MailEnd::stopped && watch.leaving && *watch.leaving)
            return {MailEnd::notSent, false, said(Says::closedMeanwhile)};
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
        std::string missing;
        for (const auto& [name, value] :
             {std::pair{"relay-host", conf.relayHost}, std::pair{"relay-account", conf.relayAccount}})
            if (value.empty())
                missing += (missing.empty() ? "" : ", ") + said(Says::missingIn, {name, deliveryConfFile()});
        if (!missing.empty()) route.problem = said(Says::relayMissing, {missing});
        if (!missing.empty() && !conf.problem.empty()) route.problem += '\n' + conf.problem;  // a slip of the pen
    } else if (route.server.host.empty()) {
        route.problem = said(Says::noServer);
    } else if (route.from.empty()) {
        route.from = route.server.account;
        if (!isAddress(route.from)) route.problem = said(Says::noSenderAnywhere, {deliveryConfFile()});
    }
    return route;
}

ReadyMail makeReady(const OutgoingMail& mail, const Outbox* outbox) {
    ReadyMail ready;
    ready.email = emailOf(mail);
    ready.never = whyNeverGoes(mail, ready.email);
    ready.mail = mail;
    ready.mail.attachmentName = ready.email.attachmentName();
    if (!outbox || !ready.never.empty()) return ready;
    ready.claim = outbox->add(ready.mail, ready.email.attachment(), ready.notKept);
    if (ready.claim) ready.email = {};  // a hundred of them may wait for a slow server
    return ready;
}

Posted postReady(ReadyMail ready, const MailRoute& route, const MailWatch& watch) {
    if (!ready.never.empty()) {
        logError(ready.never);
        return {{MailEnd::refused, false, ready.never}};
    }
    if (ready.claim) return postAgain(std::move(*ready.claim), route, watch);
    if (!ready.notKept.empty()) logError(ready.notKept);  // the mail may go all the same
    Posted posted{send(ready.mail, std::move(ready.email), route, watch, {})};
    if (!posted.isSent() && !ready.notKept.empty()) posted.reason += '\n' + ready.notKept;
    return posted;
}

Posted post(const OutgoingMail& mail, const MailRoute& route, const Outbox* outbox, const MailWatch& watch) {
    return postReady(makeReady(mail, outbox), route, watch);
}

Posted postAgain(OutboxClaim claim, const MailRoute& route, const MailWatch& watch) {
    const OutgoingMail mail = claim.entry().mail;
    Email email = emailOf(mail);
    Posted posted{{MailEnd::refused, false, whyNeverGoes(mail, email)}};
    if (posted.reason.empty())
        posted = {send(mail, std::move(email), route, watch, [&claim] { return claim.noteHandedOver(); })};
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

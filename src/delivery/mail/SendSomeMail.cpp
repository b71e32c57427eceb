#include "delivery/mail/SendSomeMail.h"

#include <utility>

#include "delivery/mail/MailText.h"

namespace tavrin {

void SendSomeMail::makeReady() {
    OutgoingMail mail;
    mail.to = sEmailAddress;
    mail.subject = sEmailSubject;
    mail.body = sEmailBody;
    if (isAddress(sEmailFromAddress)) mail.replyTo = sEmailFromAddress;
    mail.attachment = sEmailAttachment;
    mail.keepLocation = keepLocation;
    ready_ = tavrin::makeReady(mail, outbox ? &*outbox : nullptr);
}

bool SendSomeMail::SendMailNow() {
    if (!ready_) makeReady();
    const MailRoute route = routeOf(*pMySystemInfo->oQLXInfo, readDeliveryConf());
    sSmtpServer = route.server.host;
    sSmtpUserName = route.server.account;
    sSmtpPassword = route.server.password;
    sSmtpSSL = route.server.ssl ? "1" : "0";
    sSmtpTLS = route.server.startTls ? "1" : "0";
    sSmtpPort = std::to_string(route.server.port);
    posted_ = postReady(*std::exchange(ready_, {}), route, watch);
    return posted_.isSent() && posted_.closedCleanly;
}

}  // namespace tavrin

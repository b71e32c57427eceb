#include "delivery/mail/SendSomeMail.h"

#include "delivery/mail/MailText.h"

namespace tavrin {

bool SendSomeMail::SendMailNow() {
    const MailRoute route = routeOf(*pMySystemInfo->oQLXInfo, readDeliveryConf());
    sSmtpServer = route.server.host;
    sSmtpUserName = route.server.account;
    sSmtpPassword = route.server.password;
    sSmtpSSL = route.server.ssl ? "1" : "0";
    sSmtpTLS = route.server.startTls ? "1" : "0";
    sSmtpPort = std::to_string(route.server.port);
    OutgoingMail mail;
    mail.to = sEmailAddress;
    mail.subject = sEmailSubject;
    mail.body = sEmailBody;
    if (isAddress(sEmailFromAddress)) mail.replyTo = sEmailFromAddress;
    mail.attachment = sEmailAttachment;
    mail.keepLocation = keepLocation;
    posted_ = post(mail, route, outbox, watch);
    return posted_.isSent() && posted_.closedCleanly;
}

}  // namespace tavrin

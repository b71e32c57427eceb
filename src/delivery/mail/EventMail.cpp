#include "delivery/mail/EventMail.h"

#include <QString>

#include "delivery/words/Says.h"

namespace tavrin {

namespace {

/// Four of them are places for what is to come.
constexpr Carrier kCarriers[] = {{"textMessageVerizonClicked", true},
                                 {"textMessageSprintClicked", false},
                                 {"textMessageAttClicked", false},
                                 {"textMessageTMobleClicked", false},
                                 {"texrMessageUSCellularClicked", false}};

constexpr int kSaveAndMail = 3;

}  // namespace

void alertMailFailed(SystemInfo& info) {
    info.alert("Error", "Message Failed to Send");
}

bool sendEventMail(SystemInfo& info, const std::string& attachment, const std::string& EmailAddress,
                   const Outbox* keep, bool keepLocation) {
    SendSomeMail mail(info);
    mail.sEmailAttachment = attachment;
    mail.sEmailSubject = info.oQLXInfo->sEventModeEmailTitle;
    mail.sEmailBody = info.oQLXInfo->sEventModeEmailBody;
    mail.sEmailAddress = EmailAddress;
    if (keep) mail.outbox = *keep;
    mail.keepLocation = keepLocation;
    const bool sent = mail.SendMailNow();
    if (!sent) alertMailFailed(info);
    return sent;
}

std::string cleanPhoneNumber(const std::string& typed) {
    std::string number = typed;
    std::erase_if(number, [](char c) { return c == '(' || c == ')' || c == '-' || c == ' '; });
    return number;
}

bool eventModeSaveAndText(SystemInfo& info, const std::string& typed) {
    constexpr qsizetype kDigits = 10;
    info.sEventEmail = typed;
    const std::string number = cleanPhoneNumber(typed);
    if (QString::fromStdString(number).size() != kDigits) {  // letters pass
        info.alert("Bad Phone Number", "Must have area code to make a 10 digit phone number");
        return false;
    }
    info.iEventSaveMode = kSaveAndMail;
    info.sEventEmail = number;
    return true;
}

std::span<const Carrier> carriers() {
    return kCarriers;
}

bool chooseCarrier(SystemInfo& info, const Carrier& carrier, const DeliveryConf& conf) {
    if (!carrier.sends) return false;
    if (conf.textGateway.empty()) {
        info.alert("Error", said(Says::gatewayMissing, {deliveryConfFile()}));
        return false;
    }
    info.sEventEmail = info.sEventEmail.load() + "@" + conf.textGateway;
    return true;
}

}  // namespace tavrin

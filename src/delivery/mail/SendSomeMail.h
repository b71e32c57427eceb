#pragma once

#include <string>

#include "core/state/SystemInfo.h"
#include "delivery/mail/Posting.h"

namespace tavrin {

/// The fields of one mail, and its sending by the server of the settings. Whoever sends makes one of his own, so that
/// no two mails mix.
class SendSomeMail {
  public:
    explicit SendSomeMail(SystemInfo& info) : pMySystemInfo(&info) {}

    std::string sEmailAddress;
    std::string sEmailFromAddress;  ///< where answers go, when it is an address; the sender is the server's account
    std::string sEmailBody, sEmailAttachment, sEmailSubject;
    /// The server as it was when the mail was sent; set by `SendMailNow`.
    std::string sSmtpServer, sSmtpUserName, sSmtpPassword, sSmtpSSL, sSmtpTLS, sSmtpPort;
    SystemInfo* pMySystemInfo;

    std::optional<Outbox> outbox = {};  ///< where a mail that does not go is kept; none for nowhere
    bool keepLocation = false;          ///< as `OutgoingMail::keepLocation`
    MailWatch watch;

    /// Takes in the fields and the attached file, and brings the mail into the outbox, so that it may wait there for
    /// `SendMailNow`, which else does so first.
    void makeReady();
    /// Sends the mail and blocks until then.
    /// @return whether it went and the connection was closed cleanly. `posted` has the rest
    bool SendMailNow();
    const Posted& posted() const { return posted_; }

  private:
    std::optional<ReadyMail> ready_;
    Posted posted_;
};

}  // namespace tavrin

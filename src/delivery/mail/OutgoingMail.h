#pragma once

#include <optional>
#include <string>

#include "delivery/mail/MailServer.h"

namespace tavrin {

/// A mail that is to be sent, now or later.
struct OutgoingMail {
    std::string to, subject, body;
    std::string from;                       ///< "" for the sender of the settings
    std::string replyTo;                    ///< may be ""
    std::string attachment;                 ///< path; "" for none
    std::string attachmentName;             ///< that the recipient sees; "" for the file's own
    bool keepLocation = false;              ///< whether a picture keeps the place on earth that its camera noted
    std::optional<MailServer> server = {};  ///< none: the server of the settings, as they are when it is sent
};

}  // namespace tavrin

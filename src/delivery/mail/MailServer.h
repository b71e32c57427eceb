#pragma once

#include <string>

namespace tavrin {

/// A server that takes mails, and how it is talked to.
struct MailServer {
    std::string host, account, password;  ///< without an account nobody signs on
    int port = 0;
    bool ssl = false;       ///< encrypted from the first byte
    bool startTls = false;  ///< encrypted from the server's word on, and not used where it has none
    bool checksCertificate = true;
    std::string caFile = {};  ///< certificates that are trusted besides the system's; "" for none
};

}  // namespace tavrin

#pragma once

#include <string>

#include "core/files/Places.h"

namespace tavrin {

/// What whoever installs the program tells it about mails: lines "name = value" in the file "delivery.conf" beside
/// the settings. A value goes to the end of its line. docs/delivery.md has the names.
struct DeliveryConf {
    std::string relayHost, relayAccount, relayPassword;  ///< the built-in mail account; the account is an address
    std::string textGateway;                             ///< domain that turns mails into text messages
    std::string gmailHost;                               ///< server behind "Fill In for GMail"
    std::string installation;                            ///< sets the names of two installations' files apart
    bool checkCertificates = true;
    std::string caFile;   ///< certificates to trust besides the system's; "" for none
    std::string problem;  ///< lines that mean nothing, or why the file cannot be read; "" for none
};

std::string deliveryConfFile();

/// A file that is not there is one without lines. It holds a password, so others lose the right to read it.
DeliveryConf readDeliveryConf(const std::string& path = deliveryConfFile());

/// What the names of this installation's files hold: that of the configuration, or one that is made once and kept.
std::string installationMark(const DeliveryConf& conf);

/// How names tell the time: hundredths of a second, cut off, since the beginning of 2010 in Tokyo (4 o'clock).
/// @param milliseconds since 1970
long long hundredthsOf(long long milliseconds);

/// Name of a picture that goes out by mail: these hundredths and the mark.
/// @param milliseconds since 1970
std::string mailPictureName(long long milliseconds, const std::string& mark);

}  // namespace tavrin

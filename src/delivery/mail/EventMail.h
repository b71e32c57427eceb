#pragma once

#include <span>
#include <string>

#include "delivery/mail/SendSomeMail.h"

namespace tavrin {

// What the photo booth sends to its guests.

/// The alert after a mail that did not go.
void alertMailFailed(SystemInfo& info);

/// Sends a picture to a guest, with the title and the text of the settings; alerts when it fails. Blocks until then.
/// @param keep where the mail goes that cannot be sent now; null for nowhere
/// @param keepLocation whether the picture says where it was taken
bool sendEventMail(SystemInfo& info, const std::string& attachment, const std::string& EmailAddress,
                   const Outbox* keep, bool keepLocation = false);

/// A telephone number without brackets, hyphens and blanks.
std::string cleanPhoneNumber(const std::string& typed);

/// Takes what a guest typed for the picture to go out as a text message: the job is one of mail (3) to the cleaned
/// number then, and the carrier has to be asked for. A number that has not ten characters is alerted, and nothing is
/// to be saved.
/// @return whether to ask for the carrier
bool eventModeSaveAndText(SystemInfo& info, const std::string& typed);

/// A button of the question for the carrier.
struct Carrier {
    const char* operation;  ///< behind the button
    bool sends;             ///< the others only close the question
};
std::span<const Carrier> carriers();

/// Makes a mail address of the number, where the carrier sends.
/// @return whether the job is to be saved now (`eventModeSaveNow`)
bool chooseCarrier(SystemInfo& info, const Carrier& carrier, const DeliveryConf& conf);

}  // namespace tavrin

#pragma once

#include <string>

#include <QByteArray>

#include "delivery/mail/Outbox.h"

namespace tavrin {

// How a mail of the outbox lies in its folder. The file of what was handed over is there from the moment on at which
// the mail may have gone, and holds the reason why nobody knows, once the sending has come to an end.

inline constexpr const char *kOutboxMail = "/message.json", *kOutboxAttachment = "/attachment",
                            *kOutboxLock = "/lock", *kOutboxHandedOver = "/handed-over";

/// Writes what is known of a mail; the old file stays until the new one is whole.
/// @return "" or why not
std::string writeOutboxEntry(const OutboxEntry& entry, const std::string& folder);
/// What is known of the mail in a folder; one that cannot be read is held, with the reason. Its attachment is the
/// file in the folder. Whether it is under way or may have gone is not told here.
OutboxEntry readOutboxEntry(const std::string& folder);

/// Writes a file that only its owner can read, down to the disk. @return "" or why not
std::string writePrivateFile(const std::string& path, const QByteArray& bytes);

}  // namespace tavrin

#pragma once

#include <string>

#include <QByteArray>

#include "delivery/words/Says.h"

namespace tavrin {

/// A mail with one recipient and at most one file. What went wrong first stays: `LastErrorText` tells it.
class Email {
  public:
    void setSubject(const std::string& subject) { subject_ = subject; }
    void setBody(const std::string& body) { body_ = body; }
    void setFrom(const std::string& address);
    /// Where answers go; without it they go to the sender.
    void setReplyTo(const std::string& address);
    /// The display name may be empty. An address with a line break in it, or another character that no address has,
    /// is refused.
    void AddTo(const std::string& displayName, const std::string& address);
    /// Reads the file now.
    /// @param name that the recipient sees; "" for the file's own
    /// @param keepLocation whether a picture keeps the place on earth that the camera noted
    void AddFileAttachment(const std::string& path, const std::string& name = "", bool keepLocation = false);

    bool LastMethodSuccess() const { return error_.empty(); }
    const std::string& LastErrorText() const { return error_; }

    const std::string& subject() const { return subject_; }
    const std::string& body() const { return body_; }
    const std::string& from() const { return from_; }
    const std::string& replyTo() const { return replyTo_; }
    const std::string& to() const { return to_; }
    const std::string& displayName() const { return displayName_; }
    bool hasAttachment() const { return !attachmentName_.empty(); }
    const std::string& attachmentName() const { return attachmentName_; }
    const QByteArray& attachment() const { return attachment_; }
    /// About how many bytes go over the line.
    long long sizeOnLine() const;

  private:
    void fail(const std::string& why);
    void take(Says what, const std::string& address, std::string& into);

    std::string subject_, body_, from_, replyTo_, to_, displayName_, attachmentName_, error_;
    QByteArray attachment_;
};

}  // namespace tavrin

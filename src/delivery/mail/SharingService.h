#pragma once

#include <functional>
#include <string>

#include <QString>
#include <QStringList>

namespace tavrin {

/// Opens a new mail with a picture in the desktop's own mail program. Belongs to the thread it was made on.
class sharingServiceDelegate {
  public:
    void setRecipientString(const std::string& address) { recipientString_ = address; }
    void setSubjectString(const std::string& subject) { subjectString_ = subject; }
    void setBodyString(const std::string& body) { bodyString_ = body; }
    void setAttachmentURL(const std::string& path) { attachmentURL_ = path; }
    const std::string& recipientString() const { return recipientString_; }
    const std::string& subjectString() const { return subjectString_; }
    const std::string& bodyString() const { return bodyString_; }
    const std::string& attachmentURL() const { return attachmentURL_; }

    /// Whether there is a program for it, the attached file is there, and the recipient, if any, is an address.
    bool canPerformWithItems() const;
    /// What that program is called with.
    QStringList arguments() const;
    /// Opens the mail, with an empty line behind its text, and does not wait for it.
    /// @param alert is given title and text when it cannot be done
    /// @param failed is told later that the program ended with an error
    /// @return whether it could
    bool shareUsingEmail(const std::function<void(const QString& title, const QString& text)>& alert,
                         std::function<void(const QString& reason)> failed);

  private:
    std::string recipientString_, subjectString_, bodyString_, attachmentURL_;
};

}  // namespace tavrin

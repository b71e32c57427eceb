#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>

#include "delivery/mail/Email.h"
#include "delivery/mail/MailServer.h"

namespace tavrin {

/// How the sending of a mail came to its end.
enum class MailEnd {
    sent,     ///< the server has it
    notSent,  ///< it has it not; another time it may take it
    refused,  ///< it has it not, and will not take it as it is
    stopped,  ///< it has it not, since the sending was stopped
    unknown   ///< all of it was handed over and no answer came: it may have gone
};

/// Hands mails to a server by SMTP, each over a connection of its own. `SendEmail` blocks until the connection is
/// closed, and never hands a mail over twice.
class MailMan {
  public:
    void setSmtpSsl(bool on) { server_.ssl = on; }
    void setStartTLS(bool on) { server_.startTls = on; }
    void setSmtpHost(const std::string& host) { server_.host = host; }
    void setSmtpUsername(const std::string& name) { server_.account = name; }
    void setSmtpPassword(const std::string& password) { server_.password = password; }
    void setSmtpPort(int port) { server_.port = port; }
    void setServer(const MailServer& server) { server_ = server; }

    /// How long a server may keep silent, in whole seconds.
    void setPatience(std::chrono::seconds patience) { patience_ = patience; }
    /// Ends the sending when it is set.
    void setStop(const std::atomic<bool>* stop) { stop_ = stop; }
    /// Is told how many bytes of how many are gone, on the thread that sends.
    void setProgress(std::function<void(long long done, long long all)> progress) { progress_ = std::move(progress); }
    /// Is called before the last bytes of the mail are let go, behind which it may have gone. With false it does not
    /// go.
    void setBeforeEnd(std::function<bool()> beforeEnd) { beforeEnd_ = std::move(beforeEnd); }

    /// @return 1 when the server has the mail, whatever came after that
    int SendEmail(const Email& email);
    /// @return 1 when the server said goodbye to the connection of the last mail
    int CloseSmtpConnection() const { return closed_ ? 1 : 0; }
    /// What went wrong, as a plain sentence with the server's own words where it said any.
    const std::string& LastErrorText() const { return error_; }
    MailEnd end() const { return end_; }

  private:
    friend class MailTalk;
    bool refuse(const std::string& why);
    bool check(const Email& email);

    MailServer server_;
    std::chrono::seconds patience_{30};
    const std::atomic<bool>* stop_ = nullptr;
    std::function<void(long long, long long)> progress_;
    std::function<bool()> beforeEnd_;
    std::string error_;
    MailEnd end_ = MailEnd::notSent;
    bool closed_ = false;
};

}  // namespace tavrin

#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tavrin::test {

/// What a mail server does with those who come. Answers are whole lines; "" takes the usual one.
struct SmtpHabits {
    enum class Fault {
        none,
        hangAtStart,     ///< says nothing at all
        closeInData,     ///< goes away after a part of the mail
        closeAfterData,  ///< has the whole mail and goes away without an answer
        hangAfterData,   ///< has the whole mail and says nothing
        hangAtGoodbye,   ///< has taken the mail and says nothing to QUIT
        closeAtGoodbye   ///< has taken the mail and goes away at QUIT
    };
    Fault fault = Fault::none;
    std::string auth;  ///< what AUTH PLAIN has to bring; without it nobody signs on
    std::string recipientAnswer, mailAnswer;
    long long size = 0;  ///< the most that it takes; 0 says nothing about it
};

/// A mail server on a loopback port, which serves one after another on a thread of its own.
class SmtpServer {
  public:
    explicit SmtpServer(SmtpHabits habits = {});
    ~SmtpServer();
    SmtpServer(const SmtpServer&) = delete;
    SmtpServer& operator=(const SmtpServer&) = delete;

    int port() const { return port_; }
    std::string url() const { return "smtp://127.0.0.1:" + std::to_string(port_); }
    /// From the next visitor on.
    void setHabits(SmtpHabits habits);
    /// The mails that came whole, whatever was answered, without their last line.
    std::vector<std::string> mails() const;
    /// What was said to it, but for the mails.
    std::vector<std::string> commands() const;
    bool heard(const std::string& beginning) const;

  private:
    class Visit;
    void serve();

    mutable std::mutex mutex_;
    SmtpHabits habits_;
    std::vector<std::string> mails_, commands_;
    int listener_ = -1, port_ = 0;
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

}  // namespace tavrin::test

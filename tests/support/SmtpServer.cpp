#include "support/SmtpServer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace tavrin::test {

using Fault = SmtpHabits::Fault;

/// One visitor.
class SmtpServer::Visit {
  public:
    Visit(SmtpServer& server, int handle, SmtpHabits habits)
        : server_(server), handle_(handle), habits_(std::move(habits)) {}
    ~Visit() { ::close(handle_); }

    void run() {
        if (habits_.fault == Fault::hangAtStart) return hang();
        say("220 test ready");
        for (std::string line; readLine(line) && answer(line);) {
        }
    }

  private:
    void say(const std::string& line) {
        const std::string bytes = line + "\r\n";
        static_cast<void>(::send(handle_, bytes.data(), bytes.size(), MSG_NOSIGNAL));
    }

    /// Waits until the other side or the test has had enough.
    void hang() {
        for (char byte; !server_.stop_;)
            if (isReady() && ::recv(handle_, &byte, 1, 0) <= 0) return;
    }

    bool isReady() const {
        pollfd wait{handle_, POLLIN, 0};
        return ::poll(&wait, 1, 20) > 0;
    }

    bool readMore() {
        char bytes[65536];
        while (!server_.stop_) {
            if (!isReady()) continue;
            const ssize_t got = ::recv(handle_, bytes, sizeof bytes, 0);
            if (got <= 0) return false;
            buffer_.append(bytes, static_cast<std::size_t>(got));
            return true;
        }
        return false;
    }

    bool readLine(std::string& line) {
        std::size_t end;
        while ((end = buffer_.find("\r\n")) == std::string::npos)
            if (!readMore()) return false;
        line = buffer_.substr(0, end);
        buffer_.erase(0, end + 2);
        const std::lock_guard lock(server_.mutex_);
        server_.commands_.push_back(line);
        return true;
    }

    /// @return false when the talk is over
    bool answer(const std::string& line) {
        const auto is = [&line](const char* word) { return line.starts_with(word); };
        if (is("EHLO")) {
            say("250-test");
            if (habits_.size > 0) say("250-SIZE " + std::to_string(habits_.size));
            if (!habits_.auth.empty()) say("250-AUTH PLAIN");
            say("250 SMTPUTF8");
        } else if (is("AUTH")) {
            say("334 ");
            std::string words;
            if (!readLine(words)) return false;
            say(words == habits_.auth ? "235 welcome" : "535 wrong name or password");
        } else if (is("RCPT") && !habits_.recipientAnswer.empty()) {
            say(habits_.recipientAnswer);
        } else if (is("DATA")) {
            say("354 go on");
            return takeMail();
        } else if (is("QUIT")) {
            if (habits_.fault == Fault::hangAtGoodbye) hang();
            if (habits_.fault == Fault::none) say("221 goodbye");
            return false;
        } else {
            say("250 fine");
        }
        return true;
    }

    bool takeMail() {
        constexpr std::size_t kPart = 100'000;
        std::size_t looked = 0, end;
        while ((end = buffer_.find("\r\n.\r\n", looked)) == std::string::npos) {
            looked = buffer_.size() > 5 ? buffer_.size() - 5 : 0;
            if (habits_.fault == Fault::closeInData && buffer_.size() > kPart) return false;
            if (!readMore()) return false;
        }
        {
            const std::lock_guard lock(server_.mutex_);
            server_.mails_.push_back(buffer_.substr(0, end + 2));
        }
        buffer_.erase(0, end + 5);
        if (habits_.fault == Fault::hangAfterData) hang();
        if (habits_.fault == Fault::hangAfterData || habits_.fault == Fault::closeAfterData) return false;
        say(habits_.mailAnswer.empty() ? "250 taken" : habits_.mailAnswer);
        return true;
    }

    SmtpServer& server_;
    const int handle_;
    const SmtpHabits habits_;
    std::string buffer_;
};

SmtpServer::SmtpServer(SmtpHabits habits) : habits_(std::move(habits)) {
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* place = reinterpret_cast<sockaddr*>(&address);
    if (listener_ < 0 || ::bind(listener_, place, size) != 0 || ::listen(listener_, 8) != 0 ||
        ::getsockname(listener_, place, &size) != 0)
        throw std::runtime_error("no loopback port for the test's mail server");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

SmtpServer::~SmtpServer() {
    stop_ = true;
    thread_.join();
    ::close(listener_);
}

void SmtpServer::serve() {
    while (!stop_) {
        pollfd wait{listener_, POLLIN, 0};
        if (::poll(&wait, 1, 20) <= 0) continue;
        const int handle = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (handle < 0) continue;
        std::unique_lock lock(mutex_);
        SmtpHabits habits = habits_;
        lock.unlock();
        Visit(*this, handle, std::move(habits)).run();
    }
}

void SmtpServer::setHabits(SmtpHabits habits) {
    const std::lock_guard lock(mutex_);
    habits_ = std::move(habits);
}

std::vector<std::string> SmtpServer::mails() const {
    const std::lock_guard lock(mutex_);
    return mails_;
}

std::vector<std::string> SmtpServer::commands() const {
    const std::lock_guard lock(mutex_);
    return commands_;
}

bool SmtpServer::heard(const std::string& beginning) const {
    const std::vector<std::string> all = commands();
    return std::ranges::any_of(all, [&](const std::string& line) { return line.starts_with(beginning); });
}

}  // namespace tavrin::test

#include "delivery/mail/MailMan.h"

#include <cstring>
#include <curl/curl.h>
#include <memory>
#include <string_view>
#include <utility>

#include <QDateTime>
#include <QUuid>

#include "core/Log.h"
#include "delivery/mail/MailText.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

/// What this side calls itself, behind the server's address: no name of the machine goes out.
constexpr const char* kGreeting = "/%5B127.0.0.1%5D";

struct ListFree {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

/// Lines that the library takes as a list.
class Lines {
  public:
    void add(const std::string& line) {
        if (curl_slist* longer = curl_slist_append(list_.get(), line.c_str())) {
            static_cast<void>(list_.release());
            list_.reset(longer);
        }
    }
    curl_slist* get() const { return list_.get(); }
    curl_slist* release() { return list_.release(); }

  private:
    std::unique_ptr<curl_slist, ListFree> list_;
};

bool startLibrary() {
    static const bool started = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return started;
}

std::string megabytes(long long bytes) {
    return QString::number(static_cast<double>(bytes) / 1e6, 'f', 1).toStdString() + " MB";
}

/// The date as mails write it, in no language but theirs.
std::string dateLine() {
    return "Date: " + QDateTime::currentDateTime().toString(Qt::RFC2822Date).toStdString();
}

std::string nameBefore(std::string name) {
    std::erase_if(name, [](char c) { return c == '"' || c == '\\'; });
    if (name.empty()) return "";
    const std::string words = headerText(name);
    return words == name ? "\"" + name + "\" " : words + " ";
}

/// Names nothing of the machine or the account.
std::string identityLine(const std::string& from) {
    return "Message-ID: <" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() +
           from.substr(std::min(from.find('@'), from.size())) + ">";
}

}  // namespace

/// One mail on its way: what is said by both sides, and what that means.
class MailTalk {
  public:
    MailTalk(MailMan& man, const Email& email) : man_(man), email_(email), easy_(curl_easy_init()) {}
    ~MailTalk() {
        curl_mime_free(mime_);
        curl_easy_cleanup(easy_);
    }
    MailTalk(const MailTalk&) = delete;
    MailTalk& operator=(const MailTalk&) = delete;

    bool run() {
        if (!easy_ || !(mime_ = curl_mime_init(easy_))) return man_.refuse(said(Says::noMemoryForMail));
        setServer();
        setLimits();
        setMail();
        const CURLcode code = curl_easy_perform(easy_);
        man_.closed_ = saidGoodbye_;
        man_.end_ = endOf(code);
        if (man_.end_ != MailEnd::sent) man_.error_ = explain(code);
        return man_.end_ == MailEnd::sent;
    }

  private:
    /// Bytes of the mail that are read piece by piece.
    struct Source {
        MailTalk* talk;
        std::string_view bytes;
        bool isLast;
        std::size_t at = 0;
    };

    void setServer() {
        const MailServer& server = man_.server_;
        const bool bracketed = server.host.find(':') != std::string::npos && !server.host.starts_with('[');
        const std::string host = bracketed ? "[" + server.host + "]" : server.host;
        const std::string url =
            (server.ssl ? "smtps://" : "smtp://") + host + ":" + std::to_string(server.port) + kGreeting;
        curl_easy_setopt(easy_, CURLOPT_URL, url.c_str());
        curl_easy_setopt(easy_, CURLOPT_USE_SSL, server.startTls || server.ssl ? CURLUSESSL_ALL : CURLUSESSL_NONE);
        if (!server.account.empty()) {
            curl_easy_setopt(easy_, CURLOPT_USERNAME, server.account.c_str());
            curl_easy_setopt(easy_, CURLOPT_PASSWORD, server.password.c_str());
        }
        curl_easy_setopt(easy_, CURLOPT_SSL_VERIFYPEER, server.checksCertificate ? 1L : 0L);
        curl_easy_setopt(easy_, CURLOPT_SSL_VERIFYHOST, server.checksCertificate ? 2L : 0L);
        if (!server.caFile.empty()) curl_easy_setopt(easy_, CURLOPT_CAINFO, server.caFile.c_str());
        // What the user's environment says about the web is not about mail.
        curl_easy_setopt(easy_, CURLOPT_PROXY, "");
        curl_easy_setopt(easy_, CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    }

    void setLimits() {
        const long patience = static_cast<long>(man_.patience_.count());
        curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(easy_, CURLOPT_CONNECTTIMEOUT, patience);
        curl_easy_setopt(easy_, CURLOPT_SERVER_RESPONSE_TIMEOUT, patience);
        curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_LIMIT, 1L);
        curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_TIME, patience);
        // A stop does not wait for a name that nobody finds.
        curl_easy_setopt(easy_, CURLOPT_QUICK_EXIT, 1L);
        // The connection ends with the mail, so that its end is known.
        curl_easy_setopt(easy_, CURLOPT_FRESH_CONNECT, 1L);
        curl_easy_setopt(easy_, CURLOPT_FORBID_REUSE, 1L);
        curl_easy_setopt(easy_, CURLOPT_ERRORBUFFER, told_);
        curl_easy_setopt(easy_, CURLOPT_HEADERFUNCTION, &MailTalk::hear);
        curl_easy_setopt(easy_, CURLOPT_HEADERDATA, this);
        curl_easy_setopt(easy_, CURLOPT_WRITEFUNCTION, &MailTalk::ignore);
        curl_easy_setopt(easy_, CURLOPT_NOPROGRESS, 0L);
        curl_easy_setopt(easy_, CURLOPT_XFERINFOFUNCTION, &MailTalk::progress);
        curl_easy_setopt(easy_, CURLOPT_XFERINFODATA, this);
    }

    void setMail() {
        recipients_.add("<" + email_.to() + ">");
        headers_.add(dateLine());
        headers_.add("From: <" + email_.from() + ">");
        headers_.add("To: " + nameBefore(email_.displayName()) + "<" + email_.to() + ">");
        if (!email_.replyTo().empty()) headers_.add("Reply-To: <" + email_.replyTo() + ">");
        headers_.add("Subject: " + headerText(email_.subject()));
        headers_.add(identityLine(email_.from()));
        body_ = withMailLines(email_.body());
        text_ = {this, body_, !email_.hasAttachment()};
        curl_mimepart* part = addPart(text_);
        curl_mime_type(part, "text/plain; charset=utf-8");
        curl_mime_encoder(part, "quoted-printable");
        if (email_.hasAttachment()) {
            file_ = {
                this, {email_.attachment().constData(), static_cast<std::size_t>(email_.attachment().size())}, true};
            part = addPart(file_);
            curl_mime_type(part, mailTypeOf(email_.attachmentName()).c_str());
            curl_mime_encoder(part, "base64");
            Lines lines;
            lines.add(dispositionLine(email_.attachmentName()));
            curl_mime_headers(part, lines.release(), 1);
        }
        curl_easy_setopt(easy_, CURLOPT_MAIL_FROM, ("<" + email_.from() + ">").c_str());
        curl_easy_setopt(easy_, CURLOPT_MAIL_RCPT, recipients_.get());
        curl_easy_setopt(easy_, CURLOPT_HTTPHEADER, headers_.get());
        curl_easy_setopt(easy_, CURLOPT_MIMEPOST, mime_);
    }

    curl_mimepart* addPart(Source& source) {
        curl_mimepart* part = curl_mime_addpart(mime_);
        curl_mime_data_cb(part, static_cast<curl_off_t>(source.bytes.size()), &MailTalk::read, &MailTalk::seek,
                          nullptr, &source);
        return part;
    }

    // What is still to come behind the last byte of the last part, the end of the mail among it, is not on its way
    // yet.
    static std::size_t read(char* into, std::size_t size, std::size_t count, void* from) {
        auto& source = *static_cast<Source*>(from);
        const std::size_t bytes = std::min(size * count, source.bytes.size() - source.at);
        MailTalk& talk = *source.talk;
        if (source.isLast && source.at + bytes == source.bytes.size() && !talk.handOver()) return CURL_READFUNC_ABORT;
        std::memcpy(into, source.bytes.data() + source.at, bytes);
        source.at += bytes;
        return bytes;
    }

    /// @return whether the end of the mail may be let go
    bool handOver() {
        if (!handedOver_) handedOver_ = !man_.beforeEnd_ || man_.beforeEnd_();
        heldBack_ = !handedOver_;
        return handedOver_;
    }

    static int seek(void* from, curl_off_t offset, int origin) {
        auto& source = *static_cast<Source*>(from);
        if (origin != SEEK_SET || offset < 0 || static_cast<std::size_t>(offset) > source.bytes.size())
            return CURL_SEEKFUNC_CANTSEEK;
        source.at = static_cast<std::size_t>(offset);
        return CURL_SEEKFUNC_OK;
    }

    static std::size_t ignore(char*, std::size_t size, std::size_t count, void*) { return size * count; }

    static int progress(void* data, curl_off_t, curl_off_t, curl_off_t all, curl_off_t done) {
        const auto& talk = *static_cast<MailTalk*>(data);
        if (talk.man_.progress_ && talk.mayGo_) talk.man_.progress_(done, all);
        return talk.isStopped() ? 1 : 0;
    }

    static std::size_t hear(char* line, std::size_t size, std::size_t count, void* data) {
        const bool goOn = static_cast<MailTalk*>(data)->hearLine(std::string_view(line, size * count));
        return goOn ? size * count : 0;
    }

    /// A line of the server's: three digits, a hyphen when more lines follow, and words.
    bool hearLine(std::string_view line) {
        while (line.ends_with('\n') || line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.size() < 3) return true;
        const int code = std::atoi(std::string(line.substr(0, 3)).c_str());
        const std::string_view words = line.size() > 4 ? line.substr(4) : std::string_view();
        if (code >= 400 && answer_ == 0) {
            refusal_ = std::string(line);
            refusalCode_ = code;
        } else if (code != 221 && !mayGo_) {
            refusal_.clear();  // another way was found
            refusalCode_ = 0;
        }
        if (code == 250 && !mayGo_ && words.starts_with("SIZE ") && !fits(std::string(words.substr(5)))) return false;
        if (code == 221) saidGoodbye_ = true;
        if (mayGo_ && answer_ == 0) answer_ = code;
        if (code == 354) mayGo_ = true;
        const Source& last = email_.hasAttachment() ? file_ : text_;
        return !mayGo_ || !last.bytes.empty() || handOver();  // nobody asks for the bytes of an empty part
    }

    bool fits(const std::string& limit) {
        limit_ = std::atoll(limit.c_str());
        tooLarge_ = limit_ > 0 && email_.sizeOnLine() > limit_;
        return !tooLarge_;
    }

    bool isStopped() const { return man_.stop_ && *man_.stop_; }

    MailEnd endOf(CURLcode code) const {
        if (code == CURLE_OK || (answer_ >= 200 && answer_ < 300)) return MailEnd::sent;
        if (handedOver_ && answer_ == 0) return MailEnd::unknown;
        if (isStopped() && code == CURLE_ABORTED_BY_CALLBACK) return MailEnd::stopped;
        const bool forGood = tooLarge_ || refusalCode_ >= 500 || (code == CURLE_LOGIN_DENIED && refusalCode_ == 0) ||
                             code == CURLE_PEER_FAILED_VERIFICATION || code == CURLE_SSL_CACERT_BADFILE ||
                             code == CURLE_USE_SSL_FAILED || code == CURLE_URL_MALFORMAT;
        return forGood ? MailEnd::refused : MailEnd::notSent;
    }

    std::string explain(CURLcode code) const {
        const std::string& host = man_.server_.host;
        const std::string port = std::to_string(man_.server_.port);
        if (man_.end_ == MailEnd::unknown) return said(Says::tookSilently, {host});
        if (man_.end_ == MailEnd::stopped) return said(Says::sendingStopped);
        if (heldBack_) return said(Says::heldBack);
        if (tooLarge_) return said(Says::mailTooLarge, {megabytes(email_.sizeOnLine()), host, megabytes(limit_)});
        if (code == CURLE_LOGIN_DENIED)
            return refusal_.empty() ? said(Says::loginRefused, {host})
                                    : said(Says::loginRefusedWith, {host, refusal_});
        if (!refusal_.empty()) return said(Says::refusesMail, {host, refusal_});
        switch (code) {
            case CURLE_COULDNT_RESOLVE_HOST:
                return said(Says::serverNotFound, {host});
            case CURLE_COULDNT_CONNECT:
                return said(Says::noAnswerOnPort, {host, port});
            case CURLE_OPERATION_TIMEDOUT:
                return said(Says::keepsSilent, {host, std::to_string(man_.patience_.count())});
            case CURLE_USE_SSL_FAILED:
                return said(Says::noEncryption, {host, port});
            case CURLE_PEER_FAILED_VERIFICATION:
                return said(Says::notTrusted, {host, told_});
            case CURLE_SSL_CACERT_BADFILE:
                return said(Says::noCertificates, {man_.server_.caFile});
            case CURLE_SSL_CONNECT_ERROR:
                return said(Says::noSecureConnection, {host, told_});
            default:
                return said(Says::brokeOff, {host, told_[0] ? told_ : curl_easy_strerror(code)});
        }
    }

    MailMan& man_;
    const Email& email_;
    CURL* easy_;
    curl_mime* mime_ = nullptr;
    Lines recipients_, headers_;
    std::string body_;
    Source text_{}, file_{};
    char told_[CURL_ERROR_SIZE] = "";
    std::string refusal_;  ///< the server's last line of that kind before the end
    int refusalCode_ = 0, answer_ = 0;
    long long limit_ = 0;
    bool mayGo_ = false;       ///< the server wants the mail now
    bool handedOver_ = false;  ///< all of it was let go
    bool heldBack_ = false, tooLarge_ = false, saidGoodbye_ = false;
};

bool MailMan::refuse(const std::string& why) {
    error_ = why;
    end_ = MailEnd::refused;
    return false;
}

bool MailMan::check(const Email& email) {
    if (!email.LastMethodSuccess()) return refuse(email.LastErrorText());
    if (server_.host.empty()) return refuse(said(Says::noServer));
    const auto hasOdd = [](const std::string& text) {
        return std::ranges::any_of(text, [](unsigned char c) { return c < 0x20 || c == 0x7F; });
    };
    if (server_.host.find_first_of(" /@?#\\") != std::string::npos || hasOdd(server_.host))
        return refuse(said(Says::noServerName, {server_.host}));
    if (hasOdd(server_.account) || hasOdd(server_.password)) return refuse(said(Says::oddAccount));
    if (server_.port < 1 || server_.port > 65535) return refuse(said(Says::oddPort));
    if (!isAddress(email.from())) return refuse(said(Says::noSender, {email.from()}));
    if (!isAddress(email.to())) return refuse(said(Says::noAddress, {email.to()}));
    return startLibrary() || refuse(said(Says::noMailLibrary));
}

int MailMan::SendEmail(const Email& email) {
    error_.clear();
    closed_ = false;
    return check(email) && MailTalk(*this, email).run() ? 1 : 0;
}

}  // namespace tavrin

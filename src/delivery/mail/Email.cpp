#include "delivery/mail/Email.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <QFile>

#include "core/files/StandardPath.h"
#include "core/image/Location.h"
#include "delivery/mail/MailText.h"
#include "delivery/words/Says.h"

namespace tavrin {

void Email::fail(const std::string& why) {
    if (error_.empty()) error_ = why;
}

void Email::take(Says what, const std::string& address, std::string& into) {
    if (const std::string problem = whyUnsafe(address); !problem.empty()) return fail(said(what, {problem}));
    into = address;
}

void Email::setFrom(const std::string& address) {
    take(Says::theSender, address, from_);
}

void Email::setReplyTo(const std::string& address) {
    take(Says::answersTo, address, replyTo_);
}

void Email::AddTo(const std::string& displayName, const std::string& address) {
    displayName_ = displayName;
    take(Says::theRecipient, address, to_);
}

void Email::AddFileAttachment(const std::string& path, const std::string& name, bool keepLocation) {
    // By the bytes of its name, which need not be text.
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    QFile bytes;
    const bool isOpen = file && bytes.open(file.get(), QFile::ReadOnly);
    if (!isOpen) return fail(said(Says::cannotBeAttached, {path, std::strerror(errno)}));
    attachment_ = bytes.readAll();
    if (bytes.error() != QFile::NoError)
        return fail(said(Says::cannotBeAttached, {path, bytes.errorString().toStdString()}));
    if (!keepLocation) attachment_ = fileWithoutLocation(std::move(attachment_));
    attachmentName_ = name.empty() ? lastPathComponent(path) : name;
}

long long Email::sizeOnLine() const {
    constexpr long long kBytesOfLine = 57, kLine = 78, kHeaders = 1000;
    return (attachment_.size() + kBytesOfLine - 1) / kBytesOfLine * kLine + static_cast<long long>(body_.size()) +
           kHeaders;
}

}  // namespace tavrin

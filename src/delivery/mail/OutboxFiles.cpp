#include "delivery/mail/OutboxFiles.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

QJsonValue text(const std::string& bytes) {
    return textOfName(bytes);  // whatever the bytes are
}

std::string bytes(const QJsonValue& text) {
    return nameOfText(text.toString());
}

QJsonObject objectOf(const MailServer& server) {
    return {{"host", text(server.host)},
            {"account", text(server.account)},
            {"password", text(server.password)},
            {"port", server.port},
            {"ssl", server.ssl},
            {"startTls", server.startTls},
            {"checks", server.checksCertificate},
            {"caFile", text(server.caFile)}};
}

MailServer serverOf(const QJsonObject& object) {
    return {bytes(object["host"]),         bytes(object["account"]), bytes(object["password"]),
            object["port"].toInt(),        object["ssl"].toBool(),   object["startTls"].toBool(),
            object["checks"].toBool(true), bytes(object["caFile"])};
}

}  // namespace

std::string writePrivateFile(const std::string& path, const QByteArray& bytes) {
    QSaveFile file(textOfName(path));
    const bool written = file.open(QFile::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.commit();
    return written ? "" : said(Says::cannotBeWritten, {path, file.errorString().toStdString()});
}

std::string writeOutboxEntry(const OutboxEntry& entry, const std::string& folder) {
    const OutgoingMail& mail = entry.mail;
    QJsonObject object{{"to", text(mail.to)},
                       {"from", text(mail.from)},
                       {"replyTo", text(mail.replyTo)},
                       {"subject", text(mail.subject)},
                       {"body", text(mail.body)},
                       {"attachment", text(mail.attachmentName)},
                       {"created", entry.created.toMSecsSinceEpoch()},
                       {"nextTry", entry.nextTry.toMSecsSinceEpoch()},
                       {"tries", entry.tries},
                       {"held", entry.state == OutboxEntry::State::held},
                       {"reason", text(entry.reason)}};
    if (mail.server) object["server"] = objectOf(*mail.server);
    return writePrivateFile(folder + kOutboxMail, QJsonDocument(object).toJson());
}

OutboxEntry readOutboxEntry(const std::string& folder) {
    OutboxEntry entry;
    entry.id = lastPathComponent(folder);
    QFile file(textOfName(folder + kOutboxMail));
    QJsonParseError damage;
    const QJsonObject object =
        file.open(QFile::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &damage).object() : QJsonObject();
    if (object.isEmpty()) {
        entry.state = OutboxEntry::State::held;
        entry.reason = said(Says::unreadableMail, {folder + kOutboxMail});
        return entry;
    }
    entry.mail = {bytes(object["to"]),        bytes(object["subject"]), bytes(object["body"]),
                  bytes(object["from"]),      bytes(object["replyTo"]), "",
                  bytes(object["attachment"])};
    entry.mail.keepLocation = true;  // what was to go has gone when it was put in
    if (!entry.mail.attachmentName.empty()) entry.mail.attachment = folder + kOutboxAttachment;
    if (object.contains("server")) entry.mail.server = serverOf(object["server"].toObject());
    entry.created = QDateTime::fromMSecsSinceEpoch(object["created"].toInteger());
    entry.nextTry = QDateTime::fromMSecsSinceEpoch(object["nextTry"].toInteger());
    entry.tries = object["tries"].toInt();
    if (object["held"].toBool()) entry.state = OutboxEntry::State::held;
    entry.reason = bytes(object["reason"]);
    return entry;
}

}  // namespace tavrin

#include "delivery/mail/DeliveryConf.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <random>

#include <QByteArray>
#include <QDateTime>
#include <QFile>

#include "core/files/NameText.h"
#include "delivery/words/Says.h"
#include "formats/SafeFile.h"

namespace tavrin {

namespace {

std::string trimmed(const std::string& text) {
    return QByteArray::fromStdString(text).trimmed().toStdString();
}

void readLine(DeliveryConf& conf, const std::string& line, int number) {
    static const std::map<std::string, std::string DeliveryConf::*> texts = {
        {"relay-host", &DeliveryConf::relayHost},
        {"relay-account", &DeliveryConf::relayAccount},
        {"relay-password", &DeliveryConf::relayPassword},
        {"text-gateway", &DeliveryConf::textGateway},
        {"gmail-host", &DeliveryConf::gmailHost},
        {"installation", &DeliveryConf::installation},
        {"ca-file", &DeliveryConf::caFile}};
    const std::size_t equals = line.find('=');
    const std::string name = trimmed(line.substr(0, equals));
    const std::string value = equals == std::string::npos ? "" : trimmed(line.substr(equals + 1));
    if (name.empty() || name.front() == '#') return;
    const auto text = texts.find(name);
    if (equals != std::string::npos && text != texts.end()) {
        conf.*text->second = value;
    } else if (name == "check-certificates" && (value == "yes" || value == "no")) {
        conf.checkCertificates = value == "yes";
    } else {
        if (!conf.problem.empty()) conf.problem += '\n';
        conf.problem += said(Says::confLine, {std::to_string(number), name});
    }
}

/// Letters and digits only, since it stands in the names of files.
std::string freshMark() {
    std::random_device device;
    char text[9];
    std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(device()));
    return text;
}

}  // namespace

std::string deliveryConfFile() {
    return Places::current().xmlFolder() + "delivery.conf";
}

DeliveryConf readDeliveryConf(const std::string& path) {
    DeliveryConf conf;
    const QString name = textOfName(path);
    if (!QFile::exists(name)) return conf;
    constexpr auto kOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    if (QFile::permissions(name) & ~kOwner) QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner);
    std::ifstream file(path);
    if (!file) conf.problem = said(Says::confUnreadable, {path});
    int number = 0;
    for (std::string line; std::getline(file, line);)
        readLine(conf, line, ++number);
    return conf;
}

std::string installationMark(const DeliveryConf& conf) {
    std::string mark = conf.installation;
    std::erase_if(mark, [](unsigned char c) { return !std::isalnum(c); });
    if (!mark.empty()) return mark;
    const std::string path = Places::current().xmlFolder() + "installation";
    constexpr std::size_t kLimit = 64;
    if (FileBytes kept = readSafeFile(path, kLimit); !trimmed(kept.bytes).empty()) return trimmed(kept.bytes);
    SafeSave save;
    const std::string fresh = ownNameBeside(path), made = freshMark();
    if (!save.begin(fresh, Readers::everyone)) return made;
    save.write(made);
    if (!save.commit() || !claimName(fresh, path)) return made;
    const FileBytes kept = readSafeFile(path, kLimit);  // another program may have been quicker
    return kept.bytes.empty() ? made : trimmed(kept.bytes);
}

long long hundredthsOf(long long milliseconds) {
    static const long long begin =
        QDateTime::fromString("2010-01-01T04:00:00+09:00", Qt::ISODate).toMSecsSinceEpoch();
    return (milliseconds - begin) / 10;
}

std::string mailPictureName(long long milliseconds, const std::string& mark) {
    return std::to_string(hundredthsOf(milliseconds)) + mark + ".jpg";
}

}  // namespace tavrin

#include "delivery/mail/MailText.h"

#include <algorithm>
#include <map>

#include <QByteArray>
#include <QFileInfo>
#include <QString>

#include "core/files/NameText.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

bool isControl(unsigned char c) {
    return c < 0x20 || c == 0x7F;
}

bool isPlain(const std::string& text) {
    return std::ranges::none_of(text, [](unsigned char c) { return isControl(c) || c > 0x7E; });
}

bool goesOn(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;  // a later byte of a letter
}

}  // namespace

std::string whyUnsafe(const std::string& address) {
    if (address.empty()) return said(Says::emptyAddress);
    constexpr std::size_t kLongest = 320;
    if (address.size() > kLongest) return said(Says::longAddress);
    if (address.front() == '-') return said(Says::hyphenAddress);
    if (std::ranges::any_of(address, isControl)) return said(Says::controlInAddress);
    if (address.find_first_of(" <>,;:\"()[]\\") != std::string::npos) return said(Says::oddInAddress);
    if (!QString::fromStdString(address).isValidUtf16() ||
        QString::fromStdString(address).contains(QChar(QChar::ReplacementCharacter)))
        return said(Says::addressNoText);
    return "";
}

bool isAddress(const std::string& address) {
    const std::size_t at = address.find('@');
    return whyUnsafe(address).empty() && at != std::string::npos && at > 0 && at + 1 < address.size() &&
           address.find('@', at + 1) == std::string::npos;
}

std::string headerText(const std::string& text) {
    constexpr std::size_t kLineOfText = 60, kWordOfText = 45;
    std::string line = QString::fromStdString(text).toUtf8().toStdString();  // whatever was no UTF-8 is now
    std::ranges::replace_if(line, isControl, ' ');
    if (isPlain(line) && line.size() <= kLineOfText && line.find("=?") == std::string::npos) return line;
    std::string words;
    for (std::size_t from = 0; from < line.size();) {
        std::size_t to = std::min(from + kWordOfText, line.size());
        while (to < line.size() && to > from && goesOn(line[to]))
            --to;  // no letter is cut in two
        const QByteArray part = QByteArray::fromStdString(line.substr(from, to - from)).toBase64();
        words += (words.empty() ? "=?utf-8?B?" : "\r\n =?utf-8?B?") + part.toStdString() + "?=";
        from = to;
    }
    return words;
}

std::string dispositionLine(const std::string& anyName) {
    std::string fileName = anyName;
    std::ranges::replace_if(fileName, isControl, '_');  // which other systems' files cannot have in their names
    const std::string begin = "Content-Disposition: attachment; filename";
    if (isPlain(fileName) && fileName.find_first_of("\"\\") == std::string::npos)
        return begin + "=\"" + fileName + "\"";
    return begin + "*=utf-8''" + textOfName(fileName).toUtf8().toPercentEncoding().toStdString();
}

std::string mailTypeOf(const std::string& fileName) {
    static const std::map<QString, const char*> types = {
        {"jpg", "image/jpeg"},  {"jpeg", "image/jpeg"}, {"png", "image/png"},      {"tif", "image/tiff"},
        {"tiff", "image/tiff"}, {"gif", "image/gif"},   {"webp", "image/webp"},    {"heic", "image/heic"},
        {"bmp", "image/bmp"},   {"txt", "text/plain"},  {"pdf", "application/pdf"}};
    const auto found = types.find(QFileInfo(textOfName(fileName)).suffix().toLower());
    return found == types.end() ? "application/octet-stream" : found->second;
}

std::string withMailLines(const std::string& text) {
    QString lines = QString::fromStdString(text);
    lines.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\r\n");
    return lines.toStdString();
}

}  // namespace tavrin

#include "folders/ListText.h"

#include <algorithm>
#include <cstddef>

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace tavrin {

namespace {

/// Far more than any list of jobs takes.
constexpr qint64 kMostBytes = qint64{256} << 20;

QByteArray readBytes(const std::string& path, std::string& problem) {
    const QString name = QFile::decodeName(path.c_str());
    QFile file(name);
    if (!QFileInfo(name).isFile()) {
        problem = path + ": there is no such list.";
    } else if (!file.open(QFile::ReadOnly)) {
        problem = path + " cannot be opened: " + file.errorString().toStdString() + ".";
    } else if (file.size() > kMostBytes) {
        problem = path + " is too long for a batch list.";
    }
    if (!problem.empty()) return {};
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        problem = path + " cannot be read to its end: " + file.errorString().toStdString() + ".";
    return bytes;
}

/// Bytes of which every character is made up.
qsizetype unitOf(QStringConverter::Encoding encoding) {
    switch (encoding) {
        case QStringConverter::Utf16:
        case QStringConverter::Utf16LE:
        case QStringConverter::Utf16BE:
            return 2;
        case QStringConverter::Utf32:
        case QStringConverter::Utf32LE:
        case QStringConverter::Utf32BE:
            return 4;
        default:
            return 1;
    }
}

/// The line of the first character that is none, or was put in the place of broken bytes; else the last line.
std::ptrdiff_t brokenLine(const QString& text) {
    const auto isBroken = [](QChar c) { return c.isNull() || c == QChar::ReplacementCharacter; };
    const auto at = std::find_if(text.begin(), text.end(), isBroken);
    return std::count(text.begin(), at, QChar(u'\n')) + 1;
}

}  // namespace

ListText readListText(const std::string& path) {
    ListText list;
    const QByteArray bytes = readBytes(path, list.problem);
    if (!list.problem.empty()) return list;
    const auto encoding = QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8);
    QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (!text.contains(u'\n')) text.replace(u'\r', u'\n');
    const bool cut = bytes.size() % unitOf(encoding) != 0;
    if (decoder.hasError() || cut || text.contains(QChar(u'\0'))) {
        list.problem = path + ", line " + std::to_string(brokenLine(text)) + ": this is no text in " +
                       QStringConverter::nameForEncoding(encoding) + ".";
        return list;
    }
    list.text = text.toStdString();
    return list;
}

}  // namespace tavrin

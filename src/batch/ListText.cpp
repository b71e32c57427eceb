#include "batch/ListText.h"

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

/// The line of the first character that was put in the place of broken bytes.
qsizetype brokenLine(const QString& text) {
    const qsizetype at = text.indexOf(QChar::ReplacementCharacter);
    return QStringView(text).left(at < 0 ? text.size() : at).count(u'\n') + 1;
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
    if (decoder.hasError() || text.contains(QChar(u'\0'))) {
        if (!decoder.hasError()) text.replace(QChar(u'\0'), QChar::ReplacementCharacter);
        list.problem = path + ", line " + std::to_string(brokenLine(text)) + ": this is no text in " +
                       QStringConverter::nameForEncoding(encoding) + ".";
        return list;
    }
    list.text = text.toStdString();
    return list;
}

}  // namespace tavrin

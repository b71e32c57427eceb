#include "core/files/NameText.h"

#include <algorithm>

#include <QByteArrayView>

namespace tavrin {

namespace {

constexpr char16_t kByte = 0xDC00;
constexpr qsizetype kMostBytes = 4;  // of one character
/// The mark of the byte order, which readers of text take away where one of their pieces begins with it.
constexpr QByteArrayView kMark = "\xef\xbb\xbf";

/// Length of the character that begins here; 0 where these bytes are none, or one that might get lost.
qsizetype characterAt(QByteArrayView bytes, qsizetype at) {
    if (bytes.sliced(at).startsWith(kMark)) return 0;
    const qsizetype most = std::min(kMostBytes, bytes.size() - at);
    for (qsizetype length = 1; length <= most; ++length) {
        if (bytes.sliced(at, length).isValidUtf8()) return length;
    }
    return 0;
}

bool isByte(QChar c) {
    return c.unicode() >= kByte + 0x80 && c.unicode() <= kByte + 0xFF;
}

}  // namespace

QString textOfName(const std::string& name) {
    const QByteArrayView bytes(name.data(), static_cast<qsizetype>(name.size()));
    if (bytes.isValidUtf8() && !bytes.contains(kMark)) return QString::fromUtf8(bytes);
    QString text;
    for (qsizetype at = 0; at < bytes.size();) {
        const qsizetype length = characterAt(bytes, at);
        if (length > 0) {
            text += QString::fromUtf8(bytes.sliced(at, length));
        } else {
            text += QChar(static_cast<char16_t>(kByte + static_cast<unsigned char>(bytes[at])));
        }
        at += std::max<qsizetype>(length, 1);
    }
    return text;
}

std::string nameOfText(const QString& text) {
    std::string name;
    qsizetype plain = 0;  // from here to `at` nothing but characters
    const auto takePlain = [&](qsizetype end) { name += text.sliced(plain, end - plain).toStdString(); };
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
            ++at;
        } else if (isByte(text[at])) {
            takePlain(at);
            name += static_cast<char>(text[at].unicode() - kByte);
            plain = at + 1;
        }
    }
    takePlain(text.size());
    return name;
}

}  // namespace tavrin

#include "delivery/pages/HtmlText.h"

#include <QByteArray>
#include <QString>

#include "core/Log.h"
#include "core/files/AtomicFile.h"

namespace tavrin {

std::string htmlText(std::string_view utf8) {
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    std::string html;
    for (const uint code : text.toUcs4()) {
        const bool isPlain = code >= ' ' && code < 0x7f &&
                             std::string_view("&<>\"'").find(static_cast<char>(code)) == std::string_view::npos;
        if (isPlain)
            html += static_cast<char>(code);
        else
            html += "&#" + std::to_string(code) + ';';
    }
    return html;
}

std::string linkPath(std::string_view path) {
    return QByteArray::fromRawData(path.data(), static_cast<qsizetype>(path.size()))
        .toPercentEncoding("/")
        .toStdString();
}

std::string writeHtml(const std::string& path, const std::string& html) {
    AtomicFile file(path);
    file.write(html.data(), html.size());
    if (file.commitUnflushed()) return {};
    logError("Open of testout for writing failed");
    return path + ": " + file.error() + '.';
}

}  // namespace tavrin

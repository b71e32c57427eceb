#include "core/text/TextMacros.h"

#include <filesystem>

#include <QDateTime>
#include <QLocale>
#include <QString>

#include "core/files/StandardPath.h"

namespace tavrin {

namespace {

QString digitsOf(const QString& name) {
    QString digits;
    for (const QChar c : name) {
        if (c.isDigit()) digits += c;
    }
    return digits;
}

}  // namespace

std::string expandMacros(const std::string& text, const std::string& sourcePath, const QDateTime& now) {
    if (text.find("<<") == std::string::npos) return text;
    const QString name = QString::fromStdString(lastPathComponent(sourcePath));
    QString out = QString::fromStdString(text);
    out.replace("<<filename>>", name);
    out.replace("<<filenumber>>", digitsOf(name));
    // Not as the language of the system has it: the same text everywhere.
    out.replace("<<date>>", QLocale::c().toString(now, "dd/MM/yyyy"));
    out.replace("<<time>>", QLocale::c().toString(now, "hh:mm AP"));
    return out.toStdString();
}

}  // namespace tavrin

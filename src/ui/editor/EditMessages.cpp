#include "ui/editor/EditMessages.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace tavrin {

namespace {

/// Whole lines first, then their parts. What stands for a number is a part, too.
constexpr const char* kMessages[] = {
    QT_TRANSLATE_NOOP("Edits", "There is no full picture to edit."),
    QT_TRANSLATE_NOOP("Edits", "Nothing can be edited: the picture of the silhouette cannot be read."),
    QT_TRANSLATE_NOOP("Edits", "This step cannot be undone: %1."),
    QT_TRANSLATE_NOOP("Edits", "This step stays: its file %1 cannot be read."),
    QT_TRANSLATE_NOOP("Edits", "The last stroke cannot be undone: its file could not be written."),
    QT_TRANSLATE_NOOP("Edits",
                      "The recording is full: what is done from here on stays in the picture, but no replay has it."),
    QT_TRANSLATE_NOOP("Edits", "%1, line %2: %3."),
    QT_TRANSLATE_NOOP("Edits", "%1: %2."),
    QT_TRANSLATE_NOOP("Edits", "the disk is full"),
    QT_TRANSLATE_NOOP("Edits", "the folder %1 does not exist"),
    QT_TRANSLATE_NOOP("Edits", "%1 is not a folder"),
    QT_TRANSLATE_NOOP("Edits", "no permission to write into the folder %1"),
    QT_TRANSLATE_NOOP("Edits", "the folder %1 can only be read"),
    QT_TRANSLATE_NOOP("Edits", "the file would be larger than this disk allows"),
    QT_TRANSLATE_NOOP("Edits", "there is no such file"),
    QT_TRANSLATE_NOOP("Edits", "that is no file of edits"),
    QT_TRANSLATE_NOOP("Edits", "it is too large for a file of edits"),
    QT_TRANSLATE_NOOP("Edits", "it cannot be read"),
    QT_TRANSLATE_NOOP("Edits", "it does not begin with \"%1\""),
    QT_TRANSLATE_NOOP("Edits", "it has no line \"view WIDTH HEIGHT\""),
    QT_TRANSLATE_NOOP("Edits", "a file of edits begins with \"%1\""),
    QT_TRANSLATE_NOOP("Edits", "only version %1 of files of edits is known here"),
    QT_TRANSLATE_NOOP("Edits", "there is a view already"),
    QT_TRANSLATE_NOOP("Edits", "view takes width and height in pixels, each 1 to 100000"),
    QT_TRANSLATE_NOOP("Edits", "zoom stands before the first item"),
    QT_TRANSLATE_NOOP("Edits", "zoom takes the pixels of a point of the view, 0.001 to 1000"),
    QT_TRANSLATE_NOOP("Edits", "seed takes a whole number from 0 on"),
    QT_TRANSLATE_NOOP("Edits", "the line \"view WIDTH HEIGHT\" comes before the items"),
    QT_TRANSLATE_NOOP("Edits", "an item is a kind and up to four values"),
    QT_TRANSLATE_NOOP("Edits", "\"%1\" is no whole number"),
    QT_TRANSLATE_NOOP("Edits", "%1 takes 1 value"),
    QT_TRANSLATE_NOOP("Edits", "%1 takes %2 values"),
    QT_TRANSLATE_NOOP("Edits", "%1, and it goes from %2 to %3"),
};

QRegularExpression patternOf(const QString& message) {
    static const QRegularExpression place("%\\d");
    QStringList texts;
    for (const QString& text : message.split(place))
        texts.append(QRegularExpression::escape(text));
    return QRegularExpression(QRegularExpression::anchoredPattern(texts.join("(.+)")));
}

QString translated(const QString& line);

/// All places at once: a part may have a % of its own.
QString filled(const QString& text, const QRegularExpressionMatch& parts) {
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int part = text[i] == '%' && i + 1 < text.size() ? text[i + 1].digitValue() : 0;
        if (part < 1 || part > parts.lastCapturedIndex()) {
            out.append(text[i]);
        } else {
            out.append(translated(parts.captured(part)));
            ++i;
        }
    }
    return out;
}

QString translated(const QString& line) {
    for (const char* message : kMessages) {
        const QRegularExpressionMatch match = patternOf(message).match(line);
        if (match.hasMatch()) return filled(QCoreApplication::translate("Edits", message), match);
    }
    return line;
}

}  // namespace

QString translatedEditMessage(const std::string& line) {
    return translated(QString::fromStdString(line));
}

}  // namespace tavrin

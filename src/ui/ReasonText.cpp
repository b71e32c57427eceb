#include "ui/ReasonText.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include "delivery/words/Says.h"

namespace tavrin {

namespace {

/// A sentence of the engine's with what stands in its places, found again in its English words.
struct Sentence {
    const char* english;
    QRegularExpression shape;
    QString places;  ///< digits of the places, in the order of the words
};

Sentence sentenceOf(const char* english) {
    const QString words = QString::fromUtf8(english);
    QString shape, places;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const int digit = words[i] == '%' && i + 1 < words.size() ? words[i + 1].digitValue() : 0;
        if (digit > 0) places += words[++i];
        shape += digit > 0 ? QStringLiteral("(.*)") : QRegularExpression::escape(words.mid(i, 1));
    }
    return {english,
            QRegularExpression(QRegularExpression::anchoredPattern(shape),
                               QRegularExpression::DotMatchesEverythingOption),
            places};
}

/// Those with the most words of their own first, since a place takes anything.
const std::vector<Sentence>& sentences() {
    static const std::vector<Sentence> all = [] {
        std::vector<Sentence> made;
        for (const char* english : wordsOfReasons())
            made.push_back(sentenceOf(english));
        std::ranges::stable_sort(made, std::ranges::greater(), [](const Sentence& sentence) {
            return static_cast<qsizetype>(std::string_view(sentence.english).size()) - 2 * sentence.places.size();
        });
        return made;
    }();
    return all;
}

std::optional<QString> translated(const QString& english, int depth);

/// A part is a sentence itself, some words with commas between them, or a name.
QString part(const QString& english, int depth) {
    if (const auto whole = translated(english, depth)) return *whole;
    QStringList words;
    for (const QString& word : english.split(QStringLiteral(", "))) {
        const auto own = translated(word, depth);
        if (!own) return english;
        words += *own;
    }
    return words.join(QStringLiteral(", "));
}

/// "FILE: why."
QString lineText(const QString& english) {
    if (const auto whole = translated(english, 0)) return *whole;
    const qsizetype colon = english.lastIndexOf(QStringLiteral(": "));
    if (colon < 0 || !english.endsWith('.')) return part(english, 0);
    return english.left(colon + 2) + part(english.mid(colon + 2).chopped(1), 0) + '.';
}

std::optional<QString> translated(const QString& english, int depth) {
    constexpr int kDeepest = 3;
    if (depth > kDeepest || english.isEmpty()) return {};
    for (const Sentence& sentence : sentences()) {
        const QRegularExpressionMatch match = sentence.shape.match(english);
        if (!match.hasMatch()) continue;
        const QString words = QCoreApplication::translate("Delivery", sentence.english);
        QString line;
        for (qsizetype i = 0; i < words.size(); ++i) {
            const qsizetype at =
                words[i] == '%' && i + 1 < words.size() ? sentence.places.indexOf(words[i + 1]) : qsizetype{-1};
            line += at < 0 ? QString(words[i]) : part(match.captured(static_cast<int>(at) + 1), depth + 1);
            i += at < 0 ? 0 : 1;
        }
        return line;
    }
    return {};
}

}  // namespace

QString reasonText(const std::string& english) {
    QStringList lines = QString::fromStdString(english).split('\n');
    for (QString& line : lines)
        line = lineText(line);
    return lines.join('\n');
}

}  // namespace tavrin

#include "ui/bind/WordSearch.h"

#include <algorithm>

#include <QRegularExpression>

#include "core/NearestName.h"

namespace tavrin {

namespace {

bool isSlipOf(QString word, const QString& whole) {
    const auto length = word.size();
    if (length < 4) return false;
    const std::size_t allowed = length < 7 ? 1 : 2;
    for (const auto most : {length - 1, length, length + 1})
        if (editDistance(word.toStdString(), whole.left(most).toStdString()) <= allowed) return true;
    for (qsizetype i = 0; i + 1 < length; ++i) {
        std::swap(word[i], word[i + 1]);
        if (whole.startsWith(word, Qt::CaseInsensitive)) return true;
        std::swap(word[i], word[i + 1]);
    }
    return false;
}

bool hasWord(const QString& text, const QString& word, Slips slips) {
    if (text.contains(word, Qt::CaseInsensitive)) return true;
    if (slips == Slips::none) return false;
    static const QRegularExpression between("[^\\w]+", QRegularExpression::UseUnicodePropertiesOption);
    const QStringList parts = text.split(between, Qt::SkipEmptyParts);
    return std::any_of(parts.begin(), parts.end(), [&](const QString& part) { return isSlipOf(word, part); });
}

}  // namespace

QStringList searchWords(const QString& typed) {
    static const QRegularExpression blanks("\\s+");
    return typed.split(blanks, Qt::SkipEmptyParts);
}

bool hasWords(const QString& text, const QStringList& words, Slips slips) {
    return std::all_of(words.begin(), words.end(), [&](const QString& word) { return hasWord(text, word, slips); });
}

}  // namespace tavrin

#pragma once

#include <QStringList>

namespace tavrin {

/// Whether a word with a slip of the fingers counts: a letter or two wrong, missing, too many, or two exchanged.
enum class Slips { none, some };

/// The words of what somebody typed.
QStringList searchWords(const QString& typed);

/// Whether a text has all these words, in any order, capitals or not. Short words take no slips.
bool hasWords(const QString& text, const QStringList& words, Slips slips = Slips::none);

}  // namespace tavrin

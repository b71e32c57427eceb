#pragma once

#include <vector>

#include <QString>

namespace tavrin {

/// A run of characters of a text.
struct TextSpan {
    int start = 0, length = 0;
};

/// Finds what is to be shown as colour pictures: emoji that are pictures by themselves, and symbols that a variation
/// selector makes pictures (Unicode Technical Standard 51), with the modifiers, joiners and tags that belong to them.
/// The selectors are taken out of the text: which font draws a character has then been decided, and many fonts
/// have no glyph for them.
std::vector<TextSpan> takeEmoji(QString& text);

}  // namespace tavrin

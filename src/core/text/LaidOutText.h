#pragma once

#include <string>
#include <vector>

#include <QPainterPath>
#include <QRawFont>

namespace tavrin {

/// How a text is set.
struct TextSetting {
    std::string fontName;  ///< family; the system's nearest where it is missing
    bool bold = false, italic = false;
    /// Width that lines are broken at and lean within, in units of `LaidOutText`; not above 0: lines are as long as
    /// they are, and lean within the longest.
    double width = 0.0;
    int justify = 0;          ///< 0 left, 1 centre, other right
    bool singleLine = false;  ///< line breaks in the text count as spaces
};

/// A glyph of a font in colours.
struct ColourGlyph {
    QRawFont font;
    quint32 index = 0;
    QPointF position;  ///< its place on the base line
};

/// A text set in lines: shapes only, no colours. All lengths are in units of 1/`kSize` of the font's size, from the
/// top left of the first line, y downward. The same for every resolution, so that the preview and the full picture
/// look alike.
struct LaidOutText {
    static constexpr double kSize = 512.0;

    /// The glyphs that have an outline, one or, where they touch, several to a piece: small shapes paint faster.
    std::vector<QPainterPath> outlines;
    std::vector<ColourGlyph> pictures;  ///< all others: emoji
    QRectF bounds;                      ///< of both
    double width = 0.0;                 ///< advance width of the longest line
    double height = 0.0;                ///< of all lines
    double ascent = 0.0;                ///< from the top to the first base line
    double capHeight = 0.0;             ///< of the font
};

/// Lays out a text of any script, with the fonts of the system, on the caller's thread. Emoji come from a colour font
/// where one is installed. Of a text of more than 10,000 characters the rest is left out.
LaidOutText layOutText(const std::string& text, const TextSetting& setting);

}  // namespace tavrin

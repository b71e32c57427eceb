#include "core/text/LaidOutText.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>

#include "core/text/Emoji.h"

namespace tavrin {

namespace {

constexpr qsizetype kMostCharacters = 10'000;
constexpr double kWidest = 1e7;  // lengths of a layout are limited numbers

QFont fontOf(const TextSetting& setting) {
    QFont font;
    font.setFamilies({QString::fromStdString(setting.fontName)});
    font.setPixelSize(static_cast<int>(LaidOutText::kSize));
    font.setBold(setting.bold);
    font.setItalic(setting.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// "emoji" is the name under which systems know their colour font; without one the text's own font comes next.
QFont emojiFontOf(const TextSetting& setting) {
    QFont font = fontOf(setting);
    font.setFamilies({"emoji", QString::fromStdString(setting.fontName)});
    font.setBold(false);
    font.setItalic(false);
    return font;
}

QStringList paragraphsOf(const std::string& text, bool singleLine) {
    QString plain = QString::fromStdString(text).left(kMostCharacters);
    plain.replace("\r\n", "\n").replace('\r', '\n').replace(QChar(QChar::ParagraphSeparator), '\n');
    if (!singleLine) return plain.split('\n');
    return {plain.replace('\n', ' ').replace(QChar(QChar::LineSeparator), ' ')};
}

// Asking such a font for outlines upsets its metrics, so it has to be known before.
bool isInColour(const QRawFont& font) {
    return !font.fontTable("CBLC").isEmpty() || !font.fontTable("COLR").isEmpty() ||
           !font.fontTable("sbix").isEmpty();
}

class Setter {
  public:
    explicit Setter(const TextSetting& setting)
        : setting_(setting), font_(fontOf(setting)), emojiFont_(emojiFontOf(setting)) {}

    LaidOutText set(const QStringList& paragraphs) {
        for (const QString& paragraph : paragraphs)
            addParagraph(paragraph);
        const double block = setting_.width > 0.0 ? setting_.width : text_.width;
        const double lean = setting_.justify == 0 ? 0.0 : setting_.justify == 1 ? 0.5 : 1.0;
        for (Line& line : lines_)
            place(line, lean * (block - line.width));
        for (QPainterPath& piece : text_.outlines) {
            piece.setFillRule(Qt::WindingFill);
            text_.bounds |= piece.controlPointRect();
        }
        text_.capHeight = QFontMetricsF(font_).capHeight();
        return std::move(text_);
    }

  private:
    struct Line {
        double top = 0.0, width = 0.0;
        QList<QGlyphRun> runs;
    };

    void addParagraph(QString paragraph) {
        QList<QTextLayout::FormatRange> formats;
        for (const TextSpan& span : takeEmoji(paragraph)) {
            QTextCharFormat format;
            format.setFont(emojiFont_);
            formats.append({span.start, span.length, format});
        }
        QTextLayout layout(paragraph, font_);
        layout.setFormats(formats);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setUseDesignMetrics(true);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setTabStopDistance(2.0 * LaidOutText::kSize);
        layout.setTextOption(option);
        layout.beginLayout();
        while (addLine(layout)) {
        }
        layout.endLayout();
        const std::size_t first = lines_.size() - static_cast<std::size_t>(layout.lineCount());
        for (int i = 0; i < layout.lineCount(); ++i)
            lines_[first + static_cast<std::size_t>(i)].runs = layout.lineAt(i).glyphRuns();
    }

    bool addLine(QTextLayout& layout) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) return false;
        const bool wraps = setting_.width > 0.0 && !setting_.singleLine;
        line.setLeadingIncluded(true);
        line.setLineWidth(wraps ? std::min(setting_.width + kSlack, kWidest) : kWidest);
        const double width = setting_.singleLine ? line.horizontalAdvance() : line.naturalTextWidth();
        if (lines_.empty()) text_.ascent = line.ascent();
        lines_.push_back({text_.height, width, {}});
        text_.width = std::max(text_.width, width);
        text_.height += line.height();
        return true;
    }

    void place(const Line& line, double left) {
        const QPointF origin(left, line.top);
        for (const QGlyphRun& run : line.runs) {
            const QRawFont font = run.rawFont();
            const QList<quint32> glyphs = run.glyphIndexes();
            const QList<QPointF> positions = run.positions();
            const bool inColour = isInColour(font);
            for (qsizetype i = 0; i < glyphs.size(); ++i) {
                const QPointF position = origin + positions[i];
                if (inColour) {
                    text_.pictures.push_back({font, glyphs[i], position});
                    text_.bounds |= font.boundingRect(glyphs[i]).translated(position);
                } else {
                    addOutline(font.pathForGlyph(glyphs[i]).translated(position));
                }
            }
        }
    }

    // To the piece that it touches; a mark may stand a glyph away from its letter.
    void addOutline(const QPainterPath& outline) {
        if (outline.isEmpty()) return;
        constexpr std::size_t kBack = 3;
        std::vector<QPainterPath>& pieces = text_.outlines;
        const std::size_t oldest = pieces.size() > kBack ? pieces.size() - kBack : 0;
        for (std::size_t i = pieces.size(); i-- > oldest;) {
            if (pieces[i].controlPointRect().intersects(outline.controlPointRect()))
                return pieces[i].addPath(outline);
        }
        pieces.push_back(outline);
    }

    // A box is as wide as its longest line, which must fit in it again in spite of roundings.
    static constexpr double kSlack = 0.02 * LaidOutText::kSize;

    const TextSetting& setting_;
    const QFont font_, emojiFont_;
    std::vector<Line> lines_;
    LaidOutText text_;
};

}  // namespace

LaidOutText layOutText(const std::string& text, const TextSetting& setting) {
    return Setter(setting).set(paragraphsOf(text, setting.singleLine));
}

}  // namespace tavrin

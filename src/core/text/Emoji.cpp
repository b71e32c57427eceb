#include "core/text/Emoji.h"

#include <algorithm>
#include <iterator>

#include <QList>

namespace tavrin {

namespace {

constexpr char32_t kTextStyle = 0xFE0E, kPictureStyle = 0xFE0F, kJoiner = 0x200D, kKeycap = 0x20E3;

struct CodeRange {
    char32_t first, last;
};

// Characters of the basic plane that are pictures unless told otherwise (the property Emoji_Presentation).
constexpr CodeRange kPictures[] = {
    {0x231A, 0x231B},
    {0x23E9, 0x23EC},
    {0x23F0, 0x23F0},
    {0x23F3, 0x23F3},
    {0x25FD, 0x25FE},
    {0x2614, 0x2615},
    {0x2648, 0x2653},
    {0x267F, 0x267F},
    {0x2693, 0x2693},
    {0x26A1, 0x26A1},
    {0x26AA, 0x26AB},
    {0x26BD, 0x26BE},
    {0x26C4, 0x26C5},
    {0x26CE, 0x26CE},
    {0x26D4, 0x26D4},
    {0x26EA, 0x26EA},
    {0x26F2, 0x26F3},
    {0x26F5, 0x26F5},
    {0x26FA, 0x26FA},
    {0x26FD, 0x26FD},
    {0x2705, 0x2705},
    {0x270A, 0x270B},
    {0x2728, 0x2728},
    {0x274C, 0x274C},
    {0x274E, 0x274E},
    {0x2753, 0x2755},
    {0x2757, 0x2757},
    {0x2795, 0x2797},
    {0x27B0, 0x27B0},
    {0x27BF, 0x27BF},
    {0x2B1B, 0x2B1C},
    {0x2B50, 0x2B50},
    {0x2B55, 0x2B55},
    // The blocks of pictures beyond it, whole: flags, symbols, people, transport.
    {0x1F004, 0x1F004},
    {0x1F0CF, 0x1F0CF},
    {0x1F18E, 0x1F18E},
    {0x1F191, 0x1F19A},
    {0x1F1E6, 0x1F1FF},
    {0x1F201, 0x1F201},
    {0x1F21A, 0x1F21A},
    {0x1F22F, 0x1F22F},
    {0x1F232, 0x1F236},
    {0x1F238, 0x1F23A},
    {0x1F250, 0x1F251},
    {0x1F300, 0x1F64F},
    {0x1F680, 0x1F6FF},
    {0x1F7E0, 0x1F7EB},
    {0x1F90C, 0x1F9FF},
    {0x1FA70, 0x1FAFF},
};

bool isPicture(char32_t code) {
    const auto* range = std::lower_bound(std::begin(kPictures), std::end(kPictures), code,
                                         [](const CodeRange& r, char32_t c) { return r.last < c; });
    return range != std::end(kPictures) && code >= range->first;
}

// What clings to the picture before it.
bool clings(char32_t code) {
    return code == kJoiner || code == kKeycap || (code >= 0xE0020 && code <= 0xE007F);
}

struct Piece {
    char32_t code;
    bool picture;
};

// The characters without the selectors, each marked.
std::vector<Piece> mark(const QString& text) {
    std::vector<Piece> pieces;
    for (const char32_t code : text.toUcs4()) {
        const bool afterPicture = !pieces.empty() && pieces.back().picture;
        if (code == kPictureStyle || code == kTextStyle) {
            if (!pieces.empty()) pieces.back().picture = code == kPictureStyle;
            continue;
        }
        const bool joined = afterPicture && pieces.back().code == kJoiner;
        pieces.push_back({code, isPicture(code) || joined || (afterPicture && clings(code))});
    }
    return pieces;
}

}  // namespace

std::vector<TextSpan> takeEmoji(QString& text) {
    const std::vector<Piece> pieces = mark(text);
    if (std::none_of(pieces.begin(), pieces.end(), [](const Piece& p) { return p.picture; })) return {};
    std::vector<TextSpan> spans;
    QString kept;
    bool inside = false;
    for (const Piece& piece : pieces) {
        const int start = static_cast<int>(kept.size());
        kept += QString::fromUcs4(&piece.code, 1);
        if (piece.picture && !inside) spans.push_back({start, 0});
        if (piece.picture) spans.back().length += static_cast<int>(kept.size()) - start;
        inside = piece.picture;
    }
    text = kept;
    return spans;
}

}  // namespace tavrin

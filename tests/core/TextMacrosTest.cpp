#include <gtest/gtest.h>

#include <QDateTime>

#include "core/text/Emoji.h"
#include "core/text/TextMacros.h"

namespace tavrin {
namespace {

TEST(TextMacros, AreReplacedWhereverTheyStand) {
    const QDateTime afternoon(QDate(2031, 2, 5), QTime(15, 4));
    const std::string path = "/pictures/2030/IMG_0042 (7).jpg";
    const auto expand = [&](const char* text) { return expandMacros(text, path, afternoon); };
    EXPECT_EQ(expand("<<filename>>"), "IMG_0042 (7).jpg");
    EXPECT_EQ(expand("No. <<filenumber>>/<<filenumber>>"), "No. 00427/00427");
    EXPECT_EQ(expand("<<date>> at <<time>>"), "05/02/2031 at 03:04 PM");
    EXPECT_EQ(expand("<<Date>> <<other>> <<"), "<<Date>> <<other>> <<");
    EXPECT_EQ(expandMacros("<<time>>", path, QDateTime(QDate(2031, 2, 5), QTime(0, 30))), "12:30 AM");
    EXPECT_EQ(expandMacros("[<<filename>><<filenumber>>]", "", afternoon), "[]");
    EXPECT_EQ(expandMacros("<<filename>> für", "/a/Zoë №3.png", afternoon), "Zoë №3.png für");
}

TEST(Emoji, SpansCoverWholeSequencesAndLoseTheirSelectors) {
    const struct {
        const char* text;
        const char* without;
        std::vector<std::pair<int, int>> spans;
    } cases[] = {
        {"plain 1 © ★", "plain 1 © ★", {}},
        {"a😀b", "a😀b", {{1, 2}}},
        {"❤️", "❤", {{0, 1}}},     // a symbol made a picture
        {"😀︎", "😀︎", {}},    // a picture made a symbol: nothing to do, nothing taken
        {"1️⃣!", "1⃣!", {{0, 2}}},  // a keycap
        {"🇩🇪🇫🇷", "🇩🇪🇫🇷", {{0, 8}}},    // flags are pairs of letters
        {"👍🏽 👩‍⚕️", "👍🏽 👩‍⚕", {{0, 4}, {5, 4}}},  // skin, and a joined profession
    };
    for (const auto& c : cases) {
        QString text = QString::fromUtf8(c.text);
        const std::vector<TextSpan> spans = takeEmoji(text);
        EXPECT_EQ(text.toStdString(), c.without);
        ASSERT_EQ(spans.size(), c.spans.size()) << c.text;
        for (std::size_t i = 0; i < spans.size(); ++i)
            EXPECT_EQ(std::pair(spans[i].start, spans[i].length), c.spans[i]) << c.text;
    }
}

}  // namespace
}  // namespace tavrin

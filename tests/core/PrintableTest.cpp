#include <gtest/gtest.h>

#include "core/Printable.h"

namespace tavrin {
namespace {

TEST(Printable, ShowsWhatATerminalWouldObey) {
    const std::pair<std::string, const char*> texts[] = {
        {"Zo\xc3\xab \xe2\x82\xac \xf0\x9f\x98\x80.jpg", "Zo\xc3\xab \xe2\x82\xac \xf0\x9f\x98\x80.jpg"},
        {"a\tb\nc\x1b[2J\x7f", "a\\x09b\\nc\\x1b[2J\\x7f"},
        {"\xc2\x85\xc2\x9b\xc2\xa0", "\\u0085\\u009b\xc2\xa0"},
        {"\xe2\x80\xaexfdp\xe2\x81\xa9", "\\u202exfdp\\u2069"},
        {"M\xf6ller", "M\\xf6ller"},
        {"\xc0\x9b \xed\xa0\x80 \xf4\x90\x80\x80", "\\xc0\\x9b \\xed\\xa0\\x80 \\xf4\\x90\\x80\\x80"},  // not UTF-8
        {"cut \xe2\x82", "cut \\xe2\\x82"},
        {std::string("\0", 1), "\\x00"},
    };
    for (const auto& [text, shown] : texts)
        EXPECT_EQ(printable(text), shown);
    EXPECT_EQ(printableJson("{\n \"a\": \"\xc2\x9b\x7f\xe2\x80\xae\xc3\xab\xff\"\n}"),
              "{\n \"a\": \"\\u009b\\u007f\\u202e\xc3\xab\\ufffd\"\n}");
}

}  // namespace
}  // namespace tavrin

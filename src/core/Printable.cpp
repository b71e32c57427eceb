#include "core/Printable.h"

#include <cstdint>
#include <cstdio>

namespace tavrin {

namespace {

/// One character of a text: its number and how many bytes it takes.
struct Character {
    std::uint32_t code = 0;
    std::size_t size = 1;
    bool valid = false;  ///< otherwise it is a single byte that is no UTF-8
};

Character characterAt(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) return {first, 1, true};
    const std::size_t size = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (first < 0xc2 || first > 0xf4 || text.size() < size) return {first, 1, false};
    std::uint32_t code = first & (0xffu >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xc0) != 0x80) return {first, 1, false};
        code = (code << 6) | (byte(i) & 0x3fu);
    }
    const bool valid = code >= kSmallest[size] && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff);
    return valid ? Character{code, size, true} : Character{first, 1, false};
}

bool isControl(std::uint32_t code) {
    return code < 0x20 || (code >= 0x7f && code <= 0x9f);
}

bool turnsOrBreaksLine(std::uint32_t code) {
    return code == 0x61c || code == 0x200e || code == 0x200f || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

std::string escaped(const char* form, std::uint32_t code) {
    char text[16];
    std::snprintf(text, sizeof text, form, static_cast<unsigned>(code));
    return text;
}

/// @param escape gives what stands for a character, "" where that is the character itself
template <class Escape>
std::string replaceEach(std::string_view text, const Escape& escape) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = characterAt(text);
        const std::string instead = escape(character);
        result += instead.empty() ? text.substr(0, character.size) : std::string_view(instead);
        text.remove_prefix(character.size);
    }
    return result;
}

}  // namespace

std::string printable(std::string_view text) {
    return replaceEach(text, [](const Character& character) -> std::string {
        if (!character.valid) return escaped("\\x%02x", character.code);
        if (character.code == '\n') return "\\n";
        if (character.code < 0x80 && isControl(character.code)) return escaped("\\x%02x", character.code);
        const bool shown = isControl(character.code) || turnsOrBreaksLine(character.code);
        return shown ? escaped("\\u%04x", character.code) : std::string();
    });
}

// What stands outside the texts of JSON is plain, its line ends included, so only texts change.
std::string printableJson(std::string_view json) {
    return replaceEach(json, [](const Character& character) -> std::string {
        if (!character.valid) return "\\ufffd";
        const bool plain = character.code < 0x7f || !(isControl(character.code) || turnsOrBreaksLine(character.code));
        return plain ? std::string() : escaped("\\u%04x", character.code);
    });
}

}  // namespace tavrin

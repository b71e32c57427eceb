#pragma once

#include <string>

namespace tavrin {

/// Adds a line to lines that line feeds part; an empty one adds nothing.
inline void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty()) lines += '\n';
    lines += line;
}

/// A line, which may end with a full stop or not, and a sentence behind it.
inline std::string withSentence(const std::string& line, const std::string& sentence) {
    return line + (line.ends_with('.') ? " " : ". ") + sentence;
}

}  // namespace tavrin

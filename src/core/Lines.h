#pragma once

#include <string>

namespace tavrin {

/// Adds a line to lines that line feeds part; an empty one adds nothing.
inline void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty()) lines += '\n';
    lines += line;
}

}  // namespace tavrin

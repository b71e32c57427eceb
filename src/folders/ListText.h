#pragma once

#include <string>

namespace tavrin {

/// The text of a batch list file, in UTF-8, with "\n" between its lines.
struct ListText {
    std::string text;
    std::string
        problem;  ///< why there is none, as one plain line with the file's name and, if one is to blame, the line
};

/// Reads a batch list as whoever wrote it meant it. It is UTF-8; UTF-16 and UTF-32 are taken by their byte order
/// mark, or by how their first "<" looks. Where no line ends in "\n", "\r" does.
ListText readListText(const std::string& path);

}  // namespace tavrin

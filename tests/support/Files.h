#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace tavrin::test {

inline std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// Puts one piece of a text in the place of another, which has to be there.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    return at == std::string::npos ? "(the text lacks " + from + ")" : text.replace(at, from.size(), to);
}

}  // namespace tavrin::test

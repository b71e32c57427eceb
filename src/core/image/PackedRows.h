#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tavrin {

/// Rows of RGBA, one behind the other.
struct RowsToPack {
    const std::uint8_t* pixels = nullptr;
    int width = 0, height = 0;
    std::size_t stride = 0;  ///< bytes from row to row
    int channels = 4;        ///< 3 leaves the alpha out
};

/// Packs rows as PNG and PDF files have them: each the difference to the row above it, behind the mark of that, as
/// one stream of deflate. Parts of it are packed side by side; the bytes do not depend on the machine.
/// @param take gets the stream in pieces, in order; false ends it
/// @return false when it was ended
bool packRows(const RowsToPack& rows, const std::function<bool(const std::string& bytes)>& take);

}  // namespace tavrin

#pragma once

#include <cstdint>
#include <span>

namespace tavrin {

/// Whether a block of camera data (the TIFF part, from its byte order mark on) can be parsed in reasonable time. The
/// directories of a camera refer to a few others, each once. Where they refer to themselves, or to very many, the
/// parser follows each reference again and again, for minutes. A block that is damaged in any other way passes.
bool exifIsBounded(std::span<const std::uint8_t> tiff);

/// The same for every such block that may lie anywhere in `bytes`.
bool exifInsideIsBounded(std::span<const std::uint8_t> bytes);

}  // namespace tavrin

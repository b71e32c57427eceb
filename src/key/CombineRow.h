#pragma once

#include <cstdint>

#include "key/KeyOverrides.h"
#include "key/pixel/CombineParams.h"

namespace tavrin {

/// Keys row `y` of a run and writes its pixels, with the vectors of this machine.
void combineRow(const CombineParams& params, const KeyOverrides& overrides, int y);

/// The same, one pixel at a time: what every vector form must equal, byte for byte.
void combineRowPlain(const CombineParams& params, const KeyOverrides& overrides, int y);

/// The alpha that the key with its hair correction gives the pixels of row `y`, a byte each; nothing is written
/// elsewhere.
void keyAlphaRow(const CombineParams& params, const KeyOverrides& overrides, int y, std::uint8_t* to);

}  // namespace tavrin

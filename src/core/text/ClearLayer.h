#pragma once

#include <functional>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Draws into a context that belongs to a record of `info`. Drawing treats the bytes as premultiplied with their
/// alpha, which the combined picture of transparent output is not: its subject is stored in full colour, its empty
/// pixels are grey. There the drawing goes to a clear layer first, which is then laid over the straight pixels, so
/// that soft edges keep their colour.
void drawInto(SystemInfo& info, BitmapContext& context, const std::function<void(BitmapContext&)>& draw);

}  // namespace tavrin

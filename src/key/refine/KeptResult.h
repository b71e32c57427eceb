#pragma once

#include "key/refine/RefineKey.h"

namespace tavrin::refine {

/// As `refineKey`, but a preview that asks for what the last one asked for gets its result again: most sliders of the
/// window leave picture and key as they are. Told by every byte that goes in, so it is never stale. One result is
/// kept in the whole program; a thread that finds it in use does the work.
Refined refinePreview(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result);

}  // namespace tavrin::refine

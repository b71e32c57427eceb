#pragma once

#include "key/refine/RefineKey.h"

namespace tavrin::refine {

/// As `refineKey`, byte for byte, for previews of one picture after the other: what the last one asked for is given
/// again, and of one with another key or taste those steps are taken that go by what has changed. Told by every byte
/// that goes in, so it is never stale. One picture is kept in the whole program, at about 18 bytes a pixel of the
/// preview; a thread that finds it in use does all the work.
Refined refinePreview(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result);

/// Gives back what is kept, unless it is in use.
void forgetPreview();

}  // namespace tavrin::refine

#pragma once

#include "key/refine/finish/RefineTaste.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

enum class Refined {
    done,
    superseded,  ///< a newer request came: the result is of no use
    noScreen,    ///< too little screen to go by, or no subject: nothing was written
};

/// Looks at a keyed picture a second time: the key's alpha says where screen and subject are for sure, and each pixel
/// between is unmixed by the colours around it.
/// @param result RGBA, rows packed: the subject's own colour, in real channels, and its alpha. Neither of the
/// shot's buffers.
/// Throws std::bad_alloc.
Refined refineKey(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result);

}  // namespace tavrin::refine

#pragma once

#include "key/refine/Shot.h"

namespace tavrin::refine {

/// What the settings ask for.
struct RefineTaste {
    float softness = 0.0f;  ///< -1 hard edges, 0 as measured, 1 blurred
    float detail = 1.0f;    ///< of the luma's detail that goes into alpha, 0 to 2
    float ownGreen = 1.0f;  ///< of the subject's own green that stays, 0 to 2
    float shift = 0.0f;     ///< added to the alpha of the edges
    float tint = 0.0f;      ///< how much the middle of the edges gains, -1 to 1

    bool operator==(const RefineTaste&) const = default;
};

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

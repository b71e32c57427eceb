#pragma once

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

}  // namespace tavrin::refine

#pragma once

#include <cstdint>
#include <vector>

#include "core/raster/Rows.h"
#include "key/KeyOverrides.h"
#include "key/pixel/CombineParams.h"

namespace tavrin {

/// Keys the whole picture once, so that what is sure is known, and refines that: the combined buffer then holds the
/// subject's own colours and alpha, and `params.refined` tells so. Clip margins and guard play no part yet.
/// Where there is too little screen or no subject to go by, the plain key stays.
/// @return false when the run was superseded. Throws std::bad_alloc.
bool refineRun(const RunContext& context, const SystemInfo& info, const KeyOverrides& overrides,
               Resolution resolution, CombineParams& params);

/// Gives back what a preview in a view keeps for the next one of the same picture.
void forgetRefinedPreview();

/// Takes the subject as `refineRun` left it in the combined buffer of a run on the same portrait.
void takeRefined(const SystemInfo& info, const std::vector<std::uint8_t>& subject, CombineParams& params);

}  // namespace tavrin

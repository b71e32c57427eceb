#pragma once

#include "core/state/PlaceState.h"
#include "farm/BatchPlan.h"
#include "farm/PictureMaker.h"

namespace tavrin::cli {

/// One frame for all portraits of a batch, as a row of school portraits needs it: the median of the frames of the
/// first 50 that can be read. Every shard of a batch comes to the same.
/// @param maker gives the states of the jobs, which ask for a place of their own
LayerPlace commonPlace(const PictureMaker& maker, const JobSources& sources);

}  // namespace tavrin::cli

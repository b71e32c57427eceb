#pragma once

#include <string>
#include <vector>

#include "farm/BatchJob.h"
#include "farm/PictureMaker.h"

namespace tavrin {

/// Whether a run would write over something that it reads: portraits, backgrounds, states, the list, and the files
/// that states and settings name. Files are told apart by what they are, whatever names lead to them; each is looked
/// at once, and none when no picture is there yet.
/// @param report of the run; may be empty
/// @return "" or one plain line that names both
std::string findOverwrittenInput(const JobSources& sources, const std::string& report,
                                 const std::vector<BatchJob>& jobs, PictureMaker& maker);

}  // namespace tavrin

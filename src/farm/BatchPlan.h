#pragma once

#include <functional>
#include <string>
#include <vector>

#include "farm/BatchJob.h"
#include "farm/OutputNames.h"

namespace tavrin {

struct BatchPlan {
    std::vector<BatchJob> jobs;
    std::string problem;                  ///< why there is no plan, as one plain line; "" when there is one
    std::vector<std::string> passedOver;  ///< files in the folders of pictures that are none by their names
};

/// The jobs in their order: states outermost, backgrounds in the middle, foregrounds innermost, names sorted without
/// regard to case by fixed rules, so that every machine cuts the same list. Files that begin with a full stop are
/// helpers of other programs and left out. Pictures are files of every kind that is read, by their names. Nothing is
/// written, nothing is decoded.
///
/// A job whose picture would have the name of another's carries a `problem`. Numbers go by the place in the list; a
/// job that has its number from an earlier run keeps it, and new ones take those that are free, when `given` is not
/// null.
/// @param accept which files count; null: all
BatchPlan planJobs(const JobSources& sources, const GivenNames* given = nullptr,
                   const std::function<bool(const std::string& path)>& accept = nullptr);

/// Digest of a whole list, equal for equal jobs wherever the folders lie.
std::string digestOfList(const std::vector<BatchJob>& jobs);

}  // namespace tavrin

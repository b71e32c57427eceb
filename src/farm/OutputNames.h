#pragma once

#include <map>
#include <string>
#include <vector>

#include "farm/BatchJob.h"

namespace tavrin {

/// Names that earlier runs gave, by the names of the jobs: `BatchJob::name` to the picture's path below the out
/// folder.
using GivenNames = std::map<std::string, std::string>;

/// Gives each job its file type and the path of its picture, in the style of the sources. Numbers go by the place in
/// the list; with `given`, a job that has its number from an earlier run keeps it, and new ones take those that are
/// free.
void nameOutputs(std::vector<BatchJob>& jobs, const JobSources& sources, const GivenNames* given);

/// Gives a `problem` to each job whose picture would have the name of another's. One that has had the name longer
/// keeps it; else the first of the list.
void findClashes(std::vector<BatchJob>& jobs, const JobSources& sources, const GivenNames* given);

/// A path below a folder without that folder; any other path as it is.
std::string relativeTo(const std::string& folder, const std::string& path);

}  // namespace tavrin

#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "farm/BatchJob.h"

namespace tavrin {

/// What the jobs of a batch are made from.
struct JobSources {
    std::string foregrounds;          ///< folder, or one picture
    std::string backgrounds, states;  ///< folder or one file; may be empty
    std::string out;                  ///< folder of the pictures
    std::string listFile;             ///< batch list; empty: all combinations
    bool subfolders = false;          ///< foregrounds lie in subfolders that are named like their background
    int style = 1;                    ///< `OutputStyle`
    std::string betweenNames;         ///< what parts the names in a combined one
    int fileType = 1;
};

/// Names that earlier runs gave, by the names of the jobs: `BatchJob::name` to the picture's path below the out
/// folder.
using GivenNames = std::map<std::string, std::string>;

struct JobList {
    std::vector<BatchJob> jobs;
    std::string problem;                  ///< why there is no list, as one plain line; "" when there is one
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
JobList planJobs(const JobSources& sources, const GivenNames* given = nullptr,
                 const std::function<bool(const std::string& path)>& accept = nullptr);

/// A path below a folder without that folder; any other path as it is.
std::string relativeTo(const std::string& folder, const std::string& path);

/// Digest of a whole list, equal for equal jobs wherever the folders lie.
std::string digestOfList(const std::vector<BatchJob>& jobs);

}  // namespace tavrin

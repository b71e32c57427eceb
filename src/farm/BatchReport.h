#pragma once

#include <map>
#include <string>
#include <vector>

#include "farm/BatchPipeline.h"

class QJsonArray;

namespace tavrin {

/// How many pictures of a run came to what end.
struct BatchCounts {
    int jobs = 0;  ///< of this run's share
    int done = 0, skipped = 0, failed = 0;
    int left() const { return jobs - done - skipped - failed; }
};

/// Warnings as they stand in reports, in the journal and in what `--json` prints.
QJsonArray describeWarnings(const std::vector<PictureWarning>& warnings);

/// The line of JSON about one job, without the line's end.
std::string describeResult(const JobResult& result, const std::string& outFolder);

/// What a run or a shard did, as lines of JSON: one about the run, one a picture, one with the sums.
class BatchReport {
  public:
    /// @param list digest of the whole list, of `total` jobs
    /// @param outFolder of the pictures
    void begin(const std::string& shard, int total, const std::string& list, const std::string& outFolder);
    void add(const JobResult& result, const std::string& outFolder);
    /// The pictures that a person should look at come first (`urgencyOf`). The file appears whole.
    /// @return "" or one plain line
    std::string write(const std::string& path, const BatchCounts& counts, double seconds) const;

  private:
    struct Line {
        int urgency = 0;
        std::string text;
    };
    std::string head_;
    std::map<int, Line> lines_;  ///< by the job's number; of several runs over a job the last counts
};

/// Whether a report can be written there, which is better known before hours of work than after them. It takes no
/// picture's place.
/// @param outFolder of the pictures, which the run makes if it is not there; "" where no run does
/// @return "" or one plain line
std::string whyNoReport(const std::string& path, const std::string& outFolder);

struct MergedReport {
    BatchCounts counts;
    std::vector<std::string> failures;  ///< one plain line each
    std::string warning;                ///< the shards did not see the same list
    std::string problem;                ///< why nothing was written; one plain line
};

/// Joins the reports of shards into one: each picture once, those first that a person should look at. Where several
/// tell of one picture, one that says it is there counts.
MergedReport mergeReports(const std::vector<std::string>& paths, const std::string& out);

}  // namespace tavrin

#pragma once

#include <functional>
#include <string>

namespace tavrin {

/// One of several processes that share a list of jobs: it makes those whose place, divided by `count`, leaves the
/// rest that is its own.
struct Shard {
    int index = 1, count = 1;  ///< index from 1

    bool has(int number) const { return (number - 1) % count == index - 1; }
    bool isWhole() const { return count == 1; }
};

struct ShardChoice {
    Shard shard;
    std::string problem;  ///< one plain line; "" when the choice is good
};

/// Variables of the process, or of a test.
using Environment = std::function<std::string(const std::string& name)>;
std::string processEnvironment(const std::string& name);

/// Reads "K/N", "auto" or "auto/N". "auto" asks the scheduler that started the process:
/// - Slurm: SLURM_ARRAY_TASK_ID with _MIN, _STEP and _COUNT;
/// - Kubernetes: JOB_COMPLETION_INDEX, counted from 0; the number has to come from "auto/N", since it is in no
/// variable;
/// - AWS Batch: AWS_BATCH_JOB_ARRAY_INDEX, counted from 0, and AWS_BATCH_JOB_ARRAY_SIZE.
/// With "auto/N" the number is N whatever part of the array runs; Slurm's tasks then have to be numbered 1 to N.
ShardChoice chooseShard(const std::string& text, const Environment& environment = processEnvironment);

}  // namespace tavrin

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tavrin {

/// Settings that a list file gives to one job.
struct JobSwitches {
    bool outputTransparency = false, noGreenScreenProcessing = false, blueScreenProcessing = false;
    bool operator==(const JobSwitches&) const = default;
};

/// One picture of a batch on the command line.
struct BatchJob {
    int number = 0;  ///< place in the whole list, from 1, the same for every shard
    /// Paths; an empty background or state is not given: that of the state, or the settings of the command line.
    std::string foreground, background, state;
    std::string name;  ///< tells this job from all others, whatever folder it is run from
    std::string out;   ///< path of the picture
    int fileType = 0;
    std::optional<JobSwitches> switches;
    std::string problem;  ///< why it cannot be made; "" for most
};

}  // namespace tavrin

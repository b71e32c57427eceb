#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "session/SettingChanges.h"

namespace tavrin {

/// What the jobs of a batch are made from.
struct JobSources {
    std::string foregrounds;          ///< folder, or one picture
    std::string backgrounds, states;  ///< folder or one file; may be empty
    std::string out;                  ///< folder of the pictures
    std::string listFile;             ///< batch list; empty: all combinations
    bool subfolders = false;          ///< foregrounds lie in subfolders that are named like their background
    bool editsBeside = false;         ///< files of edits lie among the foregrounds
    int style = 1;                    ///< `OutputStyle`
    std::string betweenNames;         ///< what parts the names in a combined one
    int fileType = 1;
};

/// One picture of a batch on the command line.
struct BatchJob {
    int number = 0;  ///< place in the whole list, from 1, the same for every shard
    /// Paths; an empty background or state is not given: that of the state, or the settings of the command line.
    std::string foreground, background, state;
    std::string name;  ///< tells this job from all others, whatever folder it is run from
    std::string out;   ///< path of the picture
    int fileType = 0;
    std::optional<KeySwitches> switches;
    std::string problem;  ///< why it cannot be made; "" for most
};

}  // namespace tavrin

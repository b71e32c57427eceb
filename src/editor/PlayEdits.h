#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/state/SystemInfo.h"
#include "editor/EditFile.h"

namespace tavrin {

/// What became of a file of edits.
struct PlayedEdits {
    std::string problem;                ///< why nothing was played, as one plain line; empty when it was
    std::vector<std::string> warnings;  ///< what somebody should look at, each as one plain line
};

/// Plays a file of edits on the finished full picture of a state, as the editor would: positions follow the height of
/// the picture, the radius of the brushes does so only where `scaleRadius`. A selection that stands at the end is
/// taken off, so that its pattern does not go out with the picture. No loop may run on the state meanwhile.
/// @param undoFolder a folder of its own for steps of undo, which is emptied
PlayedEdits playEdits(SystemInfo& info, const EditFile& file, bool scaleRadius,
                      const std::filesystem::path& undoFolder);

}  // namespace tavrin

#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What came of a state file.
struct LoadedStateFile {
    std::string problem;      ///< why it could not be read; the state is as it was then
    std::string sizeProblem;  ///< why its output size cannot be had; all the rest was taken, the size is the old one
    bool newSize = false;     ///< `ChangeImageSize` has to put another size into force
    bool isStart = false;     ///< what every picture starts from; it places no portrait
};

/// Loads a whole state file and selects its output size (`selectStoredSize`). The pixel sizes of the file never come
/// to stand beside buffers of another size: the geometry is that of before until `ChangeImageSize`. Every state file
/// that is opened, at start, by hand, for a batch or on the command line, comes in this way.
[[nodiscard]] LoadedStateFile loadStateFile(SystemInfo& info, const std::string& path);

/// Loads a state file as the user's choice and flags what a pass must redo. The size of the buffers stays until the
/// next pass takes the file's size. A size that cannot be had is told in an alert, and the present one stays. Call it
/// where no stage runs: before the loop starts, or as a job of the loop's (`CombineThread::post`).
/// @return "" when done; otherwise one line, and the state is as it was
std::string openStateFile(SystemInfo& info, const std::string& path);

}  // namespace tavrin

#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What came of a state file.
struct LoadedState {
    std::string problem;      ///< why it could not be read; the state is as it was then
    std::string sizeProblem;  ///< why its output size cannot be had; all the rest was taken, the size is the old one
    bool isStart = false;     ///< the state that the program ships, which places no portrait
};

/// Loads a whole state file, chooses its output size (`chooseStoredSize`) and flags what a pass must redo, which is
/// everything. The pixel sizes of the file never come to stand beside buffers of another size: the geometry is that
/// of before until the size is in force. Every state file that is opened, at start, by hand, for a batch or on the
/// command line, comes in this way. Call it where no stage runs: before the loop starts, or on its thread.
[[nodiscard]] LoadedState loadState(SystemInfo& info, const std::string& path);

/// The same for the state that the program ships, which lies in the program itself and is the same on every machine.
[[nodiscard]] LoadedState loadShippedState(SystemInfo& info);

enum class Portrait {
    ofState,  ///< the one that the state names
    stays     ///< the one that was there: a recipe for many portraits
};

/// Loads a state file as the user's choice: a size that cannot be had is told in an alert, and the present one stays.
/// @return "" when done; otherwise one line, and the state is as it was
std::string openState(SystemInfo& info, const std::string& path, Portrait portrait = Portrait::ofState);

}  // namespace tavrin

#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What must be made anew before the next key when a setting has changed; several are added up. What a pass reads as
/// it goes needs the pass alone, `kRedoNothing`.
enum Redo : unsigned {
    kRedoNothing = 0,
    kRedoForegroundSource = 1,  ///< load the file again, and all that follows from it
    kRedoBackgroundSource = 2,
    kRedoForegroundLayer = 4,  ///< draw the layer into its buffers again
    kRedoBackgroundLayer = 8,  ///< the same, with all that lies on the background
    kRedoShadow = 16,          ///< the background's layer, if a shadow lies on it
    kRedoOutputSize = 32       ///< buffers of another size, and the window that shows them
};

/// What follows from a change of the setting of this name (SettingNames.h), as a sum of `Redo`. For an item of the
/// text and picture list that depends on its level, so ask before and after the change. The one table of this is
/// here.
unsigned redoOf(const SystemInfo& info, const std::string& name);

/// Raises the change flags of the records and of the output size. The caller asks for the pass.
void raiseFlags(SystemInfo& info, unsigned redo);

}  // namespace tavrin

#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Measures the colour of the screen behind the subject in the foreground picture: one global colour (`baseRed`,
/// `baseGreen`, `baseBlue`) and a grid of 20 x 20 local ones with their counts (`ScreenColor`). With
/// `bUseBlueLogic` the green role is played by the third byte and the blue role by the second.
///
/// A picture without a screen, or with a size below 1, gives a usable fallback colour. Without a buffer nothing is
/// done. It must not run while the key runs on the same state.
/// @param mode 0: measure the foreground's preview buffer; otherwise its source, of which the statistics read a part
void ComputeBaseGreen(SystemInfo& info, int ignored, int mode);

/// The global colour alone, without the grid, which costs a look at every pixel. For a source that was just loaded:
/// its colour fills what the layer leaves empty, and its grid would be measured again before anything reads it.
void ComputeBaseColor(SystemInfo& info, int mode);

}  // namespace tavrin

#pragma once

#include "core/state/RunState.h"

namespace tavrin {

/// Loads the icons of the text tools.
void loadTextIcons(StartUpPictures& pictures);

/// Loads the pencils and the paper of the sketch that are not loaded yet. The desktop program has them from its
/// start, the command line gets them before its first sketch. On the processing thread, or before it starts.
void loadSketchPictures(StartUpPictures& pictures);

}  // namespace tavrin

#pragma once

#include "session/SettingEditor.h"

namespace tavrin {

/// Turns a layer by the key equivalent of a button: "1" to "3" the foreground upright, by 90 and by 270 degrees, "4"
/// to "6" the background, "7" to "9" and "a" the active layer by 0, 90, 180 and 270. Any key has the active layer's
/// source read again, too.
void clickedRotationRadiobutton(SettingEditor& editor, char key);

}  // namespace tavrin

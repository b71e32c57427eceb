#pragma once

#include <QIcon>

namespace tavrin {

/// An icon of the window: a line drawing in the text's colour of the present palette, so that it is seen in every
/// theme, drawn anew for each size, so that it is sharp on every screen.
/// @param name as the icon theme has it, and after a '/' the drawing of our own where it has none: "zoom-in/larger"
/// @return null where there is neither
QIcon lineIcon(const QString& name);

/// Takes Breeze, the theme of such line drawings, for dialogs, too, where it is installed.
void useIconTheme(bool dark);

}  // namespace tavrin

#pragma once

#include <QString>

namespace tavrin {

/// How the window looks. `desktop` follows the colours that the desktop has at the start.
enum class Theme { desktop, light, dark };

/// "desktop", "light" or "dark"; any other name is the desktop's.
QString nameOf(Theme theme);
Theme themeOf(const QString& name);
/// Gives the whole program this look.
void useTheme(Theme theme);
/// The look that was chosen last, and the choice of one for every start to come.
Theme chosenTheme();
void chooseTheme(Theme theme);

}  // namespace tavrin

#pragma once

#include <QLocale>

#include "ui/settings/SettingsPage.h"

namespace tavrin {

// What a person chooses once for every start to come, beside the settings of the installation.

/// The language of the words, the desktop's where none was chosen.
QLocale chosenLanguage();
/// Lets the engine use as many threads as were chosen; pictures are the same with any number.
void useChosenThreads();
/// The extension that names of pictures are proposed with, with its full stop; "" for that of the portrait.
QString chosenFileType();

/// The lists of the settings page that choose these and the colours of the window.
std::vector<ListSetting> habitLists();

}  // namespace tavrin

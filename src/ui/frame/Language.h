#pragma once

#include <QLocale>

namespace tavrin {

/// The window's words, and those of the toolkit's dialogs, in the first of the locale's languages that there is; in
/// English otherwise. To be called before a window is made.
void useLanguage(const QLocale& locale);

}  // namespace tavrin

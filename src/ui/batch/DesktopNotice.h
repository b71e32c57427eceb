#pragma once

#include <QString>

namespace tavrin {

/// Shows a notification of the desktop. Nothing happens where there is nobody to show it, and nobody waits for it.
void notifyDesktop(const QString& title, const QString& text);

}  // namespace tavrin

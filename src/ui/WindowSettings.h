#pragma once

#include <QSettings>

#include "core/files/NameText.h"
#include "core/files/Places.h"

namespace tavrin {

/// What the window remembers for itself from start to start.
inline QSettings windowSettings() {
    return QSettings(textOfName(Places::current().windowFile()), QSettings::IniFormat);
}

}  // namespace tavrin

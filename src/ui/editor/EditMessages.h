#pragma once

#include <QString>

#include "editor/EditMessage.h"

namespace tavrin {

/// What the editor says, in the language of the window.
QString translatedEditMessage(const EditMessage& message);

}  // namespace tavrin

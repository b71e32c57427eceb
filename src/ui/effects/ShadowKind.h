#pragma once

#include <QString>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Whether a shadow is drawn that the panel knows: on a wall, the floor, or both.
bool hasShadow(const SystemInfo& info);

/// "wall" and the like, for a list of what is on; "" without a shadow.
QString shadowWord(const SystemInfo& info);

/// The title of the shadow panel (`textShadowType`).
QString shadowTitle(const SystemInfo& info);

}  // namespace tavrin

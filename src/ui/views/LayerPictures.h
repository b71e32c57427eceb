#pragma once

#include <QImage>

#include "core/state/SystemInfo.h"

namespace tavrin {

// Pictures for the view beside the combined one, from the buffers of the full picture. Jobs of the loop's.

/// The portrait as it was taken, at its place in the picture, not larger than `most`. Null without a buffer.
QImage originalPicture(const SystemInfo& info, QSize most);

/// The key's alpha as grey: the subject dark, 255 less the alpha byte that stands with the background. Not larger
/// than `most`, and null without a buffer.
QImage alphaPicture(const SystemInfo& info, QSize most);

}  // namespace tavrin

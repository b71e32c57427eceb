#pragma once

#include <QImage>

#include "key/CombineParams.h"

namespace tavrin {

/// Loads the picture that fills the silhouette into `picture`, which must live as long as `params`, and lets the
/// fill read from it. Nothing is loaded when the silhouette is off or its file name is empty.
/// @return false when the file can't be read
bool loadSilhouette(const SystemInfo& info, CombineParams& params, QImage& picture);

}  // namespace tavrin

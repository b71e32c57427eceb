#pragma once

#include <cstdint>
#include <vector>

#include "key/pixel/CombineParams.h"

namespace tavrin {

/// Separates the subject from the screen and lays it over the background, pixel by pixel: foreground and background
/// buffers of the run's size in, combined buffer out. The alpha bytes of the background's buffer receive the key's
/// alpha of every pixel; the combined buffer's alpha is 255 except in transparent output. Without buffers, or with
/// a size below 1, nothing is done. With a lighting mode the light is worked out at the start of the run, and
/// `info.oLightingMap` is empty again after it. No file is read: a silhouette is filled with `silhouettePicture`, or
/// with its plain colour where that is null. Throws std::bad_alloc, with nothing written yet.
///
/// A full-resolution run publishes each tenth of its rows, clearing `bShowLowRes`, and stops at the next row when
/// the state is stale. A preview run always ends.
/// @param hiRes 0: the preview buffers; otherwise the full ones
void Combine(SystemInfo& info, int ignored, int hiRes);

/// The preview's run with the plain key, whatever `bRefineKey` says: quick, and enough to see where the subject is.
void combinePreviewPlainly(SystemInfo& info);

/// What the refined key found of a portrait, to be laid over one background after the other.
struct RefinedSubject {
    std::vector<std::uint8_t> pixels;  ///< own colours and alpha, RGBA; empty until it was found
};

/// The preview's run, which refines the key only while `subject` is not known. As long as nothing but the background
/// changes it makes what `Combine` makes, byte for byte.
void combinePreviewOver(SystemInfo& info, RefinedSubject& subject);

}  // namespace tavrin

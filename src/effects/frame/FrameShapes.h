#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

// The shapes of a frame. Each paints the frame's place into a mask of 4 bytes a pixel, `width` x `height`, that
// starts as zeros: white (255 in the first three bytes, the fourth stays) where the frame lies. The third byte is the
// frame's weight; line walks test the first. A line that a shape draws for itself is red, so that it has no weight
// until a fill turns it white. No thickness, however wild, reaches beyond the mask.

/// A border of `iFrameThickness` percent of the shorter side; nothing below one percent pixel. With `bFrameArch` the
/// lower side stays open.
void DrawRectFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, int width, int height);

/// Everything outside an ellipse whose margin is `iFrameThickness` percent of half the width on all sides, painted as
/// outlines that grow by half a pixel until they have left the picture. With `bFrameArch` the lower half of the
/// opening has straight sides that run off the bottom. A superseded run leaves some outlines out.
void DrawOvalFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, int width, int height,
                   const RunContext& run = {});

/// Everything outside a heart; its outline, three lines thick, stays without weight. Ends early when the state is
/// stale, unless `bLightingForceCompute` is set.
void DrawHeartFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, int width, int height);

/// A border with a random zigzag edge, the same on each run: teeth as wide as one or two times a sixteenth of an inch
/// at `dpi`, which reach from `iFrameThickness` percent of the shorter side to between a quarter and three quarters
/// of it.
void DrawJaggedFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, int width, int height, int dpi);

/// A red line (255, 0, 0) from one point to the other, both included, without gaps; what lies outside the mask is
/// left out.
void DrawRedLine(int x0, int y0, int x1, int y1, std::uint8_t* mask, int width, int height);

}  // namespace tavrin

#pragma once

#include <cstdint>

#include "core/state/SystemInfo.h"

namespace tavrin {

// Light over the picture: a map of `width` x `height` gains in thousandths (v multiplies a pixel by 1 + v / 1000),
// rows packed, all 0 when a shape begins. `hiRes` 0 is a preview run, which takes the preview's DPI and buffers. A
// shape stops when the state is stale and leaves the map as it is, unless `bLightingForceCompute` is set. Sizes below
// 1 and a null map do nothing. A light slider s is the gain 30 s - 1500.

/// The shape of `iLightingMode`: 1 sheet, 2 circle, 3 cone, 4 glow; any other mode leaves the map.
void EffectsLighting(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes);

/// Graded light over the whole picture, from the start light at one side or corner to the end light. At angle 0 it
/// runs downwards, at 90 to the right, at 180 upwards; near these and 270 the angle is taken for the multiple of 90.
void EffectsLightingSheet(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes);

/// A soft disc around (x, y) in 400ths of the picture, of `iLightingSliderSize` 200ths of the height: start light in
/// the middle, end light at the rim, nothing outside.
void EffectsLightingCircle(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes);

/// A soft beam of `iLightingSliderSize` hundredths of the height from an apex, start light there and end light at its
/// wide end. It points to the right at angle 0 and turns clockwise; the apex lies in the middle for positions of 50.
void EffectsLightingCone(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes);

/// The subject's own shape, blurred by `iLightingSliderSize` 800ths of the height, with the gain 50 e - 2500 for the
/// end light e. Without pictures, or when the silhouette's picture can't be read, the map stays.
void EffectsLightingGlow(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes);

/// Sets the cells of the straight line from (x0, y0) to (x1, y1), ends included, that lie inside the map. The line is
/// walked by rows and by columns, so that it has no gaps at any slope.
/// @return whether a cell was set
bool DrawLightingLine(double x0, double y0, double x1, double y1, std::int32_t* map, int width, int height,
                      std::int32_t value);

/// The map of a `Combine` run: `info.oLightingMap` is made and filled when `iLightingMode` is not 0, and empty
/// again when this object is gone.
class LightingRun {
  public:
    LightingRun(SystemInfo& info, Resolution resolution);
    ~LightingRun();
    LightingRun(const LightingRun&) = delete;
    LightingRun& operator=(const LightingRun&) = delete;

  private:
    SystemInfo& info_;
};

}  // namespace tavrin

#pragma once

#include <QRectF>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// How a layer's source fits the output: the size that it is drawn at before the user's scale, in pixels of one
/// geometry, and the factor that gives it.
struct LayerFit {
    int outputWidth = 0, outputHeight = 0;
    double width = 0.0, height = 0.0;
    double scale = 1.0;
};

/// The fit of a record that has a source.
LayerFit fitSource(const SystemInfo& info, const BitmapInfo& record, Resolution resolution);

LayerPlace placeOf(const BitmapInfo& record);
void setPlace(BitmapInfo& record, const LayerPlace& place);

/// Where the source goes, in pixels from the bottom left of the output. Growth in scale stays centred on the unscaled
/// rectangle, which begins at the lower left.
QRectF placedRect(const LayerPlace& place, const LayerFit& fit);

}  // namespace tavrin

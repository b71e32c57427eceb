#include "pipeline/LayerFit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tavrin {

namespace {

// Truncated to a whole number of pixels; any double is accepted.
double truncated(double value) {
    return static_cast<double>(static_cast<std::int64_t>(std::clamp(value, -1e15, 1e15)));
}

}  // namespace

LayerFit fitSource(const SystemInfo& info, const BitmapInfo& record, Resolution resolution) {
    const PassGeometry size = info.geometry(resolution);
    const double sx = static_cast<double>(size.width) / record.iOrgWidth;
    const double sy = static_cast<double>(size.height) / record.iOrgHeight;
    const bool sourceIsPortrait = record.iOrgHeight > record.iOrgWidth;
    const bool outputIsPortrait = info.iOutputPixelLowResHeight > info.iOutputPixelLowResWidth;
    // A standing person in a wide picture is shown whole; everything else covers the output.
    const bool wholePerson = record.iBitmapType == BitmapInfo::kForeground && sourceIsPortrait && !outputIsPortrait;
    LayerFit fit{size.width, size.height, 0.0, 0.0, wholePerson ? sy : std::max(sx, sy)};
    if (wholePerson || sy > sx) {
        fit.width = truncated(sy / sx * size.width);
        fit.height = size.height;
    } else {
        fit.width = size.width;
        fit.height = truncated(sx / sy * size.height);
    }
    return fit;
}

LayerPlace placeOf(const BitmapInfo& record) {
    return {record.fScale, record.iOrgXoff, record.iOrgYoff};
}

void setPlace(BitmapInfo& record, const LayerPlace& place) {
    record.fScale = place.scale;
    record.iOrgXoff = place.x;
    record.iOrgYoff = place.y;
}

QRectF placedRect(const LayerPlace& place, const LayerFit& fit) {
    const double scale = std::isfinite(place.scale) ? place.scale : 1.0;
    double x = static_cast<double>(static_cast<std::int64_t>(fit.outputWidth) * place.x / 1000);
    double y = static_cast<double>(static_cast<std::int64_t>(fit.outputHeight) * place.y / 1000);
    x -= (fit.width * scale - fit.width) * 0.5;
    y -= (fit.height * scale - fit.height) * 0.5;
    return QRectF(x, y, scale * fit.width, scale * fit.height);
}

}  // namespace tavrin

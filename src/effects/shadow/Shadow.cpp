#include "effects/shadow/Shadow.h"

#include <algorithm>
#include <cmath>

#include "core/BackgroundThread.h"
#include "core/raster/Pixels.h"
#include "effects/shadow/ShadowMask.h"

namespace tavrin {

namespace {

constexpr double kFloorLight = 150.0, kWallLight = 200.0;  // grey of the virtual room

// How a mask darkens the background.
struct ShadowTone {
    int width = 0, height = 0;
    int reach = 1;           // pixels that the blur reaches to either side
    double strength = 0.0;   // 1: full shadow is black
    double roomShare = 0.0;  // of the virtual room in what is shown
};

// Sliders are 32-bit numbers of any value.
double slider(const Field<std::int32_t>& field, std::int64_t times, std::int64_t over, std::int64_t centre = 500) {
    return static_cast<double>((field.load() - centre) * times / over);
}

ShadowGeometry makeGeometry(const SystemInfo& info, const PassGeometry& size) {
    const auto floorRow = [&](const Field<std::int32_t>& room) {
        return size.height - slider(room, size.height, 1000, 0);
    };
    const double angle = (info.iSliderFloorBaseAngle - 500.0) / 1000.0;
    ShadowGeometry g;
    g.width = size.width;
    g.height = size.height;
    g.shiftX = slider(info.iSliderShadowRightLeft, size.width, 500);
    g.shiftY = slider(info.iSliderShadowUpDown, size.height, 500);
    g.base = slider(info.iSliderShadowBase, size.height, 500);
    g.scale = info.iSliderShadowScale / 500.0;
    g.sine = std::sin(angle);
    g.cosine = std::cos(angle);
    g.skew = (info.iSliderFloorSkew - 500.0) / 100.0;
    g.behind = info.iCheckShadowBehind != 0;
    g.room = info.iSliderVRoomRight != 0 || info.iSliderVRoomLeft != 0;
    g.floorLeft = floorRow(info.iSliderVRoomLeft);
    g.floorStep = (floorRow(info.iSliderVRoomRight) - g.floorLeft) / size.width;
    return g;
}

ShadowClip makeClip(SystemInfo& info, const PassGeometry& size) {
    for (Field<std::int32_t>* clip :
         {&info.iSliderClipTop, &info.iSliderClipBottom, &info.iSliderClipLeft, &info.iSliderClipRight}) {
        if (*clip < 0) *clip = 0;
    }
    return {slider(info.iSliderClipLeft, size.width, 100, 0), slider(info.iSliderClipTop, size.height, 100, 0),
            size.width - slider(info.iSliderClipRight, size.width, 100, 0),
            size.height - slider(info.iSliderClipBottom, size.height, 100, 0)};
}

ShadowTone makeTone(const SystemInfo& info, const PassGeometry& size, bool preview) {
    const double blur = slider(info.iSliderShadowBlur, size.height, 50'000, 0);
    ShadowTone tone;
    tone.width = size.width;
    tone.height = size.height;
    tone.reach =
        static_cast<int>(std::clamp(blur + 1.0, 0.0, static_cast<double>(std::max(size.width, size.height))));
    tone.strength = info.iSliderShadowTransparency / 1000.0;
    tone.roomShare = preview ? info.iSliderVRoomTransparency / 1000.0 : 0.0;
    return tone;
}

// Sums of the mask over the rows that the blur reaches from a row, for each column.
class ColumnSums {
  public:
    ColumnSums(const ShadowTone& tone, const std::uint8_t* mask, int firstRow)
        : tone_(tone), mask_(mask), row_(firstRow), sums_(static_cast<std::size_t>(tone.width)) {
        for (int y = std::max(firstRow - tone.reach, 0); y <= lastRow(); ++y)
            add(y, 1);
    }

    void moveDown() {
        if (row_ >= tone_.reach) add(row_ - tone_.reach, -1);
        ++row_;
        if (row_ + tone_.reach < tone_.height) add(row_ + tone_.reach, 1);
    }
    int rows() const { return lastRow() - std::max(row_ - tone_.reach, 0) + 1; }
    const int* data() const { return sums_.data(); }

  private:
    int lastRow() const { return std::min(row_ + tone_.reach, tone_.height - 1); }
    void add(int y, int sign) {
        const std::uint8_t* row = mask_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(tone_.width);
        for (std::size_t x = 0; x < sums_.size(); ++x)
            sums_[x] += sign * row[x];
    }

    const ShadowTone& tone_;
    const std::uint8_t* mask_;
    int row_;
    std::vector<int> sums_;
};

// Darkens row y by the mean of the mask around each pixel.
void darkenRow(const ShadowTone& tone, const ColumnSums& columns, const ShadowColumns& places, int y,
               std::uint8_t* pixel) {
    const int* sums = columns.data();
    const int rows = columns.rows(), reach = tone.reach, width = tone.width;
    int sum = 0;
    for (int x = 0; x < std::min(reach, width); ++x)
        sum += sums[x];
    for (int x = 0; x < width; ++x, pixel += kPixelBytes) {
        if (x + reach < width) sum += sums[x + reach];
        if (x > reach) sum -= sums[x - reach - 1];
        if (sum == 0 && tone.roomShare == 0.0) continue;
        const int area = rows * (std::min(x + reach, width - 1) - std::max(x - reach, 0) + 1);
        const double f = clampTo(1.0 - static_cast<double>(sum) / area * tone.strength, 0.0, 1.0);
        const double light = y > places.floorRow[static_cast<std::size_t>(x)] ? kFloorLight : kWallLight;
        for (int i = 0; i < 3; ++i)
            pixel[i] = toByte(f * (light * tone.roomShare + (1.0 - tone.roomShare) * pixel[i]));
    }
}

void darken(const RunContext& context, const ShadowTone& tone, const ShadowColumns& places, const std::uint8_t* mask,
            std::uint8_t* background) {
    // Each run of rows sums its first window anew; runs as long as the window keep that cheap.
    const int grain = std::max(2 * tone.reach, 32);
    runRowRanges(context, tone.height, grain, [&](int first, int last) {
        ColumnSums sums(tone, mask, first);
        for (int y = first; y < last; ++y) {
            if (y != first) {
                GivingWay::ask();
                if (context.isSuperseded()) return;
                sums.moveDown();
            }
            darkenRow(tone, sums, places, y, background + pixelOffset(tone.width, 0, y));
        }
    });
}

// The line that the subject stands on, in the preview alone.
void drawBaseline(const ShadowGeometry& g, double angle, std::uint8_t* background) {
    for (int x = 0; x < g.width; ++x) {
        const double y = g.height - std::trunc(g.base - x * angle);
        if (!(y >= 0.0 && y < g.height)) continue;
        std::uint8_t* pixel = background + pixelOffset(g.width, x, static_cast<int>(y));
        pixel[0] = 255;
        pixel[1] = pixel[2] = 0;
    }
}

}  // namespace

void AddShadow(SystemInfo& info, int /*ignored*/, int hiRes) {
    const Resolution resolution = fullIf(hiRes != 0);
    const bool preview = resolution == Resolution::preview;
    const PassGeometry size = info.geometry(resolution);
    const std::uint8_t* source = info.pForegroundBitmapInfo->bytes(resolution);
    std::uint8_t* target = info.pBackgroundBitmapInfo->bytes(resolution);
    if (size.width < 1 || size.height < 1 || !source || !target) return;
    const ShadowClip clip = makeClip(info, size);
    const ShadowColumns columns(makeGeometry(info, size));
    const ShadowKey key(info.bUseBlueLogic, {info.baseRed, info.baseGreen, info.baseBlue},
                        2.0 * info.iSliderShadowBlack, 2.0 * info.pCombinedBitmapInfo->sliderRemoveGreenAreas);
    const ShadowTone tone = makeTone(info, size, preview);
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
    const auto maskRow = [&](int y) {
        return mask.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width);
    };
    const RunContext context = preview ? RunContext{} : info.rowsWhileCurrent();
    runRows(context, size.height, 8, [&](int y) { shadowMaskRow(columns, key, clip, source, y, maskRow(y)); });
    darken(context, tone, columns, mask.data(), target);
    if (preview) drawBaseline(columns.geometry, (info.iSliderFloorBaseAngle - 500.0) / 1000.0, target);
}

}  // namespace tavrin

#include "key/light/Lighting.h"

#include <algorithm>
#include <new>

#include "core/raster/BoxBlur.h"
#include "core/raster/Pixels.h"
#include "key/light/GlowRow.h"
#include "key/light/LightingShapes.h"
#include "key/pixel/ChannelRoles.h"
#include "key/spill/SpillKey.h"

namespace tavrin {

namespace {

// The foreground in roles.
Rgb rawColor(const GlowParams& params, int x, int y) {
    const std::uint8_t* p = params.hair.pixels + pixelOffset(params.hair.width, x, y);
    const ChannelRoles roles(params.key.blueLogic);
    return {static_cast<double>(p[0]), static_cast<double>(p[roles.green]), static_cast<double>(p[roles.blue])};
}

// The pixel of the key's first call, counted in scan order; -1 where all is screen.
std::int64_t firstKeyed(const GlowParams& params, const SpillKey& key) {
    for (int y = 0; y < key.iHeight; ++y) {
        for (int x = 0; x < key.iWidth; ++x) {
            if (!(distance(rawColor(params, x, y), params.screen) < GlowParams::kScreenDistance))
                return std::int64_t{y} * key.iWidth + x;
        }
    }
    return -1;
}

// The cell of that pixel, which held `before`.
std::int32_t glowOfFirst(const SpillKey& key, const GlowParams& params, int x, int y, std::int32_t before) {
    const double amount = key.amountAt(x, y, rawColor(params, x, y), SpillCall::kFirst);
    return amount > GlowParams::kSolid ? params.gain : before;
}

// A row of the shape by the alpha that the refined key left with the background.
void glowOfRefined(const GlowParams& params, const std::uint8_t* background, int y, std::int32_t* row) {
    const std::uint8_t* alpha = background + pixelOffset(params.key.width, 0, y) + 3;
    for (int x = 0; x < params.key.width; ++x, alpha += kPixelBytes) {
        if (distance(rawColor(params, x, y), params.screen) < GlowParams::kScreenDistance) {
            row[x] = 0;
        } else if (*alpha / 255.0 > GlowParams::kSolid) {
            row[x] = params.gain;
        }
    }
}

}  // namespace

void EffectsLighting(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes) {
    switch (info.iLightingMode) {
        case 1:
            return EffectsLightingSheet(info, map, width, height, hiRes);
        case 2:
            return EffectsLightingCircle(info, map, width, height, hiRes);
        case 3:
            return EffectsLightingCone(info, map, width, height, hiRes);
        case 4:
            return EffectsLightingGlow(info, map, width, height, hiRes);
        default:
            return;
    }
}

// The key takes no light, so that the lighting mode may stay as it is, where a control may change it at any time.
void EffectsLightingGlow(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes) {
    SpillLayers layers = SpillLayers::of(info, fullIf(hiRes != 0));
    if (!map || layers.width != width || layers.height != height) return;
    const SpillKey key(info, layers);
    if (!key.isReady()) return;
    const GlowParams params{key.constants(),
                            key.hair(),
                            {info.baseRed, info.baseGreen, info.baseBlue},
                            toGain(info.iLightingSliderEndLight * 50.0 - 2500.0)};
    const std::int64_t radius = std::int64_t{info.iLightingSliderSize} * height / 800;

    const bool refined = refinesKey(info);
    const std::int64_t first = refined ? -1 : firstKeyed(params, key);
    const bool finished = runRows(info.rowsWhileWanted(), height, 8, [&](int y) {
        std::int32_t* row = map + static_cast<std::ptrdiff_t>(y) * width;
        if (refined) return glowOfRefined(params, key.pBOrg, y, row);
        const std::int64_t x = first - std::int64_t{y} * width;
        const bool hasFirst = x >= 0 && x < width;
        const std::int32_t before = hasFirst ? row[x] : 0;
        glowRow(params, y, row);
        if (hasFirst) row[x] = glowOfFirst(key, params, static_cast<int>(x), y, before);
    });
    if (finished) blurMap(info, map, width, height, static_cast<int>(std::min(radius, kFarAway)));
}

LightingRun::LightingRun(SystemInfo& info, Resolution resolution) : info_(info) {
    const PassGeometry size = info.geometry(resolution);
    const int width = size.width, height = size.height;
    info.oLightingMap.clear();
    if (info.iLightingMode == 0 || width < 1 || height < 1) {
        info.oLightingMap.shrink_to_fit();
        return;
    }
    info.oLightingMap.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    // A preview always gets its light. A full picture that is superseded keys no pixel, so it needs none.
    info.bLightingForceCompute = resolution == Resolution::preview;
    try {
        EffectsLighting(info, info.oLightingMap.data(), width, height, numberOf(resolution));
    } catch (...) {
        info.bLightingForceCompute = false;
        info.oLightingMap.clear();
        throw;
    }
    info.bLightingForceCompute = false;
}

// The memory stays for the next run, as the first touch of new memory takes longer than the light.
LightingRun::~LightingRun() {
    info_.oLightingMap.clear();
}

std::int32_t toGain(double gain) {
    return static_cast<std::int32_t>(clampTo(gain, -2e9, 2e9));
}

double sliderGain(const Field<std::int32_t>& slider) {
    return slider * 30.0 - 1500.0;
}

void blurMap(const SystemInfo& info, std::int32_t* map, int width, int height, int radius) {
    const PixelBuffer soft(width, height);
    if (!soft.data()) throw std::bad_alloc();
    const RunContext context = info.rowsWhileWanted();
    if (!gaussBlur_Int(context, map, soft.numbers(), width, height, radius)) return;
    runRows(context, height, 16, [&](int y) {
        const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(y) * width;
        std::copy_n(soft.numbers() + row, width, map + row);
    });
}

void softenShape(const SystemInfo& info, std::int32_t* map, int width, int height, Resolution resolution) {
    blurMap(info, map, width, height, std::max(info.geometry(resolution).dpi / 10, 1));
}

}  // namespace tavrin

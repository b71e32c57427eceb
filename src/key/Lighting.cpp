#include "key/Lighting.h"

#include <algorithm>
#include <memory>
#include <new>

#include "core/Log.h"
#include "core/raster/BoxBlur.h"
#include "core/raster/Pixels.h"
#include "key/ChannelRoles.h"
#include "key/LightingShapes.h"
#include "key/SpillKey.h"

namespace tavrin {

namespace {

constexpr double kScreenDistance = 4.0;  // nearer than this to the screen colour, a pixel is screen
constexpr double kSolid = 0.9;           // above this amount, a pixel is the subject

// The foreground in roles, as the glow's key looks at it.
struct GlowSource {
    const SpillKey& key;
    Rgb screen;
    ChannelRoles roles;

    Rgb colorAt(int x, int y) const {
        const std::uint8_t* p = key.pFOrg + pixelOffset(key.iWidth, x, y);
        return {static_cast<double>(p[0]), static_cast<double>(p[roles.green]), static_cast<double>(p[roles.blue])};
    }
    bool isScreen(const Rgb& c) const { return distance(c, screen) < kScreenDistance; }

    // The pixel of the key's first call, counted in scan order.
    std::int64_t firstKeyed() const {
        for (int y = 0; y < key.iHeight; ++y) {
            for (int x = 0; x < key.iWidth; ++x) {
                if (!isScreen(colorAt(x, y))) return std::int64_t{y} * key.iWidth + x;
            }
        }
        return -1;
    }
};

void glowRow(const GlowSource& source, std::int64_t firstKeyed, std::int32_t gain, std::int32_t* row, int y) {
    const std::int64_t before = std::int64_t{y} * source.key.iWidth;
    for (int x = 0; x < source.key.iWidth; ++x) {
        const Rgb c = source.colorAt(x, y);
        if (source.isScreen(c)) {
            row[x] = 0;
            continue;
        }
        const SpillCall call = before + x == firstKeyed ? SpillCall::kFirst : SpillCall::kLater;
        if (source.key.amountAt(x, y, c, call) > kSolid) row[x] = gain;
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
    SpillLayers layers = SpillLayers::of(info, hiRes);
    if (!map || layers.width != width || layers.height != height) return;
    const SpillKey key(info, layers);
    if (!key.isReady()) return;
    const GlowSource source{key, {info.baseRed, info.baseGreen, info.baseBlue}, ChannelRoles(info.bUseBlueLogic)};
    const std::int32_t gain = toGain(info.iLightingSliderEndLight * 50.0 - 2500.0);
    const std::int64_t radius = std::int64_t{info.iLightingSliderSize} * height / 800;

    const std::int64_t firstKeyed = source.firstKeyed();
    const bool finished = runRows(info.rowsWhileWanted(), height, 8, [&](int y) {
        glowRow(source, firstKeyed, gain, map + static_cast<std::size_t>(y) * static_cast<std::size_t>(width), y);
    });
    if (finished) blurMap(nullptr, map, width, height, static_cast<int>(std::min(radius, kFarAway)));
}

LightingRun::LightingRun(SystemInfo& info, int width, int height, int hiRes) : info_(info) {
    info.oLightingMap = {};
    if (info.iLightingMode == 0 || width < 1 || height < 1) return;
    try {
        info.oLightingMap.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
        return;
    }
    info.bLightingForceCompute = true;
    EffectsLighting(info, info.oLightingMap.data(), width, height, hiRes);
    info.bLightingForceCompute = false;
}

LightingRun::~LightingRun() {
    info_.oLightingMap = {};
}

std::int32_t toGain(double gain) {
    return static_cast<std::int32_t>(clampTo(gain, -2e9, 2e9));
}

double sliderGain(const Field<std::int32_t>& slider) {
    return slider * 30.0 - 1500.0;
}

void blurMap(const SystemInfo* info, std::int32_t* map, int width, int height, int radius) {
    const std::size_t cells = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::unique_ptr<std::int32_t[]> soft(new (std::nothrow) std::int32_t[cells]);
    if (!soft) return logError("Memory not allocated!");
    gaussBlur_Int(info, map, soft.get(), width, height, radius);
    std::copy_n(soft.get(), cells, map);
}

void softenShape(const SystemInfo& info, std::int32_t* map, int width, int height, int hiRes) {
    const std::int32_t dpi = hiRes == 0 ? info.iOutputImageLowResDPI : info.iOutputImageDPI;
    blurMap(&info, map, width, height, std::max(dpi / 10, 1));
}

}  // namespace tavrin

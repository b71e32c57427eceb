#include <algorithm>

#include "core/BackgroundThread.h"
#include "core/raster/Pixels.h"
#include "key/guard/GreenGuard.h"
#include "key/pixel/ChannelRoles.h"
#include "key/pixel/ColorDistance.h"

// The guard's second mode: green clothes of one colour.
namespace tavrin {

using namespace guard;

namespace {

struct Sums {
    std::int64_t r = 0, g = 0, b = 0, count = 0;
};

// Clearly green, neither dark nor pale.
bool isGreenCloth(int r, int g, int b) {
    if (g <= r + 5 || g <= b + 5 || g <= 30) return false;
    return static_cast<double>(g - std::min(r, b)) / g > 0.15;
}

}  // namespace

// The mean over the green pixels of the subject that lie in no band.
void GreenGuard::gatherShirt(const SystemInfo& info) {
    const ChannelRoles roles(info.bUseBlueLogic);
    std::vector<Sums> rows(static_cast<std::size_t>(iFloodHeight));
    runRows({}, iFloodHeight, 16, [&](int y) {
        const std::uint8_t* p = pFloodFillForegroundBitmap + pixelOffset(iFloodWidth, 0, y);
        const std::uint8_t* byte = &pGreenProtectionBitmap[index(0, y)];
        Sums sums;
        for (int x = 0; x < iFloodWidth; ++x, p += kPixelBytes) {
            if (byte[x] != kSubject && byte[x] != kScreenColor) continue;
            const int r = p[0], g = p[roles.green], b = p[roles.blue];
            if (!isGreenCloth(r, g, b)) continue;
            sums.r += r;
            sums.g += g;
            sums.b += b;
            ++sums.count;
        }
        rows[static_cast<std::size_t>(y)] = sums;
    });
    Sums all;
    for (const Sums& row : rows)
        all = {all.r + row.r, all.g + row.g, all.b + row.b, all.count + row.count};
    if (all.count == 0) return;
    const double count = static_cast<double>(all.count);
    dRedShirt = static_cast<double>(all.r) / count;
    dGreenShirt = static_cast<double>(all.g) / count;
    dBlueShirt = static_cast<double>(all.b) / count;
    const HsvColor shirt = toHsv(dRedShirt, dGreenShirt, dBlueShirt);
    HGreenShirt = shirt.h;
    SGreenShirt = shirt.s;
    VGreenShirt = shirt.v;
}

// The fills ask for a pixel's distance several times; it is worked out once.
bool GreenGuard::measureShirtDistance(const SystemInfo& info) {
    const ChannelRoles roles(info.bUseBlueLogic);
    const HsvColor shirt = {HGreenShirt, SGreenShirt, VGreenShirt};
    const double seed = info.iSliderShirtProtection, wide = seed * 1.5;
    return runRows(context_, iFloodHeight, 8, [&](int y) {
        const std::uint8_t* p = pFloodFillForegroundBitmap + pixelOffset(iFloodWidth, 0, y);
        std::uint8_t* out = &nearness_[index(0, y)];
        for (int x = 0; x < iFloodWidth; ++x, p += kPixelBytes) {
            const double distance = colorDistance(toHsv(p[0], p[roles.green], p[roles.blue]), shirt);
            out[x] = distance < wide * 0.5 ? kTight : distance < seed ? kSeed : distance < wide ? kWide : kFar;
        }
    });
}

bool GreenGuard::isShirtColor(int x, int y) const {
    if (nearness_.empty()) return false;
    const std::uint8_t byte = pGreenProtectionBitmap[index(x, y)];
    if (byte == kScreen || (byte == kScreenColor && removeInside_)) return false;
    const std::uint8_t nearness = nearness_[index(x, y)];
    return nearness == kTight || (nearness != kFar && byte != kBand);
}

bool GreenGuard::protectShirt(const SystemInfo& info) {
    gatherShirt(info);
    if (!(VGreenShirt > 30.0)) return true;
    allocate(nearness_);
    if (!measureShirtDistance(info)) return false;
    for (int y = 0; y < iFloodHeight; ++y) {
        GivingWay::ask();
        if (context_.isSuperseded()) return false;
        for (int x = 0; x < iFloodWidth; ++x) {
            const std::size_t at = index(x, y);
            if (pGreenProtectionBitmap[at] != kSubject || nearness_[at] < kSeed) continue;
            floodFillScanlineShirtColor(info, x, y, kShirt);
            pGreenProtectionBitmap[at] = kShirt;
        }
    }
    return true;
}

void GreenGuard::floodFillScanlineShirtColor(const SystemInfo& info, int x, int y, int newValue) {
    constexpr int kHighestTop = 6000;
    if (!isInside(x, y)) return;
    struct Region {
        const SystemInfo& info;
        GreenGuard& guard;
        int to, width, height;

        bool stopped() const { return info.isStale(); }
        bool contains(int atX, int atY) const {
            return guard.pGreenProtectionBitmap[guard.index(atX, atY)] != to && guard.isShirtColor(atX, atY);
        }
        void fill(int atX, int atY) {
            guard.pGreenProtectionBitmap[guard.index(atX, atY)] = static_cast<std::uint8_t>(to);
        }
    };
    Region region{info, *this, newValue, iFloodWidth, iFloodHeight};
    floodFill(region, seeds_, x, y, kHighestTop);
}

}  // namespace tavrin

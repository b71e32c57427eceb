#include "key/guard/GreenGuard.h"

#include <algorithm>
#include <cmath>

#include "core/BackgroundThread.h"
#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"
#include "key/pixel/ColorDistance.h"

namespace tavrin {

using namespace guard;

Rgb guardPictureColor(std::uint8_t byte) {
    switch (byte) {
        case kSubject:
            return {255.0, 200.0, 200.0};
        case kScreenColor:
            return {0.0, 125.0, 0.0};
        case kScreen:
            return {0.0, 255.0, 0.0};
        case kEdge:
            return {255.0, 255.0, 255.0};
        case kBand:
            return {0.0, 0.0, 255.0};
        case kShirt:
            return {255.0, 0.0, 0.0};
        default:
            return {0.0, 0.0, 0.0};
    }
}

bool GreenGuard::build(const SystemInfo& info, ConstPixelView foreground, Resolution resolution) {
    HGreenShirt = SGreenShirt = VGreenShirt = 0.0;
    dRedShirt = dGreenShirt = dBlueShirt = 0.0;
    nearness_.clear();
    pFloodFillForegroundBitmap = foreground.bytes;
    removeInside_ = info.bRemoveInsideBaseGreen;
    context_ = resolution == Resolution::full ? info.rowsWhileCurrent() : RunContext();
    if (foreground.isEmpty()) return false;
    iFloodWidth = foreground.width;
    iFloodHeight = foreground.height;
    allocate(pGreenProtectionBitmap);
    if (!classify(info)) return false;
    fillFromBorder(info);
    return findEdge() && drawBand(info) && (info.iGreenProtectMode != 2 || protectShirt(info));
}

void GreenGuard::allocate(std::vector<std::uint8_t>& bytes) {
    bytes.resize(pixelBytes(iFloodWidth, iFloodHeight) / kPixelBytes);
}

bool GreenGuard::classify(const SystemInfo& info) {
    const ChannelRoles roles(info.bUseBlueLogic);
    const HsvColor base = toHsv(info.baseRed, info.baseGreen, info.baseBlue);
    const double limit = info.iSliderBackgroundGreen;
    return runRows(context_, iFloodHeight, 8, [&](int y) {
        const std::uint8_t* p = pFloodFillForegroundBitmap + pixelOffset(iFloodWidth, 0, y);
        std::uint8_t* out = &pGreenProtectionBitmap[index(0, y)];
        for (int x = 0; x < iFloodWidth; ++x, p += kPixelBytes) {
            const HsvColor color = toHsv(p[0], p[roles.green], p[roles.blue]);
            out[x] = color.v > 20.0 && colorDistance(color, base) < limit ? kScreenColor : kSubject;
        }
    });
}

void GreenGuard::fillFromBorder(const SystemInfo& info) {
    const auto fillAt = [&](int x, int y) {
        if (pGreenProtectionBitmap[index(x, y)] == kScreenColor) floodFillScanline(info, x, y, kScreen, kScreenColor);
    };
    for (int y = 0; y < iFloodHeight; ++y) {
        fillAt(0, y);
        fillAt(iFloodWidth - 1, y);
    }
    for (int x = 0; x < iFloodWidth; ++x) {
        fillAt(x, 0);
        fillAt(x, iFloodHeight - 1);
    }
}

// Of two neighbours of which one is screen, the other becomes an edge: along the rows first, then along the columns.
// No mark makes or unmakes screen, so rows and columns may be taken in any order.
bool GreenGuard::findEdge() {
    constexpr int kColumns = 64;
    const auto mark = [](std::uint8_t& a, std::uint8_t& b) {
        if (a == kScreen && b != kScreen) b = kEdge;
        if (a != kScreen && b == kScreen) a = kEdge;
    };
    std::uint8_t* bitmap = pGreenProtectionBitmap.data();
    const bool marked = runRows(context_, iFloodHeight, 16, [&](int y) {
        std::uint8_t* row = bitmap + index(0, y);
        for (int x = 1; x < iFloodWidth; ++x)
            mark(row[x - 1], row[x]);
    });
    if (!marked) return false;
    return runRows(context_, (iFloodWidth - 1) / kColumns + 1, 1, [&](int block) {
        const int first = block * kColumns, last = std::min(first + kColumns, iFloodWidth);
        for (int y = 0; y < iFloodHeight - 1; ++y) {
            std::uint8_t* row = bitmap + index(0, y);
            for (int x = first; x < last; ++x)
                mark(row[x], row[x + iFloodWidth]);
        }
    });
}

void GreenGuard::drawDisc(int x, int y, std::int64_t radius) {
    const int top = static_cast<int>(std::max<std::int64_t>(y - radius, 0));
    const int bottom = static_cast<int>(std::min<std::int64_t>(y + radius, iFloodHeight - 1));
    for (int row = top; row <= bottom; ++row) {
        const std::int64_t dy = row - y;
        const auto half = static_cast<std::int64_t>(std::sqrt(static_cast<double>(radius * radius - dy * dy)));
        const auto left = std::max<std::int64_t>(x - half, 0);
        const auto right = std::min<std::int64_t>(x + half, iFloodWidth - 1);
        std::uint8_t* bytes = &pGreenProtectionBitmap[index(0, row)];
        for (std::int64_t i = left; i <= right; ++i)
            bytes[i] = bytes[i] == kScreen ? kScreen : kBand;
    }
}

// A disc around each edge pixel. The scan sees what it has drawn: an edge pixel within an earlier disc is no edge any
// more and draws none, so the discs stay few whatever their size.
bool GreenGuard::drawBand(const SystemInfo& info) {
    const std::int64_t wanted = static_cast<std::int64_t>(info.iSliderProtectionRadius) * iFloodWidth / 200;
    // Beyond a few diagonals a disc covers everything from everywhere, and only the first row is scanned.
    const std::int64_t radius = std::min(wanted, 10 * (static_cast<std::int64_t>(iFloodWidth) + iFloodHeight));
    const std::int64_t step = radius + 4 < 9 ? 1 : radius / 5;
    for (std::int64_t y = 0; y < iFloodHeight; y += step) {
        for (int x = 0; x < iFloodWidth; ++x) {
            if (pGreenProtectionBitmap[index(x, static_cast<int>(y))] != kEdge) continue;
            GivingWay::ask();
            if (context_.isSuperseded()) return false;
            drawDisc(x, static_cast<int>(y), radius);
        }
    }
    return true;
}

void GreenGuard::floodFillScanline(const SystemInfo& info, int x, int y, int newValue, int oldValue) {
    if (newValue == oldValue || !isInside(x, y)) return;
    struct Region {
        const SystemInfo& info;
        GreenGuard& guard;
        int from, to, width, height;

        bool stopped() const { return info.isStale(); }
        bool contains(int atX, int atY) const { return guard.pGreenProtectionBitmap[guard.index(atX, atY)] == from; }
        void fill(int atX, int atY) {
            guard.pGreenProtectionBitmap[guard.index(atX, atY)] = static_cast<std::uint8_t>(to);
        }
    };
    Region region{info, *this, oldValue, newValue, iFloodWidth, iFloodHeight};
    floodFill(region, seeds_, x, y, SeedStack::kEntries - 1);
}

}  // namespace tavrin

#pragma once

#include <algorithm>
#include <memory>

#include <QRect>

#include "core/state/SystemInfo.h"
#include "core/text/Fonts.h"
#include "core/text/TextLayers.h"
#include "support/Portrait.h"

namespace tavrin::test {

/// A picture of 8 x 6 inches, 100 dots an inch in full and 50 in the preview, grey and opaque, to write on.
class TextPage {
  public:
    static constexpr int kGround = 120;

    TextPage() {
        SystemInfo& i = *info;
        i.iOutputPixelWidth = 800;
        i.iOutputPixelHeight = 600;
        i.iOutputImageDPI = 100;
        i.iOutputPixelLowResWidth = 400;
        i.iOutputPixelLowResHeight = 300;
        i.iOutputImageLowResDPI = 50;
        for (BitmapInfo* record : {i.pBackgroundBitmapInfo.get(), i.pCombinedBitmapInfo.get()})
            record->allocateBuffers(800, 600, 400, 300);
        clear();
    }

    void clear() {
        for (const BitmapInfo* record : {info->pBackgroundBitmapInfo.get(), info->pCombinedBitmapInfo.get()}) {
            fill(record->pBitmapData, 800 * 600);
            fill(record->pBitmapDataLowRes, 400 * 300);
        }
    }

    BitmapContext* context(int res) const {
        const BitmapInfo& combined = *info->pCombinedBitmapInfo;
        return res == 1 ? combined.oBitmapRep.get() : combined.oBitmapRepLowRes.get();
    }
    const std::uint8_t* pixel(int res, int x, int y) const {
        const BitmapInfo& combined = *info->pCombinedBitmapInfo;
        return (res == 1 ? combined.pBitmapData : combined.pBitmapDataLowRes) +
               pixelOffset(info->geometry(fullIf(res == 1)).width, x, y);
    }
    QColor color(int res, int x, int y) const {
        const std::uint8_t* p = pixel(res, x, y);
        return {p[0], p[1], p[2]};
    }
    Bytes bytes(int res) const {
        const PassGeometry g = info->geometry(fullIf(res == 1));
        return {pixel(res, 0, 0), pixel(res, 0, 0) + pixelBytes(g.width, g.height)};
    }

    /// The pixels that are clearly no longer the ground's.
    QRect drawn(int res) const {
        const PassGeometry g = info->geometry(fullIf(res == 1));
        int left = g.width, top = g.height, right = -1, bottom = -1;
        for (int y = 0; y < g.height; ++y) {
            for (int x = 0; x < g.width; ++x) {
                const std::uint8_t* p = pixel(res, x, y);
                if (std::max({std::abs(p[0] - kGround), std::abs(p[1] - kGround), std::abs(p[2] - kGround)}) < 60)
                    continue;
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
        return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
    }

    /// A new list item with a box of an inch in height, an inch from the left and from the bottom; the reference
    /// holds until the next.
    FontObject& add(const char* text, int points = 72) {
        FontObject& item = info->oFontObject.push_back();
        item.sText = text;
        item.iFontSize = points;
        item.rectSizeWidth = 500.0;
        item.rectSizeHeight = 72.0;
        item.xPos = item.yPos = 1.0;
        return item;
    }
    /// Draws the last level on a clean page.
    QRect draw(int res = 1) {
        clear();
        DrawTextAtLevel(*info, context(res), "Frame Layer", res);
        return drawn(res);
    }

    const std::unique_ptr<SystemInfo> info = std::make_unique<SystemInfo>();

  private:
    static void fill(std::uint8_t* bytes, int pixels) {
        for (int i = 0; i < pixels; ++i, bytes += 4) {
            bytes[0] = bytes[1] = bytes[2] = kGround;
            bytes[3] = 255;
        }
    }
};

}  // namespace tavrin::test

/// Skips the test on a system that has neither the fonts of the tests nor any other.
#define TAVRIN_NEED_FONTS() \
    if (!tavrin::whyNoFonts().empty()) GTEST_SKIP() << "no fonts here"

#include "core/text/ClearLayer.h"

#include <cstring>
#include <new>

namespace tavrin {

namespace {

constexpr int kSilhouetteMode = 4;  // of the foreground: its output is transparent too

// The buffer of a context whose pixels hold straight alpha; null for all others.
std::uint8_t* straightPixels(const SystemInfo& info, const BitmapContext& context) {
    if (!info.bOutputTransparency && info.iForegroundOutputMode != kSilhouetteMode) return nullptr;
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    if (&context == combined.oBitmapRep.get()) return combined.pBitmapData;
    if (&context == combined.oBitmapRepLowRes.get()) return combined.pBitmapDataLowRes;
    return nullptr;
}

int over255(int product) {
    return (product + 127) / 255;
}

// Porter and Duff's "over" (1984) of a premultiplied pixel on a straight one.
void lay(const std::uint8_t* layer, std::uint8_t* pixel) {
    const int above = layer[3];
    if (above == 0) return;
    const int below = over255(pixel[3] * (255 - above));
    const int alpha = above + below;
    for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>((layer[c] * 255 + pixel[c] * below + alpha / 2) / alpha);
    pixel[3] = static_cast<std::uint8_t>(alpha);
}

}  // namespace

void drawInto(SystemInfo& info, BitmapContext& context, const std::function<void(BitmapContext&)>& draw) {
    std::uint8_t* pixels = straightPixels(info, context);
    if (!pixels) return draw(context);
    const int width = context.width(), height = context.height();
    const PixelBuffer bytes(width, height);
    if (!bytes.data()) throw std::bad_alloc();
    std::memset(bytes.data(), 0, pixelBytes(width, height));
    BitmapContext layer(bytes.data(), width, height);
    draw(layer);
    runRows({}, height, 32, [&](int y) {
        const std::size_t last = pixelOffset(width, 0, y + 1);
        for (std::size_t i = pixelOffset(width, 0, y); i < last; i += kPixelBytes)
            lay(bytes.data() + i, pixels + i);
    });
}

}  // namespace tavrin

#include "effects/star/StarFilter.h"

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

#include "core/BackgroundThread.h"
#include "core/Log.h"
#include "core/raster/CopyPixels.h"
#include "core/raster/QuadraticWindow.h"
#include "core/raster/WindowBlur.h"
#include "effects/star/StarPainter.h"

namespace tavrin {

namespace {

constexpr double kBlurInches = 0.03;

struct StarParams {
    int width, height, reach;
    int threshold, maxArea, armWidth, size, points, startAngle;
    bool showSelected;
};

StarParams paramsOf(const SystemInfo& info, const PassGeometry& g) {
    return {g.width,
            g.height,
            windowReach(g.dpi < 20 ? 300 : g.dpi, kBlurInches),
            info.iStarFilterBrightLightThreshold,
            info.iStarFilterMaxArea,
            info.iStarFilterWidth,
            info.iStarFilterSize,
            info.iStarFilterNumberOfPoints,
            info.iStarFilterStartingAngle,
            info.bStarFilterShowSelected};
}

bool isOutline(const std::uint8_t* mask) {
    return mask[0] == 0 && mask[1] == 0 && mask[2] == 255;
}

void setColour(std::uint8_t* pixel, std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    pixel[0] = red;
    pixel[1] = green;
    pixel[2] = blue;
}

/// One byte a pixel: 255 where the picture is brighter than the threshold.
void findBright(const StarParams& params, const std::uint8_t* picture, std::uint8_t* bright, int y) {
    const std::uint8_t* p = picture + pixelOffset(params.width, 0, y);
    const std::int64_t limit = 3 * static_cast<std::int64_t>(params.threshold);
    std::uint8_t* out = bright + pixelOffset(params.width, 0, y) / kPixelBytes;
    for (int x = 0; x < params.width; ++x, p += kPixelBytes)
        out[x] = p[0] + p[1] + p[2] > limit ? 255 : 0;
}

/// The mask that the outlines are followed in: lights white, the rest black, but for the pixels beside a light in its
/// row or column, which are its outline and pure blue.
void drawMask(const StarParams& params, const std::uint8_t* blurred, std::uint8_t* mask, int y) {
    const int width = params.width;
    const std::uint8_t* row = blurred + pixelOffset(width, 0, y) / kPixelBytes;
    const auto isLight = [&](const std::uint8_t* at) { return *at > params.threshold; };
    std::uint8_t* out = mask + pixelOffset(width, 0, y);
    for (int x = 0; x < width; ++x, out += kPixelBytes) {
        const std::uint8_t* at = row + x;
        if (isLight(at)) {
            setColour(out, 255, 255, 255);
        } else {
            const bool beside = (x > 0 && isLight(at - 1)) || (x + 1 < width && isLight(at + 1)) ||
                                (y > 0 && isLight(at - width)) || (y + 1 < params.height && isLight(at + width));
            setColour(out, 0, 0, beside ? 255 : 0);
        }
    }
}

/// A cross on the middle of a light, two pixels thick.
void markLight(const StarParams& params, std::uint8_t* mask, const LightBox& box, int cx, int cy) {
    const auto mark = [&](int x, int y) {
        if (x < params.width && y < params.height) setColour(mask + pixelOffset(params.width, x, y), 0, 255, 0);
    };
    for (int x = box.xMin; x <= box.xMax; ++x) {
        mark(x, cy);
        mark(x, cy + 1);
    }
    for (int y = box.yMin; y <= box.yMax; ++y) {
        mark(cx, y);
        mark(cx + 1, y);
    }
}

/// One run of the filter.
class StarRun {
  public:
    StarRun(const SystemInfo& info, const StarParams& params, std::uint8_t* picture)
        : context_(info.rowsWhileCurrent()), params_(params), picture_(picture) {}

    void run() {
        mask_ = PixelBuffer::cleared(params_.width, params_.height);
        if (!mask_.data()) throw std::bad_alloc();
        if (!findLights()) return;
        for (int y = 0; y < params_.height; ++y) {
            GivingWay::ask();
            if (context_.isSuperseded() || !visitRow(y)) return;
        }
        if (params_.showSelected) runRows(context_, params_.height, 32, [&](int y) { showMask(y); });
    }

  private:
    bool findLights() {
        std::vector<std::uint8_t> bright(pixelBytes(params_.width, params_.height) / kPixelBytes);
        return runRows(context_, params_.height, 32,
                       [&](int y) { findBright(params_, picture_, bright.data(), y); }) &&
               blurWithWindow(context_, {bright.data(), params_.width, params_.height}, params_.reach) &&
               runRows(context_, params_.height, 32,
                       [&](int y) { drawMask(params_, bright.data(), mask_.data(), y); });
    }

    /// Deals with the lights whose topmost outline pixel lies in row y. False ends the run.
    bool visitRow(int y) {
        for (int x = 0; x < params_.width; ++x) {
            if (!isOutline(mask_.data() + pixelOffset(params_.width, x, y))) continue;
            const auto box = CheckForStar(y, x, {mask_.data(), params_.width, params_.height});
            if (box && !visitLight(*box)) return false;
        }
        return true;
    }

    bool visitLight(const LightBox& box) {
        const int dx = box.xMax - box.xMin, dy = box.yMax - box.yMin;
        const auto hundredth = static_cast<std::int64_t>(params_.height * 0.01 * params_.width);
        if (static_cast<std::int64_t>(dy) * dx >= params_.maxArea * hundredth / 50) return true;
        const int cx = box.xMin + dx / 2, cy = box.yMin + dy / 2;
        if (params_.showSelected) {
            markLight(params_, mask_.data(), box, cx, cy);
            return true;
        }
        if (!painter_) {
            if (!copyPicture()) return false;
            painter_ =
                std::make_unique<StarPainter>(PixelView{picture_, params_.width, params_.height}, source_.data(),
                                              params_.armWidth, params_.points, params_.startAngle);
        }
        const std::int64_t length = std::max<std::int64_t>(dy, static_cast<std::int64_t>(dy) * params_.size * 3 / 50);
        GivingWay::ask();
        if (context_.isSuperseded()) return false;
        if (painter_->DrawStar({cx, cy, length, std::max(dx, 3)})) return true;
        logError("There are more or larger stars than can be drawn in reasonable time; some are left out.");
        return false;
    }

    /// Keeps the picture as it was before the first star.
    bool copyPicture() {
        source_ = PixelBuffer(params_.width, params_.height);
        if (!source_.data()) throw std::bad_alloc();
        return copyPixels(context_, picture_, source_.data(), params_.width, params_.height);
    }

    void showMask(int y) {
        const std::uint8_t* from = mask_.data() + pixelOffset(params_.width, 0, y);
        std::uint8_t* to = picture_ + pixelOffset(params_.width, 0, y);
        for (int x = 0; x < params_.width; ++x, from += kPixelBytes, to += kPixelBytes)
            std::copy_n(from, 3, to);
    }

    const RunContext context_;
    const StarParams params_;
    std::uint8_t* picture_;
    PixelBuffer mask_, source_;
    std::unique_ptr<StarPainter> painter_;  // made for the first star
};

}  // namespace

std::optional<LightBox> CheckForStar(int y, int x, PixelView mask) {
    LightBox box{x, x, y, y};
    int atX = x, atY = y;
    setColour(mask.at(x, y), 255, 0, 0);
    const auto stepOn = [&] {
        for (int py = std::max(atY - 1, 0); py <= std::min(atY + 1, mask.height - 1); ++py) {
            for (int px = std::max(atX - 1, 0); px <= std::min(atX + 1, mask.width - 1); ++px) {
                if (!isOutline(mask.at(px, py))) continue;
                atX = px;
                atY = py;
                return true;
            }
        }
        return false;
    };
    while (stepOn()) {
        setColour(mask.at(atX, atY), 255, 0, 0);
        box.xMax = std::max(box.xMax, atX);
        box.xMin = std::min(box.xMin, atX);
        box.yMax = std::max(box.yMax, atY);
    }
    if (std::abs(atX - x) > 1 || std::abs(atY - y) > 1) return std::nullopt;
    return box;
}

void StarFilter(SystemInfo& info, int, std::uint8_t* picture, int hiRes) {
    const PassGeometry g = info.geometry(fullIf(hiRes != 0));
    if (!picture || g.width < 1 || g.height < 1) return;
    StarRun(info, paramsOf(info, g), picture).run();
}

}  // namespace tavrin

#include "effects/Sketch.h"

#include <algorithm>
#include <new>
#include <vector>

#include "core/Log.h"
#include "core/raster/ColorMath.h"
#include "core/raster/QuadraticWindow.h"
#include "core/raster/WindowBlur.h"
#include "effects/SketchFlatten.h"
#include "effects/SketchTools.h"

namespace tavrin {

namespace {

constexpr int kCartoon = 1, kGreySketch = 2, kPencilSketch = 3, kParchmentSketch = 4;

/// A texture that is stretched over the picture.
class Stretched {
  public:
    Stretched(const LoadedPicture& texture, int width, int height) : texture_(texture), height_(height) {
        if (!isThere()) return;
        for (std::int64_t x = 0; x < width; ++x)
            columns_.push_back(static_cast<int>(x * texture.iWidth / width) * kPixelBytes);
    }
    bool isThere() const {
        return texture_.rawData && texture_.iHeight > 0 && texture_.iWidth > 0 &&
               texture_.stride / kPixelBytes >= texture_.iWidth;
    }
    const std::uint8_t* at(int x, int y) const {
        const std::int64_t row = static_cast<std::int64_t>(y) * texture_.iHeight / height_;
        return texture_.rawData + row * texture_.stride + columns_[x];
    }

  private:
    const LoadedPicture& texture_;
    int height_;
    std::vector<int> columns_;
};

struct SketchParams {
    int type, nearness, reach;
    Stretched pencil, crossedPencil, parchment;
};

/// The type that can be drawn with the pictures that are there.
int drawableType(int type, const Stretched& pencil, const Stretched& crossed, const Stretched& parchment) {
    const auto lacks = [](const Stretched& texture, const char* file) {
        if (texture.isThere()) return false;
        logError(std::string("The sketch's picture ") + file + " could not be loaded; it is drawn without.");
        return true;
    };
    const bool usesPencils = type == kPencilSketch || type == kParchmentSketch;
    if (usesPencils && (lacks(pencil, "PencilDense.jpg") || lacks(crossed, "PencilDenseCross.jpg")))
        return kGreySketch;
    if (type == kParchmentSketch && lacks(parchment, "lightParchment.jpg")) return kPencilSketch;
    return type;
}

SketchParams paramsOf(const SystemInfo& info, int width, int height, int dpi) {
    const std::int64_t reach =
        static_cast<std::int64_t>(info.iSliderCartoonEffectWidth) * (dpi < 20 ? 300 : dpi) / 200;
    SketchParams params = {info.iCartoonEffectType,
                           std::clamp(info.iSliderCartoonEffectSmoothing / 16, -1, 255),
                           static_cast<int>(std::clamp<std::int64_t>(reach, 2, kMaxWindowReach)),
                           {info.PencilCross, width, height},
                           {info.PencilCross2, width, height},
                           {info.LightParchment, width, height}};
    params.type = drawableType(params.type, params.pencil, params.crossedPencil, params.parchment);
    return params;
}

/// Dodges a pixel's value against the blurred negative; `grey` is its grey before it was flattened.
std::uint8_t dodge(int grey, std::uint8_t value, std::uint16_t negative) {
    double result = 0.2;  // darks stay short of black
    if (grey >= 30) {
        const double n = negative / 65025.0, p = value / 255.0;
        result = n == 1.0 ? 1.0 : std::min(clampTo(p + p - (1.0 - n), 0.0, 1.0) / (1.0 - n), 1.0);
    }
    return toByte(result * 255.0);
}

/// Black lines on the picture's own colours, which are brought to full strength.
void colourCartoon(std::uint8_t* pixel, int grey, const std::uint8_t* colour) {
    int value = pixel[0] > 240 ? 255 : 0;
    if (3 * grey < 150) value = grey;
    const int strongest = std::max({colour[0], colour[1], colour[2]});
    for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>(strongest == 0 ? value : value * colour[c] / strongest);
}

void drawWithPencils(const SketchParams& params, std::uint8_t* pixel, int x, int y) {
    double v = pixel[0];
    if (params.type == kPencilSketch || params.type == kParchmentSketch) {
        if (v < 127.0) {
            v = params.crossedPencil.at(x, y)[0];
            std::fill_n(pixel, 3, toByte(v));
        } else if (v < 250.0) {
            const double a = params.pencil.at(x, y)[0] / 255.0;
            v = clampTo((255.0 * a + (1.0 - a) * v - 255.0) * 4.0 + 255.0, 0.0, 255.0);
        }
    }
    if (params.type == kParchmentSketch) {
        const std::uint8_t* paper = params.parchment.at(x, y);
        const double w = v >= 128.0 ? 2.0 * v - 255.0 : 0.0;
        for (int c = 0; c < 3; ++c)
            pixel[c] = toByte(w * paper[c] / 255.0);
    } else if (params.type == kGreySketch || params.type == kPencilSketch) {
        std::fill_n(pixel, 3, toByte(atLeast((v - 255.0) * 1.5 + 255.0, 0.0)));
    }
}

/// One sketch under work.
struct Drawing {
    SketchParams params;
    std::uint8_t* picture;
    int width, height;
    std::vector<std::uint8_t> colour;  // the picture before, RGBA; for the cartoon only
    std::vector<std::uint8_t> grey;    // one byte a pixel
    std::vector<std::uint16_t> negative;

    void makeGrey(int y) {
        std::uint8_t* pixel = picture + pixelOffset(width, 0, y);
        if (!colour.empty()) std::copy_n(pixel, pixelBytes(width, 1), &colour[pixelOffset(width, 0, y)]);
        std::uint8_t* out = &grey[static_cast<std::size_t>(y) * width];
        for (int x = 0; x < width; ++x, pixel += kPixelBytes) {
            out[x] = sketchGrey(pixel, params.type);
            std::fill_n(pixel, 3, out[x]);
        }
    }

    void draw(int y) {
        std::size_t i = static_cast<std::size_t>(y) * width;
        for (int x = 0; x < width; ++x, ++i) {
            std::uint8_t* pixel = picture + i * kPixelBytes;
            std::fill_n(pixel, 3, dodge(grey[i], pixel[0], negative[i]));
            if (params.type <= kCartoon) {
                colourCartoon(pixel, grey[i], &colour[i * kPixelBytes]);
            } else {
                drawWithPencils(params, pixel, x, y);
            }
        }
    }
};

void runSketch(const RunContext& context, Drawing& drawing) {
    const int width = drawing.width, height = drawing.height;
    const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (drawing.params.type <= kCartoon) drawing.colour.resize(pixels * kPixelBytes);
    drawing.grey.resize(pixels);
    if (!runRows(context, height, 16, [&](int y) { drawing.makeGrey(y); })) return;

    drawing.negative.resize(pixels);
    const FlattenParams flatten = {drawing.grey.data(), width, height, drawing.params.nearness};
    const auto flattenPiece = [&](int first, int last) {
        flattenRows(flatten, first, last, drawing.picture, drawing.negative.data());
    };
    if (!runRowRanges(context, height, 32, flattenPiece)) return;
    if (!blurWithWindow(context, {drawing.negative.data(), width, height}, drawing.params.reach)) return;
    runRows(context, height, 16, [&](int y) { drawing.draw(y); });
}

}  // namespace

void Sketch(SystemInfo& info, int, std::uint8_t* picture, int width, int height, int dpi) {
    if (!picture || width < 1 || height < 1) return;
    try {
        Drawing drawing = {paramsOf(info, width, height, dpi), picture, width, height, {}, {}, {}};
        runSketch(info.rowsWhileWanted(), drawing);
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
    }
}

}  // namespace tavrin

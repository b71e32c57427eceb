#include "effects/sketch/Sketch.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "core/Log.h"
#include "core/raster/Pixels.h"
#include "core/raster/QuadraticWindow.h"
#include "core/raster/WindowBlur.h"
#include "effects/sketch/SketchFlatten.h"
#include "effects/sketch/SketchRows.h"
#include "effects/sketch/SketchTools.h"

namespace tavrin {

namespace {

/// A texture that is stretched over the picture.
class Stretched {
  public:
    Stretched(const LoadedPicture& texture, int width, int height) : texture_(texture), height_(height) {
        if (!isThere()) return;
        for (std::int64_t x = 0; x < width; ++x)
            columns_.push_back(static_cast<int>(x * texture.iWidth / width));
    }
    bool isThere() const {
        return texture_.rawData && texture_.iHeight > 0 && texture_.iWidth > 0 &&
               texture_.stride / kPixelBytes >= texture_.iWidth;
    }

    /// One row of the picture's at a time; rows of one texture row cost nothing.
    class RowOf {
      public:
        explicit RowOf(const Stretched& texture) : texture_(texture), words_(texture.columns_.size()) {}

        const std::int32_t* at(int y) {
            const std::int64_t row = static_cast<std::int64_t>(y) * texture_.texture_.iHeight / texture_.height_;
            if (row == row_) return words_.data();
            row_ = row;
            const std::uint8_t* pixels = texture_.texture_.rawData + row * texture_.texture_.stride;
            for (std::size_t x = 0; x < words_.size(); ++x)
                std::memcpy(&words_[x], pixels + texture_.columns_[x] * kPixelBytes, kPixelBytes);
            return words_.data();
        }

      private:
        const Stretched& texture_;
        std::vector<std::int32_t> words_;
        std::int64_t row_ = -1;
    };

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

/// One value a pixel, undefined.
template <class Value>
class Plane {
  public:
    Plane(int width, int height)
        : buffer_(width, static_cast<int>((std::int64_t{height} * int{sizeof(Value)} + 3) / kPixelBytes)),
          width_(width) {}
    Value* data() const { return reinterpret_cast<Value*>(buffer_.data()); }
    Value* row(int y) const { return data() + static_cast<std::ptrdiff_t>(y) * width_; }

  private:
    PixelBuffer buffer_;
    int width_;
};

/// One sketch under work. The picture keeps its colours until it is drawn over.
struct Drawing {
    SketchParams params;
    std::uint8_t* picture;
    int width, height;
    Plane<std::uint8_t> grey, flat;
    Plane<std::uint16_t> negative;

    void drawRows(int first, int last) {
        const bool usesPencils = params.type == kPencilSketch || params.type == kParchmentSketch;
        Stretched::RowOf pencil(params.pencil), crossed(params.crossedPencil), parchment(params.parchment);
        for (int y = first; y < last; ++y) {
            SketchRow row = {grey.row(y), flat.row(y), negative.row(y)};
            if (usesPencils) {
                row.pencil = pencil.at(y);
                row.crossedPencil = crossed.at(y);
            }
            if (params.type == kParchmentSketch) row.parchment = parchment.at(y);
            drawSketchRow(row, width, params.type, picture + pixelOffset(width, 0, y));
        }
    }
};

void runSketch(const RunContext& context, Drawing& drawing) {
    const int width = drawing.width, height = drawing.height, type = drawing.params.type;
    if (!drawing.grey.data() || !drawing.flat.data() || !drawing.negative.data()) {
        ConvertBitmapToBlackAndWhite(drawing.picture, width, height, kPixelBytes, width * kPixelBytes, type);
        throw std::bad_alloc();
    }
    if (!runRows(context, height, 16, [&](int y) {
            sketchGreyRow(drawing.picture + pixelOffset(width, 0, y), width, type, drawing.grey.row(y));
        }))
        return;
    const FlattenParams flatten = {drawing.grey.data(), width, height, drawing.params.nearness};
    const auto flattenPiece = [&](int first, int last) {
        flattenRows(flatten, first, last, drawing.flat.data(), drawing.negative.data());
    };
    if (!runRowRanges(context, height, 32, flattenPiece)) return;
    if (!blurWithWindow(context, {drawing.negative.data(), width, height}, drawing.params.reach)) return;
    runRowRanges(context, height, 16, [&](int first, int last) { drawing.drawRows(first, last); });
}

}  // namespace

void Sketch(SystemInfo& info, int, std::uint8_t* picture, int width, int height, int dpi) {
    if (!picture || width < 1 || height < 1) return;
    Drawing drawing = {paramsOf(info, width, height, dpi),
                       picture,
                       width,
                       height,
                       {width, height},
                       {width, height},
                       {width, height}};
    runSketch(info.rowsWhileWanted(), drawing);
}

}  // namespace tavrin

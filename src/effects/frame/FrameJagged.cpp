#include <algorithm>

#include "core/RandomSource.h"
#include "effects/frame/FrameMask.h"
#include "effects/frame/FrameShapes.h"

namespace tavrin {

namespace {

struct Mask {
    std::uint8_t* bytes;
    int width, height;

    std::uint8_t* at(int x, int y) const { return bytes + pixelOffset(width, x, y); }
};

// The teeth of all four sides, drawn from one sequence of numbers.
class Teeth {
  public:
    Teeth(int thickness, int dpi)
        : thickness_(thickness), dpi_(dpi), step_(std::max(dpi / 16, 1)), slant_(-(thickness / 2) / double(dpi)) {}

    int thickness() const { return thickness_; }
    /// How far the next peak stays from the edge, between a quarter and three quarters of the thickness.
    double peak() { return 0.75 * thickness_ + slant_ * below(dpi_); }
    /// How far the line goes on along the edge.
    int advance() { return step_ + below(step_); }

  private:
    int below(int n) { return static_cast<int>(random_.below(static_cast<std::uint32_t>(n))); }

    int thickness_, dpi_, step_;  // a step is at least one pixel, or a tooth would never end
    double slant_;
    RandomSource random_{1};
};

// One side of the mask: how positions along it and depths from its edge lie in the picture.
struct Side {
    bool upright;  // left or right: the edge runs along y
    bool far;      // right or bottom: depths count from the size

    int length(const Mask& mask) const { return upright ? mask.height : mask.width; }
    int depthAt(const Mask& mask, double depth) const {
        return truncatedPosition(far ? (upright ? mask.width : mask.height) - depth : depth);
    }
    void line(const Mask& mask, int along0, int depth0, int along1, int depth1) const {
        if (upright) {
            DrawRedLine(depth0, along0, depth1, along1, mask.bytes, mask.width, mask.height);
        } else {
            DrawRedLine(along0, depth0, along1, depth1, mask.bytes, mask.width, mask.height);
        }
    }
    std::uint8_t* pixel(const Mask& mask, int along, int depth) const {
        if (upright) return mask.at(far ? mask.width - 1 - depth : depth, along);
        return mask.at(along, far ? mask.height - 1 - depth : depth);
    }
};

void drawTeeth(const Mask& mask, const Side& side, Teeth& teeth, double firstDepth) {
    int along = 0, from = side.depthAt(mask, firstDepth);
    const int inner = side.depthAt(mask, teeth.thickness());
    while (along < side.length(mask)) {
        const int peak = side.depthAt(mask, teeth.peak());
        const int peakAlong = along + teeth.advance();
        side.line(mask, along, from, peakAlong, peak);
        along = peakAlong + teeth.advance();
        from = inner;
        side.line(mask, along, inner, peakAlong, peak);
    }
}

// Walks in from the edge until the zigzag has been crossed. What an earlier side painted white has to be walked
// through; on the first side there is no such white, and any painted pixel is the line.
void fillToTeeth(const Mask& mask, const Side& side, int thickness, bool firstSide) {
    const int depth = side.upright ? mask.width : mask.height;
    const int most = std::min(depth - 1, thickness);
    for (int along = 0; along < side.length(mask); ++along) {
        bool met = false;
        for (int i = 0; i <= most; ++i) {
            std::uint8_t* pixel = side.pixel(mask, along, i);
            if (firstSide ? pixel[0] == 255 : isLine(pixel)) {
                met = true;
            } else if (met && pixel[0] != 255) {
                break;
            }
            setWhite(pixel);
        }
    }
}

void fillCorners(const Mask& mask, int thickness) {
    const int w = std::min(thickness + 1, mask.width), h = std::min(thickness + 1, mask.height);
    for (const int top : {0, mask.height - h}) {
        for (int y = top; y < top + h; ++y) {
            for (int x = 0; x < w; ++x) {
                setWhite(mask.at(x, y));
                setWhite(mask.at(mask.width - 1 - x, y));
            }
        }
    }
}

}  // namespace

void DrawJaggedFrame(SystemInfo& /*info*/, const ImageFrame& frame, std::uint8_t* bytes, int width, int height,
                     int dpi) {
    const int n = frameThickness(frame, width, height);
    if (n == 0 || dpi < 1) return;
    const Mask mask{bytes, width, height};
    constexpr Side kRight{true, true}, kTop{false, false}, kBottom{false, true}, kLeft{true, false};
    Teeth teeth(n, dpi);
    drawTeeth(mask, kRight, teeth, 0.0);
    fillToTeeth(mask, kRight, n, true);
    for (const Side& side : {kTop, kBottom, kLeft}) {
        drawTeeth(mask, side, teeth, n);
        fillToTeeth(mask, side, n, false);
    }
    fillCorners(mask, n);
}

}  // namespace tavrin

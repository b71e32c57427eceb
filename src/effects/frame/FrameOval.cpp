#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/raster/Rows.h"
#include "effects/frame/FrameMask.h"
#include "effects/frame/FrameShapes.h"

namespace tavrin {

namespace {

// Half axes of one outline.
struct Axes {
    double a, b;

    Axes swapped() const { return {b, a}; }
};

// Height of the outline over the middle, at a distance x < a from it.
double outlineAt(const Axes& axes, double x) {
    return axes.b * std::sqrt(1.0 - x * x / (axes.a * axes.a));
}

// From this outline on, each next one lies less than a pixel further out at x, so that together they leave no pixel
// of the line out: the height grows by s + (b / a) (1 - s^2) / s for each pixel of a, with s the sine of the place on
// the ellipse, and half a pixel comes at a time. Past this point the growth stays below 2: s only rises, and b / a
// only nears 1.
bool isClosed(const Axes& axes, double x) {
    if (!(axes.a > 0.0 && axes.b > 0.0 && x < axes.a)) return false;
    const double square = 1.0 - x * x / (axes.a * axes.a), s = std::sqrt(square);
    return axes.b >= axes.a ? axes.b / axes.a * (1.0 - square) <= 0.95 * s : s >= 0.55;
}

class OvalPainter {
  public:
    OvalPainter(std::uint8_t* mask, int width, int height, bool arch)
        : mask_(mask),
          width_(width),
          height_(height),
          arch_(arch),
          top_(static_cast<std::size_t>(width), -1),
          bottom_(static_cast<std::size_t>(width), height),
          left_(static_cast<std::size_t>(height), -1),
          right_(static_cast<std::size_t>(height), width) {}

    /// One outline. @return whether any of it lies in the picture
    bool paint(const Axes& axes) {
        bool painted = false;
        for (int quadrant = 0; quadrant < 4; ++quadrant) {
            const bool below = quadrant < 2, right = quadrant % 2 == 0;
            if (below && arch_) {
                painted = paintSide(axes.a, right) || painted;
            } else {
                painted = sweepColumns(axes, quadrant, right, below) || painted;
                painted = sweepRows(axes, quadrant, right, below) || painted;
            }
        }
        // What has been closed is not painted again, but counts.
        return painted || (axes.a > 0.0 && axes.b > 0.0 && !isBeyond(axes));
    }

    /// Paints what lies outside of the outlines where they are closed.
    void fillClosed(const RunContext& run) {
        runRows(run, height_, 32, [this](int y) {
            std::uint8_t* pixel = mask_ + pixelOffset(width_, 0, y);
            const int left = left_[static_cast<std::size_t>(y)], right = right_[static_cast<std::size_t>(y)];
            for (int x = 0; x < width_; ++x, pixel += kPixelBytes) {
                const auto column = static_cast<std::size_t>(x);
                if (x <= left || x >= right || y <= top_[column] || y >= bottom_[column]) setWhite(pixel);
            }
        });
    }

  private:
    // Truncation draws what lies up to a pixel beyond the left and the upper edge onto it.
    bool set(double x, double y) {
        if (!(x > -1.0 && x < width_ && y > -1.0 && y < height_)) return false;
        setWhite(mask_ + pixelOffset(width_, static_cast<int>(x), static_cast<int>(y)));
        return true;
    }

    bool paintSide(double a, bool right) {
        const double x = right ? width_ / 2 + a : width_ / 2 - a;
        bool painted = false;
        for (int y = height_ / 2; y < height_; ++y)
            painted = set(x, y) || painted;
        return painted;
    }

    bool sweepColumns(const Axes& axes, int quadrant, bool right, bool below) {
        const int cx = width_ / 2, cy = height_ / 2, reach = right ? width_ - 1 - cx : cx;
        int& next = nextColumn_[static_cast<std::size_t>(quadrant)];
        bool painted = false;
        for (int x = next; x <= reach && x < axes.a; ++x) {
            const int column = right ? cx + x : cx - x;
            const double height = outlineAt(axes, x), y = below ? cy + height : cy - height;
            if (x == next && isClosed(axes, x)) {
                ++next;
                close(y, height_, below, below ? bottom_[column] : top_[column]);
            } else {
                painted = set(column, y) || painted;
            }
        }
        return painted;
    }

    bool sweepRows(const Axes& axes, int quadrant, bool right, bool below) {
        const int cx = width_ / 2, cy = height_ / 2, reach = below ? height_ - 1 - cy : cy;
        int& next = nextRow_[static_cast<std::size_t>(quadrant)];
        bool painted = false;
        for (int y = next; y <= reach && y < axes.b; ++y) {
            const int row = below ? cy + y : cy - y;
            const double width = outlineAt(axes.swapped(), y), x = right ? cx + width : cx - width;
            if (y == next && isClosed(axes.swapped(), y)) {
                ++next;
                close(x, width_, right, right ? right_[row] : left_[row]);
            } else {
                painted = set(x, row) || painted;
            }
        }
        return painted;
    }

    // Notes that all from `position` outward is painted.
    static void close(double position, int size, bool outwardIsUp, int& bound) {
        if (!(position > -1.0 && position < size)) return;
        const int at = static_cast<int>(position);
        bound = outwardIsUp ? std::min(bound, at) : std::max(bound, at);
    }

    // The outline has passed the corner that is furthest from the middle.
    bool isBeyond(const Axes& axes) const {
        const int cx = width_ / 2, cy = height_ / 2;
        return axes.a > cx && axes.b > cy && outlineAt(axes, cx) >= cy + 1 && outlineAt(axes.swapped(), cy) >= cx + 1;
    }

    std::uint8_t* mask_;
    int width_, height_;
    bool arch_;
    std::array<int, 4> nextColumn_{}, nextRow_{};  // the first that is not closed, counted from the middle
    // Bounds of what is painted, for each column and each row.
    std::vector<int> top_, bottom_, left_, right_;
};

}  // namespace

void DrawOvalFrame(SystemInfo& /*info*/, const ImageFrame& frame, std::uint8_t* mask, int width, int height,
                   const RunContext& run) {
    const int cx = width / 2, cy = height / 2;
    Axes axes;
    axes.a = cx * (100.0 - frame.iFrameThickness) / 100.0;
    axes.b = cy - std::trunc(cx - axes.a);
    OvalPainter painter(mask, width, height, frame.bFrameArch);
    bool painted = true;
    while (painted) {
        if (run.isSuperseded()) return;
        painted = false;
        for (int i = 0; i < 2; ++i) {
            axes = {axes.a + 0.5, axes.b + 0.5};
            painted = painter.paint(axes) || painted;
        }
    }
    painter.fillClosed(run);
}

}  // namespace tavrin

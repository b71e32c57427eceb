#include "effects/frame/FrameShapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "effects/frame/FrameMask.h"

namespace tavrin {

namespace {

void whiten(std::uint8_t* row, int first, int last) {
    for (int x = std::max(first, 0); x < last; ++x)
        setWhite(row + pixelOffset(0, x, 0));
}

struct HeartPoint {
    int x, y;
};

HeartPoint heartPoint(double x, double scale, bool upper, int width, int height) {
    const double half = height / 2.0;
    const double bow = std::sqrt(1.0 - x * x), cleft = std::sqrt(std::abs(x));
    const double lobe = upper ? bow + cleft : cleft - bow;
    const double up = scale * lobe * 4.0 / 5.0 * half / 1.030725 + half - 0.1153675 * height;
    return {truncatedPosition(x * (width / 2.0) * scale + width / 2.0), truncatedPosition(height - up)};
}

// The whole outline at one scale. As many steps lie on either side of the middle, so that both ends are closed.
bool drawHeartOutline(const SystemInfo& info, double scale, std::uint8_t* mask, int width, int height) {
    for (const bool upper : {true, false}) {
        HeartPoint from = heartPoint(-1.0, scale, upper, width, height);
        for (int i = 1; i <= height; ++i) {
            if (info.isSuperseded()) return false;
            const HeartPoint to = heartPoint(-1.0 + i / (height / 2.0), scale, upper, width, height);
            DrawRedLine(from.x, from.y, to.x, to.y, mask, width, height);
            from = to;
        }
    }
    return true;
}

// Paints the pixels of a row from both ends up to the outline.
void fillRowToOutline(std::uint8_t* row, int width) {
    int x = 0;
    for (; x < width && !isLine(row + pixelOffset(0, x, 0)); ++x)
        setWhite(row + pixelOffset(0, x, 0));
    for (int right = width - 1; right > x && !isLine(row + pixelOffset(0, right, 0)); --right)
        setWhite(row + pixelOffset(0, right, 0));
}

// One row of the walk down (or up) all columns at once; `open` tells which have not met the outline yet.
void fillColumnsToOutline(std::uint8_t* row, std::vector<std::uint8_t>& open) {
    for (std::size_t x = 0; x < open.size(); ++x) {
        std::uint8_t* pixel = row + x * kPixelBytes;
        if (open[x] && isLine(pixel)) open[x] = 0;
        if (open[x]) setWhite(pixel);
    }
}

}  // namespace

void DrawRedLine(int x0, int y0, int x1, int y1, std::uint8_t* mask, int width, int height) {
    const auto put = [&](double x, double y) {
        if (!(x > -1.0 && x < width && y > -1.0 && y < height)) return;
        std::uint8_t* pixel = mask + pixelOffset(width, static_cast<int>(x), static_cast<int>(y));
        pixel[0] = 255;
        pixel[1] = pixel[2] = 0;
    };
    const bool slanted = x0 != x1 && y0 != y1;
    const double slope = slanted ? (static_cast<double>(y0) - y1) / (static_cast<double>(x0) - x1) : 0.0;
    const double rise = y1 - slope * x1;
    const int top = std::max(std::min(y0, y1), 0), bottom = std::min(std::max(y0, y1), height - 1);
    const int left = std::max(std::min(x0, x1), 0), right = std::min(std::max(x0, x1), width - 1);
    if (x0 == x1 || slanted) {
        for (int y = top; y <= bottom; ++y)
            put(slanted ? (y - rise) / slope : x0, y);
    }
    if (y0 == y1 || slanted) {
        for (int x = left; x <= right; ++x)
            put(x, slanted ? slope * x + rise : y0);
    }
}

void DrawRectFrame(SystemInfo& /*info*/, const ImageFrame& frame, std::uint8_t* mask, int width, int height) {
    const int n = frameThickness(frame, width, height);
    if (n == 0) return;
    const int lower = frame.bFrameArch ? height : height - n;
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = mask + pixelOffset(width, 0, y);
        const bool whole = y < n || y >= lower;
        whiten(row, 0, whole ? width : std::min(n, width));
        if (!whole) whiten(row, width - n, width);
    }
}

void DrawHeartFrame(SystemInfo& info, const ImageFrame& frame, std::uint8_t* mask, int width, int height) {
    const double w = width;
    double scale = std::min((w - w * frame.iFrameThickness / 100.0) / w, 0.95);
    for (int pass = 0; pass < 3; ++pass) {
        scale += 0.5 / (height / 2.0);
        if (!drawHeartOutline(info, scale, mask, width, height)) return;
    }
    const auto row = [&](int y) { return mask + pixelOffset(width, 0, y); };
    for (int y = 0; y < height; ++y) {
        if (info.isSuperseded()) return;
        fillRowToOutline(row(y), width);
    }
    for (const bool down : {true, false}) {
        std::vector<std::uint8_t> open(static_cast<std::size_t>(width), 1);
        for (int y = 0; y < height; ++y) {
            if (info.isSuperseded()) return;
            fillColumnsToOutline(row(down ? y : height - 1 - y), open);
        }
    }
}

}  // namespace tavrin

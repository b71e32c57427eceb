#include <algorithm>
#include <cmath>

#include "key/light/Lighting.h"
#include "key/light/LightingShapes.h"

// The circle and the cone are families of rings, one in each half pixel, drawn from the inside out: each ring is
// walked along both axes in quarters of a pixel, and a later ring covers what an earlier one drew. Here every cell of
// the picture asks for the last ring that comes through it, so that the work is bounded by the picture and not by
// the rings. Radii are counted in halves of a pixel and positions along a walk in quarters, all of them whole
// numbers.

namespace tavrin {

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kNarrow = 0.3;  // width of the cone to its length

std::int64_t held(std::int64_t value) {
    return std::clamp(value, -kFarAway, kFarAway);
}

// The largest radius below the square root of `limit16` sixteenths, and at most `largest`.
std::int64_t radiusBelow(std::int64_t limit16, std::int64_t largest) {
    const auto below = static_cast<std::int64_t>(std::ceil(std::sqrt(static_cast<double>(limit16)) / 2.0)) - 1;
    return std::min(below, largest);
}

// The last ring that a walk has at position `q` of one axis while it is in cell `n` of the other; 0 if there is none.
std::int64_t ringAt(std::int64_t q, std::int64_t n, std::int64_t largest) {
    const std::int64_t h = radiusBelow(q * q + 16 * (n + 1) * (n + 1), largest);
    return h >= 2 && 4 * h * h >= q * q + 16 * n * n ? h : 0;
}

// The last ring through the cell at (i, j) from the centre, 0 or more; 0 if there is none. The step nearest the
// cell's far side has the largest rings, and only near the centre and at the rim there are none at that step.
std::int64_t lastRing(std::int64_t i, std::int64_t j, std::int64_t largest) {
    const std::int64_t near = std::min(i, j), far = std::max(i, j);
    if (4 * (near * near + far * far) > largest * largest) return 0;
    if (const std::int64_t h = ringAt(4 * near + 3, far, largest)) return h;
    std::int64_t last = 0;
    for (std::int64_t part = 3; part >= 0; --part)
        last = std::max({last, ringAt(4 * near + part, far, largest), ringAt(4 * far + part, near, largest)});
    return last;
}

// The cell beside the cone's axis of a point that would be this far from it in a circle.
int cellAcross(double across) {
    return static_cast<int>(kNarrow * across);
}

// When the cone's rings come to the cell `u` before the wide end and `w` from the axis for the last time: a larger
// number is later. Of two walks of one ring that along the axis is the later one. 0 if no ring comes there.
std::int64_t lastVisit(std::int64_t u, std::int64_t w, std::int64_t largest) {
    const auto visit = [](std::int64_t ring, int walk, std::int64_t q) { return (ring * 2 + walk) << 26 | q; };
    const auto across = [](std::int64_t q) { return cellAcross(static_cast<double>(q) / 4.0); };
    const double beyond = static_cast<double>(w + 1) / kNarrow;

    std::int64_t last = 0, q = static_cast<std::int64_t>(beyond * 4.0) + 1;
    while (across(q) > w)
        --q;
    for (; last == 0 && q >= 0 && across(q) == w; --q) {
        if (const std::int64_t ring = ringAt(q, u, largest)) last = visit(ring, 0, q);
    }
    for (q = 4 * u + 3; q >= 4 * u; --q) {
        const double d = static_cast<double>(q) / 4.0;
        std::int64_t ring =
            std::min(static_cast<std::int64_t>(std::sqrt(d * d + beyond * beyond) * 2.0) + 1, largest);
        const auto acrossAt = [&] {
            const double r = static_cast<double>(ring) / 2.0;
            return r >= d ? cellAcross(std::sqrt(r * r - d * d)) : -1;
        };
        while (acrossAt() > w)
            --ring;
        if (ring >= 2 && acrossAt() == w) return std::max(last, visit(ring, 1, q));
    }
    return last;
}

// A cone in a frame of its own: x from 0 at the apex to `length` at the wide end, y across.
class Cone {
  public:
    Cone(const SystemInfo& info, std::int64_t width, std::int64_t height)
        : length_(std::max<std::int64_t>(held(std::int64_t{info.iLightingSliderSize} * height / 100), 1)),
          apexX_(apex(info.iLightingSliderXLoc, width)),
          apexY_(apex(info.iLightingSliderYLoc, height)),
          cos_(std::cos(info.iLightingSliderAngle * kDegree)),
          sin_(std::sin(info.iLightingSliderAngle * kDegree)),
          start_(sliderGain(info.iLightingSliderStartLight)),
          end_(sliderGain(info.iLightingSliderEndLight)) {
        const double length = static_cast<double>(length_);
        whole_ = std::trunc(std::sqrt(length * length + (0.4 * length) * (0.4 * length)));
    }

    void fillRow(std::int32_t* row, int width, int y) const {
        for (int x = 0; x < width; ++x) {
            const double fromX = x + 0.5 - apexX_, fromY = y + 0.5 - apexY_;
            const double along = fromX * cos_ + fromY * sin_, across = fromY * cos_ - fromX * sin_;
            const double length = static_cast<double>(length_);
            if (along < -1.0 || along > length + 1.0 || std::abs(across) > kNarrow * length + 2.0) continue;
            fillCell(row[x], x, y, along, across);
        }
    }

  private:
    static double apex(std::int64_t slider, std::int64_t size) {
        return static_cast<double>(held(size / 2 + (slider - 50) * size / 200));
    }

    // Of the points of the cone's own grid that come down in this cell of the picture, the one that was drawn last.
    void fillCell(std::int32_t& cell, int x, int y, double along, double across) const {
        constexpr double kReach = 0.71;  // half the diagonal of a cell
        std::int64_t latest = -1, u = 0, w = 0;
        for (auto px = static_cast<std::int64_t>(std::ceil(along - kReach));
             static_cast<double>(px) <= along + kReach; ++px) {
            for (auto py = static_cast<std::int64_t>(std::ceil(across - kReach));
                 static_cast<double>(py) <= across + kReach; ++py) {
                if (!comesDownIn(x, y, static_cast<double>(px), static_cast<double>(py))) continue;
                if (px < 0 || px > length_) continue;
                const std::int64_t visit = lastVisit(length_ - px, std::abs(py), length_ * 2);
                if (visit == 0 || visit < latest) continue;
                latest = visit;
                u = length_ - px;
                w = std::abs(py);
            }
        }
        if (latest > 0) cell = gainAt(static_cast<double>(u), static_cast<double>(w));
    }
    bool comesDownIn(int x, int y, double px, double py) const {
        const double column = apexX_ + (px * cos_ - py * sin_), line = apexY_ + (px * sin_ + py * cos_);
        return column >= x && column < x + 1 && line >= y && line < y + 1;
    }
    std::int32_t gainAt(double u, double w) const {
        return toGain((start_ - end_) * std::sqrt(u * u + w * w) / whole_ + end_);
    }

    std::int64_t length_;
    double apexX_, apexY_, cos_, sin_, start_, end_, whole_ = 1.0;
};

}  // namespace

void EffectsLightingCircle(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes) {
    if (!map || width < 1 || height < 1) return;
    const std::int64_t radius =
        std::max<std::int64_t>(held(std::int64_t{info.iLightingSliderSize} * height / 200), 1);
    const std::int64_t middleX = held(std::int64_t{info.iLightingSliderXLoc} * width / 400);
    const std::int64_t middleY = held(std::int64_t{info.iLightingSliderYLoc} * height / 400);
    const double start = sliderGain(info.iLightingSliderStartLight), end = sliderGain(info.iLightingSliderEndLight);
    const int left = static_cast<int>(std::clamp<std::int64_t>(middleX - radius, 0, width));
    const int right = static_cast<int>(std::clamp<std::int64_t>(middleX + radius + 1, 0, width));

    const bool finished = runRows(info.rowsWhileWanted(), height, 8, [&](int y) {
        const std::int64_t dy = std::abs(y - middleY);
        if (dy > radius) return;
        std::int32_t* row = map + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
        for (int x = left; x < right; ++x) {
            const std::int64_t ring = lastRing(std::abs(x - middleX), dy, radius * 2);
            if (ring > 0) {
                const double r = static_cast<double>(ring) / 2.0;
                row[x] = toGain((end - start) * r / static_cast<double>(radius) + start);
            }
        }
    });
    if (finished) softenShape(info, map, width, height, fullIf(hiRes != 0));
}

void EffectsLightingCone(SystemInfo& info, std::int32_t* map, int width, int height, int hiRes) {
    if (!map || width < 1 || height < 1) return;
    const Cone cone(info, width, height);
    const bool finished = runRows(info.rowsWhileWanted(), height, 8, [&](int y) {
        cone.fillRow(map + static_cast<std::size_t>(y) * static_cast<std::size_t>(width), width, y);
    });
    if (finished) softenShape(info, map, width, height, fullIf(hiRes != 0));
}

}  // namespace tavrin

#include <algorithm>
#include <cmath>

#include "key/light/Lighting.h"
#include "key/light/LightingShapes.h"

namespace tavrin {

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kLineStep = 0.25;      // along the edges of the picture, between two lines of a sheet
constexpr double kBeyondReason = 1e12;  // a line that begins or ends farther away, or nowhere, is not drawn
constexpr int kBandRows = 64;           // rows that one thread fills with its part of every line

struct LightingLine {
    double x0, y0, x1, y1;
    std::int32_t value;
};

// Rows [first, last) of a map; lines are drawn into one band at a time.
struct Band {
    std::int32_t* map;
    int width, first, last;

    std::int32_t& cell(int x, int y) const {
        return map[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
};

// The cells between `a` and `b`, both included, of those from `first` to `last` - 1.
struct Span {
    int begin, end;

    Span(double a, double b, int first, int last)
        : begin(static_cast<int>(std::clamp(std::floor(std::min(a, b)), double(first), double(last)))),
          end(static_cast<int>(std::clamp(std::floor(std::max(a, b)) + 1.0, double(first), double(last)))) {}
};

// Where a line with ends (a0, b0) and (a1, b1) stands at `a`; beyond its ends it stands still. A line without slope
// stands at its first end.
struct Walk {
    double a0, b0, slope, low, high;

    Walk(double a0, double b0, double a1, double b1)
        : a0(a0), b0(b0), slope((b1 - b0) / (a1 - a0)), low(std::min(b0, b1)), high(std::max(b0, b1)) {
        if (!std::isfinite(slope)) slope = 0.0;
    }
    double at(double a) const { return std::clamp(b0 + (a - a0) * slope, low, high); }
};

bool drawInBand(const LightingLine& line, const Band& band) {
    const Span rows(line.y0, line.y1, band.first, band.last);
    if (rows.begin >= rows.end) return false;
    bool drawn = false;
    const Walk byRow(line.y0, line.x0, line.y1, line.x1), byColumn(line.x0, line.y0, line.x1, line.y1);
    for (int y = rows.begin; y < rows.end; ++y) {
        const double x = byRow.at(y);
        if (!(x >= 0.0 && x < band.width)) continue;
        band.cell(static_cast<int>(x), y) = line.value;
        drawn = true;
    }
    // Only the columns that the line passes in these rows.
    const bool level = byRow.slope == 0.0;
    const Span columns(level ? line.x0 : byRow.at(rows.begin - 1), level ? line.x1 : byRow.at(rows.end + 1), 0,
                       band.width);
    for (int x = columns.begin; x < columns.end; ++x) {
        const double y = byColumn.at(x);
        if (!(y >= band.first && y < band.last)) continue;
        band.cell(x, static_cast<int>(y)) = line.value;
        drawn = true;
    }
    return drawn;
}

// Near a multiple of 90 degrees the angle is taken for it. What lies below 0 or above 360 counts as 0.
int snapped(int angle) {
    if (angle < 5 || angle > 355) return 0;
    for (const int right : {90, 180, 270}) {
        if (std::abs(angle - right) <= 4) return right;
    }
    return angle;
}

// The light at a distance from where the sheet begins, of which `whole` is the largest.
struct SheetLight {
    double start, end, whole;

    std::int32_t at(double d) const { return toGain(start + (end - start) * d / whole); }
};

void fillUpright(const RunContext& context, int angle, double start, double end, const Band& all) {
    const bool byColumn = angle == 90 || angle == 270, backwards = angle == 180 || angle == 270;
    const int size = byColumn ? all.width : all.last;
    const SheetLight light{start, end, double(size)};
    const auto at = [&](int position) { return light.at(backwards ? size - 1 - position : position); };
    runRows(context, all.last, 32, [&](int y) {
        for (int x = 0; x < all.width; ++x)
            all.cell(x, y) = at(byColumn ? x : y);
    });
}

// Parallel lines from a corner of the picture to the opposite one. They are worked out as if that corner were the
// top left one, and turned over where it is another.
class ObliqueSheet {
  public:
    ObliqueSheet(int angle, double start, double end, int width, int height)
        : right_(std::sin(angle * kDegree)),
          down_(std::cos(angle * kDegree)),
          width_(width),
          height_(height),
          light_{start, end, std::trunc(std::hypot(double(width), double(height)))} {}

    void draw(const Band& band) const {
        for (double t = 0.0; t < width_; t += kLineStep)
            drawInBand(line(t, 0.0), band);
        for (double t = 0.0; t <= height_; t += kLineStep)
            drawInBand(line(width_, t), band);
    }

  private:
    // The line through (x, y), from there down to the side where x is 0.
    LightingLine line(double x, double y) const {
        const double alongX = std::abs(right_), alongY = std::abs(down_);
        const double foot = y + x * alongX / alongY;
        return {column(x), row(y), column(0.0), row(foot), light_.at(x * alongX + y * alongY)};
    }
    double column(double x) const { return right_ > 0.0 ? x : width_ - x; }
    double row(double y) const { return down_ > 0.0 ? y : height_ - y; }

    double right_, down_;  // the direction in which the light runs
    double width_, height_;
    SheetLight light_;
};

}  // namespace

bool DrawLightingLine(double x0, double y0, double x1, double y1, std::int32_t* map, int width, int height,
                      std::int32_t value) {
    const auto sane = [](double v) { return std::abs(v) < kBeyondReason; };
    if (!sane(x0) || !sane(y0) || !sane(x1) || !sane(y1) || !map || width < 1 || height < 1) return false;
    return drawInBand({x0, y0, x1, y1, value}, {map, width, 0, height});
}

void EffectsLightingSheet(SystemInfo& info, std::int32_t* map, int width, int height, int) {
    if (!map || width < 1 || height < 1) return;
    const int angle = snapped(info.iLightingSliderAngle);
    const double start = sliderGain(info.iLightingSliderStartLight), end = sliderGain(info.iLightingSliderEndLight);
    const RunContext context = info.rowsWhileWanted();
    if (angle % 90 == 0) return fillUpright(context, angle, start, end, {map, width, 0, height});

    const ObliqueSheet sheet(angle, start, end, width, height);
    runRowRanges(context, height, kBandRows, [&](int first, int last) { sheet.draw({map, width, first, last}); });
}

}  // namespace tavrin

#include "effects/shadow/ShadowMask.h"

#include <algorithm>
#include <cmath>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

double distance(double r, double g, double b, const Rgb& to) {
    const double dr = r - to.r, dg = g - to.g, db = b - to.b;
    return std::sqrt(dr * dr + dg * dg + db * db);
}

// The place in the foreground whose shadow falls on column x of the floor; `up` counts rows from the picture's middle
// upward.
SourcePoint project(const ShadowGeometry& g, double x, double up) {
    const double h = g.height;
    const double cx = g.width / 2, cy = g.height / 2;
    const double a = (x - cx) * g.sine + g.cosine * up + cy;
    double p = (h - 1.0 - g.base) - (a + 2.0 - g.shiftY - g.base) / g.scale;
    if (!g.behind) p = h - p - 1.0 - g.base - g.shiftY - (g.shiftY + g.base) + h - 1.0;
    const double q = h - p;
    const double u = -(q + 1.0 - g.base) * g.skew + ((x - cx) * g.cosine - g.sine * up + cx) - g.shiftX - cx;
    const double v = q - 1.0 - cy;
    return {u * g.cosine + g.sine * v + cx, h - (-g.sine * u + g.cosine * v + cy) - 1.0};
}

double upFromMiddle(const ShadowGeometry& g, double y) {
    return g.height - 1.0 - y - g.height / 2;
}

SourcePoint sourceOf(const ShadowColumns& columns, int x, int y) {
    const ShadowGeometry& g = columns.geometry;
    const SourcePoint& wall = columns.wall[static_cast<std::size_t>(x)];
    if (!g.room) return {wall.column, (y + g.shiftY) / g.scale};
    const double floorRow = columns.floorRow[static_cast<std::size_t>(x)];
    // The shadow climbs the wall upright, as tall as the subject.
    if (y <= floorRow) return {wall.column, y + wall.row - floorRow};
    return project(g, x, upFromMiddle(g, y));
}

}  // namespace

ShadowColumns::ShadowColumns(const ShadowGeometry& shadow)
    : geometry(shadow),
      floorRow(static_cast<std::size_t>(shadow.width)),
      wall(static_cast<std::size_t>(shadow.width)) {
    for (int x = 0; x < shadow.width; ++x) {
        const auto i = static_cast<std::size_t>(x);
        floorRow[i] = std::trunc(shadow.floorLeft + shadow.floorStep * x);
        wall[i] = shadow.room ? project(shadow, x, upFromMiddle(shadow, floorRow[i]))
                              : SourcePoint{(x - shadow.shiftX) / shadow.scale, 0.0};
    }
}

ShadowKey::ShadowKey(bool blueLogic, const Rgb& screen, double black, double green)
    : roles(blueLogic),
      baseGreen(screen.g),
      blackLimit(black),
      greenLimit(green),
      redShare(screen.r / screen.g),
      blueShare(screen.b / screen.g) {
    const auto scaled = [&](double factor) { return Rgb{screen.r * factor, screen.g * factor, screen.b * factor}; };
    for (std::size_t i = 0; i < 256; ++i) {
        const auto level = static_cast<double>(i);
        byRed[i] = scaled(level / screen.r);
        byGreen[i] = scaled(level / screen.g);
        byBlue[i] = scaled(level / screen.b);
    }
}

bool ShadowKey::casts(const std::uint8_t* pixel) const {
    const int red = pixel[0], green = pixel[roles.green], blue = pixel[roles.blue];
    const double r = red, g = green, b = blue;
    const double chroma = std::sqrt((r - g) * (r - g) + (g - b) * (g - b));
    if (chroma < blackLimit) return true;
    if (r + g + b < blackLimit && g + 10.0 >= r && g + 10.0 >= b && g < baseGreen) return true;
    const double line = distance(r, g, b, byGreen[static_cast<std::size_t>(green)]) +
                        distance(r, g, b, byRed[static_cast<std::size_t>(red)]) * redShare +
                        distance(r, g, b, byBlue[static_cast<std::size_t>(blue)]) * blueShare;
    const double excess = b > r ? g - b : g - r;
    return line - excess * line / 255.0 > greenLimit;
}

void shadowMaskRow(const ShadowColumns& columns, const ShadowKey& key, const ShadowClip& clip,
                   const std::uint8_t* foreground, int y, std::uint8_t* row) {
    const ShadowGeometry& g = columns.geometry;
    for (int x = 0; x < g.width; ++x) {
        const SourcePoint source = sourceOf(columns, x, y);
        const double column = source.column + 0.5, line = source.row + 0.5;
        row[x] = 0;
        if (!(column >= 0.0 && column < g.width && line >= 0.0 && line < g.height)) continue;
        const int fromX = static_cast<int>(column), fromY = static_cast<int>(line);
        if (fromX < clip.left || fromX > clip.right || fromY < clip.top || fromY > clip.bottom) continue;
        if (key.casts(foreground + pixelOffset(g.width, fromX, fromY))) row[x] = 1;
    }
}

}  // namespace tavrin

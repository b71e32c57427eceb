#pragma once

#include <vector>

#include <QImage>

namespace tavrin::sample {

/// One channel of a picture in doubles, rows packed, 0 to 1.
struct Plane {
    int width, height;
    std::vector<double> values;

    Plane(int w, int h, double value = 0.0)
        : width(w), height(h), values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), value) {}
    double& at(int x, int y) { return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + x]; }
    double at(int x, int y) const {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + x];
    }
};

/// Red, green, blue (premultiplied where there is an alpha) and alpha.
struct Layers {
    Plane red, green, blue, alpha;
};

/// Gaussian blur; the edge pixels continue beyond the picture. Nothing happens when sigma is 0.
void blur(Plane& plane, double sigma);

/// Blurs a painting in place, for things out of the plane of focus.
void blur(QImage& painting, double sigma);

/// Averages blocks of `factor` x `factor` pixels of a premultiplied painting.
Layers reduce(const QImage& painting, int factor);

}  // namespace tavrin::sample

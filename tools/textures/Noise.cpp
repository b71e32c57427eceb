#include "textures/Noise.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sample/Random.h"

namespace tavrin::textures {

namespace {

// Where a position lies on a closed row of knots, and the weights of the four knots around it.
struct Knots {
    std::array<int, 4> index;
    std::array<double, 4> weight;
};

Knots knotsAt(int position, int length, int cells) {
    const double place = static_cast<double>(position) * cells / length;
    const int cell = static_cast<int>(place);
    const double f = place - cell, g = 1.0 - f;
    return {{(cell + cells - 1) % cells, cell % cells, (cell + 1) % cells, (cell + 2) % cells},
            {g * g * g / 6.0, (4.0 - 6.0 * f * f + 3.0 * f * f * f) / 6.0,
             (4.0 - 6.0 * g * g + 3.0 * g * g * g) / 6.0, f * f * f / 6.0}};
}

}  // namespace

Plane hills(int width, int height, int cellsX, int cellsY, std::uint64_t seed) {
    sample::Random random(seed);
    Plane knots(cellsX, cellsY), rows(width, cellsY), out(width, height);
    for (double& value : knots.values)
        value = random.normal();
    for (int x = 0; x < width; ++x) {
        const Knots k = knotsAt(x, width, cellsX);
        for (int y = 0; y < cellsY; ++y) {
            for (std::size_t i = 0; i < 4; ++i)
                rows.at(x, y) += k.weight[i] * knots.at(k.index[i], y);
        }
    }
    for (int y = 0; y < height; ++y) {
        const Knots k = knotsAt(y, height, cellsY);
        for (int x = 0; x < width; ++x) {
            for (std::size_t i = 0; i < 4; ++i)
                out.at(x, y) += k.weight[i] * rows.at(x, k.index[i]);
        }
    }
    normalise(out);
    return out;
}

void add(Plane& plane, const Plane& other, double amount) {
    for (std::size_t i = 0; i < plane.values.size(); ++i)
        plane.values[i] += amount * other.values[i];
}

void normalise(Plane& plane) {
    const double count = static_cast<double>(plane.values.size());
    double sum = 0.0, squares = 0.0;
    for (const double value : plane.values)
        sum += value;
    const double mean = sum / count;
    for (double& value : plane.values) {
        value -= mean;
        squares += value * value;
    }
    const double deviation = std::max(1e-12, std::sqrt(squares / count));
    for (double& value : plane.values)
        value /= deviation;
}

Plane lightFromAbove(const Plane& height) {
    Plane light(height.width, height.height);
    for (int y = 0; y < height.height; ++y) {
        const int above = (y + height.height - 1) % height.height, below = (y + 1) % height.height;
        for (int x = 0; x < height.width; ++x) {
            const int left = (x + height.width - 1) % height.width, right = (x + 1) % height.width;
            light.at(x, y) =
                0.6 * (height.at(right, y) - height.at(left, y)) + height.at(x, below) - height.at(x, above);
        }
    }
    return light;
}

double smoothStep(double low, double high, double value) {
    const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

uchar toByte(double value) {
    return static_cast<uchar>(std::clamp(255.0 * value + 0.5, 0.0, 255.0));
}

QImage toGreyPicture(const Plane& plane) {
    QImage picture(plane.width, plane.height, QImage::Format_RGB888);
    for (int y = 0; y < plane.height; ++y) {
        uchar* line = picture.scanLine(y);
        for (int x = 0; x < plane.width; ++x)
            line[3 * x] = line[3 * x + 1] = line[3 * x + 2] = toByte(plane.at(x, y));
    }
    return picture;
}

}  // namespace tavrin::textures

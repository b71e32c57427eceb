#include "sample/Plane.h"

#include <algorithm>
#include <cmath>

namespace tavrin::sample {

namespace {

std::vector<double> gaussian(double sigma) {
    const int reach = std::max(1, static_cast<int>(std::ceil(3.0 * sigma)));
    std::vector<double> weights;
    double sum = 0.0;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(std::exp(-0.5 * i * i / (sigma * sigma)));
        sum += weights.back();
    }
    for (double& weight : weights)
        weight /= sum;
    return weights;
}

// One line of `count` values, `step` apart.
void blurLine(double* line, int count, std::ptrdiff_t step, const std::vector<double>& weights,
              std::vector<double>& copy) {
    const int reach = static_cast<int>(weights.size() / 2);
    copy.resize(static_cast<std::size_t>(count + 2 * reach));
    for (int i = -reach; i < count + reach; ++i) {
        copy[static_cast<std::size_t>(i + reach)] = line[std::clamp(i, 0, count - 1) * step];
    }
    for (int i = 0; i < count; ++i) {
        double sum = 0.0;
        for (std::size_t k = 0; k < weights.size(); ++k)
            sum += weights[k] * copy[static_cast<std::size_t>(i) + k];
        line[i * step] = sum;
    }
}

}  // namespace

void blur(Plane& plane, double sigma) {
    if (sigma <= 0.0) return;
    const std::vector<double> weights = gaussian(sigma);
    std::vector<double> copy;
    for (int y = 0; y < plane.height; ++y)
        blurLine(&plane.at(0, y), plane.width, 1, weights, copy);
    for (int x = 0; x < plane.width; ++x)
        blurLine(&plane.at(x, 0), plane.height, plane.width, weights, copy);
}

Layers reduce(const QImage& painting, int factor) {
    const int width = painting.width() / factor, height = painting.height() / factor;
    Layers out{Plane(width, height), Plane(width, height), Plane(width, height), Plane(width, height)};
    const double scale = 1.0 / (65535.0 * factor * factor);
    for (int y = 0; y < height * factor; ++y) {
        const auto* line = reinterpret_cast<const QRgba64*>(painting.constScanLine(y));
        for (int x = 0; x < width * factor; ++x) {
            out.red.at(x / factor, y / factor) += line[x].red() * scale;
            out.green.at(x / factor, y / factor) += line[x].green() * scale;
            out.blue.at(x / factor, y / factor) += line[x].blue() * scale;
            out.alpha.at(x / factor, y / factor) += line[x].alpha() * scale;
        }
    }
    return out;
}

void blur(QImage& painting, double sigma) {
    Layers planes = reduce(painting, 1);
    for (Plane* plane : {&planes.red, &planes.green, &planes.blue, &planes.alpha})
        blur(*plane, sigma);
    const auto word = [](double value) { return static_cast<quint16>(std::clamp(value, 0.0, 1.0) * 65535.0 + 0.5); };
    for (int y = 0; y < painting.height(); ++y) {
        auto* line = reinterpret_cast<QRgba64*>(painting.scanLine(y));
        for (int x = 0; x < painting.width(); ++x) {
            line[x] = qRgba64(word(planes.red.at(x, y)), word(planes.green.at(x, y)), word(planes.blue.at(x, y)),
                              word(planes.alpha.at(x, y)));
        }
    }
}

}  // namespace tavrin::sample

#include "pipeline/ScreenLight.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

namespace {

constexpr int kRemoved = 20;        // alpha of what is surely screen
constexpr int kFewest = 100;        // samples that make a surface
constexpr int kStep = 2;            // every second sample of every second row is enough
constexpr double kOff = 0.1;        // of the light
constexpr double kLeastOff = 10.0;  // levels, above the noise of a dark screen

/// Solves the normal equations (symmetric, row by row with the right side last) by elimination with row exchange.
/// @return false where they have no single solution
template <std::size_t N>
bool solve(std::array<std::array<double, N + 1>, N>& rows, std::array<double, N>& result) {
    for (std::size_t k = 0; k < N; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < N; ++i) {
            if (std::abs(rows[i][k]) > std::abs(rows[pivot][k])) pivot = i;
        }
        if (std::abs(rows[pivot][k]) < 1e-9) return false;
        std::swap(rows[k], rows[pivot]);
        for (std::size_t i = k + 1; i < N; ++i) {
            const double factor = rows[i][k] / rows[k][k];
            for (std::size_t j = k; j <= N; ++j)
                rows[i][j] -= factor * rows[k][j];
        }
    }
    for (std::size_t k = N; k-- > 0;) {
        double rest = rows[k][N];
        for (std::size_t j = k + 1; j < N; ++j)
            rest -= rows[k][j] * result[j];
        result[k] = rest / rows[k][k];
    }
    return true;
}

}  // namespace

ScreenLight::ScreenLight(const MatteMap& map) : width_(map.width), height_(map.height) {
    fit(map, false);
    for (int i = 0; i < 3; ++i)
        fit(map, true);
}

ScreenLight::Terms ScreenLight::termsAt(int x, int y) const {
    const double u = 2.0 * x / width_ - 1.0, v = 2.0 * y / height_ - 1.0;
    return {1.0, u, v, u * u, u * v, v * v};
}

double ScreenLight::at(int x, int y) const {
    const Terms terms = termsAt(x, y);
    double sum = 0.0;
    for (std::size_t i = 0; i < kTerms; ++i)
        sum += factors_[i] * terms[i];
    return sum;
}

void ScreenLight::fit(const MatteMap& map, bool onlyNear) {
    std::array<std::array<double, kTerms + 1>, kTerms> rows{};
    int count = 0;
    for (int y = 0; y < height_; y += kStep) {
        for (int x = 0; x < width_; x += kStep) {
            const std::uint8_t* pixel = map.at(x, y);
            const double level = pixel[map.greenByte()];
            if (pixel[3] > kRemoved || (onlyNear && isOffLight(level, at(x, y)))) continue;
            const Terms terms = termsAt(x, y);
            for (std::size_t i = 0; i < kTerms; ++i) {
                for (std::size_t j = 0; j < kTerms; ++j)
                    rows[i][j] += terms[i] * terms[j];
                rows[i][kTerms] += terms[i] * level;
            }
            ++count;
        }
    }
    Terms found{};
    if (count >= kFewest && solve(rows, found)) factors_ = found;
}

bool isOffLight(double level, double light) {
    return std::abs(level - light) > std::max(kOff * light, kLeastOff);
}

}  // namespace tavrin

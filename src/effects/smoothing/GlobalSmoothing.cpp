#include "effects/smoothing/GlobalSmoothing.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

#include "effects/smoothing/SmoothingTiles.h"

namespace tavrin {

namespace {

constexpr int kSide = SmoothingTiles::kSide, kChannels = SmoothingTiles::kChannels;

/// The likeness of neighbours by their squared distance.
std::vector<double> likenessTable(double sigma) {
    if (!(sigma > 0.0)) sigma = 1.0;
    std::vector<double> table(kMostDistance + 1);
    runRowRanges({}, kMostDistance + 1, 4096, [&](int first, int last) {
        for (int i = first; i < last; ++i)
            table[static_cast<std::size_t>(i)] = std::exp(-std::sqrt(static_cast<double>(i)) / sigma);
    });
    return table;
}

/// What the smoother is told; see `FGS`.
struct Smoothing {
    int iterations;
    double sigma, lambda, attenuation;
};

/// All iterations, rows before columns; ends where it is superseded.
void smooth(const RunContext& context, const SmoothingTiles& tiles, const Smoothing& smoothing) {
    const int iterations = smoothing.iterations;
    const std::vector<double> likeness = likenessTable(smoothing.sigma);
    // The strengths of all iterations come to lambda.
    double strength =
        smoothing.lambda * 1.5 * std::pow(2.0, 2.0 * (iterations - 1)) / (std::pow(2.0, 2.0 * iterations) - 1.0);
    for (int i = 0; i < iterations; ++i, strength /= smoothing.attenuation) {
        const SmoothingWeights weights = {likeness, strength};
        const bool finished =
            runRows(context, tiles.tileRows(), 1, [&](int row) { smoothTileRow(tiles, row, weights); }) &&
            runRows(context, tiles.tileColumns(), 1, [&](int column) { smoothTileColumn(tiles, column, weights); });
        if (!finished) return;
    }
}

/// Calls `work(in the tiles, in the picture)` for the numbers of all pixels.
template <class Work>
void overPixels(const SmoothingTiles& tiles, float* picture, const Work& work) {
    runRows({}, tiles.height(), 16, [&](int y) {
        float* pixel = picture + static_cast<std::ptrdiff_t>(y) * tiles.width() * kChannels;
        for (int x = 0; x < tiles.width(); ++x) {
            float* tiled = tiles.tile(y / kSide, x / kSide) + y % kSide * SmoothingTiles::kLine + x % kSide;
            for (int c = 0; c < kChannels; ++c)
                work(tiled[c * kSide], *pixel++);
        }
    });
}

}  // namespace

void FGS(SystemInfo& info, float*** image, int width, int height, int iterations, double sigma, double lambda,
         double attenuation) {
    if (!image || width < 1 || height < 1) return;
    const SmoothingTiles tiles(width, height);
    if (!tiles.data()) throw std::bad_alloc();
    std::fill_n(tiles.data(), tiles.tileRows() * tiles.tileRowStep(), 0.0F);
    overPixels(tiles, image[0][0], [](float& tiled, float value) { tiled = value; });
    smooth(info.rowsWhileCurrent(), tiles, {iterations, sigma, lambda, attenuation});
    overPixels(tiles, image[0][0], [](float tiled, float& value) { value = tiled; });
}

void FastGlobalImageSmoothing(SystemInfo& info, int, std::uint8_t* rgba, int hiRes) {
    const PassGeometry g = info.geometry(fullIf(hiRes != 0));
    if (!rgba || g.width < 1 || g.height < 1) return;
    const std::int64_t slider = info.iGlobalSmoothingLambda;
    const double sigma = static_cast<double>(slider / 20);
    const double lambda = static_cast<double>(slider * (g.dpi < 20 ? 300 : g.dpi) / 300);
    const SmoothingTiles tiles(g.width, g.height);
    if (!tiles.data()) throw std::bad_alloc();
    if (!runRows(info.rowsWhileCurrent(), tiles.tileRows(), 2, [&](int row) { loadTileRow(tiles, row, rgba); }))
        return;
    smooth(info.rowsWhileCurrent(), tiles, {3, sigma, lambda, 4.0});
    runRows({}, tiles.tileRows(), 2, [&](int row) { storeTileRow(tiles, row, rgba); });
}

}  // namespace tavrin

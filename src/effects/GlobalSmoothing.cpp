#include "effects/GlobalSmoothing.h"

#include <cmath>
#include <memory>
#include <new>
#include <vector>

#include "core/Log.h"
#include "core/raster/ColorMath.h"
#include "core/raster/FloatArray3.h"

namespace tavrin {

namespace {

constexpr int kMaxDistance = 3 * 255 * 255;  // the squared distance of black and white
constexpr int kChannels = 3;

/// How alike neighbours of a squared colour distance are: 1 for equal ones, towards 0 across an edge.
std::vector<double> likenessTable(double sigma) {
    if (!(sigma > 0.0)) sigma = 1.0;
    std::vector<double> table(kMaxDistance + 1);
    for (int i = 0; i <= kMaxDistance; ++i)
        table[static_cast<std::size_t>(i)] = std::exp(-std::sqrt(static_cast<double>(i)) / sigma);
    return table;
}

/// Neighbouring lines of a picture that are solved side by side, so that their divisions overlap and a column's
/// neighbours share its cache lines. Steps are in floats.
struct Lines {
    float* first;
    std::ptrdiff_t step;      ///< from a pixel to the next one of its line
    std::ptrdiff_t laneStep;  ///< from a line to the next
    int lanes, count;

    float* at(int i, int lane) const { return first + i * step + lane * laneStep; }
};

/// A pixel after the elimination: its colour is `color` - `toNext` * colour of the next pixel.
struct Eliminated {
    double toNext, color[kChannels];
};

int distanceIndex(const float* a, const float* b) {
    const double r = static_cast<double>(a[0]) - b[0];
    const double g = static_cast<double>(a[1]) - b[1];
    const double c = static_cast<double>(a[2]) - b[2];
    return static_cast<int>(clampTo(r * r + g * g + c * c, 0.0, kMaxDistance));
}

/// Solves the tridiagonal systems of a few lines: the weight between neighbours is -`strength` times their likeness,
/// the diagonal 1 minus the weights on both sides (L. H. Thomas' elimination).
class LineSolver {
  public:
    LineSolver(const std::vector<double>& likeness, double strength)
        : likeness_(likeness.data()), strength_(strength) {}

    void solve(const Lines& lines) {
        // In front of the lines stands a row of zeros, which the first pixel eliminates without effect.
        work_.resize(static_cast<std::size_t>(lines.lanes) * (static_cast<std::size_t>(lines.count) + 1));
        weights_.assign(static_cast<std::size_t>(lines.lanes), 0.0);
        std::fill_n(work_.begin(), lines.lanes, Eliminated{});
        eliminate(lines);
        substitute(lines);
    }

  private:
    void eliminate(const Lines& lines) {
        const Eliminated* before = work_.data();
        Eliminated* out = work_.data() + lines.lanes;
        for (int i = 0; i < lines.count; ++i) {
            const bool last = i + 1 == lines.count;
            for (int lane = 0; lane < lines.lanes; ++lane, ++before, ++out) {
                const float* here = lines.at(i, lane);
                const double back = weights_[lane];
                const double on = last ? 0.0 : likeness_[distanceIndex(here, here + lines.step)] * -strength_;
                weights_[lane] = on;
                double pivot = 1.0 - back - on - back * before->toNext;
                if (i == 0 && pivot == 0.0) pivot = 1.0;
                out->toNext = on / pivot;
                for (int c = 0; c < kChannels; ++c)
                    out->color[c] = (here[c] - back * before->color[c]) / pivot;
            }
        }
    }

    void substitute(const Lines& lines) {
        Eliminated* at = work_.data() + work_.size() - 1;
        for (int i = lines.count - 1; i >= 0; --i) {
            for (int lane = lines.lanes - 1; lane >= 0; --lane, --at) {
                if (i + 1 < lines.count) {
                    for (int c = 0; c < kChannels; ++c)
                        at->color[c] -= at->toNext * at[lines.lanes].color[c];
                }
                float* here = lines.at(i, lane);
                for (int c = 0; c < kChannels; ++c)
                    here[c] = static_cast<float>(at->color[c]);
            }
        }
    }

    const double* likeness_;
    double strength_;
    std::vector<Eliminated> work_;
    std::vector<double> weights_;  // from each lane's last pixel to the present one
};

constexpr int kRowLanes = 4, kColumnLanes = 16;

/// One iteration, rows before columns. False when it was superseded.
bool smoothOnce(const RunContext& context, float* pixels, int width, int height, const std::vector<double>& likeness,
                double strength) {
    const std::ptrdiff_t rowStep = static_cast<std::ptrdiff_t>(width) * kChannels;
    return runRowRanges(context, height, kRowLanes,
                        [&](int first, int last) {
                            LineSolver solver(likeness, strength);
                            solver.solve({pixels + first * rowStep, kChannels, rowStep, last - first, width});
                        }) &&
           runRowRanges(context, width, kColumnLanes, [&](int first, int last) {
               LineSolver solver(likeness, strength);
               solver.solve({pixels + first * kChannels, rowStep, kChannels, last - first, height});
           });
}

struct FreeFloat3 {
    void operator()(float*** array) const { memFreeFloat3(array); }
};

}  // namespace

void FGS(SystemInfo& info, float*** image, int width, int height, int iterations, double sigma, double lambda,
         double attenuation) {
    if (!image || width < 1 || height < 1) return;
    try {
        const std::vector<double> likeness = likenessTable(sigma);
        // The strengths of all iterations come to lambda.
        double strength =
            lambda * 1.5 * std::pow(2.0, 2.0 * (iterations - 1)) / (std::pow(2.0, 2.0 * iterations) - 1.0);
        for (int i = 0; i < iterations; ++i, strength /= attenuation) {
            if (!smoothOnce(info.rowsWhileCurrent(), image[0][0], width, height, likeness, strength)) return;
        }
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
    }
}

void FastGlobalImageSmoothing(SystemInfo& info, int, std::uint8_t* rgba, int hiRes) {
    const PassGeometry g = info.geometry(hiRes != 0 ? 1 : 0);
    if (!rgba || g.width < 1 || g.height < 1) return;
    const std::unique_ptr<float**, FreeFloat3> image(memAllocFloat3(g.height, g.width, kChannels));
    if (!image) return logError("Memory not allocated!");

    const std::int64_t slider = info.iGlobalSmoothingLambda;
    const double sigma = static_cast<double>(slider / 20);
    const double lambda = static_cast<double>(slider * (g.dpi < 20 ? 300 : g.dpi) / 300);
    runRows({}, g.height, 16, [&](int y) {
        const std::uint8_t* p = rgba + pixelOffset(g.width, 0, y);
        float* out = image.get()[y][0];
        for (int x = 0; x < g.width; ++x, p += kPixelBytes, out += kChannels) {
            for (int c = 0; c < kChannels; ++c)
                out[c] = p[c];
        }
    });
    FGS(info, image.get(), g.width, g.height, 3, sigma, lambda, 4.0);
    runRows({}, g.height, 16, [&](int y) {
        const float* p = image.get()[y][0];
        std::uint8_t* out = rgba + pixelOffset(g.width, 0, y);
        for (int x = 0; x < g.width; ++x, p += kChannels, out += kPixelBytes) {
            for (int c = 0; c < kChannels; ++c)
                out[c] = toByte(p[c]);
        }
    });
}

}  // namespace tavrin

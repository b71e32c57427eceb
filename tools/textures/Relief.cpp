#include "textures/Relief.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "sample/Random.h"
#include "textures/Noise.h"

namespace tavrin::textures {

namespace {

using sample::Random;

constexpr int kWidth = 1440, kHeight = 1080;

// Plain weave: every thread goes over one and under the next.
struct Cloth {
    int warps, wefts;     // threads across the width and down the height, both even
    double unevenness;    // of the threads' widths
    double fullness;      // how much of its way a thread takes up
    double wander;        // how far threads stray from the straight line, in pixels
    double slubs;         // thick and thin places along a thread
    double twist;         // strength of the spun fibres
    double threadShades;  // difference in lightness from thread to thread
    std::uint64_t seed;
};

struct Thread {
    double middle, half;  // in pixels across
    double shade;
};

// Threads side by side that fill `length` exactly.
std::vector<Thread> layThreads(int count, double length, const Cloth& cloth, Random& random) {
    std::vector<Thread> threads(static_cast<std::size_t>(count));
    double sum = 0.0;
    for (Thread& thread : threads) {
        thread.half = std::max(0.45, 1.0 + cloth.unevenness * random.normal());
        thread.shade = cloth.threadShades * random.normal();
        sum += 2.0 * thread.half;
    }
    double edge = 0.0;
    for (Thread& thread : threads) {
        thread.half *= length / sum;
        thread.middle = edge + thread.half;
        edge += 2.0 * thread.half;
    }
    return threads;
}

// A place across the threads: which thread, and where on it, -1 to 1.
struct Place {
    std::size_t thread;
    double across;
};

Place placeOn(const std::vector<Thread>& threads, double length, double position) {
    position -= length * std::floor(position / length);
    const auto beyond = [](double at, const Thread& thread) { return at < thread.middle - thread.half; };
    const auto next = std::upper_bound(threads.begin(), threads.end(), position, beyond);
    const auto thread = next == threads.begin() ? next : next - 1;
    return {static_cast<std::size_t>(thread - threads.begin()), (position - thread->middle) / thread->half};
}

// Height of one thread: round across, over the crossing in the middle of its arch and under at its ends.
double threadHeight(double across, double along, bool over, double thickness) {
    const double round = std::sqrt(std::max(0.0, 1.0 - across * across / (thickness * thickness)));
    const double arch = std::cos(0.5 * std::numbers::pi * along);
    return round * 0.55 + (over ? 0.45 * arch : -0.45 * arch);
}

// The planes that make the threads of one direction uneven.
struct Yarn {
    Plane wander, thickness, fibres;
};

Yarn spin(bool upright, const Cloth& cloth) {
    const std::uint64_t seed = cloth.seed + (upright ? 10 : 20);
    if (upright) {
        return {hills(kWidth, kHeight, 48, 12, seed), hills(kWidth, kHeight, cloth.warps, 24, seed + 1),
                hills(kWidth, kHeight, kWidth / 3, kHeight / 12, seed + 2)};
    }
    return {hills(kWidth, kHeight, 16, 36, seed), hills(kWidth, kHeight, 32, cloth.wefts, seed + 1),
            hills(kWidth, kHeight, kWidth / 12, kHeight / 3, seed + 2)};
}

Plane weave(const Cloth& cloth, Plane& shades) {
    Random random(cloth.seed);
    const std::vector<Thread> warps = layThreads(cloth.warps, kWidth, cloth, random);
    const std::vector<Thread> wefts = layThreads(cloth.wefts, kHeight, cloth, random);
    const Yarn warpYarn = spin(true, cloth), weftYarn = spin(false, cloth);
    Plane height(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const Place warp = placeOn(warps, kWidth, x + cloth.wander * warpYarn.wander.at(x, y));
            const Place weft = placeOn(wefts, kHeight, y + cloth.wander * weftYarn.wander.at(x, y));
            const bool warpOver = (warp.thread + weft.thread) % 2 == 0;
            const auto thickness = [&](const Yarn& yarn) {
                return std::clamp(cloth.fullness + cloth.slubs * yarn.thickness.at(x, y), 0.6, 1.4);
            };
            const double up = threadHeight(warp.across, weft.across, warpOver, thickness(warpYarn)) +
                              cloth.twist * warpYarn.fibres.at(x, y);
            const double side = threadHeight(weft.across, warp.across, !warpOver, thickness(weftYarn)) +
                                cloth.twist * weftYarn.fibres.at(x, y);
            height.at(x, y) = std::max(up, side);
            shades.at(x, y) = up > side ? warps[warp.thread].shade : wefts[weft.thread].shade;
        }
    }
    return height;
}

// Puts a relief around middle grey; the softest and hardest places are drawn in, so that few reach black or white.
QImage toRelief(Plane light, double deviation) {
    normalise(light);
    for (double& value : light.values)
        value = 2.2 * std::tanh(value / 2.2);
    normalise(light);
    for (double& value : light.values)
        value = 0.522 + deviation * value;
    return toGreyPicture(light);
}

QImage weaveCloth(const Cloth& cloth, double deviation) {
    Plane shades(kWidth, kHeight);
    Plane height = weave(cloth, shades);
    Plane light = lightFromAbove(height);
    normalise(light);
    normalise(height);
    add(light, height, 0.85);
    add(light, shades, 1.0);
    return toRelief(std::move(light), deviation);
}

}  // namespace

QImage weaveCanvas() {
    return weaveCloth({.warps = 112,
                       .wefts = 84,
                       .unevenness = 0.07,
                       .fullness = 0.80,
                       .wander = 1.2,
                       .slubs = 0.07,
                       .twist = 0.035,
                       .threadShades = 0.12,
                       .seed = 71},
                      0.13);
}

QImage weaveLinen() {
    return weaveCloth({.warps = 184,
                       .wefts = 138,
                       .unevenness = 0.20,
                       .fullness = 0.84,
                       .wander = 1.4,
                       .slubs = 0.17,
                       .twist = 0.05,
                       .threadShades = 0.38,
                       .seed = 171},
                      0.11);
}

QImage pressPaper() {
    Plane height = hills(kWidth, kHeight, kWidth / 7, kHeight / 7, 271);
    add(height, hills(kWidth, kHeight, kWidth / 12, kHeight / 12, 272), 1.3);
    add(height, hills(kWidth, kHeight, kWidth / 23, kHeight / 23, 273), 1.1);
    normalise(height);
    // The press flattens the tops; the felt leaves the hollows.
    for (double& value : height.values)
        value = value > 0.0 ? 1.6 * std::tanh(value / 1.6) : value;
    add(height, hills(kWidth, kHeight, kWidth / 3, kHeight / 3, 274), 0.07);
    Plane light = lightFromAbove(height);
    normalise(light);
    add(light, height, 0.25);
    return toRelief(std::move(light), 0.085);
}

}  // namespace tavrin::textures

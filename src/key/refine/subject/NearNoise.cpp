#include "key/refine/subject/NearNoise.h"

#include <algorithm>
#include <cmath>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/RowRing.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr int kReach = 2;                  // pixels of the mean around
constexpr float kBareMean = 0.05f;         // of bare screen at most
constexpr int kFewest = 200;               // pixels that tell it
constexpr std::int64_t kSamples = 20'000;  // open pixels to look at
constexpr int kLeastStep = 4;

struct Strays {
    double squares = 0.0;
    int count = 0;
    int areas = 0;  // that were met, looked at or not

    void add(const Strays& other) {
        squares += other.squares;
        count += other.count;
    }
};

Strays straysOf(const RunContext& context, const Shot& shot, const Plate& plate, const Separation& separation,
                const Area& area) {
    const Strip strip = area.strip(shot, kReach);
    const auto width = static_cast<std::size_t>(strip.width);
    StartRows rows(strip, plate);
    CellRows weights(separation.weights, separation.size, strip.left, strip.width);
    std::vector<float> line(width);
    RowRing<1, std::function<void(int, float**)>> alphas(
        strip.width, shot.height, kReach, [&](int y, float** planes) {
            rows.go(y);
            const float* const own[] = {rows.own().r, rows.own().g, rows.own().b};
            const float* const screen[] = {rows.screen().r, rows.screen().g, rows.screen().b};
            std::fill_n(planes[0], width, 0.0f);
            for (int plane = 0; plane < 3; ++plane) {
                weights.fill(y, plane, line.data());
                for (std::size_t x = 0; x < width; ++x)
                    planes[0][x] += (own[plane][x] - screen[plane][x]) * line[x];
            }
        });
    PaddedRows scratch(strip.width, 2);
    Strays strays;
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        sumLoops().boxSums(alphas.around(y, 0, kReach), kReach, strip.width, scratch.row(0), scratch.row(1));
        const float *const alpha = alphas.at(y, 0), *const sums = scratch.row(1);
        for (int x = area.left - strip.left, end = x + area.width(); x < end; ++x) {
            const float mean = sums[x] / 25.0f, stray = alpha[x] - mean;
            if (!(alpha[x] < 0.0f && std::abs(mean) < kBareMean)) continue;
            strays.squares += static_cast<double>(stray * stray);
            ++strays.count;
        }
    }
    return strays;
}

}  // namespace

float noiseBesideSubject(const RunContext& context, const Shot& shot, const Plate& plate,
                         const Separation& separation, const Mask& open) {
    std::vector<Strays> blocks(static_cast<std::size_t>(blocksOf(shot.height)));
    const auto step = static_cast<int>(std::max<std::int64_t>(open.count() / kSamples, kLeastStep));
    runAreas(context, open, [&](const Area& area) {
        Strays& block = blocks[static_cast<std::size_t>(area.block)];
        if ((area.block + block.areas++) % step == 0) block.add(straysOf(context, shot, plate, separation, area));
    });
    Strays all;
    for (const Strays& block : blocks)
        all.add(block);
    return all.count < kFewest ? 0.0f : static_cast<float>(std::sqrt(all.squares / all.count));
}

}  // namespace tavrin::refine

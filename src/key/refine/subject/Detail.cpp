#include "key/refine/subject/Detail.h"

#include <algorithm>
#include <cmath>

#include "key/refine/grid/Areas.h"
#include "key/refine/grid/MatteLoops.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr int kReach = 4;          // pixels of every picture, as the loops have it
constexpr float kMiddle = 128.0f;  // taken off the luma, so that its variance loses no digits
constexpr float kLeastDetail = 0.02f, kLowMean = 0.1f, kHighMean = 0.9f;
constexpr double kHasAll = 0.5, kHasHalf = 0.36;  // share of the detail that alpha has
// What the halved luma has of it from which on soft edges, not a finer colour, explain more than that, and how much
// more.
constexpr double kSoftLuma = 0.25, kSoftGain = 1.5;
constexpr double kLeastMissing = 0.02;     // less is not worth its passes
constexpr int kFewest = 500;               // pixels that tell it
constexpr std::int64_t kSamples = 20'000;  // open pixels to look at

struct Shares {
    double common = 0.0, whole = 0.0;
    double half = 0.0;  // what is common to the detail and to that of the luma after halving it
    int count = 0;
    int areas = 0;  // that were met, looked at or not

    void add(const Shares& other) {
        common += other.common;
        whole += other.whole;
        half += other.half;
        count += other.count;
    }
};

// How much of its detail the alpha of an area has, by the luma.
Shares detailOf(const RunContext& context, const Shot& shot, const AlphaPlane& alpha, const Area& area) {
    const Strip strip = area.strip(shot, kDetailHalo);
    DetailRows rows(strip, alpha, 0.0f);
    HalfRows half(strip.width, shot.height, [&](int y, float* to) { loadAlpha(alpha, strip, y, to); });
    HalfRows twice(strip.width, shot.height, [&](int y, float* to) { std::copy_n(rows.luma(y), strip.width, to); });
    const auto width = static_cast<std::size_t>(strip.width);
    std::vector<float> lines(4 * width);
    float *const mean = lines.data(), *const detail = mean + width, *const coarse = detail + width,
                 *const coarser = coarse + width;
    Shares shares;
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        rows.fill(y, mean, detail);
        half.fill(y, coarse);
        twice.fill(y, coarser);
        const float *const own = rows.alpha(y), *const luma = rows.luma(y), *const rest = rows.rest();
        for (int x = area.left - strip.left, end = x + area.width(); x < end; ++x) {
            if (!(mean[x] > kLowMean && mean[x] < kHighMean && std::abs(detail[x]) > kLeastDetail)) continue;
            shares.common += static_cast<double>((own[x] - coarse[x]) * detail[x]);
            shares.whole += static_cast<double>(detail[x] * detail[x]);
            shares.half += static_cast<double>(detail[x] * detail[x] * (luma[x] - coarser[x]) / rest[x]);
            ++shares.count;
        }
    }
    return shares;
}

}  // namespace

HalfRows::HalfRows(int width, int height, Load load)
    : width_(width),
      height_(height),
      load_(std::move(load)),
      lines_(3 * static_cast<std::size_t>(width) + 3),
      coarse_((width + 1) / 2, (height + 1) / 2, 1, [this](int c, float** planes) {
          const auto width = static_cast<std::size_t>(width_);
          float *const upper = lines_.data(), *const lower = upper + width;
          load_(2 * c, upper);
          load_(std::min(2 * c + 1, height_ - 1), lower);
          matteLoops().halve(upper, lower, width_ / 2, planes[0]);
          if (width % 2 != 0) planes[0][width / 2] = (upper[width - 1] + lower[width - 1]) * 0.5f;
      }) {}

void HalfRows::fill(int y, float* to) {
    const int columns = (width_ + 1) / 2, rows = (height_ + 1) / 2, near = y / 2;
    const int other = std::clamp(y % 2 == 0 ? near - 1 : near + 1, 0, rows - 1);
    const float *const a = coarse_.at(near, 0), *const b = coarse_.at(other, 0);
    float* const line = lines_.data() + 2 * static_cast<std::size_t>(width_) + 1;
    matteLoops().nearMix(a, b, columns, line);
    line[-1] = line[0];
    line[columns] = line[columns - 1];
    matteLoops().widen(line, width_ / 2, to);
    if (width_ % 2 != 0) to[width_ - 1] = 0.75f * line[columns - 1] + 0.25f * line[std::max(columns - 2, 0)];
}

void loadAlpha(const AlphaPlane& plane, const Strip& strip, int y, float* to) {
    matteLoops().loadAlpha(plane.get() + std::ptrdiff_t{y} * strip.shot.width + strip.left, strip.width, to);
}

DetailRows::DetailRows(const Strip& strip, const AlphaPlane& alpha, float sharpness)
    : strip_(strip),
      sharpness_(sharpness),
      luma_(strip.width, strip.shot.height, [strip](int y, float* to) { loadLuma(strip, y, to); }),
      plain_(strip.width, strip.shot.height, kReach,
             [this, &alpha](int y, float** planes) {
                 loadAlpha(alpha, strip_, y, planes[0]);
                 luma_.fill(y, planes[1]);
                 for (int x = 0; x < strip_.width; ++x)
                     planes[1][x] -= kMiddle;
             }),
      ring_(strip.width, strip.shot.height, kReach,
            [this](int y, float** planes) {
                sharpen(y, 0, planes[4]);
                sharpen(y, 1, planes[1]);
                matteLoops().products(planes[4], planes[1], strip_.width, planes[0], planes[2], planes[3]);
            }),
      scratch_(strip.width, 5),
      blur_(strip.width, 1) {}

// Adds what a Gaussian blur of 1.2 pixels takes away.
void DetailRows::sharpen(int y, int plane, float* to) {
    if (sharpness_ == 0.0f) {
        std::copy_n(plain_.at(y, plane), strip_.width, to);
    } else {
        matteLoops().sharpen(plain_.around(y, plane, kReach), sharpness_, strip_.width, blur_.row(0), to);
    }
}

void DetailRows::fill(int y, float* mean, float* detail) {
    float* const rest = scratch_.row(0);
    float* const sums[] = {mean, scratch_.row(1), scratch_.row(2), scratch_.row(3)};
    const int width = strip_.width;
    for (int plane = 0; plane < 4; ++plane)
        sumLoops().boxSums(ring_.around(y, plane, kReach), kReach, width, scratch_.row(4), sums[plane]);
    loadLuma(strip_, y, rest);
    const float* const half = ring_.at(y, 1);
    for (int x = 0; x < width; ++x)
        rest[x] -= kMiddle + half[x];
    matteLoops().slope(sums, rest, width, detail);
}

float missingDetail(const RunContext& context, const Shot& shot, const AlphaPlane& alpha, const Mask& open) {
    std::vector<Shares> blocks(static_cast<std::size_t>(blocksOf(shot.height)));
    const auto step = static_cast<int>(std::max<std::int64_t>(open.count() / kSamples, 2));
    runAreas(context, open, [&](const Area& area) {
        Shares& block = blocks[static_cast<std::size_t>(area.block)];
        if ((area.block + block.areas++) % step == 0) block.add(detailOf(context, shot, alpha, area));
    });
    Shares all;
    for (const Shares& block : blocks)
        all.add(block);
    if (all.count * step <= kFewest) return 0.0f;
    const double whole = std::max(all.whole, 1e-6), has = all.common / whole;
    // Of soft edges even a halved colour has much.
    const double enough = kHasAll + kSoftGain * std::max(all.half / whole - kSoftLuma, 0.0);
    const double missing = std::min((enough - has) / (enough - kHasHalf), 1.0);
    return missing < kLeastMissing ? 0.0f : static_cast<float>(missing);
}

}  // namespace tavrin::refine

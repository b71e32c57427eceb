#include "key/refine/Detail.h"

#include <algorithm>
#include <cmath>

namespace tavrin::refine {

namespace {

constexpr int kReach = 4, kWindow = (2 * kReach + 1) * (2 * kReach + 1);  // pixels of every picture
constexpr float kLumaNoise = 10.0f;
constexpr float kMiddle = 128.0f;  // taken off the luma, so that its variance loses no digits
constexpr float kLeastDetail = 0.02f, kLowMean = 0.1f, kHighMean = 0.9f;
constexpr double kHasAll = 0.5, kHasHalf = 0.36;  // share of the detail that alpha has
constexpr int kFewest = 500;                      // pixels that tell it
// A Gaussian of 1.2 pixels, its middle first.
constexpr float kGauss[] = {0.3324903f, 0.2349537f, 0.0829072f, 0.0146086f, 0.0012854f};
constexpr int kBlockRows = 64;

struct Shares {
    double common = 0.0, whole = 0.0;
    int count = 0;
};

}  // namespace

HalfRows::HalfRows(int width, int height, Load load)
    : width_(width),
      height_(height),
      load_(std::move(load)),
      lines_(3 * static_cast<std::size_t>(width) + 2),
      coarse_((width + 1) / 2, (height + 1) / 2, 1, [this](int c, float** planes) {
          const auto width = static_cast<std::size_t>(width_);
          float *const upper = lines_.data(), *const lower = upper + width;
          load_(2 * c, upper);
          load_(std::min(2 * c + 1, height_ - 1), lower);
          for (std::size_t i = 0; i < width / 2; ++i)
              planes[0][i] = ((upper[2 * i] + upper[2 * i + 1]) + (lower[2 * i] + lower[2 * i + 1])) * 0.25f;
          if (width % 2 != 0) planes[0][width / 2] = (upper[width - 1] + lower[width - 1]) * 0.5f;
      }) {}

void HalfRows::fill(int y, float* to) {
    const int columns = (width_ + 1) / 2, rows = (height_ + 1) / 2, near = y / 2;
    const int other = std::clamp(y % 2 == 0 ? near - 1 : near + 1, 0, rows - 1);
    const float *const a = coarse_.at(near, 0), *const b = coarse_.at(other, 0);
    float* const line = lines_.data() + 2 * static_cast<std::size_t>(width_) + 1;
    for (int i = 0; i < columns; ++i)
        line[i] = 0.75f * a[i] + 0.25f * b[i];
    line[-1] = line[0];
    const float last = line[columns - 1];
    for (int i = 0; i < width_ / 2; ++i)
        to[2 * i] = 0.75f * line[i] + 0.25f * line[i - 1];
    for (int i = 0; i + 1 < columns; ++i)
        to[2 * i + 1] = 0.75f * line[i] + 0.25f * line[i + 1];
    if (width_ % 2 == 0) {
        to[width_ - 1] = last;
    } else {
        to[width_ - 1] = 0.75f * last + 0.25f * line[columns - 2];
    }
}

void loadAlpha(const AlphaPlane& plane, int width, int y, float* to) {
    const std::uint16_t* const from = plane.data() + std::ptrdiff_t{y} * width;
    for (int x = 0; x < width; ++x)
        to[x] = static_cast<float>(static_cast<std::int32_t>(from[x])) * (1.0f / kAlphaSteps);
}

DetailRows::DetailRows(const Shot& shot, const AlphaPlane& alpha, float sharpness)
    : shot_(shot),
      sharpness_(sharpness),
      luma_(shot.width, shot.height, [&shot](int y, float* to) { loadLuma(shot, y, to); }),
      plain_(shot.width, shot.height, kReach,
             [this, &alpha](int y, float** planes) {
                 loadAlpha(alpha, shot_.width, y, planes[0]);
                 luma_.fill(y, planes[1]);
                 for (int x = 0; x < shot_.width; ++x)
                     planes[1][x] -= kMiddle;
             }),
      ring_(shot.width, shot.height, kReach,
            [this](int y, float** planes) {
                sharpen(y, 0, planes[4]);
                sharpen(y, 1, planes[1]);
                for (int x = 0; x < shot_.width; ++x) {
                    planes[0][x] = std::clamp(planes[4][x], 0.0f, 1.0f);
                    planes[2][x] = planes[1][x] * planes[0][x];
                    planes[3][x] = planes[1][x] * planes[1][x];
                }
            }),
      scratch_(shot.width, 5),
      blur_(shot.width, 1) {}

// Adds what a Gaussian blur of 1.2 pixels takes away.
void DetailRows::sharpen(int y, int plane, float* to) {
    static_assert(std::size(kGauss) == kReach + 1);
    const int width = shot_.width;
    const float* const* const rows = plain_.around(y, plane, kReach);
    std::copy_n(rows[kReach], width, to);
    if (sharpness_ == 0.0f) return;
    float* const columns = blur_.row(0);
    for (int x = -kReach; x < width + kReach; ++x)
        columns[x] = kGauss[0] * rows[kReach][x];
    for (int i = 1; i <= kReach; ++i) {
        const float *const above = rows[kReach - i], *const below = rows[kReach + i];
        for (int x = -kReach; x < width + kReach; ++x)
            columns[x] += kGauss[i] * (above[x] + below[x]);
    }
    for (int x = 0; x < width; ++x) {
        float blurred = kGauss[0] * columns[x];
        for (int i = 1; i <= kReach; ++i)
            blurred += kGauss[i] * (columns[x - i] + columns[x + i]);
        to[x] += sharpness_ * (to[x] - blurred);
    }
}

void DetailRows::fill(int y, float* mean, float* detail) {
    float *const columns = scratch_.row(0), *const lumas = scratch_.row(1), *const products = scratch_.row(2),
                 *const squares = scratch_.row(3);
    const int width = shot_.width;
    boxSums(ring_.around(y, 0, kReach), kReach, width, columns, mean);
    boxSums(ring_.around(y, 1, kReach), kReach, width, columns, lumas);
    boxSums(ring_.around(y, 2, kReach), kReach, width, columns, products);
    boxSums(ring_.around(y, 3, kReach), kReach, width, columns, squares);
    loadLuma(shot_, y, columns);
    const float* const half = ring_.at(y, 1);
    constexpr float kShare = 1.0f / static_cast<float>(kWindow);
    for (int x = 0; x < width; ++x) {
        mean[x] *= kShare;
        const float luma = lumas[x] * kShare;
        const float slope =
            (products[x] * kShare - luma * mean[x]) / (squares[x] * kShare - luma * luma + kLumaNoise);
        detail[x] = slope * (columns[x] - kMiddle - half[x]);
    }
}

float missingDetail(const RunContext& context, const Shot& shot, const AlphaPlane& alpha) {
    std::vector<Shares> blocks(static_cast<std::size_t>(shot.height / kBlockRows) + 1);
    runBlocks(context, shot.height, kBlockRows, [&](int first, int last) {
        DetailRows rows(shot, alpha, 0.0f);
        HalfRows half(shot.width, shot.height, [&](int y, float* to) { loadAlpha(alpha, shot.width, y, to); });
        std::vector<float> lines(3 * static_cast<std::size_t>(shot.width));
        float *const mean = lines.data(), *const detail = mean + shot.width, *const coarse = detail + shot.width;
        Shares& block = blocks[static_cast<std::size_t>(first / kBlockRows)];
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y) {
            rows.fill(y, mean, detail);
            half.fill(y, coarse);
            const float* const own = rows.alpha(y);
            for (int x = 0; x < shot.width; ++x) {
                if (!(mean[x] > kLowMean && mean[x] < kHighMean && std::abs(detail[x]) > kLeastDetail)) continue;
                block.common += static_cast<double>((own[x] - coarse[x]) * detail[x]);
                block.whole += static_cast<double>(detail[x] * detail[x]);
                ++block.count;
            }
        }
    });
    Shares all;
    for (const Shares& block : blocks) {
        all.common += block.common;
        all.whole += block.whole;
        all.count += block.count;
    }
    const double has = all.count > kFewest ? all.common / std::max(all.whole, 1e-6) : 1.0;
    return static_cast<float>(std::clamp((kHasAll - has) / (kHasAll - kHasHalf), 0.0, 1.0));
}

}  // namespace tavrin::refine

#include "key/refine/OwnColor.h"

#include <algorithm>
#include <cmath>

#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"

namespace tavrin::refine {

namespace {

constexpr double kDeepReach = 10.0, kInnerReach = 8.0;
constexpr float kWhole = 0.98f;
constexpr float kPull = 0.1f;  // of the subject's mean colour, where little of a pixel's own is there
constexpr float kLumaPull = 0.05f;
constexpr float kLeastGain = 0.4f, kMostGain = 2.5f;
constexpr double kFewCells = 20.0;
constexpr float kMostOwn = 0.45f;  // of the screen's difference
constexpr int kGrownRows = 64;

// Means over the deep inside of how far the screen's channel is above the mean of the others.
Cells ownGreen(const RunContext& context, const Findings& findings) {
    const Shot& shot = findings.shot;
    constexpr int kSize = GreenLimits::kOwnCell;
    const Mask deep = shrunk(context, findings.solid, shot.px(kDeepReach));
    Cells cells = Cells::over(shot.width, shot.height, kSize, 2);
    runRows(context, cells.rows(), 4, [&](int row) {
        const auto width = static_cast<std::size_t>(shot.width);
        std::vector<float> lines(4 * width), excess(width), weights(width);
        float *const r = lines.data(), *const g = r + width, *const b = g + width, *const weight = b + width;
        const int first = row * kSize, last = std::min(first + kSize, shot.height);
        for (int y = first; y < last; ++y) {
            loadColors(shot, y, r, g, b);
            deep.unpack(y, weight);
            for (std::size_t x = 0; x < width; ++x) {
                excess[x] += weight[x] * std::max(g[x] - (r[x] + b[x]) * 0.5f, 0.0f);
                weights[x] += weight[x];
            }
        }
        for (int c = 0; c < cells.columns(); ++c) {
            const int begin = c * kSize, end = std::min(begin + kSize, shot.width);
            float sum = 0.0f, weightSum = 0.0f;
            for (int x = begin; x < end; ++x) {
                sum += excess[static_cast<std::size_t>(x)];
                weightSum += weights[static_cast<std::size_t>(x)];
            }
            const auto pixels = static_cast<float>((end - begin) * (last - first));
            cells.row(row, 0)[c] = sum / pixels;
            cells.row(row, 1)[c] = weightSum / pixels;
        }
    });
    return cells;
}

}  // namespace

GreenLimits findLimits(const RunContext& context, const Findings& findings) {
    const Shot& shot = findings.shot;
    GreenLimits limits;
    const Cells green = ownGreen(context, findings);
    limits.own = Cells(green.columns(), green.rows(), 1);
    if (green.sum(1) > kFewCells) {
        const float usual = findings.plate.difference;
        Cells least = least5(pushPull(context, green));
        // Much and smooth, or it is spill: on black that stays below.
        for (std::size_t i = 0; i < least.count(); ++i) {
            float& own = least.row(0, 0)[i];
            own = std::min(own, kMostOwn * usual);
            own *= smoothStep(own, std::max(0.12f * usual, 18.0f), std::max(0.25f * usual, 32.0f)) *
                   findings.taste.ownGreen;
        }
        limits.own = blurred(least, 3.0);
    }

    Mask whole(shot.width, shot.height);
    runRowRanges(context, shot.height, kGrownRows, [&](int first, int last) {
        std::vector<float> alpha(static_cast<std::size_t>(shot.width));
        std::vector<std::uint8_t> flags(alpha.size() + 8);
        for (int y = first; y < last; ++y) {
            plainAlpha(findings, y, alpha.data());
            for (std::size_t x = 0; x < alpha.size(); ++x)
                flags[x] = alpha[x] > kWhole;
            whole.pack(y, flags.data());
        }
    });
    const int reach = std::max(2, shot.px(kInnerReach));
    constexpr int kSize = GreenLimits::kInnerCell;
    limits.inner = blurred(sharesOf(context, shrunk(context, whole, reach), kSize),
                           std::max(0.0, (2.0 * reach + 1.0) / kSize - 1.0) / 2.0);
    return limits;
}

ColorRows::ColorRows(const Findings& findings, const GreenLimits& limits)
    : findings_(findings),
      around_(findings.shot, findings.plate),
      here_(findings.shot, findings.plate),
      shares_(findings.shot.width, findings.shot.height, 1,
              [this](int y, float** planes) {
                  around_.go(y);
                  plainAlpha(findings_, y, planes[3]);
                  const float* const own[3] = {around_.r(), around_.g(), around_.b()};
                  const float* const screen[3] = {around_.plateR(), around_.plateG(), around_.plateB()};
                  for (int c = 0; c < 3; ++c) {
                      for (int x = 0; x < findings_.shot.width; ++x)
                          planes[c][x] = std::max(own[c][x] - (1.0f - planes[3][x]) * screen[c][x], 0.0f);
                  }
              }),
      subject_(findings.separation.subject, findings.separation.size),
      own_(limits.own, GreenLimits::kOwnCell),
      inner_(limits.inner, GreenLimits::kInnerCell),
      scratch_(findings.shot.width, 10) {}

// The colour without the screen's share, from a small window: rows 0 to 2.
void ColorRows::unmix(int y) {
    float *const weight = scratch_.row(3), *const columns = scratch_.row(4), *const subject = scratch_.row(5);
    const int width = findings_.shot.width;
    boxSums(shares_.around(y, 3, 1), 1, width, columns, weight);
    for (int x = 0; x < width; ++x)
        weight[x] = 1.0f / (weight[x] / 9.0f + kPull);
    for (int c = 0; c < 3; ++c) {
        float* const color = scratch_.row(c);
        boxSums(shares_.around(y, c, 1), 1, width, columns, color);
        subject_.fill(y, c, width, subject);
        for (int x = 0; x < width; ++x)
            color[x] = std::clamp((color[x] / 9.0f + kPull * subject[x]) * weight[x], 0.0f, 255.0f);
    }
}

// The screen's channel, limited: row 6.
void ColorRows::limitGreen(int y) {
    const float *const r = scratch_.row(0), *const g = scratch_.row(1), *const b = scratch_.row(2);
    float *const limited = scratch_.row(6), *const own = scratch_.row(7), *const inner = scratch_.row(8);
    const int width = findings_.shot.width;
    own_.fill(y, 0, width, own);
    inner_.fill(y, 0, width, inner);
    for (int x = 0; x < width; ++x) {
        const float mean = (r[x] + b[x]) * 0.5f;
        // Reddish cloth is green's neighbour, bluish cloth is not.
        const float most = b[x] > r[x] ? mean + inner[x] * (b[x] - mean) : mean;
        limited[x] = std::min(g[x], most + own[x]);
    }
}

void ColorRows::write(int y, const float* alpha, std::uint8_t* to) {
    const Shot& shot = findings_.shot;
    const LumaWeights weights(shot.blue);
    const ChannelRoles roles(shot.blue);
    unmix(y);
    limitGreen(y);
    here_.go(y);
    float* const luma = scratch_.row(9);
    loadLuma(shot, y, luma);
    const float *const r = scratch_.row(0), *const g = scratch_.row(1), *const b = scratch_.row(2),
                       *const limited = scratch_.row(6);
    const float *const pr = here_.plateR(), *const pg = here_.plateG(), *const pb = here_.plateB();
    for (int x = 0; x < shot.width; ++x, to += kPixelBytes) {
        const float a = alpha[x];
        const float own = weights.r * r[x] + weights.g * g[x] + weights.b * b[x];
        const float screen = weights.r * pr[x] + weights.g * pg[x] + weights.b * pb[x];
        const float wanted = std::clamp(luma[x] - (1.0f - a) * screen, 0.0f, 255.0f * a);
        const float gain =
            std::clamp((wanted + kLumaPull * own) / std::max((a + kLumaPull) * own, 1.0f), kLeastGain, kMostGain);
        const auto byte = [](float value) {
            return static_cast<std::uint8_t>(static_cast<int>(std::min(value, 255.0f) + 0.5f));
        };
        to[0] = byte(r[x] * gain);
        to[roles.green] = byte(limited[x] * gain);
        to[roles.blue] = byte(b[x] * gain);
        to[3] = byte(a * 255.0f);
    }
}

}  // namespace tavrin::refine

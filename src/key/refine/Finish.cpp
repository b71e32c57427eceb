#include "key/refine/Finish.h"

#include <algorithm>
#include <cmath>

namespace tavrin::refine {

namespace {

constexpr float kLow = 0.03f, kHigh = 0.97f;                                   // levels that become 0 and 1
constexpr float kNoiseFactor = 1.5f, kLeastNoise = 0.012f, kMostNoise = 0.1f;  // of alpha on the screen
constexpr float kTopNoise = 0.03f;
constexpr double kReachShare = 0.22, kReachCell = 8.0;  // of the width
constexpr float kKeyGain = 4.0f;
constexpr float kSharpness = 0.6f;
constexpr float kHardest = 4.0f;  // how much steeper the hardest edge is

float limited(float value) {
    return std::clamp(value, 0.0f, 1.0f);
}

float levelled(float alpha) {
    return limited((alpha - kLow) / (kHigh - kLow));
}

}  // namespace

Reach findReach(const RunContext& context, const Findings& findings) {
    Reach reach;
    reach.size = findings.shot.px(kReachCell);
    const Cells shares = sharesOf(context, findings.solid, reach.size);
    Mask inside(shares.columns(), shares.rows());
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(shares.columns()) + 8);
    for (int y = 0; y < shares.rows(); ++y) {
        for (int x = 0; x < shares.columns(); ++x)
            flags[static_cast<std::size_t>(x)] = shares.row(y, 0)[x] > 0.5f;
        inside.pack(y, flags.data());
    }
    const int cells = static_cast<int>(std::lround(kReachShare * findings.shot.width / reach.size));
    const Mask near = grown(context, inside, std::max(1, cells));
    Cells values(shares.columns(), shares.rows(), 1);
    for (int y = 0; y < values.rows(); ++y)
        near.unpack(y, values.row(y, 0));
    reach.near = blurred(values, 2.0);
    return reach;
}

void plainAlpha(const Findings& findings, int y, float* alpha) {
    const int width = findings.shot.width;
    loadAlpha(findings.alpha, width, y, alpha);
    for (int x = 0; x < width; ++x)
        alpha[x] = levelled(alpha[x]);
    const std::uint64_t* const solid = findings.solid.row(y);
    for (int x = 0; x < width; ++x) {
        if ((solid[x / 64] >> (x % 64) & 1) != 0) alpha[x] = 1.0f;
    }
}

FinishRows::FinishRows(const Findings& findings, const Reach& reach)
    : findings_(findings),
      noise_(std::clamp(kNoiseFactor * findings.plate.spread, kLeastNoise, kMostNoise)),
      detail_(findings.shot, findings.alpha, kSharpness * findings.missingDetail),
      keys_(findings.shot.width, findings.shot.height, 2,
            [this](int y, float** planes) {
                const std::uint8_t* const key = findings_.shot.keyRow(y);
                for (int x = 0; x < findings_.shot.width; ++x)
                    planes[0][x] = static_cast<float>(static_cast<int>(key[x])) / 255.0f;
            }),
      near_(reach.near, reach.size),
      scratch_(findings.shot.width, 4) {}

void FinishRows::fill(int y, float* alpha) {
    float *const mean = scratch_.row(0), *const detail = scratch_.row(1), *const columns = scratch_.row(2);
    const int width = findings_.shot.width;
    detail_.fill(y, mean, detail);
    const float strength = findings_.missingDetail * findings_.taste.detail;
    const float* const own = detail_.alpha(y);
    for (int x = 0; x < width; ++x)
        alpha[x] = levelled(own[x] + strength * detail[x]);
    boxSums(detail_.alphasAround(y), 2, width, columns, mean);
    for (int x = 0; x < width; ++x)
        mean[x] /= 25.0f;
    quieten(mean, alpha);
    holdBack(y, alpha);
    shape(mean, alpha);
    const std::uint64_t* const solid = findings_.solid.row(y);
    for (int x = 0; x < width; ++x) {
        if ((solid[x / 64] >> (x % 64) & 1) != 0) alpha[x] = 1.0f;
    }
}

// Takes flat noise out near 0 and 1.
void FinishRows::quieten(const float* means, float* alpha) const {
    for (int x = 0; x < findings_.shot.width; ++x) {
        const float low = alpha[x] * limited(means[x] / noise_ - 1.0f);
        alpha[x] = 1.0f - (1.0f - low) * limited((1.0f - means[x]) / kTopNoise - 1.0f);
    }
}

// Far from the subject the key's word counts.
void FinishRows::holdBack(int y, float* alpha) {
    float *const sums = scratch_.row(1), *const near = scratch_.row(3);
    const int width = findings_.shot.width;
    boxSums(keys_.around(y, 0, 2), 2, width, scratch_.row(2), sums);
    near_.fill(y, 0, width, near);
    for (int x = 0; x < width; ++x)
        alpha[x] *= std::max(near[x], std::min(sums[x] / 25.0f * kKeyGain, 1.0f));
}

// What the settings change of the edges.
void FinishRows::shape(const float* means, float* alpha) const {
    const auto& [softness, detail, ownGreen, shift, tint] = findings_.taste;
    if (softness == 0.0f && shift == 0.0f && tint == 0.0f) return;
    const float slope = softness < 0.0f ? 1.0f - softness * kHardest : 1.0f, blur = std::max(softness, 0.0f);
    for (int x = 0; x < findings_.shot.width; ++x) {
        float a = alpha[x] + blur * (means[x] - alpha[x]);
        a = limited(0.5f + (a - 0.5f) * slope);
        a += tint * a * (1.0f - a);
        if (a > 0.01f && a < 1.0f) a = limited(a + shift);
        alpha[x] = a;
    }
}

}  // namespace tavrin::refine

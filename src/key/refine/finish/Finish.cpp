#include "key/refine/finish/Finish.h"

#include <algorithm>
#include <cmath>

#include "key/refine/finish/FinishLoops.h"
#include "key/refine/grid/SumLoops.h"

namespace tavrin::refine {

namespace {

constexpr float kNoiseFactor = 1.5f, kLeastNoise = 0.012f, kMostNoise = 0.1f;  // of alpha on the screen
// The noise beside the subject that the levels leave nothing of, beside that of the screen; and how far above its
// deviation a line's mean is more than noise.
constexpr float kUsualNearNoise = 0.017f, kScreenNoise = 1.35f, kLineFactor = 4.0f;
// A step of the plate from cell to cell, of the screen's usual lead, that tells nothing; and how much of what is more
// alpha may have by it.
constexpr float kUsualStep = 0.03f, kStepShare = 0.3f;
constexpr double kReachShare = 0.22, kReachCell = 8.0;  // of the width
constexpr float kHeed = 0.36f;  // of what the key has more, where a mixture explains the pixel
constexpr float kSharpness = 0.6f;
constexpr float kHardest = 4.0f;  // how much steeper the hardest edge is

// What a line's mean has to be above beside the subject; 0 where the other steps are enough.
float lineNoise(float nearNoise, float spread) {
    const float usual = std::max(kUsualNearNoise, kScreenNoise * spread);
    const float more = nearNoise * nearNoise - usual * usual;
    return more > 0.0f ? kLineFactor * std::sqrt(more) : 0.0f;
}

// Luma of colours in roles, plane by plane.
Cells lumaOf(const RunContext& context, const Cells& colors, bool blue) {
    const LumaWeights weights(blue);
    Cells luma(colors.columns(), colors.rows(), 1);
    runRows(context, luma.rows(), 32, [&](int y) {
        const float *const r = colors.row(y, 0), *const g = colors.row(y, 1), *const b = colors.row(y, 2);
        float* const to = luma.row(y, 0);
        for (int x = 0; x < luma.columns(); ++x)
            to[x] = weights.r * r[x] + weights.g * g[x] + weights.b * b[x];
    });
    return luma;
}

}  // namespace

Reach findReach(const RunContext& context, const Findings& findings) {
    Reach reach;
    reach.size = findings.shot.cell(kReachCell);
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
        near.unpack(y, 0, values.columns(), values.row(y, 0));
    reach.near = blurred(context, values, 2.0);
    return reach;
}

Cells unrestOf(const RunContext& context, const Plate& plate) {
    const Cells& colors = plate.colors;
    Cells leads(colors.columns(), colors.rows(), 1), unrest = leads;
    runRows(context, leads.rows(), 32, [&](int y) {
        const float *const r = colors.row(y, 0), *const g = colors.row(y, 1), *const b = colors.row(y, 2);
        for (int x = 0; x < leads.columns(); ++x)
            leads.row(y, 0)[x] = g[x] - std::max(r[x], b[x]);
    });
    runRows(context, leads.rows(), 32, [&](int y) {
        const int before = std::max(y - 1, 0), after = std::min(y + 1, leads.rows() - 1);
        const float *const own = leads.row(y, 0), *const above = leads.row(before, 0),
                           *const below = leads.row(after, 0);
        for (int x = 0; x < leads.columns(); ++x) {
            const float left = own[std::max(x - 1, 0)], right = own[std::min(x + 1, leads.columns() - 1)];
            const auto [least, most] = std::minmax({left, own[x], right, above[x], below[x]});
            unrest.row(y, 0)[x] = kStepShare * std::max((most - least) / plate.difference - kUsualStep, 0.0f);
        }
    });
    return unrest;
}

Trust trustInKey(const RunContext& context, const Findings& findings) {
    const Cells& subject = findings.separation.subject;
    const bool blue = findings.shot.blue;
    Trust trust{Cells(subject.columns(), subject.rows(), 1), lumaOf(context, subject, blue),
                lumaOf(context, findings.plate.colors, blue)};
    runRows(context, subject.rows(), 32, [&](int y) {
        const float *const r = subject.row(y, 0), *const g = subject.row(y, 1), *const b = subject.row(y, 2);
        float* const to = trust.key.row(y, 0);
        for (int x = 0; x < subject.columns(); ++x) {
            const float lead = g[x] - std::max(r[x], b[x]);
            to[x] = std::clamp(1.0f + lead / findings.plate.difference, 0.0f, 1.0f);
        }
    });
    return trust;
}

void plainAlpha(const Findings& findings, const Strip& strip, int y, float* scratch, float* alpha) {
    loadAlpha(findings.alpha, strip, y, scratch);
    finishLoops().levels(scratch, scratch, 0.0f, strip.width, alpha);
    findings.solid.unpack(y, strip.left, strip.width, scratch);
    finishLoops().raise(scratch, strip.width, alpha);
}

FinishRows::FinishRows(const Findings& findings, const Reach& reach, const Cells& unrest, const Trust& trust,
                       const Strip& strip)
    : findings_(findings),
      strip_(strip),
      noise_(std::clamp(kNoiseFactor * findings.plate.spread, kLeastNoise, kMostNoise)),
      lineNoise_(lineNoise(findings.nearNoise, findings.plate.spread)),
      alphas_(strip.width, findings.shot.height, 2,
              [this](int y, float** planes) { loadAlpha(findings_.alpha, strip_, y, planes[0]); }),
      keys_(strip.width, findings.shot.height, 2,
            [this](int y, float** planes) {
                const std::uint8_t* const key = findings_.shot.keyRow(y) + strip_.left;
                for (int x = 0; x < strip_.width; ++x)
                    planes[0][x] = static_cast<float>(static_cast<int>(key[x])) / 255.0f;
            }),
      near_(reach.near, reach.size, strip.left, strip.width),
      unrest_(unrest, kPlateCell, strip.left, strip.width),
      trust_(trust.key, findings.separation.size, strip.left, strip.width),
      subject_(trust.subject, findings.separation.size, strip.left, strip.width),
      screen_(trust.screen, kPlateCell, strip.left, strip.width),
      scratch_(strip.width, 6) {
    if (findings.missingDetail > 0.0f) detail_.emplace(strip, findings.alpha, kSharpness * findings.missingDetail);
}

void FinishRows::fill(int y, float* alpha) {
    float *const mean = scratch_.row(0), *const detail = scratch_.row(1);
    const int width = strip_.width;
    if (detail_) {
        detail_->fill(y, mean, detail);
        finishLoops().levels(detail_->alpha(y), detail, findings_.missingDetail * findings_.taste.detail, width,
                             alpha);
    } else {
        finishLoops().levels(alphas_.at(y, 0), alphas_.at(y, 0), 0.0f, width, alpha);
    }
    fillMeans(y, mean);
    quieten(y, mean, alpha);
    if (lineNoise_ > 0.0f) finishLoops().keepLines(alphas_.around(y, 0, 2), lineNoise_, width, alpha);
    heedKey(y, mean, kHeed, alpha);
    holdBack(y, alpha);
    shape(mean, alpha);
    findings_.solid.unpack(y, strip_.left, width, detail);
    finishLoops().raise(detail, width, alpha);
    if (findings_.marks.isClear(y, strip_.left, strip_.left + width)) return;
    for (int x = 0; x < width; ++x)
        alpha[x] = findings_.marks.at(strip_.left + x, y) ? 0.0f : alpha[x];
}

void FinishRows::fillPlain(int y, float* alpha) {
    plainAlpha(findings_, strip_, y, scratch_.row(1), alpha);
    fillMeans(y, scratch_.row(0));
    heedKey(y, scratch_.row(0), 0.0f, alpha);
}

// Means of 5 x 5 pixels.
void FinishRows::fillMeans(int y, float* means) {
    sumLoops().boxSums(alphas_.around(y, 0, 2), 2, strip_.width, scratch_.row(2), means);
    for (int x = 0; x < strip_.width; ++x)
        means[x] /= 25.0f;
}

// Where the key has more.
void FinishRows::heedKey(int y, const float* means, float usual, float* alpha) {
    float *const trust = scratch_.row(1), *const luma = scratch_.row(3), *const subject = scratch_.row(4),
                 *const screen = scratch_.row(5);
    trust_.fill(y, 0, trust);
    subject_.fill(y, 0, subject);
    screen_.fill(y, 0, screen);
    loadLuma(strip_, y, luma);
    finishLoops().heedKey({findings_.shot.keyRow(y) + strip_.left, means, trust, alphas_.at(y, 0), luma, screen,
                           subject, 1.0f / findings_.plate.difference, usual},
                          strip_.width, alpha);
}

// Takes flat noise out, more of it where the plate itself is uneven.
void FinishRows::quieten(int y, const float* means, float* alpha) {
    float* const noise = scratch_.row(1);
    unrest_.fill(y, 0, noise);
    for (int x = 0; x < strip_.width; ++x)
        noise[x] = std::max(noise[x], noise_);
    finishLoops().quieten(means, noise, strip_.width, alpha);
}

// Far from the subject the key's word counts.
void FinishRows::holdBack(int y, float* alpha) {
    float *const sums = scratch_.row(1), *const near = scratch_.row(3);
    const int width = strip_.width;
    near_.fill(y, 0, near);
    if (std::all_of(near, near + width, [](float share) { return share >= 1.0f; })) return;
    sumLoops().boxSums(keys_.around(y, 0, 2), 2, width, scratch_.row(2), sums);
    finishLoops().holdBack(near, sums, width, alpha);
}

// What the settings change of the edges.
void FinishRows::shape(const float* means, float* alpha) const {
    const auto& [softness, detail, ownGreen, shift, tint] = findings_.taste;
    if (softness == 0.0f && shift == 0.0f && tint == 0.0f) return;
    const float slope = softness < 0.0f ? 1.0f - softness * kHardest : 1.0f;
    finishLoops().shape({std::max(softness, 0.0f), slope, tint, shift}, means, strip_.width, alpha);
}

}  // namespace tavrin::refine

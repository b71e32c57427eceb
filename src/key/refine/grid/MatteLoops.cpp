#include "key/refine/grid/MatteLoops.h"

#include <algorithm>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/refine/grid/MatteLoops.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

namespace {

using refine::ChannelRow;

float distanceOf(float a, float b) {
    const float far = a - b;
    return far < 0.0f ? -far : far;
}

void startAlpha(ChannelRow own, ChannelRow screen, float least, int count, float* HWY_RESTRICT to) {
    const float *const r = own.r, *const g = own.g, *const b = own.b;
    const float *const pr = screen.r, *const pg = screen.g, *const pb = screen.b;
    for (int x = 0; x < count; ++x) {
        const float lead = g[x] - std::max(r[x], b[x]), whole = std::max(pg[x] - std::max(pr[x], pb[x]), least);
        to[x] = std::min(std::max(1.0f - lead / whole, -0.3f), 1.0f);
    }
}

void ratio(ChannelRow sums, ChannelRow screen, int count, float* HWY_RESTRICT light, float* HWY_RESTRICT off) {
    const float *const r = sums.r, *const g = sums.g, *const b = sums.b;
    const float *const pr = screen.r, *const pg = screen.g, *const pb = screen.b;
    for (int x = 0; x < count; ++x) {
        const float bright = g[x] / 9.0f / std::max(pg[x], 1.0f);
        light[x] = bright;
        off[x] = std::max(distanceOf(r[x] / 9.0f, bright * pr[x]), distanceOf(b[x] / 9.0f, bright * pb[x]));
    }
}

// The light that the screen's channel allows at most is taken off the others. What is then too dark in a channel, or
// too bright, no share of the screen explains: the subject has at least so much of the pixel, however colourful it
// is.
HWY_INLINE float leastAlpha(float r, float b, float light, float pr, float pb) {
    constexpr float kFewLevels = 64.0f;  // of which noise would be a large share
    constexpr float kOverShare = 0.8f;   // many subjects are nearly as bright as can be
    const float wr = light * pr, wb = light * pb;
    const float under = std::max((wr - r) / std::max(wr, kFewLevels), (wb - b) / std::max(wb, kFewLevels));
    const float over =
        std::max((r - wr) / std::max(255.0f - wr, kFewLevels), (b - wb) / std::max(255.0f - wb, kFewLevels));
    return std::max(under, kOverShare * over);
}

constexpr float kMostLight = 1.15f;  // of the plate's

void cover(ChannelRow sums, ChannelRow screen, int count, float* HWY_RESTRICT light, float* HWY_RESTRICT least) {
    const float *const r = sums.r, *const g = sums.g, *const b = sums.b;
    const float *const pr = screen.r, *const pg = screen.g, *const pb = screen.b;
    for (int x = 0; x < count; ++x) {
        light[x] = g[x] / 9.0f / std::max(pg[x], 1.0f);
        least[x] = leastAlpha(r[x] / 9.0f, b[x] / 9.0f, std::min(light[x], kMostLight), pr[x], pb[x]);
    }
}

void distance(ChannelRow sums, ChannelRow screen, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] =
            std::max(std::max(distanceOf(sums.r[x] / 9.0f, screen.r[x]), distanceOf(sums.g[x] / 9.0f, screen.g[x])),
                     distanceOf(sums.b[x] / 9.0f, screen.b[x]));
}

void fit(ChannelRow own, ChannelRow screen, ChannelRow weights, const float* certain, const float* near,
         const std::uint8_t* HWY_RESTRICT key, int count, float* HWY_RESTRICT alpha) {
    constexpr float kFaintCover = 0.15f, kFullCover = 0.8f;  // least alphas that count as 0 and as 1
    constexpr float kKeyShare = 1.0f / 12.0f;                // of the key, where there may be a subject
    const float *const r = own.r, *const g = own.g, *const b = own.b;
    const float *const pr = screen.r, *const pg = screen.g, *const pb = screen.b;
    const float *const wr = weights.r, *const wg = weights.g, *const wb = weights.b;
    for (int x = 0; x < count; ++x) {
        const float along = (r[x] - pr[x]) * wr[x] + (g[x] - pg[x]) * wg[x] + (b[x] - pb[x]) * wb[x];
        const float simple = std::max(std::max(alpha[x], 0.0f), near[x]);
        const float fitted = certain[x] * along + (1.0f - certain[x]) * simple;
        const float light = std::min(g[x] / std::max(pg[x], 1.0f), kMostLight);
        const float least = leastAlpha(r[x], b[x], light, pr[x], pb[x]);
        const float heeded = std::min(static_cast<float>(static_cast<std::int32_t>(key[x])) * kKeyShare, 1.0f);
        const float floor = std::min((least - kFaintCover) / (kFullCover - kFaintCover), 1.0f);
        alpha[x] = std::max(fitted, heeded * floor);
    }
}

// By the adjoint of the covariance, which is positive definite.
void directions(const float* const* means, ChannelRow screen, const double* common, int count, float* const* to) {
    constexpr double kOwnShare = 0.9;
    constexpr double kAlike = 5.0;  // distance of two colours, in deviations squared, that says little
    const float *const rs = means[0], *const gs = means[1], *const bs = means[2], *const rr = means[3],
                       *const rg = means[4], *const rb = means[5], *const gg = means[6], *const gb = means[7],
                       *const bb = means[8];
    float *const HWY_RESTRICT wr = to[0], *const HWY_RESTRICT wg = to[1], *const HWY_RESTRICT wb = to[2],
                              *const HWY_RESTRICT certain = to[3];
    const auto number = [](float value) { return static_cast<double>(value); };
    for (int x = 0; x < count; ++x) {
        const double r = number(rs[x]), g = number(gs[x]), b = number(bs[x]);
        const double a = kOwnShare * (number(rr[x]) - r * r) + common[0];
        const double ab = kOwnShare * (number(rg[x]) - r * g) + common[1];
        const double ac = kOwnShare * (number(rb[x]) - r * b) + common[2];
        const double e = kOwnShare * (number(gg[x]) - g * g) + common[3];
        const double ec = kOwnShare * (number(gb[x]) - g * b) + common[4];
        const double i = kOwnShare * (number(bb[x]) - b * b) + common[5];
        const double aa = e * i - ec * ec, ba = ac * ec - ab * i, ca = ab * ec - ac * e;
        const double bc = ab * ac - a * ec, ee = a * i - ac * ac, cc = a * e - ab * ab;
        const double dr = r - number(screen.r[x]), dg = g - number(screen.g[x]), db = b - number(screen.b[x]);
        const double whole = a * aa + ab * ba + ac * ca;
        const double yr = (aa * dr + ba * dg + ca * db) / whole, yg = (ba * dr + ee * dg + bc * db) / whole,
                     yb = (ca * dr + bc * dg + cc * db) / whole;
        const double squared = std::max(yr * dr + yg * dg + yb * db, 1e-6), far = squared * squared;
        wr[x] = static_cast<float>(yr / squared);
        wg[x] = static_cast<float>(yg / squared);
        wb[x] = static_cast<float>(yb / squared);
        certain[x] = static_cast<float>(far / (far + kAlike * kAlike));
    }
}

void loadAlpha(const std::uint16_t* HWY_RESTRICT steps, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] = static_cast<float>(static_cast<std::int32_t>(steps[x])) * (1.0f / 65535.0f);
}

void storeAlpha(const float* HWY_RESTRICT alpha, int count, std::uint16_t* HWY_RESTRICT steps) {
    for (int x = 0; x < count; ++x)
        steps[x] = static_cast<std::uint16_t>(
            static_cast<std::int32_t>(std::min(std::max(alpha[x], 0.0f), 1.0f) * 65535.0f + 0.5f));
}

void halve(const float* HWY_RESTRICT upper, const float* HWY_RESTRICT lower, int pairs, float* HWY_RESTRICT to) {
    for (int i = 0; i < pairs; ++i)
        to[i] = ((upper[2 * i] + upper[2 * i + 1]) + (lower[2 * i] + lower[2 * i + 1])) * 0.25f;
}

void nearMix(const float* HWY_RESTRICT a, const float* HWY_RESTRICT b, int count, float* HWY_RESTRICT to) {
    for (int i = 0; i < count; ++i)
        to[i] = 0.75f * a[i] + 0.25f * b[i];
}

void shares(const float* HWY_RESTRICT weights, int count, float* HWY_RESTRICT factor, float* HWY_RESTRICT rest) {
    constexpr float kFullWeight = 0.25f;
    for (int x = 0; x < count; ++x) {
        const float weight = weights[x] / 9.0f, own = std::min(weight / kFullWeight, 1.0f);
        factor[x] = own / (9.0f * std::max(weight, 1e-4f));
        rest[x] = 1.0f - own;
    }
}

void blend(const float* HWY_RESTRICT a, const float* HWY_RESTRICT factorA, const float* HWY_RESTRICT b,
           const float* HWY_RESTRICT factorB, int count, float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] = a[x] * factorA[x] + b[x] * factorB[x];
}

void widen(const float* HWY_RESTRICT values, int pairs, float* HWY_RESTRICT to) {
    for (int i = 0; i < pairs; ++i) {
        to[2 * i] = 0.75f * values[i] + 0.25f * values[i - 1];
        to[2 * i + 1] = 0.75f * values[i] + 0.25f * values[i + 1];
    }
}

// A Gaussian of 1.2 pixels, its middle first.
constexpr float kGauss[] = {0.3324903f, 0.2349537f, 0.0829072f, 0.0146086f, 0.0012854f};

void sharpen(const float* const* rows, float strength, int count, float* HWY_RESTRICT columns,
             float* HWY_RESTRICT to) {
    const float *const a = rows[0], *const b = rows[1], *const c = rows[2], *const d = rows[3], *const e = rows[4],
                       *const f = rows[5], *const g = rows[6], *const h = rows[7], *const i = rows[8];
    for (int x = -4; x < count + 4; ++x) {
        float sum = kGauss[0] * e[x];
        sum += kGauss[1] * (d[x] + f[x]);
        sum += kGauss[2] * (c[x] + g[x]);
        sum += kGauss[3] * (b[x] + h[x]);
        sum += kGauss[4] * (a[x] + i[x]);
        columns[x] = sum;
    }
    for (int x = 0; x < count; ++x) {
        float blurred = kGauss[0] * columns[x];
        blurred += kGauss[1] * (columns[x - 1] + columns[x + 1]);
        blurred += kGauss[2] * (columns[x - 2] + columns[x + 2]);
        blurred += kGauss[3] * (columns[x - 3] + columns[x + 3]);
        blurred += kGauss[4] * (columns[x - 4] + columns[x + 4]);
        to[x] = e[x] + strength * (e[x] - blurred);
    }
}

void products(const float* HWY_RESTRICT alpha, const float* HWY_RESTRICT luma, int count, float* HWY_RESTRICT limited,
              float* HWY_RESTRICT product, float* HWY_RESTRICT square) {
    for (int x = 0; x < count; ++x) {
        const float a = std::min(std::max(alpha[x], 0.0f), 1.0f);
        limited[x] = a;
        product[x] = luma[x] * a;
        square[x] = luma[x] * luma[x];
    }
}

void slope(float* const* sums, const float* HWY_RESTRICT rest, int count, float* HWY_RESTRICT detail) {
    constexpr float kShare = 1.0f / 81.0f, kLumaNoise = 10.0f;
    float* const HWY_RESTRICT mean = sums[0];
    const float *const HWY_RESTRICT lumas = sums[1], *const HWY_RESTRICT both = sums[2],
                                    *const HWY_RESTRICT squares = sums[3];
    for (int x = 0; x < count; ++x) {
        mean[x] *= kShare;
        const float luma = lumas[x] * kShare;
        const float along = (both[x] * kShare - luma * mean[x]) / (squares[x] * kShare - luma * luma + kLumaNoise);
        detail[x] = along * rest[x];
    }
}

}  // namespace

const refine::MatteLoops& matteLoopsHere() {
    static constexpr refine::MatteLoops loops{&startAlpha, &ratio,      &cover,    &distance, &fit,    &directions,
                                              &loadAlpha,  &storeAlpha, &halve,    &nearMix,  &shares, &blend,
                                              &widen,      &sharpen,    &products, &slope};
    return loops;
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin::refine {

HWY_EXPORT(matteLoopsHere);

const MatteLoops& matteLoops() {
    return HWY_DYNAMIC_DISPATCH(matteLoopsHere)();
}

}  // namespace tavrin::refine
#endif

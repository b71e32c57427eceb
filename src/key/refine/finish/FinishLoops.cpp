#include "key/refine/finish/FinishLoops.h"

#include <algorithm>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/refine/finish/FinishLoops.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

namespace {

using refine::ChannelRow;
using refine::ColorSources;
using refine::EdgeShape;
using refine::GreenRows;
using refine::KeySources;

constexpr float kLow = 0.03f, kHigh = 0.97f;  // levels that become 0 and 1
constexpr float kTopNoise = 0.03f, kKeyGain = 4.0f;
constexpr float kPull = 0.3f;       // of the colour around, where little of a pixel's own is there
constexpr float kUsualPull = 0.1f;  // of the subject's usual one in that
constexpr float kLumaPull = 0.05f;
constexpr float kLeastGain = 0.4f, kMostGain = 2.5f;

float limited(float value) {
    return std::min(std::max(value, 0.0f), 1.0f);
}

std::uint32_t byteOf(float value) {
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(std::min(value, 255.0f) + 0.5f));
}

struct Color {
    float r, g, b;
};

// What the subject's colours have of the screen's channel beyond the mean of the others, as far as that can be. A lag
// is less by a fifth than the inside has it, since edges are paler, and little where the others are alike, since that
// is white or grey. A lead hardly goes beyond the mean on the reddish side, where skin and hair lie and what is
// greener than they are has been lit by the screen, and on the bluish side not beyond the larger of the others; the
// subject's own green comes on top.
HWY_INLINE float usualLead(Color own, const GreenRows& rows, int x) {
    constexpr float kLag = 0.8f, kGreyLag = 4.0f, kColorLag = 0.2f, kReddish = 0.1f, kBluish = 0.5f;
    const float lead = rows.usual.r[x] + rows.usual.g[x] * own.r + rows.usual.b[x] * own.b;
    const float redder = own.r - own.b, apart = std::max(redder, -redder);
    const float most = std::max(kReddish * redder, -kBluish * redder) + rows.own[x];
    const float least = -(kGreyLag + kColorLag * apart);
    return std::max(std::min(std::max(lead, 0.0f) * rows.leadKept, most) + std::min(lead, 0.0f) * kLag, least);
}

// How much of the screen's channel the subject keeps: what its colours usually have. Well inside, at least what is
// given without knowing them: reddish cloth is green's neighbour, bluish cloth is not. What the screen's light cannot
// have brought, since it would have brought more of the other channels too, is the subject's own, as far as there is
// a subject.
HWY_INLINE float keptGreen(Color own, Color screen, const GreenRows& rows, int x, float alpha) {
    constexpr float kNoise = 10.0f;
    const float mean = (own.r + own.b) * 0.5f, cyan = rows.cyan[x];
    const float anyway = (own.b > own.r ? mean + cyan * (own.b - mean) : mean) + rows.own[x];
    const float usual = mean + usualLead(own, rows, x);
    const float above = std::max(anyway - usual, 0.0f);
    const float light =
        std::min((own.r + kNoise) / std::max(screen.r, 1.0f), (own.b + kNoise) / std::max(screen.b, 1.0f));
    const float beyond = std::max(own.g - light * screen.g - (usual + above), 0.0f);
    return std::max(std::min(own.g, usual + cyan * above + alpha * beyond), 0.0f);
}

void levels(const float* HWY_RESTRICT alpha, const float* HWY_RESTRICT detail, float strength, int count,
            float* HWY_RESTRICT to) {
    for (int x = 0; x < count; ++x)
        to[x] = limited((alpha[x] + strength * detail[x] - kLow) / (kHigh - kLow));
}

void quieten(const float* HWY_RESTRICT means, const float* HWY_RESTRICT noise, int count, float* HWY_RESTRICT alpha) {
    for (int x = 0; x < count; ++x) {
        const float low = alpha[x] * limited(means[x] / noise[x] - 1.0f);
        alpha[x] = 1.0f - (1.0f - low) * limited((1.0f - means[x]) / kTopNoise - 1.0f);
    }
}

void keepLines(const float* const* rows, float noise, int count, float* HWY_RESTRICT alpha) {
    const float *const a = rows[0], *const b = rows[1], *const c = rows[2], *const d = rows[3], *const e = rows[4];
    const float share = 1.0f / (5.0f * noise);
    for (int x = 0; x < count; ++x) {
        const float level = ((c[x - 2] + c[x - 1]) + (c[x + 1] + c[x + 2])) + c[x];
        const float upright = ((a[x] + b[x]) + (d[x] + e[x])) + c[x];
        const float falling = ((a[x - 2] + b[x - 1]) + (d[x + 1] + e[x + 2])) + c[x];
        const float rising = ((a[x + 2] + b[x + 1]) + (d[x - 1] + e[x - 2])) + c[x];
        alpha[x] *= limited(std::max(std::max(level, upright), std::max(falling, rising)) * share - 1.0f);
    }
}

float smooth(float value, float low, float high) {
    const float t = limited((value - low) / (high - low));
    return t * t * (3.0f - 2.0f * t);
}

void heedKey(const KeySources& from, int count, float* HWY_RESTRICT alpha) {
    constexpr float kFaint = 0.1f, kClear = 0.4f;           // of the means
    constexpr float kMore = 0.7f;                           // share of what the key has more
    constexpr float kBright = 0.05f, kSurelyBright = 0.3f;  // luma beyond the mixture's, of the screen's difference
    constexpr float kDark = 0.3f, kSurelyDark = 0.6f;       // the same below it: a shade is no other colour
    const auto [key, means, trust, fit, own, behind, in, perLuma, usual] = from;
    for (int x = 0; x < count; ++x) {
        const float more = static_cast<float>(static_cast<std::int32_t>(key[x])) / 255.0f - alpha[x];
        const float off = (own[x] - (behind[x] + fit[x] * (in[x] - behind[x]))) * perLuma;
        const float strange = std::max(smooth(off, kBright, kSurelyBright), smooth(-off, kDark, kSurelyDark));
        const float share = std::min(trust[x] * (usual + kMore * strange), 1.0f);
        alpha[x] += smooth(means[x], kFaint, kClear) * share * std::max(more, 0.0f);
    }
}

void holdBack(const float* HWY_RESTRICT near, const float* HWY_RESTRICT keySums, int count,
              float* HWY_RESTRICT alpha) {
    for (int x = 0; x < count; ++x)
        alpha[x] *= std::max(near[x], std::min(keySums[x] / 25.0f * kKeyGain, 1.0f));
}

void shape(const EdgeShape& shape, const float* HWY_RESTRICT means, int count, float* HWY_RESTRICT alpha) {
    for (int x = 0; x < count; ++x) {
        float a = alpha[x] + shape.blur * (means[x] - alpha[x]);
        a = limited(0.5f + (a - 0.5f) * shape.slope);
        a += shape.tint * a * (1.0f - a);
        alpha[x] = a > 0.01f && a < 1.0f ? limited(a + shape.shift) : a;
    }
}

void raise(const float* HWY_RESTRICT floor, int count, float* HWY_RESTRICT alpha) {
    for (int x = 0; x < count; ++x)
        alpha[x] = std::max(alpha[x], floor[x]);
}

void remainder(ChannelRow own, ChannelRow screen, const float* alpha, int count, float* HWY_RESTRICT r,
               float* HWY_RESTRICT g, float* HWY_RESTRICT b) {
    for (int x = 0; x < count; ++x) {
        const float rest = 1.0f - alpha[x];
        r[x] = std::max(own.r[x] - rest * screen.r[x], 0.0f);
        g[x] = std::max(own.g[x] - rest * screen.g[x], 0.0f);
        b[x] = std::max(own.b[x] - rest * screen.b[x], 0.0f);
    }
}

void colors(const ColorSources& from, bool blue, int count, std::uint32_t* HWY_RESTRICT to) {
    const auto [own, screen, sums, weights, subject, around, shares, green, luma, alpha, lumaR, lumaG, lumaB] = from;
    const int greenBits = blue ? 16 : 8, blueBits = blue ? 8 : 16;
    for (int x = 0; x < count; ++x) {
        const bool whole = weights[x] >= 9.0f;
        const float share = 1.0f / (weights[x] / 9.0f + kPull), a = alpha[x];
        const float pull = kPull / (shares[x] + kUsualPull);
        const auto unmixed = [&](float sum, float near, float usual) {
            const float there = pull * (near + kUsualPull * usual);
            return std::min(std::max((sum / 9.0f + there) * share, 0.0f), 255.0f);
        };
        const float ur = unmixed(sums.r[x], around.r[x], subject.r[x]),
                    ug = unmixed(sums.g[x], around.g[x], subject.g[x]),
                    ub = unmixed(sums.b[x], around.b[x], subject.b[x]);
        const float bright = lumaR * ur + lumaG * ug + lumaB * ub;
        const float behind = lumaR * screen.r[x] + lumaG * screen.g[x] + lumaB * screen.b[x];
        const float wanted = std::min(std::max(luma[x] - (1.0f - a) * behind, 0.0f), 255.0f * a);
        const float measured =
            std::min(std::max((wanted + kLumaPull * bright) / std::max((a + kLumaPull) * bright, 1.0f), kLeastGain),
                     kMostGain);
        const float gain = whole ? 1.0f : measured;
        const float r = whole ? own.r[x] : ur, g = whole ? own.g[x] : ug, b = whole ? own.b[x] : ub;
        const float kept = keptGreen({r, g, b}, {screen.r[x], screen.g[x], screen.b[x]}, green, x, a);
        to[x] = byteOf(r * gain) | byteOf(kept * gain) << greenBits | byteOf(b * gain) << blueBits |
                byteOf(a * 255.0f) << 24;
    }
}

void solid(const std::uint32_t* HWY_RESTRICT pixels, ChannelRow screen, const GreenRows& rows, bool blue, int count,
           std::uint32_t* HWY_RESTRICT to) {
    const GreenRows green = rows;
    const int greenBits = blue ? 16 : 8, blueBits = blue ? 8 : 16;
    for (int x = 0; x < count; ++x) {
        const auto at = [&](int bits) {
            return static_cast<float>(static_cast<std::int32_t>(pixels[x] >> bits & 255));
        };
        const float kept =
            keptGreen({at(0), at(greenBits), at(blueBits)}, {screen.r[x], screen.g[x], screen.b[x]}, green, x, 1.0f);
        to[x] = (pixels[x] & ~(std::uint32_t{255} << greenBits)) | byteOf(kept) << greenBits | 0xFF000000u;
    }
}

}  // namespace

const refine::FinishLoops& finishLoopsHere() {
    static constexpr refine::FinishLoops loops{&levels, &quieten, &keepLines, &heedKey, &holdBack,
                                               &shape,  &raise,   &remainder, &colors,  &solid};
    return loops;
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin::refine {

HWY_EXPORT(finishLoopsHere);

const FinishLoops& finishLoops() {
    return HWY_DYNAMIC_DISPATCH(finishLoopsHere)();
}

}  // namespace tavrin::refine
#endif

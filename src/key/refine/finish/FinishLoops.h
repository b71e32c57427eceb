#pragma once

#include "key/refine/grid/RowLoops.h"

namespace tavrin::refine {

/// What a setting makes of the edges.
struct EdgeShape {
    float blur = 0.0f;   ///< share of the mean around
    float slope = 1.0f;  ///< around one half
    float tint = 0.0f, shift = 0.0f;
};

/// How much of the screen's channel the subject may have, row by row.
struct GreenRows {
    const float* own;   ///< what much of its own green has beyond the mean of the others
    const float* cyan;  ///< how much of a bluish cloth's cyan stays; 1 well inside
    ChannelRow usual;   ///< its usual lead over that mean, as a line: the base, and by the channels r and b
    float leadKept;     ///< of that, as far as it is above 0
};

/// What the colours of the subject are made of, row by row. In roles, 0 to 255.
struct ColorSources {
    ChannelRow own, screen;  ///< the picture and the plate
    ChannelRow sums;         ///< of what nine pixels have without the screen's share
    const float* weights;    ///< sums of those pixels' alpha
    ChannelRow subject;      ///< its usual colour around
    ChannelRow around;       ///< means of what all pixels around have without the screen's share
    const float* shares;     ///< means of those pixels' alpha
    GreenRows green;
    const float *luma, *alpha;
    float lumaR, lumaG, lumaB;  ///< the luma's weights
};

/// What says how far the key is to be heard, row by row.
struct KeySources {
    const std::uint8_t* key;
    const float* means;              ///< of alpha around
    const float* trust;              ///< by the subject's colour, 0 to 1
    const float* fit;                ///< alpha by the colours
    const float *own, *behind, *in;  ///< luma of the picture, of the plate and of the subject around
    float perLuma;                   ///< one over the screen's usual colour difference
    float usual;                     ///< share of the way where a mixture has the pixel's luma
};

/// The last steps of alpha and the subject's colour, compiled as `RowLoops` are.
struct FinishLoops {
    /// alpha + strength detail, stretched so that faint and nearly whole become 0 and 1.
    void (*levels)(const float* alpha, const float* detail, float strength, int count, float* to);
    /// Takes flat noise out near 0 and 1; `means` are of alpha around, `noise` is what is flat near 0.
    void (*quieten)(const float* means, const float* noise, int count, float* alpha);
    /// Takes out what is in no line: no straight one of five pixels through it, whose five rows of alpha are given,
    /// has a mean above the noise.
    void (*keepLines)(const float* const* rows, float noise, int count, float* alpha);
    /// Where the key has more than alpha, on what is no bare screen by the means of alpha around: the usual share of
    /// the way to it, as far as it is to be trusted, and most of the way where no mixture has the pixel's luma.
    void (*heedKey)(const KeySources& from, int count, float* alpha);
    /// Holds alpha back to `near`, but for what 25 sums of the key have.
    void (*holdBack)(const float* near, const float* keySums, int count, float* alpha);
    void (*shape)(const EdgeShape& shape, const float* means, int count, float* alpha);
    /// alpha = the larger of alpha and floor
    void (*raise)(const float* floor, int count, float* alpha);
    /// What is left of the colours without the screen's share.
    void (*remainder)(ChannelRow own, ChannelRow screen, const float* alpha, int count, float* r, float* g, float* b);
    /// The subject's colour and alpha as RGBA; what is whole around keeps its own colour, but for the screen's tint.
    void (*colors)(const ColorSources& from, bool blue, int count, std::uint32_t* to);
    /// The same well inside, over a plate.
    void (*solid)(const std::uint32_t* pixels, ChannelRow screen, const GreenRows& green, bool blue, int count,
                  std::uint32_t* to);
};

const FinishLoops& finishLoops();

}  // namespace tavrin::refine

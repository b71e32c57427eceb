#pragma once

#include "key/refine/grid/RowLoops.h"

namespace tavrin::refine {

/// What turns rows of colours into rows of alpha, compiled as `RowLoops` are. Colours and plates are in roles, 0 to
/// 255.
struct MatteLoops {
    /// The simple alpha, -0.3 to 1: one less the lead of the screen's channel over the plate's, at least `least`.
    void (*startAlpha)(ChannelRow own, ChannelRow screen, float least, int count, float* to);
    /// From sums of nine pixels: the light on the plate, and how far the other channels are from that.
    void (*ratio)(ChannelRow sums, ChannelRow screen, int count, float* light, float* off);
    /// From sums of nine pixels: the light on the plate, and the least alpha that any subject may have there.
    void (*cover)(ChannelRow sums, ChannelRow screen, int count, float* light, float* least);
    /// From sums of nine pixels: the largest distance of a channel from the plate.
    void (*distance)(ChannelRow sums, ChannelRow screen, int count, float* to);
    /// alpha: in the simple one, out the one along `weights`, as far as `certain`; else the simple one or `near`;
    /// where the key has anything, not much below what the colours allow.
    void (*fit)(ChannelRow own, ChannelRow screen, ChannelRow weights, const float* certain, const float* near,
                const std::uint8_t* key, int count, float* alpha);
    /// For cells with `means` of three channels and of their six products: the weights of the direction in which the
    /// subject lies farthest from the screen, and how sure it is. `common` is what all covariances have besides nine
    /// tenths of their own.
    void (*directions)(const float* const* means, ChannelRow screen, const double* common, int count,
                       float* const* to);
    /// Alpha of steps of 1 / 65535.
    void (*loadAlpha)(const std::uint16_t* steps, int count, float* to);
    void (*storeAlpha)(const float* alpha, int count, std::uint16_t* steps);
    /// Means of 2 x 2 pixels, `pairs` of them.
    void (*halve)(const float* upper, const float* lower, int pairs, float* to);
    /// to = 0.75 a + 0.25 b
    void (*nearMix)(const float* a, const float* b, int count, float* to);
    /// From the weights of nine cells: the factor of their values' sum, and the share that is left for what lies
    /// around; none from a mean weight of a quarter on.
    void (*shares)(const float* weights, int count, float* factor, float* rest);
    /// to = a (factor of a) + b (factor of b)
    void (*blend)(const float* a, const float* factorA, const float* b, const float* factorB, int count, float* to);
    /// Doubles `pairs` of values, which have one before and one after them.
    void (*widen)(const float* values, int pairs, float* to);
    /// A row after what a Gaussian of 1.2 pixels takes from it was added, `strength` times; from 9 padded rows.
    void (*sharpen)(const float* const* rows, float strength, int count, float* columns, float* to);
    /// The planes of a window of 9 x 9 pixels: limited alpha, its product with the luma, the luma's square.
    void (*products)(const float* alpha, const float* luma, int count, float* limited, float* product, float* square);
    /// `sums`: of limited alpha, luma, product and square over 81 pixels; `rest`: the luma less its half. The first
    /// becomes the mean of alpha.
    void (*slope)(float* const* sums, const float* rest, int count, float* detail);
};

const MatteLoops& matteLoops();

}  // namespace tavrin::refine

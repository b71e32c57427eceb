#pragma once

#include <cstdint>

#include <QImage>

#include "sample/Plane.h"

namespace tavrin::textures {

using sample::Plane;

/// Soft random hills, about one for each cell, mean 0 and deviation 1. Opposite edges fit together.
/// @param cellsX, cellsY cells across the width and down the height, at least 4.
Plane hills(int width, int height, int cellsX, int cellsY, std::uint64_t seed);

/// Adds `amount` times `other`, which has the same size.
void add(Plane& plane, const Plane& other, double amount);

/// Brings the values to mean 0 and deviation 1.
void normalise(Plane& plane);

/// The slope of a height towards a lamp above and a little to the left; opposite edges fit together.
Plane lightFromAbove(const Plane& height);

/// 0 up to `low`, 1 from `high`, smooth between.
double smoothStep(double low, double high, double value);

/// A value of 0 to 1 as a byte.
uchar toByte(double value);

/// An RGB picture of one plane, 0 to 1.
QImage toGreyPicture(const Plane& plane);

}  // namespace tavrin::textures

#pragma once

#include <QImage>
#include <QRect>

namespace tavrin {

/// Reduces a picture of four bytes a pixel: each pixel of the result is the mean of the area that it stands for, with
/// pixels at its borders counted by the share that lies inside. Colours are averaged as they stand, so they should be
/// opaque or multiplied by their alpha. Rows go to all cores; the result is the same on every machine.
/// @param width,height of the whole reduced picture, 1 up to the size of `picture`
/// @param part of the reduced picture that is made
/// @param out where the first pixel of the part goes, rows of `outStride` bytes
void reduceByArea(const QImage& picture, int width, int height, const QRect& part, std::uint8_t* out,
                  std::ptrdiff_t outStride);

}  // namespace tavrin

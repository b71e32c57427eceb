#pragma once

#include <QImage>

namespace tavrin::sample {

constexpr int kWidth = 1600, kHeight = 2000;

/// Paints the subject on nothing: 16 bit a channel, premultiplied, `factor` times kWidth x kHeight.
QImage paintPortrait(int factor);

}  // namespace tavrin::sample

#pragma once

#include <cstddef>
#include <cstdint>

#include <QImage>
#include <QRect>

namespace tavrin {

/// Lays the pixels of a stored picture, which may lie on its side, upright into a result of four bytes a pixel.
class UprightPixels {
  public:
    /// @param orientation as camera data give it: 1 upright, 3 upside down, 6 and 8 on their sides, the even and odd
    ///        ones between them mirrored
    /// @param width,height of the stored picture; the result has them exchanged from orientation 5 on
    UprightPixels(QImage& result, int orientation, int width, int height) {
        const std::ptrdiff_t pixel = 4, row = result.bytesPerLine();
        const bool turned = orientation >= 5;
        // Which way the stored columns and rows run in the upright picture.
        const bool mirrorX = orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
        const bool mirrorY = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
        stepX_ = (turned ? row : pixel) * (mirrorX ? -1 : 1);
        stepY_ = (turned ? pixel : row) * (mirrorY ? -1 : 1);
        first_ = result.bits() + (mirrorX ? -stepX_ * (width - 1) : 0) + (mirrorY ? -stepY_ * (height - 1) : 0);
    }

    /// Where a stored row of four bytes a pixel may be written as it is; null when it would not lie in one piece.
    std::uint8_t* rowInPlace(int y) const { return stepX_ == 4 ? first_ + y * stepY_ : nullptr; }

    /// Stored pixels: the first of them, and the bytes from one to the next and from row to row.
    struct Stored {
        const std::uint8_t* first;
        std::ptrdiff_t pel, line;
    };

    /// Lays pixels of `Bands` channels (grey, grey and alpha, RGB, RGBA) where they belong that fill `area` of the
    /// stored picture.
    template <int Bands>
    void place(const Stored& from, const QRect& area) const {
        const int width = area.width(), height = area.height();
        std::uint8_t* to = first_ + area.left() * stepX_ + area.top() * stepY_;
        // The inner loop runs along the rows of the result, so that a turned picture is not written byte by byte
        // all over its memory.
        const bool turned = stepY_ == 4 || stepY_ == -4;
        const int outer = turned ? width : height, inner = turned ? height : width;
        const std::ptrdiff_t fromOuter = turned ? from.pel : from.line, fromInner = turned ? from.line : from.pel;
        const std::ptrdiff_t toOuter = turned ? stepX_ : stepY_, toInner = turned ? stepY_ : stepX_;
        for (int o = 0; o < outer; ++o) {
            const std::uint8_t* in = from.first + o * fromOuter;
            std::uint8_t* out = to + o * toOuter;
            if (fromInner == Bands && toInner == 4) {  // as most pictures are, and faster with constant steps
                for (int i = 0; i < inner; ++i)
                    copyPixel<Bands>(in + i * Bands, out + i * std::ptrdiff_t{4});
            } else {
                for (int i = 0; i < inner; ++i, in += fromInner, out += toInner)
                    copyPixel<Bands>(in, out);
            }
        }
    }

  private:
    template <int Bands>
    static void copyPixel(const std::uint8_t* from, std::uint8_t* to) {
        to[0] = from[0];
        to[1] = from[Bands > 2 ? 1 : 0];
        to[2] = from[Bands > 2 ? 2 : 0];
        to[3] = Bands % 2 ? 255 : from[Bands - 1];
    }

    std::uint8_t* first_;  ///< where the stored picture's first pixel lies
    std::ptrdiff_t stepX_, stepY_;
};

}  // namespace tavrin

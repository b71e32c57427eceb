#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include <QImage>

#include "core/raster/PixelMemory.h"

namespace tavrin {

/// Bytes of a pixel: red, green, blue, alpha, 8 bits each.
inline constexpr int kPixelBytes = 4;

/// Offset of pixel (x, y) in a buffer of `width` pixels a row; rows are packed, the first row is the top one.
constexpr std::size_t pixelOffset(int width, int x, int y) {
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) *
           kPixelBytes;
}

/// Size of a pixel buffer in bytes.
constexpr std::size_t pixelBytes(int width, int height) {
    return pixelOffset(width, 0, height);
}

/// A picture in somebody's memory: RGBA, rows packed, the first row on top. Null bytes are no picture.
template <class Byte>
struct PixelsOf {
    Byte* bytes = nullptr;
    int width = 0, height = 0;

    bool isEmpty() const { return !bytes || width < 1 || height < 1; }
    Byte* at(int x, int y) const { return bytes + pixelOffset(width, x, y); }
    operator PixelsOf<const Byte>() const { return {bytes, width, height}; }
};
using PixelView = PixelsOf<std::uint8_t>;
using ConstPixelView = PixelsOf<const std::uint8_t>;

/// An owned pixel buffer with undefined contents. `data()` is null where memory was refused or the size is 0.
class PixelBuffer {
  public:
    PixelBuffer() = default;
    PixelBuffer(int width, int height);
    /// A buffer of zeros; memory that is new and never written costs nothing.
    static PixelBuffer cleared(int width, int height);

    std::uint8_t* data() const { return bytes_.get(); }
    /// The same memory as whole numbers, one a pixel.
    std::int32_t* numbers() const { return reinterpret_cast<std::int32_t*>(bytes_.get()); }

  private:
    PixelBuffer(int width, int height, PixelContents contents);

    struct Free {
        std::size_t bytes;
        Free() : bytes(0) {}
        explicit Free(std::size_t size) : bytes(size) {}
        void operator()(std::uint8_t* memory) const;
    };
    std::unique_ptr<std::uint8_t, Free> bytes_;
};

/// A picture of four bytes a pixel in such a buffer, with undefined contents, rows packed; null where memory was
/// refused or the size is 0. Quicker to touch first than one that QImage makes itself.
QImage newPicture(int width, int height, QImage::Format format);

}  // namespace tavrin

#include "core/raster/Pixels.h"

#include <cstdlib>

namespace tavrin {

PixelBuffer::PixelBuffer(int width, int height) {
    if (width < 1 || height < 1) return;
    bytes_.reset(static_cast<std::uint8_t*>(std::malloc(pixelBytes(width, height))));
}

PixelBuffer PixelBuffer::cleared(int width, int height) {
    PixelBuffer buffer;
    if (width < 1 || height < 1) return buffer;
    buffer.bytes_.reset(static_cast<std::uint8_t*>(std::calloc(pixelBytes(width, height), 1)));
    return buffer;
}

void PixelBuffer::Free::operator()(std::uint8_t* bytes) const {
    std::free(bytes);
}

}  // namespace tavrin

#include "core/raster/Pixels.h"

namespace tavrin {

PixelBuffer::PixelBuffer(int width, int height) : PixelBuffer(width, height, PixelContents::undefined) {}

PixelBuffer::PixelBuffer(int width, int height, PixelContents contents) {
    if (width < 1 || height < 1) return;
    const std::size_t bytes = pixelBytes(width, height);
    bytes_ = {static_cast<std::uint8_t*>(takePixelMemory(bytes, contents)), Free(bytes)};
}

PixelBuffer PixelBuffer::cleared(int width, int height) {
    return PixelBuffer(width, height, PixelContents::zeros);
}

void PixelBuffer::Free::operator()(std::uint8_t* memory) const {
    givePixelMemory(memory, bytes);
}

QImage newPicture(int width, int height, QImage::Format format) {
    auto pixels = std::make_unique<PixelBuffer>(width, height);
    if (!pixels->data()) return {};
    std::uint8_t* const bytes = pixels->data();
    return QImage(
        bytes, width, height, qsizetype{kPixelBytes} * width, format,
        [](void* owner) { delete static_cast<PixelBuffer*>(owner); }, pixels.release());
}

}  // namespace tavrin

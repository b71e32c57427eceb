#include "core/raster/Pixels.h"

#include <cstdlib>
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tavrin {

namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;

// The first touch of memory costs a trap for each page, for a large picture as much as scaling it. With huge pages
// there are few. Where the system has none to give, it falls back to small ones by itself.
void* allocate(std::size_t bytes) {
#ifdef __linux__
    if (bytes >= 2 * kHugePage) {
        const std::size_t whole = (bytes + kHugePage - 1) / kHugePage * kHugePage;
        void* memory = std::aligned_alloc(kHugePage, whole);
        if (memory) madvise(memory, whole, MADV_HUGEPAGE);
        return memory;
    }
#endif
    return std::malloc(bytes);
}

}  // namespace

PixelBuffer::PixelBuffer(int width, int height) {
    if (width < 1 || height < 1) return;
    bytes_.reset(static_cast<std::uint8_t*>(allocate(pixelBytes(width, height))));
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

QImage newPicture(int width, int height, QImage::Format format) {
    auto pixels = std::make_unique<PixelBuffer>(width, height);
    if (!pixels->data()) return {};
    std::uint8_t* const bytes = pixels->data();
    return QImage(
        bytes, width, height, qsizetype{kPixelBytes} * width, format,
        [](void* owner) { delete static_cast<PixelBuffer*>(owner); }, pixels.release());
}

}  // namespace tavrin

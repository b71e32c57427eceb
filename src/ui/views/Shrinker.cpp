#include "ui/views/Shrinker.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "core/raster/Resampling.h"

namespace tavrin {

Shrinker::Shrinker(QObject* parent) : QObject(parent) {
    pool_.setMaxThreadCount(1);
}

Shrinker::~Shrinker() {
    pool_.waitForDone();
}

void Shrinker::want(const QImage& picture, QSize size) {
    if (busy_ && wanted_.cacheKey() == picture.cacheKey() && size_ == size) return;
    wanted_ = picture;
    size_ = size;
    again_ = busy_;
    if (!busy_) start();
}

void Shrinker::start() {
    busy_ = true;
    pool_.start([this, picture = wanted_, size = size_] {
        // The format that the screen's buffer has is drawn fastest.
        QImage small = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                           .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QMetaObject::invokeMethod(
            this,
            [this, small = std::move(small), key = picture.cacheKey()] {
                busy_ = false;
                if (std::exchange(again_, false)) {
                    start();
                } else {
                    wanted_ = QImage();  // or whoever writes into the picture next would have to copy it
                }
                emit done(small, key);
            },
            Qt::QueuedConnection);
    });
}

/// A row more on each side than those that change: they mix into their neighbours.
void shrinkRows(const QImage& picture, int first, int last, QImage& small) {
    const double down = static_cast<double>(small.height()) / picture.height();
    const int top = std::max(static_cast<int>(std::floor(first * down)) - 1, 0);
    const int bottom = std::min(static_cast<int>(std::ceil(last * down)) + 1, small.height());
    if (top >= bottom) return;
    const int from = std::max(static_cast<int>(std::floor(top / down)) - 2, 0);
    const int to = std::min(static_cast<int>(std::ceil(bottom / down)) + 2, picture.height());
    const QImage strip =
        picture.copy(0, from, picture.width(), to - from).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage onto(small.width(), bottom - top, QImage::Format_ARGB32_Premultiplied);
    drawResampled(strip, QRectF(0, from * down - top, small.width(), (to - from) * down), onto);
    for (int y = 0; y < onto.height(); ++y)
        std::memcpy(small.scanLine(top + y), onto.constScanLine(y), static_cast<std::size_t>(onto.bytesPerLine()));
}

}  // namespace tavrin

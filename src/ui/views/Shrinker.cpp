#include "ui/views/Shrinker.h"

#include <utility>

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

}  // namespace tavrin

#include "ui/picture/PixelReader.h"

#include <utility>

namespace tavrin {

PixelReader::PixelReader(SystemInfo& info, CombineThread& loop, QObject* parent)
    : QObject(parent), info_(info), loop_(loop) {}

void PixelReader::ask(const QPoint& pixel) {
    wanted_ = pixel;
    again_ = busy_;
    if (!busy_) start();
}

void PixelReader::start() {
    busy_ = true;
    loop_.edit([this, pixel = wanted_]() -> std::vector<ChangedRows> {
        const std::optional<PixelStory> story = read(pixel);
        QMetaObject::invokeMethod(
            this, [this, story] { take(story); }, Qt::QueuedConnection);
        return {};
    });
}

/// The probe serves until a newer picture is asked for. One that was overtaken while it was made is of no use.
std::optional<PixelStory> PixelReader::read(const QPoint& pixel) {
    if (!info_.whyNotFinished(Resolution::full).empty() || info_.iCurrentThreadCount <= info_.iNewThreadCount) {
        probe_.reset();
        return std::nullopt;
    }
    if (!probe_ || !probe_->isFor(info_)) probe_ = std::make_unique<PixelProbe>(info_);
    if (!probe_->isFor(info_) || !probe_->covers(pixel.x(), pixel.y())) return std::nullopt;
    return probe_->tell(pixel.x(), pixel.y());
}

void PixelReader::take(const std::optional<PixelStory>& story) {
    busy_ = false;
    if (std::exchange(again_, false)) start();
    story ? emit told(*story) : emit nothingToTell();
}

}  // namespace tavrin

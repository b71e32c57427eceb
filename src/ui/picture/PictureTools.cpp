#include "ui/picture/PictureTools.h"

#include <utility>

#include "ui/views/LayerPictures.h"

namespace tavrin {

PictureTools::PictureTools(Binder& binder, CombineThread& loop, WindowBridge& bridge, PictureView* view)
    : QObject(view),
      info_(binder.editor().info()),
      binder_(binder),
      loop_(loop),
      bridge_(bridge),
      view_(view),
      mouseMode_(new MouseMode(info_, view)),
      story_(new StoryPanel(view)),
      reader_(info_, loop, this),
      asker_(info_, loop, this),
      drag_(binder.editor()),
      items_(binder, view) {
    view_->setItemIcons(info_.TextEditIcon.Image, info_.TextDeleteIcon.Image);
    zoomRests_.setSingleShot(true);
    zoomRests_.setInterval(120);
    connect(&zoomRests_, &QTimer::timeout, this, &PictureTools::showOthers);
    connectView();
}

void PictureTools::connectView() {
    connect(view_, &PictureView::zoomed, this, [this] {
        if (wants(Other::before) || wants(Other::original) || wants(Other::alpha)) zoomRests_.start();
    });
    connect(view_, &PictureView::pressed, this,
            [this](const QPoint& at) { items_.press(at, mouseMode_->iEventMouseTarget() == MouseMode::kText); });
    connect(view_, &PictureView::dragged, this, &PictureTools::drag);
    connect(view_, &PictureView::dragEnded, this, &PictureTools::endDrag);
    connect(view_, &PictureView::pointed, this, [this](const QPoint& pixel) {
        pointed_ = pixel;
        pixel.x() < 0 ? emit readOut("") : reader_.ask(pixel);
    });
    connect(&reader_, &PixelReader::told, this, &PictureTools::tell);
    connect(&reader_, &PixelReader::nothingToTell, this, [this] { emit readOut(""); });
    connect(view_, &PictureView::asked, &asker_, &PixelReader::ask);
    connect(&asker_, &PixelReader::told, this, [this](const PixelStory& story) {
        story_->show(story, view_->zoom().viewAt({story.x + 0.5, story.y + 0.5}));
    });
}

void PictureTools::pictureFinished() {
    showOthers();
    if (pointed_.x() >= 0) reader_.ask(pointed_);
}

void PictureTools::tell(const PixelStory& story) {
    if (pointed_.x() >= 0) emit readOut(tavrin::readOut(story));
}

bool PictureTools::wants(Other other) const {
    switch (other) {
        case Other::before:
            return view_->isSplit();
        case Other::original:
            return originalHeld_;
        case Other::alpha:
            return info_.bShowAlpha && !originalHeld_;
    }
    return false;
}

void PictureTools::showOthers() {
    if (!wants(Other::before)) view_->setBefore({});
    if (!wants(Other::original) && !wants(Other::alpha)) view_->showInstead({}, {});
    for (const Other other : {Other::before, Other::original, Other::alpha})
        if (wants(other)) makeOther(other);
}

/// As large as it is shown, on the loop's thread: the buffers are its own.
void PictureTools::makeOther(Other other) {
    const QSize most = (view_->zoom().frame().size() * view_->devicePixelRatioF()).toSize();
    loop_.edit([this, other, most]() -> std::vector<ChangedRows> {
        QImage picture = other == Other::alpha ? alphaPicture(info_, most) : originalPicture(info_, most);
        QMetaObject::invokeMethod(
            this, [this, other, picture = std::move(picture)] { take(other, picture); }, Qt::QueuedConnection);
        return {};
    });
}

void PictureTools::take(Other other, const QImage& picture) {
    if (!wants(other)) return;
    if (other == Other::before) return view_->setBefore(picture);
    view_->showInstead(picture, other == Other::original ? tr("Before") : tr("Alpha"));
}

void PictureTools::showOriginal(bool on) {
    if (std::exchange(originalHeld_, on) != on) showOthers();
}

void PictureTools::showAlpha(bool on) {
    info_.bShowAlpha = on;
    showOthers();
}

void PictureTools::showSplit(bool on) {
    view_->setSplit(on);
    showOthers();
}

void PictureTools::ask(bool on) {
    view_->setAsking(on);
    if (!on) story_->hide();
}

/// While it lasts the loop shows a plain mix of both layers.
void PictureTools::drag(const QPointF& share, const QPointF& points) {
    const int mode = mouseMode_->iEventMouseMode();
    const bool ofItem = mode > 4;
    if (ofItem && !items_.bShowTextCursor()) return;
    if (!std::exchange(dragging_, true)) {
        bridge_.setMouse(true, mode);
        const bool background = mouseMode_->iEventMouseTarget() == MouseMode::kBackground;
        if (!ofItem)
            drag_.begin(mode,
                        (background ? tr("Place of the background") : tr("Place of the portrait")).toStdString());
    }
    if (ofItem) {
        items_.dragTo(mode, points);
    } else {
        drag_.dragTo(share);
    }
    info_.StartUpdate();
    binder_.UpdateAllUI();
}

void PictureTools::endDrag() {
    if (!std::exchange(dragging_, false)) return;
    bridge_.setMouse(false, 0);
    items_.endDrag();
    if (drag_.isUnderWay()) drag_.end();
    info_.StartUpdate();
    emit binder_.changed();
}

}  // namespace tavrin

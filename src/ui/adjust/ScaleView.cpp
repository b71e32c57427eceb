#include "ui/adjust/ScaleView.h"

#include <algorithm>
#include <utility>

#include <QKeyEvent>
#include <QPainter>

namespace tavrin {

PlaceView::PlaceView(Binder& binder, QWidget* parent) : QWidget(parent), binder_(binder) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeAllCursor);
    setMinimumHeight(150);
    connect(&binder_, &Binder::changed, this, qOverload<>(&QWidget::update));
}

void PlaceView::imageSizeChange() {
    bImageSizeChanged_ = true;
    update();
}

const PlaceMap& PlaceView::map() const {
    if (std::exchange(bImageSizeChanged_, false)) map_ = PlaceMap(info(), size(), isCentred());
    return map_;
}

void PlaceView::resizeEvent(QResizeEvent*) {
    imageSizeChange();
}

void PlaceView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::gray);
    painter.translate(0, height());
    painter.scale(1, -1);
    if (const QRectF filled = box(); !filled.isNull()) painter.fillRect(filled, color());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::red, 1));
    painter.drawRect(map().imageRect);
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PlaceView::mousePressEvent(QMouseEvent* event) {
    from_ = event->position();
    emit grabbed();
    dragging_ = event->button() == Qt::LeftButton && begin();
    if (dragging_) binder_.editor().beginStep(label().toStdString());
}

void PlaceView::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) step({event->position().x() - from_.x(), from_.y() - event->position().y()});
}

void PlaceView::mouseReleaseEvent(QMouseEvent*) {
    if (!std::exchange(dragging_, false)) return;
    binder_.editor().endStep();
    emit binder_.changed();
}

void PlaceView::step(const QPointF& points) {
    moveBy(points);
    info().StartUpdate();
    binder_.UpdateAllUI();
    update();
}

void PlaceView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const QPointF way(key == Qt::Key_Right  ? 1
                      : key == Qt::Key_Left ? -1
                                            : 0,
                      key == Qt::Key_Up     ? 1
                      : key == Qt::Key_Down ? -1
                                            : 0);
    if (way.isNull() || dragging_ || !begin()) return QWidget::keyPressEvent(event);
    binder_.editor().beginStep(label().toStdString());
    step(way);
    binder_.editor().endStep();
    emit binder_.changed();
}

ScaleView::ScaleView(Binder& binder, QWidget* parent) : PlaceView(binder, parent) {
    setObjectName("scaleView");
    setProperty("handler", "scaleView");
    setAccessibleName(tr("Map of the layer in the picture"));
    setToolTip(tr("The layer in a small map of the picture: drag it to its place"));
}

const BitmapInfo& ScaleView::layer() const {
    return info().iActiveBitmap == 0 ? *info().pForegroundBitmapInfo : *info().pBackgroundBitmapInfo;
}

QRectF ScaleView::box() const {
    return LayerBox(layer(), map()).sourceImageRect;
}

QColor ScaleView::color() const {
    return info().iActiveBitmap == 0 ? Qt::blue : Qt::green;
}

QString ScaleView::label() const {
    return info().iActiveBitmap == 0 ? tr("Place of the portrait") : tr("Place of the background");
}

bool ScaleView::begin() {
    const LayerBox box(layer(), map());
    iXMouseStart_ = box.iXOrg;
    iYMouseStart_ = box.iYOrg;
    return true;
}

void ScaleView::moveBy(const QPointF& points) {
    const std::string owner = ownerPrefix(info(), Owner::active);
    const auto set = [&](const char* field, double way, int start, double side) {
        const int org = static_cast<int>(way + start);
        binder_.editor().set(owner + field, std::to_string(LayerBox::thousandths(org, side)));
    };
    set("iOrgXoff", points.x(), iXMouseStart_, map().imageRect.width());
    set("iOrgYoff", points.y(), iYMouseStart_, map().imageRect.height());
}

TextScaleView::TextScaleView(Binder& binder, QWidget* parent) : PlaceView(binder, parent) {
    setObjectName("myTextScaleView");
    setProperty("handler", "myTextScaleView");
    setAccessibleName(tr("Map of the selected item in the picture"));
    setToolTip(tr("The selected text or picture in a small map of the picture: drag it to its place"));
    hide();
}

void TextScaleView::showItem(int index) {
    index_ = index;
    setVisible(item() != nullptr);
    update();
}

const FontObject* TextScaleView::item() const {
    const auto& items = info().oFontObject;
    return index_ < 0 || index_ >= info().iFontObjectCount() ? nullptr : &items[static_cast<std::size_t>(index_)];
}

double TextScaleView::dViewPixelPerInch() const {
    const double inches = info().dOutputImageWidthInInches;
    return inches > 0.0 ? map().imageRect.width() / inches : 1.0;
}

QRectF TextScaleView::box() const {
    const FontObject* shown = item();
    const double dpi = std::max(1, info().iOutputImageDPI.load());
    return shown ? itemInMap(*shown, map(), dViewPixelPerInch(), dpi) : QRectF();
}

bool TextScaleView::begin() {
    const FontObject* shown = item();
    if (!shown) return false;
    dXMouseStart_ = shown->xPos;
    dYMouseStart_ = shown->yPos;
    return true;
}

void TextScaleView::moveBy(const QPointF& points) {
    const std::string owner = "text" + std::to_string(index_) + '.';
    const auto set = [&](const char* field, double start, double way) {
        const double inches = start + way / dViewPixelPerInch();
        binder_.editor().set(owner + field, QString::number(inches, 'g', 17).toStdString());
    };
    set("xPos", dXMouseStart_, points.x());
    set("yPos", dYMouseStart_, points.y());
}

}  // namespace tavrin

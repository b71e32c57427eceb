#include "ui/picture/ItemTool.h"

#include <utility>

#include <QMessageBox>
#include <QPushButton>

#include "core/state/ChangeFlags.h"
#include "session/TextItems.h"

namespace tavrin {

namespace {

constexpr double kLeastScale = 0.01;

}  // namespace

ItemTool::ItemTool(Binder& binder, PictureView* view) : QObject(view), binder_(binder), view_(view) {
    textSelectTimer_.setInterval(500);
    connect(&textSelectTimer_, &QTimer::timeout, this, &ItemTool::OnTextSelectTimer);
    connect(view_, &PictureView::zoomed, this, [this] {
        if (bShowTextCursor() && !dragging_) place();
    });
}

/// A state that was loaded may have fewer.
bool ItemTool::hasItem() const {
    return iSelectedFontIndex_ >= 0 && iSelectedFontIndex_ < binder_.editor().info().iFontObjectCount();
}

const FontObject& ItemTool::item() const {
    return binder_.editor().info().oFontObject[static_cast<std::size_t>(iSelectedFontIndex_)];
}

std::string ItemTool::name(const char* field) const {
    return "text" + std::to_string(iSelectedFontIndex_) + '.' + field;
}

ItemScale ItemTool::scale() const {
    const Zoom& zoom = view_->zoom();
    return {binder_.editor().info(), zoom.frame().size() / zoom.dZoom(), zoom.dZoom()};
}

void ItemTool::place() {
    if (!hasItem()) return hideFrame();
    view_->setSelection(ItemBox(item(), scale()));
}

void ItemTool::hideFrame() {
    view_->setSelection(std::nullopt);
    emit selected(-1);
}

/// Icons first. A click on the one that deletes goes on to what lies below it, as it always has.
void ItemTool::press(const QPoint& at, bool selects) {
    if (bShowTextCursor()) {
        const ItemBox box = *view_->selection();
        if (isAtCorner(at, box.x2, box.y2)) {
            view_->setSelection(std::nullopt);
            emit selected(-1);
            return void(emit editWanted(iSelectedFontIndex_));
        }
        if (isAtCorner(at, box.x1, box.y1)) {
            hideFrame();
            QMetaObject::invokeMethod(
                this, [this, row = iSelectedFontIndex_] { askToDelete(row); }, Qt::QueuedConnection);
        }
    }
    const auto& items = binder_.editor().info().oFontObject;
    if (items.empty()) return;
    view_->setSelection(std::nullopt);
    for (std::size_t i = 0; selects && i < items.size(); ++i) {
        const ItemBox box(items[i], scale());
        if (!box.holds(at)) continue;
        iSelectedFontIndex_ = static_cast<int>(i);
        showFrame();
        break;
    }
    emit selected(bShowTextCursor() ? iSelectedFontIndex_ : -1);
}

/// The frame goes, and a new picture is made with it.
void ItemTool::OnTextSelectTimer() {
    if (dragging_ || iTextShowCount_-- > 1) return;
    textSelectTimer_.stop();
    hideFrame();
    binder_.editor().info().StartUpdate();
}

void ItemTool::dragTo(int mode, const QPointF& points) {
    if (!bShowTextCursor() || !hasItem()) return;
    if (!dragging_) beginDrag(mode);
    iTextShowCount_ = kShowCount;
    mode == 5 ? moveTo(points) : scaleTo(points);
    binder_.editor().info().StartUpdate();
    emit selected(iSelectedFontIndex_);
}

void ItemTool::beginDrag(int mode) {
    dragging_ = true;
    boxBefore_ = *view_->selection();
    scaleBefore_ = item().dGlobalScaleY;
    binder_.editor().beginStep((mode == 5 ? tr("Place of an item") : tr("Size of an item")).toStdString());
}

/// Nothing holds it within the picture.
void ItemTool::moveTo(const QPointF& points) {
    ItemBox box = boxBefore_;
    box.moveBy(static_cast<int>(points.x()), static_cast<int>(points.y()));
    const ItemScale s = scale();
    set("xPos", box.x1 / (s.perInch * s.zoom));
    set("yPos", box.y1 / (s.perInch * s.zoom));
    view_->setSelection(box);
}

void ItemTool::scaleTo(const QPointF& points) {
    const SystemInfo& info = binder_.editor().info();
    const QRectF frame = view_->zoom().frame();
    const double side = info.iOutputPixelWidth > info.iOutputPixelHeight ? frame.width() : frame.height();
    const double scale = std::max(kLeastScale, scaleBefore_ + 4.0 * points.y() / side);
    set("dGlobalScaleY", scale);
    set("dGlobalScaleX", scale);
    place();
}

void ItemTool::set(const char* field, double value) {
    binder_.editor().set(name(field), QString::number(value, 'g', 17).toStdString());
}

void ItemTool::endDrag() {
    if (!std::exchange(dragging_, false)) return;
    raiseFlags(binder_.editor().info(), kRedoBackgroundLayer);
    binder_.editor().endStep();
    binder_.editor().info().StartUpdate();
    emit binder_.changed();
}

void ItemTool::show(int row) {
    iSelectedFontIndex_ = row;
    if (row < 0) return hideFrame();
    showFrame();
}

void ItemTool::showFrame() {
    place();
    iTextShowCount_ = kShowCount;
    if (!textSelectTimer_.isActive()) textSelectTimer_.start();
}

void ItemTool::askToDelete(int row) {
    auto* question = new QMessageBox(QMessageBox::Question, "Tavrin",
                                     tr("Are you shure you want to delete the text?"), QMessageBox::NoButton, view_);
    question->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = question->addButton(tr("Yes"), QMessageBox::YesRole);
    question->setEscapeButton(question->addButton(tr("No"), QMessageBox::NoRole));
    connect(question, &QMessageBox::buttonClicked, this, [this, row, yes](QAbstractButton* pressed) {
        if (pressed == static_cast<QAbstractButton*>(yes)) deleteTextItemRow(row);
    });
    question->open();
}

void ItemTool::deleteTextItemRow(int row) {
    iSelectedFontIndex_ = -1;
    hideFrame();
    binder_.run(tr("Delete an item"),
                [row](SettingEditor& editor) { removeItem(editor, static_cast<std::size_t>(row)); });
}

}  // namespace tavrin

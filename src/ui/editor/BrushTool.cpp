#include "ui/editor/BrushTool.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabletEvent>

#include "ui/editor/BrushCursor.h"
#include "ui/views/PictureView.h"

namespace tavrin {

namespace {

constexpr char kActs[] = "acfsvz";  // what keys do on the picture

EditItem slidersOf(const GUI_BrushInfo& brush) {
    const auto percent = [](double share) { return std::llround(100.0 * share); };
    return {kBrushSliders, percent(brush.dBrushSlider), percent(brush.dRadius), percent(brush.dHardness),
            percent(brush.dTransparency)};
}

/// The character of a plain key, small; 0 for others.
char characterOf(const QKeyEvent& event) {
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return 0;
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return static_cast<char>('a' + key - Qt::Key_A);
    const bool plain =
        (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_BracketLeft || key == Qt::Key_BracketRight;
    return plain ? static_cast<char>(key) : '\0';
}

}  // namespace

BrushTool::BrushTool(EditorDoor& door, PictureView* view, BrushCursor* cursor)
    : QObject(view), door_(door), view_(view), cursor_(cursor) {
    view->installEventFilter(this);
}

void BrushTool::show(const EditorFace& face) {
    face_ = face;
    BrushCursor::Look look;
    look.brush = face.open && face.iActiveButton != kSelection;
    look.radius = face.brush.radiusInPixels();
    look.hardness = face.brush.dHardness;
    look.picksColor = face.open && face.picksColor;
    look.brush = look.brush || look.picksColor;
    if (face.open && face.bShowAnchorCursor) look.source = QPointF(face.dAnchorOffsetX, face.dAnchorOffsetY);
    cursor_->show(look);
    if (!face.open) drawing_ = false;
}

bool BrushTool::eventFilter(QObject* watched, QEvent* event) {
    if (!face_.open) return QObject::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            penDown_ = event->type() != QEvent::TabletRelease;
            pressure_ = static_cast<const QTabletEvent*>(event)->pressure();
            return false;  // the mouse's event follows
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return press(*static_cast<const QMouseEvent*>(event));
        case QEvent::MouseMove:
            return move(*static_cast<const QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return release(*static_cast<const QMouseEvent*>(event));
        case QEvent::Leave:
            cursor_->follow({});
            return false;
        case QEvent::ShortcutOverride:
            if (!takesKey(*static_cast<const QKeyEvent*>(event), true)) return false;
            event->accept();
            return true;
        case QEvent::KeyPress:
            if (!takesKey(*static_cast<const QKeyEvent*>(event), true)) return false;
            key(*static_cast<const QKeyEvent*>(event), true);
            return true;
        default:
            return false;
    }
}

/// Broken, so that a place between two pixels is not lost before the editor cuts it off.
QPointF BrushTool::pixelAt(const QPointF& view) const {
    return view_->zoom().pictureAt(view);
}

bool BrushTool::press(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || view_->isPanHeld()) return false;
    view_->setFocus(Qt::MouseFocusReason);
    mouse_ = event.position();
    cursor_->follow(mouse_);
    drawing_ = true;
    const QPointF at = pixelAt(mouse_);
    usePressure();
    if (event.modifiers().testFlag(Qt::ShiftModifier) && lastEnd_ && !face_.picksColor) {
        door_.applyAt(kMouseDown, lastEnd_->x(), lastEnd_->y());
        door_.applyAt(kMouseDragged, at.x(), at.y());
    } else {
        door_.applyAt(kMouseDown, at.x(), at.y());
    }
    return true;
}

bool BrushTool::move(const QMouseEvent& event) {
    mouse_ = event.position();
    cursor_->follow(mouse_);
    if (!drawing_ || !event.buttons().testFlag(Qt::LeftButton)) return false;
    const QPointF at = pixelAt(mouse_);
    usePressure();
    door_.applyAt(kMouseDragged, at.x(), at.y());
    return true;
}

bool BrushTool::release(const QMouseEvent& event) {
    if (!drawing_ || event.button() != Qt::LeftButton) return false;
    mouse_ = event.position();
    lastEnd_ = pixelAt(mouse_);
    endStroke();
    return true;
}

void BrushTool::endStroke() {
    drawing_ = false;
    door_.apply({kMouseUp});
    if (const auto before = std::exchange(slidersBefore_, {})) door_.apply(*before);
    emit strokeEnded();
}

/// A stroke's sliders go with the pressure, as items of their own, so that a replay is equal.
void BrushTool::usePressure() {
    if (pen_ == Pen::nothing || !penDown_ || face_.iActiveButton == kSelection) return;
    if (!slidersBefore_) slidersBefore_ = slidersNow_ = slidersOf(face_.brush);
    EditItem sliders = *slidersBefore_;
    std::int64_t& value = pen_ == Pen::radius ? sliders.V2 : sliders.V4;
    value = std::llround(static_cast<double>(value) * pressure_);
    if (std::exchange(slidersNow_, sliders) != sliders) door_.apply(sliders);
}

void BrushTool::growBrush(int by) {
    if (face_.iActiveButton == kSelection) return;
    EditItem sliders = slidersOf(face_.brush);
    sliders.V2 = std::clamp<std::int64_t>(sliders.V2 + by, 0, 100);
    face_.brush.dRadius = static_cast<double>(sliders.V2) / 100.0;  // the next press of the key goes on from there
    door_.apply(sliders);
}

/// A key that both would take acts on the picture where that has the focus, and chooses a tool in the panel.
bool BrushTool::takesKey(const QKeyEvent& event, bool onPicture) const {
    const char character = characterOf(event);
    if (!face_.open || face_.replaying || character == '\0') return false;
    return character == '[' || character == ']' || brushOfKey(character) >= 0 ||
           (onPicture && std::string_view(kActs).find(character) != std::string_view::npos);
}

void BrushTool::key(const QKeyEvent& event, bool onPicture) {
    const char character = characterOf(event);
    if (character == '[' || character == ']') return growBrush(character == '[' ? -2 : 2);
    if (onPicture && std::string_view(kActs).find(character) != std::string_view::npos) return acts(character);
    door_.apply({kBrushChosen, character});
}

void BrushTool::acts(char character) {
    const QPointF at = pixelAt(mouse_);
    door_.applyAt(kKeyPressed, at.x(), at.y(), character);
    if (character == 'f') view_->setZoomHome();
    if (character == 's') view_->setZoomMagnify();
}

}  // namespace tavrin

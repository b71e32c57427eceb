// The part of the editor that makes strokes of what mouse and keys do.
#include <algorithm>
#include <cstdlib>

#include "editor/Editor.h"

namespace tavrin {

namespace {

constexpr double kOutside = 1.0e9;  // beyond every picture

}  // namespace

// Points of the view go upward, rows of the picture downward; both are cut off towards zero.
Editor::Point Editor::pixelAt(double x, double y) const {
    const auto whole = [](double v) { return static_cast<std::int32_t>(std::clamp(v, -kOutside, kOutside)); };
    return {whole(x * dScreenZoom), whole(pixels_.iHeight - y * dScreenZoom)};
}

void Editor::ProcessBrushMove(double x, double y) {
    if (iActiveButton == kSelection) return;
    if (well_) active().setColor(well_->red, well_->green, well_->blue);
    const Point at = pixelAt(x, y);
    iXCursor = at.x;
    iYCursor = at.y;
    if (!pixels_.isInside(at.x, at.y)) return;
    if (!strokeMet_) ++strokesInside;
    strokeMet_ = true;
    if (iActiveButton != kCopy) bShowAnchorCursor = false;
    Stamp stamp(iActiveButton, active(), key_->bUseBlueLogic);
    stamp.iRadius = active().radiusInPixels(radiusScale_ * playedScale_);
    stamp.iXCursor = iXCursor;
    stamp.iYCursor = iYCursor;
    if (iActiveButton == kCopy && dAnchorOrgX != -1.0 && painter_->reachesAny(stamp)) {
        if (bAnchorFirstTime_) {
            dAnchorOffsetX = dAnchorOrgX - iXCursor;
            dAnchorOffsetY = dAnchorOrgY - iYCursor;
            bAnchorFirstTime_ = false;
        }
        bShowAnchorCursor = true;
    }
    stamp.anchored = dAnchorOrgX != -1.0;
    stamp.dAnchorOffsetX = dAnchorOffsetX;
    stamp.dAnchorOffsetY = dAnchorOffsetY;
    const EditedRows rows = painter_->paint(stamp);
    changed_.add(rows.first, rows.last);
}

void Editor::mouseDownReplay() {
    if (bSelectColorMode_) {
        pickColor();
        return;
    }
    if (!isReady()) return;
    if (iActiveButton != kSelection) ++strokes;
    strokeMet_ = iActiveButton == kSelection;
    if (oBrushInfo[kCopy].bCheckBoxValue) bAnchorFirstTime_ = true;
    ProcessBrushMove(iMousePosX, iMousePosY);
    // Points of the view in the place of pixels, until the next stamp: the walk below leaves stamps out by them.
    iXCursor = std::max(iMousePosX, 0);
    iYCursor = std::max(iMousePosY, 0);
}

// After a move along one axis the old position stays, so the next drag begins there again. Its stamps are no stronger
// than those that are there.
void Editor::mouseDrageReplay(Point to) {
    if (!isReady()) return;
    const Point from{iMousePosX, iMousePosY};
    walk(from, to);
    if (to.x == from.x || to.y == from.y) return;
    iMousePosX = to.x;
    iMousePosY = to.y;
}

// A stamp each tenth of the radius, in points of the view. A stamp whose walked coordinate is that of the last one's
// row is left out, though the one is a point of the view, perhaps across, and the other a row of the picture:
// recorded strokes have always been played so.
void Editor::walk(Point from, Point to) {
    const int dx = to.x - from.x, dy = to.y - from.y;
    if (dx == 0 && dy == 0) return;
    const int step = std::max(static_cast<int>(0.1 * static_cast<int>(active().dRadius * 200.0 + 1.0)), 1);
    const bool across = std::abs(dy) <= std::abs(dx);
    const double slope = dx == 0 ? 0.0 : static_cast<double>(-dy) / -dx;
    const int start = across ? from.x : from.y, end = across ? to.x : to.y;
    const int way = end >= start ? step : -step;
    for (int at = start; way > 0 ? at <= end : at >= end; at += way) {
        if (at == iYCursor) continue;
        if (across) {
            ProcessBrushMove(at, static_cast<int>(slope * (at - from.x) + from.y));
        } else {
            ProcessBrushMove(dx == 0 ? from.x : static_cast<int>((at - from.y) / slope + from.x), at);
        }
    }
}

void Editor::mouseUpReplay() {
    if (!isReady()) return;
    undoFiles.SaveSnapShot(pixels_);
    if (selection.bSelected) selectAgain();
    pixels_.TakeSnapShot();
}

// The colour under a press of the eye-dropper.
void Editor::pickColor() {
    bSelectColorMode_ = false;
    if (!isReady()) return;
    const Point at = pixelAt(iMousePosX, iMousePosY);
    if (!pixels_.isInside(at.x, at.y)) return;
    const std::uint8_t* p = pixels_.pC + pixels_.index(at.x, at.y) * kPixelBytes;
    EditItem item{kColorPicked, p[0], p[1], p[2]};
    if (iActiveButton == kSelection) {
        item.kind = kSelectColorPicked;
        if (selection.iSelectionMode == ColorSelection::kForegroundColor) {
            const QLXPixel f = key_->spill.adjustedForeground(at.x, at.y);
            item = {kSelectColorPicked, f.red, f.green, f.blue};
        }
    }
    record(item);
    setWell(item);
    if (iActiveButton == kSelection) updateSelectColor();
}

void Editor::keyDownReplay(std::int64_t character, Point mouse) {
    iMousePosX = mouse.x;
    iMousePosY = mouse.y;
    switch (character & 223) {
        case 'A':
            setAnchor();
            break;
        case 'C':
            takeColorOfPicture();
            break;
        case 'F':
            act({kZoomHome});
            break;
        case 'S':
            act({kZoomIn});
            break;
        case 'V':
            redo();
            break;
        case 'Z':
            undo();
            break;
        default:
            break;
    }
}

void Editor::setAnchor() {
    const Point at = pixelAt(iMousePosX, iMousePosY);
    if (!isReady() || !pixels_.isInside(at.x, at.y)) return;
    dAnchorOrgX = at.x;
    dAnchorOrgY = at.y;
    dAnchorOffsetX = dAnchorOffsetY = 0.0;
    bAnchorFirstTime_ = true;
    if (iActiveButton == kCopy) bShowAnchorCursor = true;
}

void Editor::takeColorOfPicture() {
    const Point at = pixelAt(iMousePosX, iMousePosY);
    if (!isReady() || !pixels_.isInside(at.x, at.y)) return;
    const std::uint8_t* p = pixels_.pC + pixels_.index(at.x, at.y) * kPixelBytes;
    setWell({kColorWell, p[0], p[1], p[2]});
}

}  // namespace tavrin

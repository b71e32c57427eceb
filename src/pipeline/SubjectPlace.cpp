#include "pipeline/SubjectPlace.h"

#include <algorithm>
#include <cmath>

#include "key/Combine.h"
#include "pipeline/Layers.h"
#include "pipeline/StageSteps.h"
#include "pipeline/Stages.h"

namespace tavrin {

namespace {

constexpr double kFootRoom = 0.04, kSideRoom = 0.04;
constexpr double kLargest = 2.5;       // of a small subject, beside the fit
constexpr double kToHide = 1.0045;     // for the whole thousandths and pixels of a place
constexpr double kLargestScale = 4.0;  // whatever is to be hidden

/// The subject's extent, out to the source's edge where that cuts it, in fractions of the source from its top left.
struct Extent {
    explicit Extent(const SubjectBounds& s)
        : left(s.cutLeft ? 0.0 : s.left),
          top(s.cutTop ? 0.0 : s.top),
          right(s.cutRight ? 1.0 : s.right),
          bottom(s.cutBottom ? 1.0 : s.bottom) {}
    double middle() const { return (left + right) / 2.0; }
    double left, top, right, bottom;
};

/// The smallest scale at which no edge of the source shows that cuts the subject.
double scaleToHide(const SubjectBounds& subject, const Extent& extent, const LayerFit& fit) {
    double scale = 0.01;
    if (subject.cutLeft) scale = std::max(scale, kToHide * fit.outputWidth / (2.0 * extent.middle() * fit.width));
    if (subject.cutRight)
        scale = std::max(scale, kToHide * fit.outputWidth / (2.0 * (1.0 - extent.middle()) * fit.width));
    if (subject.cutTop && subject.cutBottom) scale = std::max(scale, kToHide * fit.outputHeight / fit.height);
    return scale;
}

/// The scale at which the subject fills the height that it may have.
double scaleToHeight(const SubjectBounds& subject, const Extent& extent, const LayerFit& fit, double headRoom) {
    const double room = (subject.cutTop ? 0.0 : headRoom) + (subject.cutBottom ? 0.0 : kFootRoom);
    return (1.0 - room) * fit.outputHeight / ((extent.bottom - extent.top) * fit.height);
}

double chooseScale(const SubjectBounds& subject, const Extent& extent, const LayerFit& fit, double headRoom) {
    // Of one that a side of the source cuts more may go, but no head.
    const bool isCut = subject.cutLeft || subject.cutRight;
    const double reach =
        isCut ? std::max({extent.middle() - subject.headLeft, subject.headRight - extent.middle(), 0.01})
              : (extent.right - extent.left) / 2.0;
    const double widest = (0.5 - kSideRoom) * fit.outputWidth / (reach * fit.width);
    const double scale = std::min({scaleToHeight(subject, extent, fit, headRoom), widest, kLargest});
    return std::max(scale, scaleToHide(subject, extent, fit));
}

/// The offset that brings the drawn rectangle's beginning to `start` along one direction, as whole thousandths.
int offsetFor(double start, double scale, double drawn, int output) {
    const double offset = (start + (drawn * scale - drawn) * 0.5) * 1000.0 / output;
    return static_cast<int>(std::lround(std::clamp(offset, -1e6, 1e6)));
}

/// Thousandths are coarse; an edge that has to be hidden is moved out by one or two more.
void hideEdges(LayerPlace& place, const SubjectBounds& subject, const LayerFit& fit) {
    for (int i = 0; i < 4; ++i) {
        const QRectF rect = placedRect(place, fit);
        if (subject.cutLeft && rect.left() > 0.0)
            --place.x;
        else if (subject.cutRight && rect.right() < fit.outputWidth)
            ++place.x;
        if (subject.cutBottom && rect.top() > 0.0)
            --place.y;  // y grows upward
        else if (subject.cutTop && rect.bottom() < fit.outputHeight)
            ++place.y;
    }
}

/// Brings the place nearer about one point of the picture, in fractions from the lower left, then moves it.
LayerPlace adjusted(const LayerPlace& place, const LayerFit& fit, const PlaceState& wish, double aboutX,
                    double aboutY) {
    const double by = wish.placeScale;
    const QRectF rect = placedRect(place, fit);
    const double px = aboutX * fit.outputWidth, py = aboutY * fit.outputHeight;
    LayerPlace result = place;
    if (by != 1.0) {
        result.scale = place.scale * by;
        result.x = offsetFor(px + (rect.left() - px) * by, result.scale, fit.width, fit.outputWidth);
        result.y = offsetFor(py + (rect.top() - py) * by, result.scale, fit.height, fit.outputHeight);
    }
    result.x += wish.iPlaceXMove;
    result.y += wish.iPlaceYMove;
    return result;
}

/// The part of the preview that shows nothing but the source.
QRect insideOf(const QRectF& rect, const LayerFit& fit) {
    const int left = static_cast<int>(std::ceil(rect.left())), right = static_cast<int>(std::floor(rect.right()));
    const double top = fit.outputHeight - rect.bottom(), bottom = fit.outputHeight - rect.top();
    const int first = static_cast<int>(std::ceil(top)), last = static_cast<int>(std::floor(bottom));
    return QRect(left, first, right - left, last - first) & QRect(0, 0, fit.outputWidth, fit.outputHeight);
}

/// A heart comes down in the middle, and the head belongs below that.
double headRoomOf(const SystemInfo& info) {
    constexpr int kHeart = 3;
    const ImageFrame& frame = *info.oFrame;
    if (frame.iFrameType != kHeart) return kHeadRoom;
    const double scale = std::min(1.0 - frame.iFrameThickness / 100.0, 0.95);
    return 0.5 + 0.1153675 - std::max(scale, 0.0) * 0.4 / 1.030725 + 0.03;
}

/// The whole source in the middle of the preview.
LayerPlace placeOfWhole(const LayerFit& fit) {
    LayerPlace place;
    place.scale = std::min(fit.outputWidth / fit.width, fit.outputHeight / fit.height);
    place.x = offsetFor((fit.outputWidth - fit.width * place.scale) * 0.5, place.scale, fit.width, fit.outputWidth);
    place.y =
        offsetFor((fit.outputHeight - fit.height * place.scale) * 0.5, place.scale, fit.height, fit.outputHeight);
    return place;
}

/// The rows of the preview, out of those that hold the source, that the picture shows with the source at this place.
QRect rowsSeen(const QRect& source, const QRectF& rect, const LayerFit& full) {
    const double above = std::max((rect.bottom() - full.outputHeight) / rect.height(), 0.0);
    const double below = std::min(rect.bottom() / rect.height(), 1.0);
    const int first = static_cast<int>(above * source.height()), last = static_cast<int>(below * source.height());
    return QRect(source.left(), source.top() + first, source.width(), std::max(last - first, 1));
}

/// Where a part of a subject lies above or below the picture, what is seen of it may have another middle.
LayerPlace placeAsSeen(const SystemInfo& info, const SubjectBounds& whole, const LayerFit& full, double headRoom) {
    const LayerFit low = fitSource(info, *info.pForegroundBitmapInfo, Resolution::preview);
    const QRect source = insideOf(placedRect(placeOfWhole(low), low), low);
    LayerPlace place = placeAround(whole, full, headRoom);
    const auto found = findSubject(info.pBackgroundBitmapInfo->pBitmapDataLowRes, low.outputWidth,
                                   rowsSeen(source, placedRect(place, full), full));
    if (!found) return place;
    const double width = full.width * place.scale;
    double left = full.outputWidth * 0.5 - Extent(*found).middle() * width;
    if (found->cutLeft) left = std::min(left, 0.0);
    if (found->cutRight) left = std::max(left, full.outputWidth - width);
    place.x = offsetFor(left, place.scale, full.width, full.outputWidth);
    SubjectBounds seen = whole;
    seen.cutLeft = found->cutLeft, seen.cutRight = found->cutRight;
    hideEdges(place, seen, full);
    return place;
}

}  // namespace

LayerPlace placeAround(const SubjectBounds& subject, const LayerFit& full, double headRoom) {
    const Extent extent(subject);
    LayerPlace place;
    const double scale = std::min(chooseScale(subject, extent, full, headRoom), kLargestScale);
    place.scale = std::ceil(scale * 10000.0) / 10000.0;
    const double width = full.width * place.scale, height = full.height * place.scale;
    const double footRoom = subject.cutBottom ? 0.0 : kFootRoom;
    // From the lower end where there is room left above the head, from the head where the source's edges leave none.
    double y = footRoom * full.outputHeight - (1.0 - extent.bottom) * height;
    const double highest =
        (1.0 - (subject.cutTop ? 0.0 : headRoom)) * full.outputHeight - (1.0 - extent.top) * height;
    if (subject.cutTop || y > highest) y = highest;
    place.x = offsetFor(full.outputWidth * 0.5 - extent.middle() * width, place.scale, full.width, full.outputWidth);
    place.y = offsetFor(y, place.scale, full.height, full.outputHeight);
    hideEdges(place, subject, full);
    return place;
}

LayerPlace placeInMiddle(const LayerFit& full) {
    return {1.0, offsetFor((full.outputWidth - full.width) * 0.5, 1.0, full.width, full.outputWidth),
            offsetFor((full.outputHeight - full.height) * 0.5, 1.0, full.height, full.outputHeight)};
}

std::optional<SubjectBounds> measureSubject(SystemInfo& info) {
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    if (foreground.orgImage.isNull() || info.bShowOrgImage) return std::nullopt;
    const LayerFit fit = fitSource(info, foreground, Resolution::preview);
    const LayerPlace whole = placeOfWhole(fit);
    const ScreenColor measured = info;
    info.placedLast = whole;
    drawPreviewAt(info, foreground, whole);
    findHair(info, Resolution::preview);
    measureScreen(info, Resolution::preview);
    combinePreviewPlainly(info);
    static_cast<ScreenColor&>(info) = measured;  // the fill of the layer and the pass begin as if nothing had been
    info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    return findSubject(info.pBackgroundBitmapInfo->pBitmapDataLowRes, fit.outputWidth,
                       insideOf(placedRect(whole, fit), fit));
}

void wantPlace(SystemInfo& info, PlaceRule rule, double scale, int xMove, int yMove) {
    info.placeRule = rule;
    info.placeScale = scale;
    info.iPlaceXMove = xMove;
    info.iPlaceYMove = yMove;
    info.bPlaceForeground = rule != PlaceRule::corner;
    if (rule != PlaceRule::corner) return;
    if (scale == 1.0 && xMove == 0 && yMove == 0) return;
    const LayerPlace place = placeOf(*info.pForegroundBitmapInfo);
    info.placedLast = {place.scale * scale, place.x + xMove, place.y + yMove};
    setPlace(*info.pForegroundBitmapInfo, info.placedLast);
}

void placeForeground(SystemInfo& info) {
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    const LayerPlace present = placeOf(foreground);
    if (foreground.orgImage.isNull() || !foreground.oBitmapRepLowRes) return;
    if (!info.bPlaceForeground.exchange(false)) return;
    if (!foreground.sSourceProblem.empty()) return;  // the old portrait stays, as it is
    if (present != LayerPlace() && present != info.placedLast) return;
    const LayerFit fit = fitSource(info, foreground, Resolution::full);
    std::optional<SubjectBounds> subject;
    if (info.placeRule == PlaceRule::subject) subject = measureSubject(info);
    const LayerPlace place = subject
                                 ? adjusted(placeAsSeen(info, *subject, fit, headRoomOf(info)), fit, info, 0.5, 0.0)
                                 : adjusted(placeInMiddle(fit), fit, info, 0.5, 0.5);
    setPlace(foreground, place);
    info.placedLast = place;
    foreground.bScaleChange = true;
}

void placeForNewSize(SystemInfo& info) {
    if (info.placeRule != PlaceRule::corner && placeOf(*info.pForegroundBitmapInfo) == info.placedLast)
        info.bPlaceForeground = true;
}

LayerPlace medianPlace(const std::vector<LayerPlace>& places) {
    const auto median = [&places](auto value) {
        std::vector<decltype(value(places[0]))> all;
        for (const LayerPlace& place : places)
            all.push_back(value(place));
        const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
        std::nth_element(all.begin(), middle, all.end());
        return *middle;
    };
    if (places.empty()) return {};
    return {median([](const LayerPlace& p) { return p.scale; }), median([](const LayerPlace& p) { return p.x; }),
            median([](const LayerPlace& p) { return p.y; })};
}

}  // namespace tavrin

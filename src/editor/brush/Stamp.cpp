#include "editor/brush/Stamp.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/raster/Rows.h"

namespace tavrin {

namespace {

constexpr int kGrain = 8;  // rows of a piece of a stamp

bool searches(int brush) {
    return brush == kFilterColor || brush == kRestoreHair;
}

bool comparesWithScreen(int brush) {
    return brush == kEraseForeground || searches(brush);
}

bool spills(const Stamp& stamp) {
    return stamp.brush == kBlendForeground || stamp.brush == kRemoveGreenSpill ||
           (stamp.brush == kRestoreForeground && !stamp.settings.bCheckBoxValue);
}

int touchOf(double strength) {
    return static_cast<int>(strength * 255.0);
}

// Colours of a picture with transparency carry their alpha.
std::uint8_t premultiplied(std::uint8_t color, std::uint8_t alpha) {
    return static_cast<std::uint8_t>(std::uint32_t{color} * alpha * 32897u >> 23);
}

int distanceOf(int dx, int dy) {
    return static_cast<int>(std::sqrt(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy));
}

// The whole part of the root of a square that is near the one before.
class NearRoot {
  public:
    explicit NearRoot(int root) : root_(root) {}
    int of(std::int64_t square) {
        while (std::int64_t{root_} * root_ > square)
            --root_;
        while (std::int64_t{root_ + 1} * (root_ + 1) <= square)
            ++root_;
        return root_;
    }

  private:
    int root_;
};

// All pixels of a stamp inside the picture in its own order, column by column, until `visit` says false.
template <class Visit>
void walkColumns(const Stamp& stamp, const EditorPixels& pixels, const Visit& visit) {
    for (int dx = -stamp.iRadius; dx <= stamp.iRadius; ++dx) {
        const int h = stamp.halfHeight(dx);
        for (int dy = -h; dy <= h; ++dy) {
            const int x = stamp.iXCursor + dx, y = stamp.iYCursor + dy;
            if (pixels.isInside(x, y) && !visit(x, y)) return;
        }
    }
}

}  // namespace

Stamp::Stamp(int tool, const GUI_BrushInfo& info, bool blueLogic)
    : brush(tool),
      settings(info),
      swaps(blueLogic && comparesWithScreen(tool)),
      color{static_cast<double>(info.red), static_cast<double>(info.green), static_cast<double>(info.blue)} {
    if (swaps) std::swap(color.g, color.b);
    in = toHsv(color);
}

int Stamp::halfHeight(int dx) const {
    const double r = iRadius;
    return static_cast<int>(std::sqrt(r * r - static_cast<double>(dx) * dx));
}

double Stamp::strength(int distance) const {
    const double r = iRadius, hard = settings.dHardness * r;
    const double e = distance - hard;
    const double fallOff = static_cast<int>(e) < 1 ? 1.0 : 1.0 - e / (r - hard);
    return settings.dTransparency * fallOff;
}

double likenessToScreen(const HsvColor& base, const HsvColor& pixel, const HsvColor& tool) {
    const double iError = editorDistance(base, pixel), iError2 = editorDistance(base, tool);
    return 1.0 - 1.2 * iError / (iError2 + 1.0);
}

StampPainter::StampPainter(EditorPixels& pixels, EditorKey& key)
    : pixels_(pixels), key_(key), kept_(pixels.iWidth, pixels.iHeight), doneBy_(pixels.oSnapShot.size(), 0) {}

void StampPainter::beginStroke() {
    if (half_ > 0) kept_.clear();  // what was made of a snapshot that may change
    if (++stroke_ != 0) return;
    std::fill(doneBy_.begin(), doneBy_.end(), std::uint8_t{0});
    stroke_ = 1;
}

// Strengths fall with the distance, so those of one touch value follow each other.
void StampPainter::layOutLevels(const Stamp& stamp) {
    levels_.clear();
    const int last = std::min(stamp.iRadius, pixels_.iWidth + pixels_.iHeight);
    for (int distance = 0; distance <= last; ++distance) {
        const double strength = stamp.strength(distance);
        levels_.push_back({strength, touchOf(strength), true});
    }
    for (std::size_t first = 0, end = 0; first < levels_.size(); first = end) {
        while (end < levels_.size() && levels_[end].touch == levels_[first].touch)
            ++end;
        const bool alone = levels_[first].strength == levels_[end - 1].strength;
        for (std::size_t i = first; i < end; ++i)
            levels_[i].alone = alone;
    }
}

bool StampPainter::reachesAny(const Stamp& stamp) const {
    bool found = false;
    walkColumns(stamp, pixels_, [&](int x, int y) {
        const int touch = touchOf(stamp.strength(distanceOf(x - stamp.iXCursor, y - stamp.iYCursor)));
        found = pixels_.isFree(x, y) && pixels_.snapShot(x, y).percent <= touch;
        return !found;
    });
    return found;
}

// Where pixels depend on those before them: the first spill of a visit sees another white balance, and a copy in a
// transparent picture may meet records that this stamp has emptied.
bool StampPainter::takesOrder(const Stamp& stamp) const {
    return (spills(stamp) && !key_.bSpilled) || (stamp.brush == kCopy && key_.bOutputTransparency);
}

EditedRows StampPainter::paint(const Stamp& stamp) {
    const KeptColors::Box box{std::max(stamp.iXCursor - stamp.iRadius, 0),
                              std::max(stamp.iYCursor - stamp.iRadius, 0),
                              std::min(stamp.iXCursor + stamp.iRadius + 1, pixels_.iWidth),
                              std::min(stamp.iYCursor + stamp.iRadius + 1, pixels_.iHeight)};
    if (box.top >= box.bottom) return {};
    std::fill(pixels_.oRowsToPutBack.begin() + box.top, pixels_.oRowsToPutBack.begin() + box.bottom, std::uint8_t{1});
    layOutLevels(stamp);
    prepareNeighbours(stamp);
    inOrder_ = takesOrder(stamp);
    keeps_ = !inOrder_ && keepsColors(stamp, box);
    if (inOrder_) {
        walkColumns(stamp, pixels_, [&](int x, int y) {
            paintPixel(stamp, x, y, distanceOf(x - stamp.iXCursor, y - stamp.iYCursor));
            return true;
        });
    } else {
        runRows({}, box.bottom - box.top, kGrain, [&](int row) { paintRow(stamp, box, box.top + row); });
    }
    return {box.top, box.bottom};
}

// Only what costs more to make than to keep.
bool StampPainter::keepsColors(const Stamp& stamp, const KeptColors::Box& box) {
    if (half_ == 0 && !spills(stamp) && !searches(stamp.brush)) return false;
    const GUI_BrushInfo& by = stamp.settings;
    const Maker maker{stamp.brush, by.dBrushSlider, by.bCheckBoxValue, by.red, by.green, by.blue};
    if (std::exchange(maker_, maker) != maker) kept_.clear();
    return kept_.makeRoom(box);
}

// A disc is as wide in a row as it is high in the column that far from its centre.
void StampPainter::paintRow(const Stamp& stamp, const KeptColors::Box& box, int y) {
    const int dy = y - stamp.iYCursor, half = stamp.halfHeight(dy);
    const int left = std::max(stamp.iXCursor - half, box.left);
    const int right = std::min(stamp.iXCursor + half + 1, box.right);
    NearRoot root(distanceOf(left - stamp.iXCursor, dy));
    const auto distanceAt = [&](int x) {
        const std::int64_t dx = x - stamp.iXCursor;
        return root.of(dx * dx + std::int64_t{dy} * dy);
    };
    if (half_ > 0) {
        int from = right, to = left;
        for (int x = left; x < right; ++x) {
            const std::size_t pixel = pixels_.index(x, y);
            if (isPassedOver(pixel, levels_[static_cast<std::size_t>(distanceAt(x))])) continue;
            if (isKept(pixels_.oSnapShot[pixel], x, y)) continue;
            from = std::min(from, x);
            to = x + 1;
        }
        if (from < to) sumRow(y, from, to);
    }
    for (int x = left; x < right; ++x)
        paintPixel(stamp, x, y, distanceAt(x));
}

bool StampPainter::isPassedOver(std::size_t pixel, const Level& level) const {
    if (pixels_.pMaskSelection[pixel] == 0) return true;
    const int percent = pixels_.oSnapShot[pixel].percent;
    if (percent > level.touch) return true;                                     // as strong is let through again
    return percent == level.touch && level.alone && doneBy_[pixel] == stroke_;  // and would be the same
}

void StampPainter::paintPixel(const Stamp& stamp, int x, int y, int distance) {
    const std::size_t pixel = pixels_.index(x, y);
    const Level& level = levels_[static_cast<std::size_t>(distance)];
    if (isPassedOver(pixel, level)) return;
    QLXPixel& s = pixels_.oSnapShot[pixel];
    s.percent = static_cast<std::uint8_t>(level.touch);
    // A record that is emptied gives something else the second time, and so may what goes by the order.
    doneBy_[pixel] = inOrder_ || pixels_.isEmptied(s) ? std::uint8_t{0} : stroke_;
    if (const std::optional<OutColor> out = outColor(stamp, s, x, y)) {
        writeBack(s, pixel, level.strength, *out);
        pixels_.oSnapShotTouch[static_cast<std::size_t>(y)] = 1;
    }
}

// The next snapshot takes the bytes as they stand, so a later stroke starts from premultiplied colours.
void StampPainter::writeBack(QLXPixel& s, std::size_t pixel, double t, const OutColor& out) {
    const auto blended = [t](double from, double to) { return toByte(from * (1.0 - t) + t * to); };
    std::uint8_t* p = pixels_.pS + pixel * kPixelBytes;
    const std::uint8_t alpha = blended(s.alpha, out.alpha);
    if (pixels_.bOutputTransparency) {
        if (pixels_.isEmptied(s)) s.red = s.green = s.blue = 0;
        p[0] = premultiplied(blended(s.red, out.color.r), alpha);
        p[1] = premultiplied(blended(s.green, out.color.g), alpha);
        p[2] = premultiplied(blended(s.blue, out.color.b), alpha);
        p[3] = alpha;
    } else {
        p[0] = blended(s.red, out.color.r);
        p[1] = blended(s.green, out.color.g);
        p[2] = blended(s.blue, out.color.b);
    }
    pixels_.pB[pixel * kPixelBytes + 3] = alpha;
}

}  // namespace tavrin

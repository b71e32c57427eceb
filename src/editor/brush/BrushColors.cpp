// The part of a stamp that says what each tool makes of a pixel.
#include <algorithm>
#include <cmath>

#include "editor/brush/ColorSearch.h"
#include "editor/brush/Stamp.h"

namespace tavrin {

namespace {

constexpr double kScreenLike = 0.9;  // from this likeness on the pixel counts as screen

Rgb colorOf(const QLXPixel& p) {
    return {static_cast<double>(p.red), static_cast<double>(p.green), static_cast<double>(p.blue)};
}

Rgb mixed(const Rgb& a, double share, const Rgb& b) {
    const double rest = 1.0 - share;
    return {a.r * share + b.r * rest, a.g * share + b.g * rest, a.b * share + b.b * rest};
}

// Each channel by itself.
template <class Change>
Rgb eachChannel(const Rgb& c, const Change& change) {
    return {change(c.r), change(c.g), change(c.b)};
}

Rgb brightened(const Rgb& s, double k) {
    return eachChannel(s, [k](double c) { return std::min(c * (k + 0.5), 255.0); });
}

Rgb contrasted(const Rgb& s, double k) {
    return eachChannel(s, [k](double c) { return clampTo((c - 127.0) * (2.0 * k) + 127.0, 0.0, 255.0); });
}

Rgb painted(const Stamp& stamp, const Rgb& s) {
    if (!stamp.settings.bCheckBoxValue) return stamp.color;
    const double largest = largestOf(stamp.color);
    const double scale = largestOf(s) / (largest == 0.0 ? 1.0 : largest);
    return eachChannel(stamp.color, [scale](double c) { return std::min(c * scale, 255.0); });
}

// A pixel that is shown as it is counts as all subject.
Rgb overBackground(const SpilledPixel& spilled, const Rgb& back) {
    return mixed(spilled.color, std::min(spilled.amount, 1.0), back);
}

// Of the tools whose colours are kept.
bool leavesAlpha(int brush) {
    return brush != kRestoreForeground && brush != kFilterColor && brush != kRestoreHair;
}

}  // namespace

SpilledPixel StampPainter::spill(int x, int y) {
    const std::uint8_t* p = pixels_.pFOrg + pixels_.index(x, y) * kPixelBytes;
    const Rgb raw{static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
    if (!inOrder_) return key_.spill.spillAt(x, y, raw);
    key_.bSpilled = true;
    return key_.spill.Spill(x, y, raw.r, raw.g, raw.b);
}

// The tools whose colours are kept go by the record's alpha at most, or have a snapshot that stays.
std::optional<OutColor> StampPainter::outColor(const Stamp& stamp, const QLXPixel& s, int x, int y) {
    if (!keeps_ || (half_ > 0 && pixels_.isEmptied(s))) return makeColor(stamp, s, x, y);
    const KeptColors::Entry kept = kept_.at(x, y);
    if (kept.state == KeptColors::State::unknown) {
        const std::optional<OutColor> made = makeColor(stamp, s, x, y);
        kept.state = made ? KeptColors::State::color : KeptColors::State::leftAlone;
        if (made) kept.out = *made;
    }
    if (kept.state == KeptColors::State::leftAlone) return {};
    return OutColor{kept.out.color, leavesAlpha(stamp.brush) ? s.alpha : kept.out.alpha};
}

std::optional<OutColor> StampPainter::makeColor(const Stamp& stamp, const QLXPixel& s, int x, int y) {
    const double k = stamp.settings.dBrushSlider, alpha = s.alpha;
    const bool checked = stamp.settings.bCheckBoxValue;
    const auto foreground = [&] {
        Rgb o = colorOf(key_.spill.adjustedForeground(x, y));
        if (stamp.swaps) std::swap(o.g, o.b);
        return o;
    };
    const auto background = [&] { return colorOf(key_.spill.adjustedBackground(x, y)); };
    const auto likeness = [&](const Rgb& o) {
        return likenessToScreen(toHsv(key_.editBase(x, y)), toHsv(o), stamp.in);
    };
    switch (stamp.brush) {
        case kBlendForeground: {
            const Rgb o = foreground(), back = background();
            if (likeness(o) > kScreenLike) return {};
            const bool green = o.g > o.r && o.g > o.b;
            return OutColor{mixed(green ? overBackground(spill(x, y), back) : o, k, back), alpha};
        }
        case kPaint:
            return OutColor{painted(stamp, colorOf(s)), 255.0};
        case kEraseForeground:
            if (checked && std::abs(static_cast<int>(toHsv(key_.editBase(x, y)).h - toHsv(foreground()).h)) > 29)
                return {};
            return OutColor{key_.bOutputTransparency ? colorOf(s) : background(), 0.0};
        case kRestoreForeground: {
            const Rgb o = foreground();
            if (checked) return OutColor{o, 255.0};
            if (likeness(o) > kScreenLike) return {};
            return OutColor{overBackground(spill(x, y), background()), 255.0};
        }
        case kBrightness:
            return OutColor{brightened(colorOf(s), k), alpha};
        case kContrast:
            return OutColor{contrasted(colorOf(s), k), alpha};
        case kRemoveGreenSpill: {
            const SpilledPixel spilled = spill(x, y);
            if (spilled.amount < 0.1) return {};
            return OutColor{spilled.color, alpha};
        }
        case kRestoreBlack: {
            const Rgb o = foreground();
            const double level = (o.g + o.r) / 2.0;
            if (k * 100.0 < level) return {};
            return OutColor{{level, level, level}, alpha};
        }
        case kMakeWhiter: {
            const Rgb o = foreground();
            if (k * 0.5 < toHsv(o).s) return {};
            const double largest = largestOf(o);
            return OutColor{eachChannel(o, [&](double c) { return (2.0 * largest + c) / 3.0; }), alpha};
        }
        case kBlendEdge:
        case kBlur:
        case kSmooth: {
            const std::optional<Rgb> color = averaged(stamp, s, x, y);
            if (!color) return {};
            return OutColor{*color, alpha};
        }
        case kCopy: {
            if (!stamp.anchored) return {};
            const int fromX = static_cast<int>(x + stamp.dAnchorOffsetX);
            const int fromY = static_cast<int>(y + stamp.dAnchorOffsetY);
            if (!pixels_.isInside(fromX, fromY)) return {};
            const QLXPixel& source = pixels_.snapShot(fromX, fromY);
            return OutColor{colorOf(source), static_cast<double>(source.alpha)};
        }
        case kFilterColor:
        case kRestoreHair: {
            const Rgb base = key_.editBase(x, y), o = foreground();
            std::optional<FoundColor> found =
                searchColor(stamp, {base, o, likenessToScreen(toHsv(base), toHsv(o), stamp.in)}, key_.baseGreen);
            if (!found) return {};
            if (key_.bUseBlueLogic) std::swap(found->color.g, found->color.b);
            const double subject = 1.0 - found->dPercent;
            return OutColor{key_.bOutputTransparency ? found->color : mixed(found->color, subject, background()),
                            subject * 255.0};
        }
        default:
            return {};
    }
}

}  // namespace tavrin

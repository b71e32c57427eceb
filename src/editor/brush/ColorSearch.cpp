#include "editor/brush/ColorSearch.h"

#include <algorithm>

namespace tavrin {

namespace {

constexpr double kNoError = 99999999.0;
constexpr double kGrey = 0.2;  // saturation below which a colour has no hue to go by

class ColorSearch {
  public:
    ColorSearch(const Stamp& stamp, const SearchedPixel& pixel)
        : stamp_(stamp), pixel_(pixel), filters_(stamp.brush == kFilterColor) {}

    // The subject's colour where the screen has this share. Green may come out negative, which no colour explains.
    Rgb unmixed(double p) const {
        const auto channel = [&](double o, double base) { return (o - p * base) / (1.0 - p); };
        return {clampTo(channel(pixel_.color.r, pixel_.base.r), 0.0, 255.0),
                std::min(channel(pixel_.color.g, pixel_.base.g), 255.0),
                clampTo(channel(pixel_.color.b, pixel_.base.b), 0.0, 255.0)};
    }

    // Black gives a colour that is no number, which is written as black.
    Rgb likeTool(const Rgb& s) const {
        const double largest = largestOf(s);
        const auto channel = [&](double c) { return c * largest / stamp_.in.v; };
        return {channel(stamp_.color.r), channel(stamp_.color.g), channel(stamp_.color.b)};
    }

    // Both searches stop at the first share that is no nearer.
    bool searchCoarsely() {
        bool hit = false;
        double iMinError = kNoError;
        for (double p = 0.0; p < 1.0; p += 0.2) {
            const Rgb s = unmixed(p);
            if (isRejected(s)) continue;
            const double error = distanceOf(toHsv(s));
            if (!(error < iMinError)) break;
            iMinError = error;
            dPercentColor = p;
            hit = true;
        }
        return hit;
    }

    // Around what the coarse search has found.
    void searchFinely() {
        const double end = std::min(dPercentColor + 0.15, 0.99);
        double iMinError = kNoError;
        for (double p = std::max(dPercentColor - 0.15, 0.0); p < end; p += 0.02) {
            const Rgb s = unmixed(p);
            if (isRejected(s)) continue;
            const HsvColor hsv = toHsv(s);
            const double error = distanceOf(hsv);
            if (!(error < iMinError)) break;
            iMinError = error;
            dPercentColor = p;
            found = stamp_.in.s < kGrey && hsv.s < 0.3 ? likeTool(s) : s;
        }
    }

    double dPercentColor = 0.0;
    Rgb found{255.0, 0.0, 255.0};  // magenta stays as a mark where the fine search takes nothing

  private:
    bool isRejected(const Rgb& s) const { return s.g < 0.0 || (s.g > s.r && s.g > 40.0 && s.g > s.b && !filters_); }

    // To a grey tool hue is nothing.
    double distanceOf(const HsvColor& c) const {
        const HsvColor& in = stamp_.in;
        int h = std::abs(static_cast<int>(c.h) - static_cast<int>(in.h));
        if (h > 180) h = 360 - h;
        const double weighted = 4.0 * in.s * h;
        const int ds = wholeSteps(100.0 * (c.s - in.s));
        const int dv = static_cast<int>(c.v / 2.0) - static_cast<int>(in.v / 2.0);
        return std::sqrt(weighted * weighted + ds * ds + dv * dv);
    }

    const Stamp& stamp_;
    const SearchedPixel& pixel_;
    const bool filters_;
};

}  // namespace

std::optional<FoundColor> searchColor(const Stamp& stamp, const SearchedPixel& pixel, double baseGreen) {
    const Rgb &o = pixel.color, &tool = stamp.color, &base = pixel.base;
    const bool filters = stamp.brush == kFilterColor;
    ColorSearch search(stamp, pixel);
    double dPercent = pixel.dPercent;
    if (stamp.in.v < 40.0 && !filters) {
        dPercent = search.dPercentColor = (o.g - tool.g) / (baseGreen - tool.g);
        search.found = tool;
    } else if (stamp.in.s < kGrey && filters) {
        const double p = clampTo((o.r - o.g) / (base.r - base.g), 0.0, 0.99);
        const Rgb s = search.unmixed(p);
        if (s.g < 0.0 || toHsv(s).s > 0.3) return {};
        search.found = search.likeTool(s);
        dPercent = search.dPercentColor = p;
    } else if (search.searchCoarsely()) {
        search.searchFinely();
    } else {
        if (filters) return {};
        search.found = tool;
    }
    dPercent = clampTo(dPercent, 0.0, 1.0);
    if (filters) {
        dPercent = std::min(dPercent, search.dPercentColor);
        if (stamp.settings.bCheckBoxValue && dPercent < 0.9) dPercent = 0.0;
    }
    return FoundColor{search.found, dPercent};
}

}  // namespace tavrin

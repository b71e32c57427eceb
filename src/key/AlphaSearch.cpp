#include "key/AlphaSearch.h"

#include <cstdlib>

namespace tavrin {

namespace {

// The subject's colour if the pixel holds `alpha` of it.
Rgb unmix(const Rgb& color, const Rgb& screen, double alpha) {
    const double rest = 1.0 - alpha;
    return {clampTo((color.r - rest * screen.r) / alpha, 0.0, 255.0),
            clampTo((color.g - rest * screen.g) / alpha, 0.0, 255.0),
            clampTo((color.b - rest * screen.b) / alpha, 0.0, 255.0)};
}

bool isNearGrey(const Rgb& f) {
    return std::abs(static_cast<int>(f.g - f.r)) + std::abs(static_cast<int>(f.g - f.b)) < 30;
}

// Whether the unmixed colour has stopped being greenish. A warm pixel has at least as much red as blue. The two
// kinds differ in their limits, and in which tests a blue screen turns off; that is how they are meant to be.
template <bool kWarm>
bool stopsAt(const Rgb& f, bool greyOnTheWay, const SearchConstants& c) {
    if (greyOnTheWay && f.r > f.g + 10.0 && f.r > f.b + 10.0) return true;
    const double lead = kWarm ? f.r : f.b, trail = kWarm ? f.b : f.r;
    if (f.g < 5.0 && lead < 5.0) return true;
    if (f.g < (f.r + f.b) / 2.0 + c.tint) return true;
    if (f.g < f.r - 40.0 + c.tint && f.b < f.r + 20.0 && (!kWarm || c.greenScreen)) return true;
    if (f.g < (kWarm ? f.b + 20.0 : f.b) + c.tint) return true;
    return c.greenScreen && lead > trail && f.g <= trail + (lead - trail) * 50.0 / c.tintSpan;
}

// Walks alpha down from `start` and returns where it stopped, or the first value that is not above 0. The steps
// add up their rounding on purpose: the tenth step of 0.1 stays a little above 0 and is still tested.
template <bool kWarm>
double walkDown(double start, double step, const Rgb& color, const Rgb& screen, const SearchConstants& c,
                bool& grey) {
    double alpha = start;
    for (; alpha > 0.0; alpha -= step) {
        const Rgb f = unmix(color, screen, alpha);
        grey = grey || (c.greenScreen && isNearGrey(f));
        if (stopsAt<kWarm>(f, grey, c)) break;
    }
    return alpha;
}

template <bool kWarm>
double search(const Rgb& color, const Rgb& screen, const SearchConstants& c) {
    bool grey = false;
    double alpha = walkDown<kWarm>(1.0, 0.1, color, screen, c, grey);
    if (alpha != 1.0) alpha = walkDown<kWarm>(alpha + 0.1, 0.01, color, screen, c, grey);
    return atLeast(alpha, 0.0);
}

}  // namespace

double searchAlpha(const Rgb& color, const Rgb& screen, const SearchConstants& constants) {
    return color.r >= color.b ? search<true>(color, screen, constants) : search<false>(color, screen, constants);
}

}  // namespace tavrin

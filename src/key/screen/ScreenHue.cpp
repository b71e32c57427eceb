#include "key/screen/ScreenHue.h"

#include "core/raster/ColorMath.h"

namespace tavrin {

namespace {

double atFull(int channel, int green) {
    return channel * 255.0 / green;
}

// Green leads a channel by 10 levels of the pixel as it is.
bool leadsFull(int green, int other) {
    return 255.0 > atFull(other, green) + 2550.0 / green;
}

}  // namespace

const FullBrightness& FullBrightness::tables() {
    static const FullBrightness tables;
    return tables;
}

FullBrightness::FullBrightness() {
    for (int green = 1; green < 256; ++green) {
        int& led = led_[static_cast<std::size_t>(green)];
        while (leadsFull(green, led))
            ++led;
        for (int least = 1; least < green; ++least) {
            const double saturation = (255.0 - atFull(least, green)) / 255.0;
            if (saturation > 0.2) {
                bins_[static_cast<std::size_t>(green)][static_cast<std::size_t>(least)] =
                    static_cast<std::uint8_t>(saturation * 200.0);
            }
        }
    }
}

int FullBrightness::wholeHue(const ScreenPixel& p) {
    const int span = p.span(), turn = 60 * (p.b - p.r + span);
    if (turn % span != 0) return 60 + turn / span;
    double h, s, v, delta;
    rgb_to_hsv(h, s, v, delta, atFull(p.r, p.g), 255.0, atFull(p.b, p.g));
    return static_cast<int>(h);
}

}  // namespace tavrin

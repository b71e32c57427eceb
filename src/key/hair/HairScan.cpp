#include "key/hair/HairScan.h"

#include <algorithm>
#include <cmath>

#include "core/BackgroundThread.h"
#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"

namespace tavrin {

namespace {

enum Kind : std::uint8_t { kOther, kHair, kGreyHair, kSkin };

constexpr int kBands = 20;
constexpr int kLeastPixels = 6;  // a line with fewer tells nothing
constexpr int kMaxColors = 5;
constexpr double kSameColor = 15.0;

Kind kindOf(int r, int g, int b, const Rgb& base) {
    const double dr = r - base.r, dg = g - base.g, db = b - base.b;
    if (!(std::sqrt(dr * dr + dg * dg + db * db) >= 30.0)) return kOther;
    const int mx = std::max({r, g, b}), spread = mx - std::min({r, g, b});
    const bool grey = spread == 0 || static_cast<double>(spread) / mx < 0.3;
    const bool warm = r >= g + 10 && g >= b + 5;
    if (!warm && r + g + b >= 60 && !grey) return kOther;
    // A grey with a green tint counts as pure grey.
    return grey && (r < g || g > b) ? kGreyHair : kHair;
}

}  // namespace

HairScan::HairScan(const std::uint8_t* foreground, const std::uint8_t* skin, int width, int height)
    : foreground_(foreground), skin_(skin), width_(width), height_(height) {}

bool HairScan::classify(const RunContext& context, const Rgb& base, bool blueLogic) {
    const ChannelRoles roles(blueLogic);
    kind_.resize(pixelBytes(width_, height_) / kPixelBytes);
    return runRows(context, height_, 16, [&](int y) {
        const std::size_t first = pixelOffset(width_, 0, y);
        for (int x = 0; x < width_; ++x) {
            const std::size_t at = first + static_cast<std::size_t>(x) * kPixelBytes;
            const std::uint8_t* p = foreground_ + at;
            kind_[at / kPixelBytes] = skin_[at] >= 128 ? kSkin : kindOf(p[0], p[roles.green], p[roles.blue], base);
        }
    });
}

// Adds the hair before the skin that ends the line to the bins and returns how much it was. Skin that comes before
// there is enough hair does not end a line, and is no hair itself.
int HairScan::countLine(const Line& line, bool blueLogic) {
    int counted = 0, end = 0;
    std::ptrdiff_t at = line.first;
    for (; end < line.length; ++end, at += line.step) {
        const std::uint8_t kind = kind_[static_cast<std::size_t>(at)];
        if (kind == kSkin && counted >= kLeastPixels) break;
        if (kind == kHair || kind == kGreyHair) ++counted;
    }
    if (end == line.length) return 0;

    const ChannelRoles roles(blueLogic);
    at = line.first;
    for (int i = 0; i < end; ++i, at += line.step) {
        const std::uint8_t kind = kind_[static_cast<std::size_t>(at)];
        if (kind != kHair && kind != kGreyHair) continue;
        const std::uint8_t* p = foreground_ + at * kPixelBytes;
        Bin& bin = bins_[p[0]];
        bin.red += p[0];
        bin.green += kind == kGreyHair ? p[0] : p[roles.green];
        bin.blue += kind == kGreyHair ? p[0] : p[roles.blue];
        ++bin.count;
    }
    return counted;
}

// Bands overlap by half. The scan ends with the first band after which it has found enough.
bool HairScan::scan(const RunContext& context, Direction direction, bool blueLogic) {
    const int band = height_ / 10, need = band / 2;
    std::int64_t total = 0;
    for (int k = 0; k < kBands && total <= need; ++k) {
        const int top = k * band / 2;
        const int rows = std::min(band, height_ - top);
        if (rows <= 0) break;
        if (direction == Direction::Down) bins_.fill(Bin());
        const int lines = direction == Direction::Down ? width_ : rows;
        for (int i = 0; i < lines; ++i) {
            GivingWay::ask();
            if (context.isSuperseded()) return false;
            const std::ptrdiff_t width = width_, row = (top + i) * width;
            const Line line = direction == Direction::Down    ? Line{top * width + i, width, rows}
                              : direction == Direction::Right ? Line{row, 1, width_}
                                                              : Line{row + width - 1, -1, width_};
            total += countLine(line, blueLogic);
        }
    }
    return true;
}

bool HairScan::run(const RunContext& context, const Rgb& base, bool blueLogic) {
    if (!classify(context, base, blueLogic)) return false;
    for (Direction direction : {Direction::Down, Direction::Right, Direction::Left}) {
        if (!scan(context, direction, blueLogic)) return false;
    }
    return true;
}

// From sums to means; a single pixel is no colour.
void HairScan::average() {
    for (Bin& bin : bins_) {
        if (bin.count < 2) {
            bin = Bin();
        } else {
            bin.red /= bin.count;
            bin.green /= bin.count;
            bin.blue /= bin.count;
        }
    }
}

// The most frequent colour that is not close to one in the list. A close one gives its colour to that one when it is
// lighter. Returns whether a colour was added.
bool HairScan::pickOne(HairColors& colors) {
    for (;;) {
        const auto best = std::max_element(bins_.begin(), bins_.end(),
                                           [](const Bin& a, const Bin& b) { return a.count < b.count; });
        if (best->count == 0) return false;
        const Bin bin = *best;
        *best = Bin();
        const auto store = [&](std::size_t i) {
            colors.iHairColorBinRed[i] = static_cast<std::int32_t>(bin.red);
            colors.iHairColorBinGreen[i] = static_cast<std::int32_t>(bin.green);
            colors.iHairColorBinBlue[i] = static_cast<std::int32_t>(bin.blue);
        };
        const std::size_t count = static_cast<std::size_t>(colors.iHairColorCount);
        std::size_t i = 0;
        for (; i < count; ++i) {
            const double r = static_cast<double>(bin.red) - colors.iHairColorBinRed[i];
            const double g = static_cast<double>(bin.green) - colors.iHairColorBinGreen[i];
            const double b = static_cast<double>(bin.blue) - colors.iHairColorBinBlue[i];
            if (std::sqrt(r * r + g * g + b * b) < kSameColor) break;
        }
        if (i == count) {
            store(i);
            colors.iHairColorCount = static_cast<std::int32_t>(count + 1);
            return true;
        }
        if (bin.red > colors.iHairColorBinRed[i]) store(i);
    }
}

void HairScan::pick(HairColors& colors) {
    average();
    colors.bFoundHair = true;
    colors.iHairColorCount = 0;
    for (int i = 0; i < kMaxColors; ++i) {
        if (!pickOne(colors) && i == 0) colors.bFoundHair = false;
    }
}

}  // namespace tavrin

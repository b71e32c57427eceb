#include "key/refine/screen/Strange.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"
#include "key/refine/grid/Areas.h"
#include "key/refine/screen/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr int kHalo = 4;                                 // columns beyond an area that its windows look at
constexpr float kStrange = 6.0f, kStrangeShare = 0.12f;  // levels, and of the screen's difference
constexpr int kSide = 3;                                 // cells of an area, at least

// The middle pixels of the cells.
class Middles {
  public:
    Middles(const Shot& shot, int size) : shot_(shot), roles_(shot.blue), size_(size) {}

    int columns() const { return shot_.width / size_; }
    int rows() const { return shot_.height / size_; }
    int place(int cell) const { return cell * size_ + size_ / 2; }
    int key(int c, int row) const { return shot_.keyRow(place(row))[place(c)]; }
    std::array<int, 3> color(int c, int row) const {
        const std::uint8_t* const p = shot_.pixels + pixelOffset(shot_.width, place(c), place(row));
        return {p[0], p[roles_.green], p[roles_.blue]};
    }

  private:
    const Shot& shot_;
    ChannelRoles roles_;
    int size_;
};

// The screen's mean of the other channels, for one of its own.
std::optional<std::array<float, 2>> meanHue(const Middles& middles, const Mask& screen) {
    std::array<std::int64_t, 3> sums{};
    for (int row = 0; row < middles.rows(); ++row) {
        for (int c = 0; c < middles.columns(); ++c) {
            if (!screen.at(middles.place(c), middles.place(row))) continue;
            const std::array<int, 3> color = middles.color(c, row);
            for (std::size_t i = 0; i < 3; ++i)
                sums[i] += color[i];
        }
    }
    if (sums[1] == 0) return std::nullopt;
    const auto share = [&](std::size_t i) { return static_cast<float>(sums[i]) / static_cast<float>(sums[1]); };
    return std::array<float, 2>{share(0), share(2)};
}

}  // namespace

float leastStrangeness(float difference) {
    return std::max(kStrange, kStrangeShare * difference);
}

Mask strangePixels(const RunContext& context, const Shot& shot, const Cells& plate, int size,
                   const StrangeLimits& limits, const Mask& wanted) {
    Mask strange(shot.width, shot.height);
    runAreas(context, wanted, [&](const Area& area) {
        const Strip strip = area.strip(shot, kHalo);
        ScreenRatio ratio(strip, plate, size);
        std::vector<float> light(static_cast<std::size_t>(strip.width)), off(light);
        std::vector<std::uint8_t> flags(light.size() + 8);
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            ratio.fill(y, light.data(), off.data());
            for (std::size_t x = 0; x < off.size(); ++x)
                flags[x] = (off[x] > limits.strangeness) | (light[x] < limits.light);
            strange.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
        }
    });
    return strange;
}

bool mayHoldCloth(const Shot& shot, float difference, const Mask& screen, int size, double share) {
    const Middles middles(shot, size);
    const auto hue = meanHue(middles, screen);
    if (!hue) return false;
    const float least = leastStrangeness(difference), lead = (1.0f - kNotNearScreen) * difference;
    const auto may = [&](int c, int row) {
        if (static_cast<float>(middles.key(c, row)) >= kKeyed * 255.0f) return false;
        const std::array<int, 3> color = middles.color(c, row);
        const auto r = static_cast<float>(color[0]), g = static_cast<float>(color[1]),
                   b = static_cast<float>(color[2]);
        return g - std::max(r, b) > lead &&
               std::max(std::abs(r - g * (*hue)[0]), std::abs(b - g * (*hue)[1])) > least;
    };
    // How many rows above have been so over three columns to the left, counted up to three.
    std::vector<int> down(static_cast<std::size_t>(middles.columns()));
    std::int64_t found = 0;
    for (int row = 0; row < middles.rows(); ++row) {
        int across = 0;
        for (int c = 0; c < middles.columns(); ++c) {
            across = may(c, row) ? across + 1 : 0;
            int& rows = down[static_cast<std::size_t>(c)];
            rows = across >= kSide ? std::min(rows + 1, kSide) : 0;
            found += rows == kSide;
        }
    }
    return static_cast<double>(found) > share * middles.columns() * middles.rows();
}

}  // namespace tavrin::refine

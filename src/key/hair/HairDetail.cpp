#include "key/hair/HairDetail.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"

namespace tavrin {

namespace {

constexpr int kReach = 4;
constexpr int kNeighbours = 80;
constexpr int kBlock = 64;  // pixels of a row that walk the spiral together
constexpr std::int16_t kNotDark = -1;

struct Offset {
    int x, y;
};

// The 9 by 9 block without its centre: one step along +y, one along +x, two back, two back, three, three ...
constexpr std::array<Offset, kNeighbours> makeSpiral() {
    std::array<Offset, kNeighbours> spiral{};
    int x = 0, y = 0, sign = 1, length = 1, at = 0;
    while (at < kNeighbours) {
        for (int i = 0; i < length && at < kNeighbours; ++i)
            spiral[at++] = {x, y += sign};
        for (int i = 0; i < length && at < kNeighbours; ++i)
            spiral[at++] = {x += sign, y};
        sign = -sign;
        ++length;
    }
    return spiral;
}
constexpr auto kSpiral = makeSpiral();
static_assert(kSpiral.back().x == -kReach && kSpiral.back().y == kReach);

/// Darkness of each pixel (kNotDark where it is not dark), with a margin so that no walk leaves the plane.
class DarknessPlane {
  public:
    DarknessPlane(int width, int height)
        : pitch_((width - 1) / kBlock * kBlock + kBlock + 2 * kReach),
          values_(static_cast<std::size_t>(pitch_) * static_cast<std::size_t>(height + 2 * kReach), kNotDark) {}

    std::int16_t* at(int x, int y) { return values_.data() + offset(x, y); }
    const std::int16_t* at(int x, int y) const { return values_.data() + offset(x, y); }

  private:
    std::ptrdiff_t offset(int x, int y) const {
        return static_cast<std::ptrdiff_t>(y + kReach) * pitch_ + x + kReach;
    }
    int pitch_;
    std::vector<std::int16_t> values_;
};

// Darkness by green level. A screen lies far below the limit, which only keeps absurd values in 16 bits.
std::array<std::int16_t, 256> darknessTable(double baseGreen) {
    std::array<std::int16_t, 256> table;
    for (int g = 0; g < 256; ++g)
        table[g] = static_cast<std::int16_t>(clampTo(baseGreen + (g - baseGreen) / -0.501, 0.0, 16000.0));
    return table;
}

bool fillPlane(const RunContext& context, const HairDetailInput& input, DarknessPlane& plane) {
    const ChannelRoles roles(input.blueLogic);
    const auto table = darknessTable(input.baseGreen);
    const double limit = input.baseGreen * 1.1;
    return runRows(context, input.height, 16, [&](int y) {
        const std::uint8_t* p = input.rgba + pixelOffset(input.width, 0, y);
        std::int16_t* out = plane.at(0, y);
        for (int x = 0; x < input.width; ++x, p += kPixelBytes) {
            const int r = p[0], g = p[roles.green], b = p[roles.blue];
            const bool dark = (g > r && g > b && limit > g) || r + g + b <= 119;
            out[x] = dark ? table[g] : kNotDark;
        }
    });
}

// The walk of kBlock neighbouring pixels at once. `previous` starts as the grey of each pixel; `total` sums up the
// steps in darkness. Free of branches, so that the compiler can take eight pixels at a time.
void walkSpiral(const DarknessPlane& plane, int x, int y, std::int16_t* __restrict previous,
                std::int16_t* __restrict total) {
    for (const Offset& offset : kSpiral) {
        const std::int16_t* current = plane.at(x + offset.x, y + offset.y);
        for (int i = 0; i < kBlock; ++i) {
            const std::int16_t now = current[i], before = previous[i];
            const std::int16_t difference = static_cast<std::int16_t>(now > before ? now - before : before - now);
            const std::int16_t capped = difference > 40 ? std::int16_t{40} : difference;
            const std::int16_t weighted = static_cast<std::int16_t>(difference > 10 ? capped + capped : capped);
            const std::int16_t step = difference > 5 ? weighted : std::int16_t{0};
            total[i] = static_cast<std::int16_t>(total[i] + (now >= 0 ? step : std::int16_t{0}));
            previous[i] = now >= 0 ? now : before;
        }
    }
}

int reachInside(int at, int size) {
    return std::min(at, kReach) + std::min(size - 1 - at, kReach) + 1;
}

void writeRow(const HairDetailInput& input, const DarknessPlane& plane, int y, std::uint8_t* out) {
    const std::uint8_t* p = input.rgba + pixelOffset(input.width, 0, y);
    const int rows = reachInside(y, input.height);
    alignas(64) std::array<std::int16_t, kBlock> previous{}, total;
    for (int first = 0; first < input.width; first += kBlock) {
        const int pixels = std::min(kBlock, input.width - first);
        for (int i = 0; i < pixels; ++i, p += kPixelBytes)
            previous[i] = static_cast<std::int16_t>(0.3 * (p[0] + p[1] + p[2]));
        total.fill(0);
        walkSpiral(plane, first, y, previous.data(), total.data());
        for (int i = 0; i < pixels; ++i, out += kPixelBytes) {
            const int neighbours = rows * reachInside(first + i, input.width) - 1;
            const int mean = neighbours >= 3 ? total[i] / neighbours : 0;
            out[0] = out[1] = out[2] = static_cast<std::uint8_t>(std::min(mean * 8, 255));
        }
    }
}

}  // namespace

bool writeHairDetail(const RunContext& context, const HairDetailInput& input, std::uint8_t* map) {
    DarknessPlane plane(input.width, input.height);
    if (!fillPlane(context, input, plane)) return false;
    return runRows(context, input.height, 4,
                   [&](int y) { writeRow(input, plane, y, map + pixelOffset(input.width, 0, y)); });
}

}  // namespace tavrin

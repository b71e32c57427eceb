#include <algorithm>
#include <cmath>
#include <deque>

#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"
#include "key/refine/screen/CellLook.h"
#include "key/refine/screen/Plate.h"

namespace tavrin::refine {

namespace {

constexpr double kDriftCell = 8.0;
constexpr int kSampleStep = 8;          // pixels, for the question whether there is anything to look for
constexpr double kLeastSamples = 0.01;  // of all samples
constexpr double kLeastDrift = 0.01;    // of all cells
constexpr float kLeastLead = 0.5f;      // of the screen's usual colour difference
constexpr float kMostStep = 3.0f;       // levels from one cell to the next
constexpr float kVariances = 2.0f, kVariance = 6.0f;  // of the screen's middle one, and levels squared
constexpr float kMoreRed = 0.04f;                     // than where the way began

// Green or blue, whichever is more, over red: red is in no screen.
bool leads(float r, float g, float b, float difference) {
    return std::max(g, b) - r > kLeastLead * difference;
}

// The share of red in a colour's light: with a veil or a shirt it grows.
float rednessOf(float r, float g, float b) {
    return r / std::max(std::max(g, b), 1.0f);
}

// Whether much that is no screen, nor near it, has a screen's colour.
bool mayDrift(const Shot& shot, const Mask& screen, float difference, int far) {
    const ChannelRoles roles(shot.blue);
    int found = 0, all = 0;
    for (int y = kSampleStep / 2; y < shot.height; y += kSampleStep) {
        for (int x = kSampleStep / 2; x < shot.width; x += kSampleStep, ++all) {
            const std::uint8_t* const p = shot.pixels + pixelOffset(shot.width, x, y);
            if (!leads(p[0], p[roles.green], p[roles.blue], difference)) continue;
            const int left = std::max(x - far, 0), right = std::min(x + far, shot.width);
            found += screen.isClear(y, left, right) && screen.isClear(std::max(y - far, 0), left, right) &&
                     screen.isClear(std::min(y + far, shot.height - 1), left, right);
        }
    }
    return found > kLeastSamples * all;
}

// The cells that one gets to from the screen's in small steps, one by one.
class Walk {
  public:
    Walk(const Cells& cells, const Cells& shares, float difference)
        : cells_(cells),
          reached_(cells.count()),
          redness_(cells.count()),
          mostVariance_(kVariances * screenVariance(cells, shares) + kVariance),
          difference_(difference) {
        for (std::size_t i = 0; i < cells.count(); ++i) {
            if (shares.row(0, 0)[i] <= kScreenCell) continue;
            reached_[i] = 1;
            next_.push_back(i);
            redness_[i] = rednessOf(at(i, 0), at(i, 1), at(i, 2));
        }
        while (!next_.empty())
            goOn();
    }

    bool isNew(std::size_t i) const { return reached_[i] == 2; }
    std::int64_t count() const { return std::count(reached_.begin(), reached_.end(), 2); }

  private:
    float at(std::size_t i, int plane) const { return cells_.row(0, plane)[i]; }

    void goOn() {
        const std::size_t from = next_.front(), columns = static_cast<std::size_t>(cells_.columns());
        next_.pop_front();
        if (from % columns > 0) look(from, from - 1);
        if (from % columns + 1 < columns) look(from, from + 1);
        if (from >= columns) look(from, from - columns);
        if (from + columns < reached_.size()) look(from, from + columns);
    }

    void look(std::size_t from, std::size_t to) {
        if (reached_[to] != 0 || at(to, 3) > mostVariance_ || !leads(at(to, 0), at(to, 1), at(to, 2), difference_))
            return;
        for (int plane = 0; plane < 3; ++plane) {
            if (std::abs(at(to, plane) - at(from, plane)) > kMostStep) return;
        }
        if (rednessOf(at(to, 0), at(to, 1), at(to, 2)) > redness_[from] + kMoreRed) return;
        reached_[to] = 2;
        redness_[to] = redness_[from];
        next_.push_back(to);
    }

    const Cells& cells_;
    std::vector<std::uint8_t> reached_;
    std::vector<float> redness_;  // of the screen's cell that the way began at
    std::deque<std::size_t> next_;
    float mostVariance_, difference_;
};

}  // namespace

void followDrift(const RunContext& context, const Shot& shot, float difference, Mask& screen) {
    const int size = shot.cell(kDriftCell);
    if (!mayDrift(shot, screen, difference, 2 * size)) return;
    const Cells cells = lookAtCells(context, shot, size);
    const Walk walk(cells, sharesOf(context, screen, size), difference);
    if (static_cast<double>(walk.count()) < kLeastDrift * static_cast<double>(cells.count())) return;
    screen |= maskOf(context, shot.width, shot.height, size,
                     [&](int c, int row) { return walk.isNew(static_cast<std::size_t>(row * cells.columns() + c)); });
}

}  // namespace tavrin::refine

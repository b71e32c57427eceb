#include "key/refine/screen/OuterScreen.h"

#include <algorithm>
#include <cmath>

#include "key/refine/screen/CellLook.h"

namespace tavrin::refine {

namespace {

constexpr float kStep = 3.0f, kNoiseStep = 0.5f;       // levels from one cell to the next, and deviations
constexpr float kVariances = 4.0f, kVariance = 12.0f;  // of the middle one, and levels squared
constexpr float kSameHue = 8.0f;                       // levels
constexpr int kRounds = 2;

// Areas of the screen's cells that one can walk through in small steps.
class Walk {
  public:
    explicit Walk(const OuterScreen& outer)
        : look_(outer.look),
          columns_(static_cast<std::size_t>(outer.look.columns())),
          step_(kStep + kNoiseStep * std::sqrt(outer.noise)),
          areas_(outer.look.count()) {
        const float most = kVariances * outer.noise + kVariance;
        for (std::size_t i = 0; i < areas_.size(); ++i)
            open_.push_back(outer.screen.row(0, 0)[i] > kScreenCell && look_.row(0, 3)[i] < most);
    }

    /// The cells of the largest area.
    std::vector<std::uint8_t> largest() {
        std::size_t most = 0;
        int count = 0, found = 0;
        for (std::size_t i = 0; i < areas_.size(); ++i) {
            if (!open_[i] || areas_[i] != 0) continue;
            const std::size_t cells = walkFrom(i, ++count);
            if (cells > most) found = count;
            most = std::max(most, cells);
        }
        std::vector<std::uint8_t> cells(areas_.size());
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = found != 0 && areas_[i] == found;
        return cells;
    }

  private:
    std::size_t walkFrom(std::size_t start, int area) {
        std::size_t cells = 0;
        std::vector<std::size_t> next{start};
        areas_[start] = area;
        const auto look = [&](std::size_t from, std::size_t to) {
            if (!open_[to] || areas_[to] != 0) return;
            for (int plane = 0; plane < 3; ++plane) {
                if (std::abs(look_.row(0, plane)[to] - look_.row(0, plane)[from]) >= step_) return;
            }
            areas_[to] = area;
            next.push_back(to);
        };
        for (; !next.empty(); ++cells) {
            const std::size_t at = next.back();
            next.pop_back();
            if (at % columns_ > 0) look(at, at - 1);
            if (at % columns_ + 1 < columns_) look(at, at + 1);
            if (at >= columns_) look(at, at - columns_);
            if (at + columns_ < areas_.size()) look(at, at + columns_);
        }
        return cells;
    }

    const Cells& look_;
    std::size_t columns_;
    float step_;
    std::vector<int> areas_;  // their numbers from 1
    std::vector<std::uint8_t> open_;
};

Cells paint(const RunContext& context, const Cells& look, const std::vector<std::uint8_t>& known) {
    Cells cells(look.columns(), look.rows(), 4);
    for (std::size_t i = 0; i < cells.count(); ++i) {
        const float weight = known[i] != 0 ? 1.0f : 0.0f;
        for (int plane = 0; plane < 3; ++plane)
            cells.row(0, plane)[i] = weight * look.row(0, plane)[i];
        cells.row(0, 3)[i] = weight;
    }
    return pushPull(context, cells);
}

}  // namespace

float OuterScreen::strangeness(std::size_t cell) const {
    const auto own = [&](int plane) { return look.row(0, plane)[cell]; };
    const auto plate = [&](int plane) { return behind.row(0, plane)[cell]; };
    const float light = own(1) / std::max(plate(1), 1.0f);
    return std::max(std::abs(own(0) - light * plate(0)), std::abs(own(2) - light * plate(2)));
}

OuterScreen findOuterScreen(const RunContext& context, const Shot& shot, const Mask& screen, int size) {
    OuterScreen outer;
    outer.size = size;
    outer.look = lookAtCells(context, shot, size);
    outer.screen = sharesOf(context, screen, size);
    outer.noise = screenVariance(outer.look, outer.screen);
    std::vector<std::uint8_t> known = Walk(outer).largest();
    for (int round = 0; round < kRounds; ++round) {
        outer.behind = paint(context, outer.look, known);
        if (round + 1 == kRounds) break;
        for (std::size_t i = 0; i < known.size(); ++i) {
            if (outer.screen.row(0, 0)[i] <= kScreenCell) continue;
            known[i] = known[i] != 0 || outer.strangeness(i) < kSameHue;
        }
    }
    return outer;
}

}  // namespace tavrin::refine

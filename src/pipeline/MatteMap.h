#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QRect>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// A keyed picture in little: every `step`th pixel of every `step`th row, as many as a judgement needs. What is
/// looked for is wider than that.
struct MatteMap {
    int width = 0, height = 0;  ///< samples
    int step = 1;               ///< pixels from one to the next
    int blueByte = 2;           ///< byte of the channel that is no screen's: the green screen's blue, and the reverse
    std::vector<std::uint8_t> pixels;   ///< of the portrait, with the key's alpha; RGBA, rows packed
    std::vector<std::uint8_t> preview;  ///< alpha of the preview at the same places; empty where there is none
    QRect source;                       ///< samples that show the portrait's own pixels

    int greenByte() const { return 3 - blueByte; }
    std::size_t count() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); }
    const std::uint8_t* at(int x, int y) const { return pixels.data() + pixelOffset(width, x, y); }
};

/// @return nothing without buffers of that resolution
std::optional<MatteMap> mapMatte(const SystemInfo& info, Resolution resolution);

/// Counts of marked samples in any rectangle, in one step each.
class Marks {
  public:
    Marks(int width, int height);
    void set(int x, int y) { add(x, y, 1); }
    /// Marks of more weight than one.
    void add(int x, int y, int weight) { sums_[at(x + 1, y + 1)] += weight; }
    /// To be called once, after the last `set`.
    void sum();
    int total() const { return sums_.back(); }
    /// Of the samples within `reach` of this one.
    int around(int x, int y, int reach) const;
    /// Middle of the square of `side` samples that holds the most, of several the first in rows.
    QPoint densest(int side) const;

  private:
    std::size_t at(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_ + 1) + static_cast<std::size_t>(x);
    }

    int width_, height_;
    std::vector<int> sums_;
};

}  // namespace tavrin

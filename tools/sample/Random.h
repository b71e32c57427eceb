#pragma once

#include <cstdint>

namespace tavrin::sample {

/// A small generator of its own, so that every machine paints the same picture.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// Even in [0, 1).
    double unit() {
        state_ += 0x9e3779b97f4a7c15U;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
        return static_cast<double>((z ^ (z >> 31)) >> 11) * 0x1.0p-53;
    }
    double between(double low, double high) { return low + (high - low) * unit(); }
    /// Near normal, mean 0 and deviation 1: the sum of twelve even numbers, which needs no library function.
    double normal() {
        double sum = -6.0;
        for (int i = 0; i < 12; ++i)
            sum += unit();
        return sum;
    }

  private:
    std::uint64_t state_;
};

}  // namespace tavrin::sample

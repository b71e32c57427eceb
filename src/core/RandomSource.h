#pragma once

#include <atomic>
#include <cstdint>

namespace tavrin {

/// The engine's random numbers: a counter put through a 64-bit mixing function (G. Steele, D. Lea, C. Flood, "Fast
/// splittable pseudorandom number generators", 2014). Small enough to make one for each row of a picture, so that a
/// result does not depend on which thread worked on which row.
class RandomSource {
  public:
    /// Equal seed and stream give equal numbers; streams of one seed (row numbers, say) are independent.
    explicit RandomSource(std::uint64_t seed, std::uint64_t stream = 0);

    /// 64 random bits.
    std::uint64_t next();
    /// A number from 0 to `n` - 1, each equally likely; 0 when `n` is 0.
    std::uint32_t below(std::uint32_t n);

  private:
    std::uint64_t state_;
};

/// Hands out the seeds of a state, one for each run of a stage: every call gives another, and every new state the
/// same sequence, so that what one state draws never shows in the picture of another.
class RandomSeeds {
  public:
    std::uint64_t next() { return upcoming_.fetch_add(1, std::memory_order_relaxed); }
    /// What the next call of `next` will give; unchanged as long as nobody has asked for one.
    std::uint64_t upcoming() const { return upcoming_.load(std::memory_order_relaxed); }
    void startAt(std::uint64_t seed) { upcoming_.store(seed, std::memory_order_relaxed); }

  private:
    std::atomic<std::uint64_t> upcoming_ = 1;
};

}  // namespace tavrin

#pragma once

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

/// A seed for one run of a stage: every call gives another, and every process the same sequence, unless
/// `seedRandom` has set where the sequence starts.
std::uint64_t nextRandomSeed();
void seedRandom(std::uint64_t seed);
/// What the next call of `nextRandomSeed` will give; unchanged as long as nobody has asked for one.
std::uint64_t upcomingRandomSeed();

}  // namespace tavrin

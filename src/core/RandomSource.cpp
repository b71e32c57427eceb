#include "core/RandomSource.h"

namespace tavrin {

namespace {

constexpr std::uint64_t kStep = 0x9e3779b97f4a7c15ULL;  // 2^64 over the golden ratio, odd

std::uint64_t mix(std::uint64_t bits) {
    bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9ULL;
    bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebULL;
    return bits ^ (bits >> 31);
}

}  // namespace

RandomSource::RandomSource(std::uint64_t seed, std::uint64_t stream) : state_(mix(mix(seed + kStep) + stream)) {}

std::uint64_t RandomSource::next() {
    state_ += kStep;
    return mix(state_);
}

std::uint32_t RandomSource::below(std::uint32_t n) {
    if (n == 0) return 0;
    // The high half of bits * n; low halves below 2^32 mod n would make some numbers likelier than others.
    const std::uint32_t reject = (0U - n) % n;
    for (;;) {
        const std::uint64_t product = (next() >> 32) * n;
        if (static_cast<std::uint32_t>(product) >= reject) return static_cast<std::uint32_t>(product >> 32);
    }
}

}  // namespace tavrin

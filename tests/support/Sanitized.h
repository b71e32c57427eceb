#pragma once

namespace tavrin::test {

/// The programs run under a checker, which takes terabytes of addresses and many times the time. What measures
/// either, or has to hit a moment, is tested without. What tries many values tries that many times fewer: the
/// checkers look for other faults than wrong values.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
inline constexpr int kTimesFewer = 23;
#elif defined(__SANITIZE_THREAD__)
inline constexpr bool kSanitized = true;
inline constexpr int kTimesFewer = 47;
#else
inline constexpr bool kSanitized = false;
inline constexpr int kTimesFewer = 1;
#endif

}  // namespace tavrin::test

#pragma once

namespace tavrin::test {

/// The programs run under a checker, which takes terabytes of addresses and many times the time. What measures
/// either, or has to hit a moment, is tested without.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

}  // namespace tavrin::test

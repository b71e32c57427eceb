#pragma once

namespace tavrin {

/// The two sizes at which a picture is made. Operations of the system take them as a number; each tells which number
/// it looks for, and turns it into one of these as it begins.
enum class Resolution { preview = 0, full = 1 };

constexpr Resolution fullIf(bool isFull) {
    return isFull ? Resolution::full : Resolution::preview;
}
/// The number that every operation of the system understands: 0 preview, 1 full.
constexpr int numberOf(Resolution resolution) {
    return static_cast<int>(resolution);
}

}  // namespace tavrin

#pragma once

#include <cstdint>

namespace tavrin {

/// What stands behind the subject of a portrait.
enum class ScreenKind {
    none,     ///< no green or blue screen
    unclear,  ///< much of one hue, which may be a screen or a meadow or the sky
    green,
    blue
};

/// What a portrait's screen looks like. Levels are those of the screen's own channel, 0 to 255, over its pixels along
/// the picture's upper and side edges, where the subject is not.
struct ScreenLook {
    ScreenKind kind = ScreenKind::none;
    double level = 0.0;      ///< middle level (median)
    double spread = 0.0;     ///< how far the levels lie apart (10 to 90 percent), as a part of the middle level
    double washedOut = 0.0;  ///< share that is at its brightest and has lost half of its colour

    bool isScreen() const { return kind == ScreenKind::green || kind == ScreenKind::blue; }
};

/// Judges a portrait (RGBA, rows packed) before anything is keyed, by some 40,000 of its pixels. The same on every
/// machine. A size below 1 has no screen.
ScreenLook lookAtScreen(const std::uint8_t* pixels, int width, int height);

}  // namespace tavrin

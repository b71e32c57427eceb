#pragma once

#include <cstdint>

#include "key/FinishConstants.h"
#include "key/KeyDecision.h"

namespace tavrin {

// The key's steps for a pixel by itself: the same code that works off whole rows, with a single lane.

/// A pixel after the key has decided on it. Colours in roles.
struct KeyedPixel {
    Rgb screen;                   ///< screen colour here, scaled and white balanced
    Rgb color;                    ///< recovered colour of the subject; may exceed 255
    double alpha = 0.0;           ///< 0 to 1
    double largest = 0.0;         ///< largest channel of the white balanced pixel
    double lift = 0.0;            ///< how far a pixel is from dark and grey
    bool hardBackground = false;  ///< so near the screen colour that nothing may bring it back
};

/// Decides on pixel (x, y) with the bytes `foreground` (red, green, blue, alpha).
KeyedPixel decidePixel(const KeyConstants& key, const std::uint8_t* foreground, int x, int y);

/// Takes a pixel as a mix of an unknown subject colour and the screen, and finds the largest alpha at which the
/// unmixed colour is no longer greenish: down from 1 in tenths, then again in hundredths from the tenth before.
/// Both colours in roles, each channel at least 1.
/// @return 0 to 1; 0 where the colour is greenish at every alpha
double searchAlpha(const Rgb& color, const Rgb& screen, const SearchConstants& constants);

/// When the foreground is shown as it is, the first bright grey pixel turns the unmixing on for itself and all
/// pixels after it in scan order. Finds it in a row of pixels.
/// @return its column, or the width when there is none
int findBrightGrey(const KeyConstants& key, const std::uint8_t* row);

/// The subject's colour (in roles, after its tone) after limits, white adjustment, colour mode or flat silhouette,
/// and deltas: each channel 0 to 255, in roles.
Rgb finishForeground(const FinishConstants& finish, const Rgb& toned);

/// The background's colour from its bytes, after deltas and colour mode but without tone, in roles.
Rgb finishBackground(const FinishConstants& finish, const std::uint8_t* bytes);

/// Lays the subject over the background and applies light and edge lift. All in roles; `gain` is the light map's
/// value.
Rgb blendPixel(const FinishConstants& finish, const Rgb& foreground, const Rgb& background, double alpha,
               std::int32_t gain);

}  // namespace tavrin

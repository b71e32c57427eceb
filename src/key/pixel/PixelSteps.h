#pragma once

#include <cstdint>

#include "key/pixel/FinishConstants.h"
#include "key/pixel/KeyDecision.h"

namespace tavrin {

// The key's steps for a pixel by itself: the same code that works off whole rows, with a single lane. Colours in
// roles unless told otherwise.

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

// What the key at one pixel (`SpillKey`) puts together in its own way.

/// The working state of a decision on one pixel.
struct Decision {
    double alpha = 0.0;  ///< share of the subject
    double mix = 1.0;    ///< share of the subject for recovering its colour
    Rgb display;         ///< colour when nothing is unmixed
    Rgb source;          ///< colour to unmix
};

/// The foreground's colour as the key sees it, with `shiftU` in place of the key's: each channel 1 to 255.
Rgb balanceForeground(const KeyConstants& key, const Rgb& raw, double shiftU);
/// The screen colour at (x, y), scaled and white balanced, each channel at least 1.
Rgb screenAt(const KeyConstants& key, int x, int y);
bool inMargin(const KeyConstants& key, int x, int y);
/// How far the colour lies off the line from black through the screen colour, seen from three points of it.
double offScreenLine(const KeyConstants& key, const Rgb& color, const Rgb& screen);
/// So red or blue that no screen can have a share in it.
bool isPlainlyOther(const KeyConstants& key, const Rgb& color);
/// The share of the subject in a mixed pixel: what the search finds, raised by the bounds.
double mixedAlpha(const KeyConstants& key, const Rgb& color, const Rgb& screen);
/// Lifts all channels so that unmixing cannot make red or blue negative.
Rgb liftedSource(const KeyConstants& key, const Rgb& color, const Rgb& screen, double alpha);
/// Lowers the mix of a bright grey, so that a green sheen leaves it, where the settings ask for that.
void unmixBrightGrey(const KeyConstants& key, Decision& decision);
/// The subject's own colour: the screen's share taken out where the pixel is mixed, and held to a brightness. Black
/// where the mix is 0.
Rgb recoverColor(const KeyConstants& key, const Decision& decision, const Rgb& screen, const Rgb& raw);
/// Turns a colour that is still green away from it, towards its second channel, without darkening it.
Rgb removeGreenCast(const KeyConstants& key, const Rgb& color);
/// Steepens the edge about its middle.
double edgeAlpha(const KeyConstants& key, double alpha);

/// Pulls a near-white colour to neutral by two rules on one measure: a wide, gentle one for pixels whose green is
/// level with the others, and a near one that takes an almost neutral colour all the way to grey.
Rgb adjustWhite(const WhiteAdjust& white, const Rgb& color, bool greenIsLevel);
/// Holds the hue of a colour that is too bright, in the order green, red, blue, and each channel at 0 from below.
Rgb limitBlend(const Rgb& color);

}  // namespace tavrin

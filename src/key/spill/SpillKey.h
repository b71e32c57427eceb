#pragma once

#include <cstdint>
#include <vector>

#include <QImage>

#include "key/pixel/CombineParams.h"
#include "key/pixel/PixelSteps.h"
#include "key/spill/ColorAdjust.h"
#include "key/spill/DarkHair.h"

namespace tavrin {

/// A pixel as the airbrush editor keeps it.
struct QLXPixel {
    std::uint8_t red = 0, green = 0, blue = 0, alpha = 0, percent = 0;
};

/// The two layers at a position after their panels' adjustments, alpha 255.
struct AdjustedColors {
    QLXPixel oFAdjColor, oBAdjColor;
};

/// The pictures that a key at one pixel reads: RGBA, rows packed, both of one size. Not owned; they may change while
/// the key lives, but not move.
struct SpillLayers {
    const std::uint8_t* foreground = nullptr;
    const std::uint8_t* background = nullptr;
    int width = 0, height = 0;

    static SpillLayers of(const SystemInfo& info, Resolution resolution);
};

/// What the key makes of a pixel.
struct SpilledPixel {
    Rgb color;      ///< the subject's own colour, each channel 0 to 255
    double amount;  ///< share of the subject, 0 to 1; but 255 inside the margins while the foreground is shown as is
};

/// The very first call after the settings were frozen sees the colour without its second white balance shift.
enum class SpillCall { kFirst, kLater };

/// The key at one pixel, with the settings frozen when it is made. The airbrush editor repairs pixels with it, and
/// effects make one for themselves. It decides as `Combine` does, with differences: the screen colour always comes
/// from the grid, dark busy texture (hair) is kept, and some sliders have fixed values; the layer's adjustments
/// belong to it; a bright grey that is unmixed leaves the pixels after it alone, also where the foreground is shown
/// as it is.
///
/// All but `Spill` is const and may be called from many rows at once.
class SpillKey {
  public:
    SpillKey(const SystemInfo& info, const SpillLayers& layers);

    /// False where there are no pictures: nothing else may be called then.
    bool isReady() const { return ready_; }

    /// The colours that come out are those of a silhouette, in real channels whatever went in.
    bool showsSilhouette() const { return silhouette_; }

    /// The adjusted colours at (x, y), which must lie inside the picture.
    AdjustedColors computeColorAdj(int x, int y) const {
        return {adjustedForeground(x, y), adjustedBackground(x, y)};
    }
    QLXPixel adjustedForeground(int x, int y) const;
    QLXPixel adjustedBackground(int x, int y) const;

    /// Keys the colour (r, g, b), 0 to 255, as the foreground's pixel at (x, y). The first call of an object is
    /// the one that sees `dUMult` at 0.
    SpilledPixel Spill(int x, int y, double r, double g, double b);

    /// As `Spill` for rows in parallel. Whoever calls it says which call is the first one in scan order, so that the
    /// result is that of the rows one after another.
    SpilledPixel spillAt(int x, int y, const Rgb& color, SpillCall call = SpillCall::kLater) const;
    /// The amount alone.
    double amountAt(int x, int y, const Rgb& color, SpillCall call = SpillCall::kLater) const;

    /// What the decision rests on.
    const KeyConstants& constants() const { return key_; }
    const DarkHair& hair() const { return hair_; }

    const std::uint8_t* const pFOrg;
    const std::uint8_t* const pBOrg;
    const int iWidth, iHeight;

  private:
    Decision decide(int x, int y, const Rgb& color, const Rgb& screen, SpillCall call) const;
    double finalAmount(int x, int y, double amount) const;
    Rgb outputColor(int x, int y, const Rgb& color) const;
    Rgb silhouetteAt(int x, int y) const;

    KeyConstants key_;  // the sliders of the key; white balance as of the second call
    DarkHair hair_;
    double dUMult_ = 0.0;
    bool bShowColors_;
    ColorAdjust foreground_, background_;
    ToneConstants keyedTone_;
    WhiteAdjust white_;
    Rgb backgroundDelta_, foregroundDelta_;
    int iForegroundOutputMode_, iBackgroundOutputMode_;
    bool silhouette_;
    Rgb silhouetteColor_;
    QImage texture_;
    double dLightingScale_ = 1.0, textureX_ = 0.0, textureY_ = 0.0;
    bool ready_ = false;
};

}  // namespace tavrin

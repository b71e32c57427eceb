#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/state/SystemInfo.h"
#include "key/pixel/ColorDistance.h"

namespace tavrin {

/// What the correction takes from the key's own per-run numbers.
struct HairNumbers {
    int width, height;  ///< size of the run
    double removeGain;  ///< steepens the corrected alpha about its middle
    double transShift;  ///< shifts it
    double darkChroma;  ///< lift below which a pixel may be a dark neutral
};

/// The mixes of the hair colours with the screen that the search compares a pixel with. Where the search starts
/// depends on how far red stands from green, so there is one list of mixes for each difference.
class HairMixes {
  public:
    static constexpr int kMaxSteps = 31;
    /// Hue in degrees, saturation in percent and value of a mix, truncated.
    struct Mix {
        std::int16_t hue, sat, value;
    };
    struct Search {
        int steps = 0;                    ///< shares to try
        std::array<double, kMaxSteps> t;  ///< share of the screen in each
        std::vector<Mix> mixes;           ///< of every hair colour in turn, `steps` each
    };

    HairMixes() = default;
    HairMixes(const std::vector<Rgb>& hairColors, const Rgb& base);

    /// The search for a pixel whose red stands `redMinusGreen` (-255 to 4) above green, or that starts at the
    /// least share.
    const Search& search(int redMinusGreen, bool fromLeast) const {
        return fromLeast || searches_.size() == 1 ? searches_[0] : searches_[redMinusGreen + 256];
    }

  private:
    std::vector<Search> searches_;  // 0: from the least share; then by difference, -255 first
};

/// Per-run constants of `correctHair`.
struct HairParams {
    HairParams(const SystemInfo& info, const HairNumbers& numbers);

    bool active = false;  ///< hair detection is on, there are hair colours, and the foreground is keyed at all
    bool blueLogic = false, shadowRemoval = false;
    Rgb base{};  ///< colour of the screen, in roles, as stored
    HsvColor baseHsv{};
    HairNumbers run{};
    const std::uint8_t* detailMap = nullptr;  ///< preview size; null counts as no detail anywhere
    int detailWidth = 0, detailHeight = 0;
    int hairColors = 0;  ///< colours in the list
    HairMixes mixes;
};

/// A pixel as the key's decision left it, in roles; `correctHair` replaces the colour and the alpha.
struct HairPixel {
    int x, y;          ///< position in the run
    int r, g, b;       ///< bytes of the foreground, 0 to 255
    double max, lift;  ///< the decision's largest channel, and its lift (for a dark neutral pixel its chroma alone)
    Rgb color;         ///< in and out: the key's output colour
    double alpha;      ///< in and out: 0 to 1
};

/// Explains the pixel as a mix of the screen and a hair colour, and clears what is screen or its shadow. Not to be
/// called for hard background, nor when `params.active` is false.
void correctHair(const HairParams& params, HairPixel& pixel);

}  // namespace tavrin

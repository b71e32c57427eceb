#include "batch/GalleryPresets.h"

#include <iterator>

#include "core/state/ChangeFlags.h"

namespace tavrin {

namespace {

using Slider = Field<std::int32_t> BitmapInfo::*;

/// A slider of the combined record and what it becomes.
struct Move {
    Slider slider;
    std::int32_t value;
};

constexpr Slider kDark = &BitmapInfo::sliderRestoredDarkAreas, kTint = &BitmapInfo::sliderGreenTintAreas,
                 kWhite = &BitmapInfo::sliderWhiteBalance, kBase = &BitmapInfo::sliderAdjustBaseGreen,
                 kThrough = &BitmapInfo::sliderTransparentcyAdjustment;

/// What an item does beyond the common ground.
struct Preset {
    std::vector<Move> moves;
    bool blueLogic = false, bright = false;
    bool newBase = false;  ///< the screen's colour is looked for again
};

const std::vector<Move> kCommon = {{kDark, 65}, {kTint, 100}, {kWhite, 100}, {kBase, 100}};

const Preset kPresets[] = {
    {{{kDark, 10}, {kBase, 90}}},
    {{{kDark, 30}}},
    {{{kDark, 130}, {kBase, 105}}},
    {{{kTint, 80}}},
    {{{kTint, 80}, {kDark, 30}}},
    {{{kTint, 60}}},
    {{{kTint, 110}}},
    {{{kBase, 120}, {kDark, 25}}},
    {{{kBase, 120}, {kThrough, 120}, {kDark, 25}}},
    {{{kWhite, 110}}},
    {{}, true, false, true},
    {{}, false, true, true},
};
static_assert(std::size(kPresets) == kGalleryPresets);

}  // namespace

const std::vector<std::string>& galleryPresetSettings() {
    static const std::vector<std::string> settings = {"combined.sliderRestoredDarkAreas",
                                                      "combined.sliderGreenTintAreas",
                                                      "combined.sliderWhiteBalance",
                                                      "combined.sliderAdjustBaseGreen",
                                                      "combined.sliderTransparentcyAdjustment",
                                                      "bUseBlueLogic",
                                                      "bShowBright"};
    return settings;
}

void SelectAdjustGallerSettings(SystemInfo& info, int item) {
    static const Preset none;
    const bool isPreset = item >= 0 && item < kGalleryPresets;
    const Preset& preset = isPreset ? kPresets[item] : none;
    BitmapInfo& combined = *info.pCombinedBitmapInfo;
    for (const std::vector<Move>* moves : {&kCommon, &preset.moves}) {
        for (const Move& move : *moves)
            combined.*move.slider = move.value;
    }
    info.bShowBright = preset.bright;
    // As from the switch itself, so that the picture of the gallery is the one that its choice gives.
    if (info.bUseBlueLogic.exchange(preset.blueLogic) != preset.blueLogic)
        raiseFlags(info, redoOf(info, "bUseBlueLogic"));
    if (preset.newBase) combined.bHaveBaseGreen = false;
}

}  // namespace tavrin

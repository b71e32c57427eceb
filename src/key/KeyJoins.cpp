#include "key/KeyJoins.h"

namespace tavrin {

namespace {

// The mean of the hair colours; black when hair is not looked for or none was found.
Rgb meanHairColor(const SystemInfo& info) {
    const int count = std::min<int>(info.iHairColorCount, static_cast<int>(info.iHairColorBinRed.size()));
    if (!info.bAdvancedHairDetectionON || count < 1) return {0.0, 0.0, 0.0};
    Rgb sum{0.0, 0.0, 0.0};
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        sum.r += info.iHairColorBinRed[i];
        sum.g += info.iHairColorBinGreen[i];
        sum.b += info.iHairColorBinBlue[i];
    }
    return {sum.r / count, sum.g / count, sum.b / count};
}

HairNumbers hairNumbers(const CombineParams& params) {
    return {params.size.width, params.size.height, params.key.removeGain, params.key.transShift,
            params.key.darkChroma};
}

}  // namespace

KeyJoins::KeyJoins(const SystemInfo& info, const CombineParams& params, bool hiRes)
    : width_(params.size.width), hair_(info, hairNumbers(params)), mode_(info.iGreenProtectMode) {
    if (mode_ == 0) return;
    guarded_ = guard_.build(info, params.foreground, params.size.width, params.size.height, hiRes);
    superseded_ = !guarded_ && hiRes && info.isStale();
    removeInside_ = info.bRemoveInsideBaseGreen;
    showGuard_ = guarded_ && info.bShowGreenProtection;
    caption_ = mode_ == 2 ? guard_.shirtColor() : meanHairColor(info);
}

void KeyJoins::overrule(KeyedPixel& pixel, int x, int y) const {
    if (hair_.active && !pixel.hardBackground) {
        HairPixel hair{x,
                       y,
                       static_cast<int>(pixel.raw.r),
                       static_cast<int>(pixel.raw.g),
                       static_cast<int>(pixel.raw.b),
                       pixel.largest,
                       pixel.lift,
                       pixel.color,
                       pixel.alpha};
        correctHair(hair_, hair);
        pixel.color = hair.color;
        pixel.alpha = hair.alpha;
    }
    if (guarded_ && guardMakesOpaque(guardByte(x, y), mode_, removeInside_)) {
        pixel.color = pixel.raw;
        pixel.alpha = 1.0;
    }
}

void KeyJoins::showGuard(Rgb& foreground, double& alpha, int x, int y) const {
    foreground = guardPicture(guardByte(x, y), y, caption_);
    alpha = 1.0;
}

}  // namespace tavrin

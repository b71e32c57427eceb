#include "key/KeyOverrides.h"

#include "key/pixel/ChannelRoles.h"

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

KeyOverrides::KeyOverrides(const SystemInfo& info, const CombineParams& params, Resolution resolution)
    : width_(params.size.width),
      blueLogic_(params.key.blueLogic),
      hair_(info, hairNumbers(params)),
      mode_(info.iGreenProtectMode) {
    if (mode_ == 0) return;
    guarded_ = guard_.build(info, {params.foreground, params.size.width, params.size.height}, resolution);
    superseded_ = !guarded_ && resolution == Resolution::full && info.isStale();
    removeInside_ = info.bRemoveInsideBaseGreen;
    showGuard_ = guarded_ && info.bShowGreenProtection;
    caption_ = mode_ == 2 ? guard_.shirtColor() : meanHairColor(info);
}

void KeyOverrides::correctHair(KeyedRun& run) const {
    if (!hair_.active) return;
    for (int i = 0; i < run.count; ++i) {
        if (run.hardBackground[i] == 0.0) correctHairAt(run, i);
    }
}

void KeyOverrides::guard(KeyedRun& run) const {
    if (!guarded_) return;
    for (int i = 0; i < run.count; ++i) {
        if (guardMakesOpaque(guardByte(run.x + i, run.y), mode_, removeInside_)) takeRaw(run, i);
    }
}

void KeyOverrides::correctHairAt(KeyedRun& run, int i) const {
    const std::uint8_t* raw = run.foregroundBytes(i);
    const ChannelRoles roles(blueLogic_);
    HairPixel hair{run.x + i,       run.y,          raw[0],      raw[roles.green],
                   raw[roles.blue], run.largest[i], run.lift[i], {run.r[i], run.g[i], run.b[i]},
                   run.alpha[i]};
    tavrin::correctHair(hair_, hair);
    run.r[i] = hair.color.r;
    run.g[i] = hair.color.g;
    run.b[i] = hair.color.b;
    run.alpha[i] = hair.alpha;
}

void KeyOverrides::takeRaw(KeyedRun& run, int i) const {
    const std::uint8_t* raw = run.foregroundBytes(i);
    const ChannelRoles roles(blueLogic_);
    run.r[i] = raw[0];
    run.g[i] = raw[roles.green];
    run.b[i] = raw[roles.blue];
    run.alpha[i] = 1.0;
}

void KeyOverrides::showGuard(KeyedRun& run, bool alphaOnly) const {
    if (!showGuard_) return;
    for (int i = 0; i < run.count; ++i) {
        run.alpha[i] = 1.0;
        if (alphaOnly) continue;
        const Rgb c = guardPicture(guardByte(run.x + i, run.y), run.y, caption_);
        run.r[i] = c.r;
        run.g[i] = c.g;
        run.b[i] = c.b;
    }
}

}  // namespace tavrin

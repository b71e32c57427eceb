#include "pipeline/PixelStory.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "key/CombineRow.h"
#include "key/pixel/ChannelRoles.h"
#include "key/pixel/PixelSteps.h"

namespace tavrin {

namespace {

/// By how much the screen's channel leads the others, which is what spill looks like.
double lead(const Rgb& roles) {
    return std::max(0.0, roles.g - std::max(roles.r, roles.b));
}

KeyedRun runOf(const CombineParams& params, int x, int y) {
    KeyedRun run;
    run.x = x;
    run.y = y;
    run.count = 1;
    const std::size_t at = pixelOffset(params.size.width, x, y);
    std::memcpy(run.foreground, params.foreground + at, kPixelBytes);
    std::memcpy(run.background, params.background + at, kPixelBytes);
    return run;
}

}  // namespace

PixelProbe::PixelProbe(const SystemInfo& info)
    : picture_(info.iNewThreadCount),
      params_(makeCombineParams(info, Resolution::full)),
      overrides_(info, params_, Resolution::full),
      screenView_(info.pCombinedBitmapInfo->bShowSelectedAreas) {
    refined_ = refinesKey(info) && !plainKeyStands();
}

bool PixelProbe::covers(int x, int y) const {
    return params_.foreground && params_.background && params_.combined && x >= 0 && y >= 0 &&
           x < params_.size.width && y < params_.size.height;
}

Rgb PixelProbe::inRoles(const std::uint8_t* bytes) const {
    const ChannelRoles roles(params_.key.blueLogic);
    return {double(bytes[0]), double(bytes[roles.green]), double(bytes[roles.blue])};
}

Rgb PixelProbe::inChannels(const Rgb& roles) const {
    return params_.key.blueLogic ? Rgb{roles.r, roles.b, roles.g} : roles;
}

/// The refined key leaves a picture with too little to go by as the plain key made it.
bool PixelProbe::plainKeyStands() const {
    if (!covers(0, 0)) return true;
    std::vector<std::uint8_t> plain(static_cast<std::size_t>(params_.size.width));
    for (int y = 0; y < params_.size.height; ++y) {
        keyAlphaRow(params_, overrides_, y, plain.data());
        for (int x = 0; x < params_.size.width; ++x) {
            const std::uint8_t kept = params_.background[pixelOffset(params_.size.width, x, y) + 3];
            if (kept == plain[static_cast<std::size_t>(x)]) continue;
            KeyedRun run = runOf(params_, x, y);
            run.alpha[0] = -1.0;
            overrides_.guard(run);
            if (run.alpha[0] < 0.0) return false;
        }
    }
    return true;
}

PixelStory PixelProbe::tell(int x, int y) const {
    PixelStory story;
    story.x = x;
    story.y = y;
    const std::size_t at = pixelOffset(params_.size.width, x, y);
    std::memcpy(story.source.data(), params_.foreground + at, 4);
    std::memcpy(story.background.data(), params_.background + at, 3);
    std::memcpy(story.result.data(), params_.combined + at, 4);
    story.alpha = params_.background[at + 3];

    KeyedRun run = runOf(params_, x, y);
    decide(run, story);
    story.own = inChannels({run.r[0], run.g[0], run.b[0]});
    if (refined_) workBack(story);
    run.alpha[0] = -1.0;
    overrides_.guard(run);
    story.guarded = run.alpha[0] >= 0.0;
    story.guardByte = overrides_.guardAt(x, y);
    if (story.guarded) story.own = inChannels({run.r[0], run.g[0], run.b[0]});
    const Rgb own = inChannels(story.own);  // there and back is one exchange
    if (story.alpha > 0)
        story.spillTaken = static_cast<int>(std::max(0.0, lead(inRoles(story.source.data())) - lead(own)));
    return story;
}

void PixelProbe::decide(KeyedRun& run, PixelStory& story) const {
    measure(run, story);
    const KeyedPixel keyed = decidePixel(params_.key, run.foregroundBytes(0), run.x, run.y);
    run.r[0] = keyed.color.r;
    run.g[0] = keyed.color.g;
    run.b[0] = keyed.color.b;
    run.alpha[0] = keyed.alpha;
    run.largest[0] = keyed.largest;
    run.lift[0] = keyed.lift;
    run.hardBackground[0] = keyed.hardBackground ? 1.0 : 0.0;
    overrides_.correctHair(run);
    if (!refined_) story.keyAlpha = run.alpha[0];
    story.hairCorrected = !refined_ && (run.alpha[0] != keyed.alpha || run.r[0] != keyed.color.r ||
                                        run.g[0] != keyed.color.g || run.b[0] != keyed.color.b);
}

void PixelProbe::measure(KeyedRun& run, PixelStory& story) const {
    const KeyConstants& key = params_.key;
    Rgb raw = inRoles(run.foregroundBytes(0));
    raw.g = std::max(raw.g, 1.0);
    const Rgb f = balanceForeground(key, raw, key.whiteBalanceU), screen = screenAt(key, run.x, run.y);
    const double chroma = std::sqrt((f.r - f.g) * (f.r - f.g) + (f.g - f.b) * (f.g - f.b));
    story.seen = inChannels(f);
    story.screen = inChannels(screen);
    story.grey = {chroma, key.darkChroma};
    story.dark = {largestOf(f), screen.g - screen.r};
    story.line = {offScreenLine(key, f, screen), kScreenLine};
    story.light = {chroma + f.g * 0.2, key.darkLimit};
    story.nearest = {distance(f, screen), kScreenNear};
    story.reason = reasonOf(story, f);
}

/// The tests in their order; the first that applies decided.
KeyReason PixelProbe::reasonOf(const PixelStory& story, const Rgb& seen) const {
    const auto below = [](const KeyMeasure& measure) { return measure.value < measure.limit; };
    if (inMargin(params_.key, story.x, story.y)) return KeyReason::margin;
    if (overrides_.showsGuard()) return KeyReason::guardView;
    if (screenView_) return KeyReason::screenView;
    if (params_.key.showOrgImage) return KeyReason::noKey;
    if (refined_) return KeyReason::refined;
    if (below(story.grey) && below(story.dark)) return KeyReason::darkNeutral;
    if (below(story.line) && story.light.value > story.light.limit) return KeyReason::screenLine;
    if (below(story.nearest)) return KeyReason::screenNear;
    if (!params_.key.blueLogic && isPlainlyOther(params_.key, seen)) return KeyReason::otherColor;
    return KeyReason::mixed;
}

/// What the subject's share of the result must have been. Tone and effects of the portrait are in it.
void PixelProbe::workBack(PixelStory& story) const {
    story.ownWorkedBack = true;
    if (story.alpha == 0) return void(story.own = {});
    const double alpha = story.alpha / 255.0;
    const auto channel = [&](std::size_t i) {
        const double behind = params_.finish.transparent ? story.result[i] : story.background[i];
        return clampTo((story.result[i] - (1.0 - alpha) * behind) / alpha, 0.0, 255.0);
    };
    story.own = {channel(0), channel(1), channel(2)};
}

}  // namespace tavrin

#include "key/pixel/ToneChain.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/state/BitmapInfo.h"
#include "key/pixel/ToneLanes-inl.h"

namespace tavrin {

namespace {

// One value at a time: the same code that works off whole rows, with a single lane.
namespace lanes = HWY_NAMESPACE;
namespace hn = hwy::HWY_NAMESPACE;
using One = lanes::OneLane;
using Tone = lanes::ToneLanes<One>;
using Colors = lanes::RgbLanes<One>;

const ToneConstants kNoTone;

Colors spread(const Rgb& c) {
    return lanes::setLanes(One(), c);
}

Rgb gather(const Colors& c) {
    return {hn::GetLane(c.r), hn::GetLane(c.g), hn::GetLane(c.b)};
}

}  // namespace

double sumOfEnds(const Rgb& c) {
    return std::max({c.r, c.g, c.b}) + std::min({c.r, c.g, c.b});
}

void restoreEnds(Rgb& c, double ends) {
    c = gather(Tone(One(), kNoTone).withEnds(spread(c), hn::Set(One(), ends)));
}

void sharpenTone(const ToneConstants& tone, Rgb& c, int x, int y) {
    if (tone.sharpen < 1.0) return;
    NeighbourSums around;
    sumNeighbours(tone.picture, x, y, 1, around);
    c = gather(Tone(One(), tone).sharpened(spread(c), around, 0));
}

double toneCurve(const ToneConstants& tone, double largest) {
    return hn::GetLane(Tone(One(), tone).toneCurve(hn::Set(One(), largest)));
}

bool curveTone(const ToneConstants& tone, Rgb& c) {
    lanes::Choice<One> black;
    c = gather(Tone(One(), tone).curved(spread(c), black));
    return hn::AllFalse(One(), black);
}

void setGain(ToneConstants& tone, double gain, double saturation) {
    tone.gain = gain;
    tone.floor = (tone.brightness - 128.0) * gain / 50.0 + 128.0 - saturation;
}

ToneConstants makeTone(const BitmapInfo& record, ToneLayer layer, ConstPixelView picture) {
    const std::int64_t shadows = record.iEnhanseShadows, contrast = record.iContrast;
    const std::int64_t brightness = record.iBrightness, saturation = record.iBrightnessSat;
    const std::int64_t highlights = record.iReduceHighlights, sharpening = record.iBrightnessSharpen;
    const std::int32_t cooling = record.iCooling, warming = record.iWarming;

    ToneConstants tone;
    tone.layer = layer;
    tone.picture = picture;
    tone.cools = cooling != 0;
    tone.warms = warming != 0;
    tone.cooling = cooling / 255.0;
    tone.warming = warming / 255.0;
    tone.sharpen = static_cast<double>(sharpening);
    tone.shadowRate = static_cast<double>(shadows + 1) / -2000.0;
    tone.shadowNorm = 1.0 - std::exp(tone.shadowRate * 128.0);
    tone.brightness = static_cast<double>(brightness);
    setGain(tone, tone.brightness * 0.25 + static_cast<double>(contrast), static_cast<double>(saturation));
    tone.highlights = 1.0 - static_cast<double>(highlights) / 100.0;
    tone.active =
        shadows + std::abs(contrast - 50) + std::abs(brightness) + std::abs(saturation) + highlights + sharpening !=
            0 ||
        tone.cools || tone.warms;
    return tone;
}

void adjustTone(const ToneConstants& tone, Rgb& color, int x, int y, double light) {
    lanes::RunTone<One> run(One(), tone, {x, y, 1});
    color = gather(run.adjusted(spread(color), 0, hn::Set(One(), light)));
}

}  // namespace tavrin

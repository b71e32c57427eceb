#include "key/pixel/PixelSteps.h"

#include <cstring>

#include "key/pixel/DecisionLanes-inl.h"
#include "key/pixel/FinishLanes-inl.h"

namespace tavrin {

namespace {

namespace lanes = HWY_NAMESPACE;
namespace hn = hwy::HWY_NAMESPACE;
using One = lanes::OneLane;
using Colors = lanes::RgbLanes<One>;
using Key = lanes::KeyLanes<One>;
using Finish = lanes::FinishLanes<One>;

const FinishConstants kNoFinish;

Colors spread(const Rgb& c) {
    return lanes::setLanes(One(), c);
}

Rgb gather(const Colors& c) {
    return {hn::GetLane(c.r), hn::GetLane(c.g), hn::GetLane(c.b)};
}

lanes::Doubles<One> spread(double value) {
    return hn::Set(One(), value);
}

lanes::Choice<One> choice(bool value) {
    return hn::Eq(spread(value ? 1.0 : 0.0), spread(1.0));
}

bool holds(lanes::Choice<One> choice) {
    return hn::AllTrue(One(), choice);
}

Key::Decision spread(const Decision& d) {
    return {spread(d.alpha), spread(d.mix), spread(d.display), spread(d.source),
            spread(0.0),     spread(0.0),   choice(false)};
}

hn::Vec<lanes::WordTag<One>> wordOf(const std::uint8_t* pixel) {
    std::int32_t word;
    std::memcpy(&word, pixel, sizeof word);
    return hn::Set(lanes::WordTag<One>(), word);
}

}  // namespace

KeyedPixel decidePixel(const KeyConstants& key, const std::uint8_t* foreground, int x, int y) {
    const Key decision(One(), key);
    KeyedRun run;
    run.x = x;
    run.y = y;
    run.count = 1;
    std::memcpy(run.foreground, foreground, kPixelBytes);
    decision.decide(run);
    const ScreenCells cells = screenCells(key.screen, x, y, key.width, key.height);
    const Colors screen =
        key.screen.local ? decision.screenAt(x, cells) : decision.balanceScreen(spread(key.screen.global));
    return {gather(screen), {run.r[0], run.g[0], run.b[0]}, run.alpha[0], run.largest[0],
            run.lift[0],    run.hardBackground[0] != 0.0};
}

double searchAlpha(const Rgb& color, const Rgb& screen, const SearchConstants& constants) {
    lanes::AlphaSearch<One> search(One(), spread(color), spread(screen), constants);
    return hn::GetLane(search.find(choice(true)));
}

int findBrightGrey(const KeyConstants& key, const std::uint8_t* row) {
    const Key decision(One(), key);
    for (int x = 0; x < key.width; ++x) {
        const Colors raw = decision.rawColor(wordOf(row + pixelOffset(key.width, x, 0)));
        if (holds(decision.isBrightGrey(decision.keyColor(raw)))) return x;
    }
    return key.width;
}

Rgb finishForeground(const FinishConstants& finish, const Rgb& toned) {
    return gather(Finish(One(), finish).foreground(spread(toned)));
}

Rgb finishBackground(const FinishConstants& finish, const std::uint8_t* bytes) {
    const Finish lane(One(), finish);
    return gather(lane.background(lane.shiftedBackground(wordOf(bytes))));
}

Rgb blendPixel(const FinishConstants& finish, const Rgb& foreground, const Rgb& background, double alpha,
               std::int32_t gain) {
    const One d;
    return gather(
        Finish(d, finish).blend(spread(foreground), spread(background), hn::Set(d, alpha), hn::Set(d, gain)));
}

Rgb balanceForeground(const KeyConstants& key, const Rgb& raw, double shiftU) {
    return gather(Key(One(), key).balance(spread(raw), shiftU));
}

Rgb screenAt(const KeyConstants& key, int x, int y) {
    const Key decision(One(), key);
    const ScreenCells cells = screenCells(key.screen, x, y, key.width, key.height);
    return gather(key.screen.local ? decision.screenAt(x, cells) : decision.balanceScreen(spread(key.screen.global)));
}

bool inMargin(const KeyConstants& key, int x, int y) {
    return holds(Key(One(), key).inMargin(x, y));
}

double offScreenLine(const KeyConstants& key, const Rgb& color, const Rgb& screen) {
    return hn::GetLane(Key(One(), key).offScreenLine(spread(color), spread(screen)));
}

bool isPlainlyOther(const KeyConstants& key, const Rgb& color) {
    return holds(Key(One(), key).isPlainlyOther(spread(color)));
}

double mixedAlpha(const KeyConstants& key, const Rgb& color, const Rgb& screen) {
    return hn::GetLane(Key(One(), key).mixedAlpha(choice(true), spread(color), spread(screen)));
}

Rgb liftedSource(const KeyConstants& key, const Rgb& color, const Rgb& screen, double alpha) {
    return gather(Key(One(), key).liftedSource(spread(color), spread(screen), spread(alpha)));
}

void unmixBrightGrey(const KeyConstants& key, Decision& d) {
    if (!key.showBright) return;
    Key::Decision lanes = spread(d);
    Key(One(), key).unmixBrightGrey(lanes);
    d.mix = hn::GetLane(lanes.mix);
}

Rgb recoverColor(const KeyConstants& key, const Decision& d, const Rgb& screen, const Rgb& raw) {
    if (d.mix == 0.0) return {0.0, 0.0, 0.0};
    return gather(Key(One(), key).recoverColor(spread(d), spread(raw), spread(screen)));
}

Rgb removeGreenCast(const KeyConstants& key, const Rgb& color) {
    Colors c = spread(color);
    Key(One(), key).removeGreenCast(choice(true), c);
    return gather(c);
}

double edgeAlpha(const KeyConstants& key, double alpha) {
    return hn::GetLane(Key(One(), key).edgeAlpha(spread(alpha)));
}

Rgb adjustWhite(const WhiteAdjust& white, const Rgb& color, bool greenIsLevel) {
    Colors c = spread(color);
    Finish(One(), kNoFinish).adjustWhite(white, c, choice(greenIsLevel));
    return gather(c);
}

Rgb limitBlend(const Rgb& color) {
    return gather(Finish(One(), kNoFinish).limitBlend(spread(color)));
}

}  // namespace tavrin

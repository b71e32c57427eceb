#include "key/OnePixel.h"

#include <cstring>

#include "key/DecisionLanes-inl.h"
#include "key/FinishLanes-inl.h"

namespace tavrin {

namespace {

namespace lanes = HWY_NAMESPACE;
namespace hn = hwy::HWY_NAMESPACE;
using One = lanes::OneLane;
using Colors = lanes::RgbLanes<One>;

Colors spread(const Rgb& c) {
    return lanes::setLanes(One(), c);
}

Rgb gather(const Colors& c) {
    return {hn::GetLane(c.r), hn::GetLane(c.g), hn::GetLane(c.b)};
}

hn::Vec<lanes::WordTag<One>> wordOf(const std::uint8_t* pixel) {
    std::int32_t word;
    std::memcpy(&word, pixel, sizeof word);
    return hn::Set(lanes::WordTag<One>(), word);
}

}  // namespace

KeyedPixel decidePixel(const KeyConstants& key, const std::uint8_t* foreground, int x, int y) {
    const lanes::KeyLanes<One> decision(One(), key);
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
    const auto zero = hn::Zero(One());
    return hn::GetLane(search.find(hn::Eq(zero, zero)));
}

int findBrightGrey(const KeyConstants& key, const std::uint8_t* row) {
    const lanes::KeyLanes<One> decision(One(), key);
    for (int x = 0; x < key.width; ++x) {
        const Colors raw = decision.rawColor(wordOf(row + pixelOffset(key.width, x, 0)));
        if (hn::AllTrue(One(), decision.isBrightGrey(decision.keyColor(raw)))) return x;
    }
    return key.width;
}

Rgb finishForeground(const FinishConstants& finish, const Rgb& toned) {
    return gather(lanes::FinishLanes<One>(One(), finish).foreground(spread(toned)));
}

Rgb finishBackground(const FinishConstants& finish, const std::uint8_t* bytes) {
    const lanes::FinishLanes<One> lane(One(), finish);
    return gather(lane.background(lane.shiftedBackground(wordOf(bytes))));
}

Rgb blendPixel(const FinishConstants& finish, const Rgb& foreground, const Rgb& background, double alpha,
               std::int32_t gain) {
    const One d;
    return gather(lanes::FinishLanes<One>(d, finish).blend(spread(foreground), spread(background), hn::Set(d, alpha),
                                                           hn::Set(d, gain)));
}

}  // namespace tavrin

// The key's decision on several pixels at a time. Included once for each vector target.

#if defined(TAVRIN_KEY_DECISION_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TAVRIN_KEY_DECISION_LANES_INL_H
#undef TAVRIN_KEY_DECISION_LANES_INL_H
#else
#define TAVRIN_KEY_DECISION_LANES_INL_H
#endif

#include "key/pixel/KeyDecision.h"
#include "key/pixel/KeyedRun.h"
#include "key/pixel/SearchLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

template <class D>
class KeyLanes {
    using V = Doubles<D>;
    using M = Choice<D>;
    using Colors = RgbLanes<D>;

  public:
    // The working state of a decision.
    struct Decision {
        V alpha, mix;    // share of the subject, in the result and for recovering its colour
        Colors display;  // colour when nothing is unmixed
        Colors source;   // colour to unmix
        V largest, lift;
        M hardBackground;
    };

    KeyLanes(D d, const KeyConstants& key) : d_(d), key_(key), none_(hn::Lt(hn::Zero(d), hn::Zero(d))) {}

    // Decides on the pixels of a run that begins in a cell of the grid and does not leave it.
    HWY_INLINE void decide(KeyedRun& run) const {
        const ScreenCells cells = screenCells(key_.screen, run.x, run.y, key_.width, key_.height);
        const Colors global = balanceScreen(setLanes(d_, key_.screen.global));
        for (int i = 0; i < run.count; i += static_cast<int>(hn::Lanes(d_))) {
            const Colors screen = key_.screen.local ? screenAt(run.x + i, cells) : global;
            decideVector(run, i, screen);
        }
    }

    // The screen colour of the pixels from column x on, between `cells`.
    HWY_INLINE Colors screenAt(int x, const ScreenCells& cells) const {
        const V one = hn::Set(d_, 1.0);
        const V column = hn::LoadU(d_, key_.screen.columnParts.data() + x), row = hn::Set(d_, cells.rowPart);
        const V left = hn::Sub(one, column), top = hn::Sub(one, row);
        const V wa = hn::Mul(top, left), wb = hn::Mul(top, column), wc = hn::Mul(row, left),
                wd = hn::Mul(row, column);
        const auto mix = [&](double a, double b, double c, double d) HWY_ATTR {
            return hn::Add(hn::Add(hn::Add(hn::Mul(wa, hn::Set(d_, a)), hn::Mul(wb, hn::Set(d_, b))),
                                   hn::Mul(wc, hn::Set(d_, c))),
                           hn::Mul(wd, hn::Set(d_, d)));
        };
        const Rgb &a = cells.topLeft, &b = cells.topRight, &c = cells.bottomLeft, &d = cells.bottomRight;
        return balanceScreen({mix(a.r, b.r, c.r, d.r), mix(a.g, b.g, c.g, d.g), mix(a.b, b.b, c.b, d.b)});
    }

    // Which of the pixels from column x on lie in a clip margin.
    HWY_INLINE M inMargin(int x, int y) const {
        const ClipMargins& clip = key_.clip;
        if (y < clip.top || key_.height - y < clip.bottom) return hn::Not(none_);
        if (clip.left <= 0 && clip.right <= 0) return none_;
        const V column = hn::Iota(d_, static_cast<double>(x));
        const V toRight = hn::Sub(hn::Set(d_, static_cast<double>(key_.width)), column);
        return hn::Or(hn::Lt(column, hn::Set(d_, static_cast<double>(clip.left))),
                      hn::Lt(toRight, hn::Set(d_, static_cast<double>(clip.right))));
    }

    // The foreground's colour as the key sees it: each channel 1 to 255.
    HWY_INLINE Colors keyColor(const Colors& raw) const {
        const V one = hn::Set(d_, 1.0);
        return balance({raw.r, hn::IfThenElse(hn::Eq(raw.g, hn::Zero(d_)), one, raw.g), raw.b}, key_.whiteBalanceU);
    }

    // White balance of a foreground colour, each channel 1 to 255.
    HWY_INLINE Colors balance(const Colors& raw, double shiftU) const {
        const Colors c = whiteBalance(raw, shiftU);
        return {clampLanes(d_, c.r, 1.0, 255.0), clampLanes(d_, c.g, 1.0, 255.0), clampLanes(d_, c.b, 1.0, 255.0)};
    }

    HWY_INLINE Colors rawColor(hn::Vec<WordTag<D>> words) const {
        const V r = channelOf<0>(d_, words), g = channelOf<1>(d_, words), b = channelOf<2>(d_, words);
        return key_.blueLogic ? Colors{r, b, g} : Colors{r, g, b};
    }

    HWY_INLINE M isBrightGrey(const Colors& c) const {
        const V limit = hn::Set(d_, 30.0);
        return hn::And(hn::Gt(c.g, hn::Set(d_, 127.0)),
                       hn::And(hn::Lt(hn::Abs(hn::Sub(c.g, c.r)), limit), hn::Lt(hn::Abs(hn::Sub(c.g, c.b)), limit)));
    }

    // Scales a screen colour and sends it through the white balance.
    HWY_INLINE Colors balanceScreen(const Colors& measured) const {
        const V scale = hn::Set(d_, key_.screen.scale), top = hn::Set(d_, 255.0);
        const Colors c =
            whiteBalance({minLanes(hn::Mul(measured.r, scale), top), minLanes(hn::Mul(measured.g, scale), top),
                          minLanes(hn::Mul(measured.b, scale), top)},
                         key_.whiteBalanceU);
        return {atLeastLanes(d_, c.r, 1.0), atLeastLanes(d_, c.g, 1.0), atLeastLanes(d_, c.b, 1.0)};
    }

    // The steps, in the order of their use.

    HWY_INLINE void decideVector(KeyedRun& run, int i, const Colors& screen) const {
        const auto pixels = hn::Load(WordTag<D>(), run.foreground + i);
        const Colors raw = rawColor(pixels), f = keyColor(raw);
        const M margin = inMargin(run.x + i, run.y);

        Decision d =
            key_.showOrgImage ? showOriginal(pixels, f, margin, run.x + i, run.y) : decideOn(f, screen, margin);
        if (key_.showBright) unmixBrightGrey(d);
        V alpha = hn::IfThenElseZero(hn::Not(margin), clampLanes(d_, edgeAlpha(d.alpha), 0.0, 1.0));
        Colors color = recoverWhereNeeded(d, raw, screen, alpha);
        if (key_.showSelectedAreas) {
            color = screen;
            alpha = hn::Set(d_, 1.0);
        }
        hn::Store(color.r, d_, run.r + i);
        hn::Store(color.g, d_, run.g + i);
        hn::Store(color.b, d_, run.b + i);
        hn::Store(alpha, d_, run.alpha + i);
        hn::Store(d.largest, d_, run.largest + i);
        hn::Store(d.lift, d_, run.lift + i);
        hn::Store(hn::IfThenElseZero(d.hardBackground, hn::Set(d_, 1.0)), d_, run.hardBackground + i);
    }

    // Shifts the two colour differences and turns the result back to channels, unlimited.
    HWY_INLINE Colors whiteBalance(const Colors& c, double shiftU) const {
        const auto mix = [&](double r, double g, double b) HWY_ATTR {
            return hn::Add(hn::Add(hn::Mul(hn::Set(d_, r), c.r), hn::Mul(hn::Set(d_, g), c.g)),
                           hn::Mul(hn::Set(d_, b), c.b));
        };
        const V y = mix(0.299, 0.587, 0.114);
        const V u = hn::Add(mix(-0.147, -0.289, 0.437), hn::Set(d_, shiftU));
        const V v = hn::Add(mix(0.615, -0.515, -0.1), hn::Set(d_, key_.whiteBalanceV));
        return {hn::Add(y, hn::Mul(hn::Set(d_, 1.14), v)),
                hn::Sub(hn::Sub(y, hn::Mul(hn::Set(d_, 0.394), u)), hn::Mul(hn::Set(d_, 0.581), v)),
                hn::Add(y, hn::Mul(hn::Set(d_, 2.028), u))};
    }

    // No decision: the foreground's own alpha.
    HWY_INLINE Decision showOriginal(hn::Vec<WordTag<D>> pixels, const Colors& f, M margin, int x, int y) const {
        const V stored = channelOf<3>(d_, pixels), one = hn::Set(d_, 1.0), zero = hn::Zero(d_);
        const V alpha = hn::IfThenElseZero(hn::Not(margin), hn::Div(stored, hn::Set(d_, 255.0)));
        const V index = hn::Iota(d_, static_cast<double>(std::int64_t{y} * key_.width + x));
        const M afterGrey = hn::Gt(index, hn::Set(d_, static_cast<double>(key_.firstBrightGrey)));
        return {alpha, hn::IfThenElse(afterGrey, hn::Set(d_, kBrightGreyMix), one), f, f, zero, zero, none_};
    }

    // The tests stand in order of precedence: the first that applies decides.
    HWY_INLINE Decision decideOn(const Colors& f, const Colors& screen, M margin) const {
        const V one = hn::Set(d_, 1.0), zero = hn::Zero(d_);
        const V redStep = hn::Sub(f.r, f.g), blueStep = hn::Sub(f.g, f.b);
        const V chroma = hn::Sqrt(hn::Add(hn::Mul(redStep, redStep), hn::Mul(blueStep, blueStep)));
        Decision d{zero, one, f, f, largestLanes<D>(f), hn::Add(chroma, hn::Mul(f.g, hn::Set(d_, 0.2))), none_};

        // A dark grey inside the subject.
        const M dark =
            hn::And(hn::Lt(chroma, hn::Set(d_, key_.darkChroma)), hn::Lt(d.largest, hn::Sub(screen.g, screen.r)));
        // Screen of any brightness, unless it is so dark that it may be the subject.
        M open = hn::Not(dark);
        M line = hn::And(open, hn::Gt(d.lift, hn::Set(d_, key_.darkLimit)));
        if (!hn::AllFalse(d_, line)) line = hn::And(line, hn::Lt(offScreenLine(f, screen), hn::Set(d_, kScreenLine)));
        open = hn::AndNot(line, open);
        d.lift = hn::IfThenElse(dark, chroma, d.lift);
        d.display.g = hn::IfThenElse(dark, minLanes(f.g, maxLanes(f.r, f.b)), f.g);
        d.display = chooseLanes(d_, line, setLanes(d_, {255.0, 255.0, 255.0}), d.display);
        d.alpha = hn::IfThenElseZero(dark, one);

        if (!hn::AllFalse(d_, open)) {
            d.hardBackground = hn::And(open, hn::Or(margin, hn::Lt(distance(f, screen), hn::Set(d_, kScreenNear))));
            open = hn::AndNot(d.hardBackground, open);
            const M other = key_.blueLogic ? none_ : hn::And(open, isPlainlyOther(f));
            d.alpha = hn::IfThenElse(other, one, d.alpha);
            open = hn::AndNot(other, open);
            if (!hn::AllFalse(d_, open)) takeAsMixed(open, f, screen, d);
        }
        const M clear = hn::Lt(d.alpha, hn::Set(d_, 0.8));
        if (!hn::AllFalse(d_, clear)) removeGreenCast(clear, d.display);
        return d;
    }

    HWY_INLINE V distance(const Colors& a, const Colors& b) const {
        const V r = hn::Sub(a.r, b.r), g = hn::Sub(a.g, b.g), bl = hn::Sub(a.b, b.b);
        return hn::Sqrt(hn::Add(hn::Add(hn::Mul(r, r), hn::Mul(g, g)), hn::Mul(bl, bl)));
    }

    // How far the colour lies off the line from black through the screen colour, seen from three points of it.
    HWY_INLINE V offScreenLine(const Colors& f, const Colors& screen) const {
        const V least = hn::Set(d_, 20.0);
        const V fromGreen = distance(f, scaledLanes(d_, screen, hn::Div(f.g, screen.g)));
        const auto from = [&](V channel, V own) HWY_ATTR {
            const V off =
                hn::Mul(distance(f, scaledLanes(d_, screen, hn::Div(channel, own))), hn::Div(own, screen.g));
            return hn::IfThenElse(hn::Lt(own, least), fromGreen, off);
        };
        const V line = hn::Add(hn::Add(fromGreen, from(f.r, screen.r)), from(f.b, screen.b));
        const V lead = hn::Sub(f.g, maxLanes(f.b, f.r));
        return hn::Add(line, hn::Div(hn::Mul(lead, line), hn::Set(d_, -100.0)));
    }

    HWY_INLINE M isPlainlyOther(const Colors& f) const {
        const V far = hn::Add(f.g, hn::Set(d_, 40.0));
        return hn::Or(hn::And(hn::Ge(f.r, f.b), hn::Gt(f.r, far)), hn::And(hn::Gt(f.b, f.r), hn::Gt(f.b, far)));
    }

    HWY_INLINE void takeAsMixed(M mixed, const Colors& f, const Colors& screen, Decision& d) const {
        const V alpha = mixedAlpha(mixed, f, screen);
        d.alpha = hn::IfThenElse(mixed, alpha, d.alpha);
        d.mix = hn::IfThenElse(mixed, alpha, d.mix);
        d.source = chooseLanes(d_, mixed, liftedSource(f, screen, alpha), d.source);
    }

    // Least share of the subject that keeps its channel within 0 to 255. Where the divisor is 0 there is no bound.
    HWY_INLINE V alphaBound(V c, V screen, double tolerance) const {
        const V k = hn::Set(d_, tolerance), widened = hn::Mul(k, screen);
        const V room = hn::Sub(hn::Set(d_, 255.0), widened);
        const M above = hn::Ge(c, widened);
        const V ratio =
            hn::Div(hn::IfThenElse(above, hn::Sub(c, widened), hn::Mul(k, c)), hn::IfThenElse(above, room, screen));
        const V noBound = hn::Set(d_, -std::numeric_limits<double>::infinity());
        return hn::IfThenElse(above, hn::IfThenElse(hn::Eq(room, hn::Zero(d_)), noBound, ratio),
                              hn::Sub(hn::Set(d_, 1.0), ratio));
    }

    // For `floor` see `AlphaSearch::find`.
    HWY_INLINE V mixedAlpha(M mixed, const Colors& f, const Colors& screen, double floor = 0.0) const {
        const V found = AlphaSearch<D>(d_, f, screen, key_.search).find(mixed, floor);
        // No bound moves a whole subject.
        if (hn::AllTrue(d_, hn::Eq(found, hn::Set(d_, 1.0)))) return found;
        const V red = alphaBound(f.r, screen.r, key_.k), green = alphaBound(f.g, screen.g, 1.0);
        const V blue = alphaBound(f.b, screen.b, key_.k);
        const M blueHolds = hn::Gt(screen.b, hn::Set(d_, 30.0));

        V warm = maxLanes(maxLanes(found, red), green);
        const M byBlue = hn::And(hn::And(hn::Lt(warm, blue), hn::Gt(f.b, screen.b)), blueHolds);
        warm = clampLanes(d_, hn::IfThenElse(byBlue, blue, warm), 0.0, 1.0);

        V cool = maxLanes(hn::IfThenElse(blueHolds, maxLanes(found, blue), found), green);
        const M byRed = hn::And(hn::Lt(cool, red), hn::Gt(f.r, screen.r));
        cool = clampLanes(d_, hn::IfThenElse(byRed, red, cool), 0.001, 1.0);
        return hn::IfThenElse(hn::Ge(f.r, f.b), warm, cool);
    }

    // Lifts all channels so that unmixing cannot make red or blue negative. Green, at least 1, needs no lift.
    HWY_INLINE Colors liftedSource(const Colors& f, const Colors& screen, V alpha) const {
        const V rest = hn::Sub(hn::Set(d_, 1.0), alpha), zero = hn::Zero(d_);
        const V forRed = minLanes(hn::Sub(f.r, hn::Mul(rest, screen.r)), zero);
        const Colors lifted{hn::Sub(f.r, forRed), hn::Sub(f.g, forRed), hn::Sub(f.b, forRed)};
        const V forBlue = minLanes(hn::Sub(lifted.b, hn::Mul(rest, screen.b)), zero);
        return {hn::Sub(lifted.r, forBlue), hn::Sub(lifted.g, forBlue), hn::Sub(lifted.b, forBlue)};
    }

    // A bright grey is unmixed a little, so that a green sheen leaves it. The share in the result stays.
    HWY_INLINE void unmixBrightGrey(Decision& d) const {
        const V part = hn::Set(d_, kBrightGreyMix);
        d.mix = hn::IfThenElse(hn::And(hn::Gt(d.mix, part), isBrightGrey(d.display)), part, d.mix);
    }

    // Turns a colour that is still green away from it, towards its second channel, without darkening it.
    HWY_INLINE void removeGreenCast(M where, Colors& c) const {
        const V ten = hn::Set(d_, 10.0);
        const M green = hn::And(where, hn::And(hn::Gt(c.g, hn::Add(c.r, ten)), hn::Gt(c.g, hn::Add(c.b, ten))));
        const M towardsRed = hn::And(green, hn::Gt(c.r, c.b)), towardsBlue = hn::AndNot(towardsRed, green);
        c.r = hn::IfThenElse(towardsRed, c.g, c.r);
        c.b = hn::IfThenElse(towardsBlue, c.g, c.b);
    }

    HWY_INLINE V edgeAlpha(V alpha) const {
        if (key_.showOrgImage) return alpha;
        const V half = hn::Set(d_, 0.5);
        const M edge = hn::And(hn::Lt(alpha, hn::Set(d_, 1.0)), hn::Gt(alpha, hn::Set(d_, 0.01)));
        const V steeper = hn::Add(hn::Add(hn::Mul(hn::Sub(alpha, half), hn::Set(d_, kEdgeGain)), half),
                                  hn::Set(d_, key_.transShift));
        return hn::IfThenElse(edge, steeper, alpha);
    }

    HWY_INLINE Colors recoverWhereNeeded(const Decision& d, const Colors& raw, const Colors& screen, V alpha) const {
        const V zero = hn::Zero(d_);
        const M needed = key_.colorOfClear ? hn::Not(none_) : hn::Gt(alpha, zero);
        if (hn::AllFalse(d_, needed)) return {zero, zero, zero};
        return keepLanes(d_, hn::And(needed, hn::Ne(d.mix, zero)), recoverColor(d, raw, screen));
    }

    HWY_INLINE Colors recoverColor(const Decision& d, const Colors& raw, const Colors& screen) const {
        Colors c = d.display;
        const M unmixed = hn::And(hn::Gt(d.mix, hn::Set(d_, 0.005)), hn::Lt(d.mix, hn::Set(d_, 0.98)));
        if (!hn::AllFalse(d_, unmixed)) {
            const V rest = hn::Sub(hn::Set(d_, 1.0), d.mix);
            const auto recover = [&](V source, V own) HWY_ATTR {
                return atLeastLanes(d_, hn::Div(hn::Sub(source, hn::Mul(rest, own)), d.mix), 0.0);
            };
            c = chooseLanes(
                d_, unmixed,
                {recover(d.source.r, screen.r), recover(d.source.g, screen.g), recover(d.source.b, screen.b)}, c);
        }
        if (key_.showBright) {
            limitBright(c);
        } else {
            holdBrightness(c, raw);
        }
        return c;
    }

    // A channel above 255 takes the others down with it, but for red, which is only cut.
    HWY_INLINE void limitBright(Colors& c) const {
        limitChannelLanes(d_, c.g, c.r, c.b);
        c.r = minLanes(c.r, hn::Set(d_, 255.0));
        limitChannelLanes(d_, c.b, c.r, c.g);
    }

    // Unmixing must not make a pixel brighter than it was.
    HWY_INLINE void holdBrightness(Colors& c, const Colors& raw) const {
        const V scale = hn::Div(hn::Add(raw.g, raw.r), hn::Add(c.r, c.g));
        c = chooseLanes(d_, hn::Lt(scale, hn::Set(d_, 1.0)), scaledLanes(d_, c, scale), c);
    }

  private:
    D d_;
    const KeyConstants& key_;
    M none_;
};

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#endif

#include "key/light/GlowRow.h"

#include <algorithm>
#include <cstring>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/light/GlowRow.cpp"
#include <hwy/foreach_target.h>

#include "key/pixel/DecisionLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// The amounts of the key at one pixel; see `SpillKey::decide`.
template <class D>
class GlowLanes {
    using V = Doubles<D>;
    using M = Choice<D>;
    using Colors = RgbLanes<D>;

  public:
    GlowLanes(D d, const GlowParams& params, int y)
        : d_(d), params_(params), key_(d, params.key), y_(y), floor_(largestUnsolid()) {}

    void work(const ColumnRun& part, std::int32_t* row) {
        const WordTag<D> words;
        const std::size_t bytes = static_cast<std::size_t>(part.count) * kPixelBytes;
        load(params_.hair.pixels + pixelOffset(params_.key.width, part.x, y_), part.count, pixels_);
        load(row + part.x, part.count, gains_);
        const ScreenCells cells = screenCells(params_.key.screen, part.x, y_, params_.key.width, params_.key.height);
        const Colors global = setLanes(d_, params_.screen);
        for (int i = 0; i < part.count; i += static_cast<int>(hn::Lanes(d_))) {
            const Colors raw = key_.rawColor(hn::Load(words, pixels_ + i));
            const M screen = hn::Lt(key_.distance(raw, global), hn::Set(d_, GlowParams::kScreenDistance));
            V gain = hn::IfThenElseZero(hn::Not(screen), hn::PromoteTo(d_, hn::Load(words, gains_ + i)));
            if (!hn::AllTrue(d_, screen)) {
                const V amount = amountAt(part.x + i, raw, key_.screenAt(part.x + i, cells));
                const M solid = hn::AndNot(screen, hn::Gt(amount, hn::Set(d_, GlowParams::kSolid)));
                gain = hn::IfThenElse(solid, hn::Set(d_, static_cast<double>(params_.gain)), gain);
            }
            hn::Store(hn::DemoteTo(words, gain), words, gains_ + i);
        }
        std::memcpy(row + part.x, gains_, bytes);
    }

  private:
    // The last vector of a run may reach beyond it; there it finds zeros.
    static void load(const void* from, int count, std::int32_t* to) {
        std::fill(to + count, to + (count + 7) / 8 * 8, 0);
        std::memcpy(to, from, static_cast<std::size_t>(count) * kPixelBytes);
    }

    // A share from which down, in hundredths, no mixed pixel is solid: the steepened edge falls with the share.
    double largestUnsolid() const {
        const auto isSolid = [&](double share) {
            return !(hn::GetLane(key_.edgeAlpha(hn::Set(d_, share))) <= GlowParams::kSolid);
        };
        int hundredths = 99;
        while (hundredths > 1 && isSolid(hundredths / 100.0))
            --hundredths;
        return hundredths > 1 ? hundredths / 100.0 : 0.0;
    }

    HWY_INLINE V amountAt(int x, const Colors& raw, const Colors& screen) const {
        const M margin = key_.inMargin(x, y_);
        if (params_.key.showOrgImage) return hn::IfThenElseZero(hn::Not(margin), hn::Set(d_, 255.0));
        const V one = hn::Set(d_, 1.0);
        const Colors f = key_.balance(raw, params_.key.whiteBalanceU);
        const V redStep = hn::Sub(f.r, f.g), blueStep = hn::Sub(f.g, f.b);
        const V chroma = hn::Sqrt(hn::Add(hn::Mul(redStep, redStep), hn::Mul(blueStep, blueStep)));
        const V darkAreas = darkAreasAt(x, raw.g, chroma);

        const M dark = hn::And(hn::Lt(chroma, hn::Mul(darkAreas, hn::Set(d_, 0.15))),
                               hn::Lt(largestLanes<D>(f), hn::Sub(screen.g, screen.r)));
        M open = hn::Not(hn::Or(dark, hn::Or(margin, hn::Lt(key_.distance(f, screen), hn::Set(d_, 8.0)))));
        M line = hn::And(open, hn::Gt(chroma, hn::Mul(darkAreas, hn::Set(d_, 2.0))));
        if (!hn::AllFalse(d_, line)) line = hn::And(line, hn::Lt(key_.offScreenLine(f, screen), hn::Set(d_, 80.0)));
        open = hn::AndNot(line, open);
        const M other = hn::And(open, key_.isPlainlyOther(f));
        open = hn::AndNot(other, open);

        V amount = hn::IfThenElseZero(hn::Or(dark, other), one);
        if (!hn::AllFalse(d_, open)) amount = hn::IfThenElse(open, key_.mixedAlpha(open, f, screen, floor_), amount);
        return hn::IfThenElseZero(hn::Not(margin), clampLanes(d_, key_.edgeAlpha(amount), 0.0, 1.0));
    }

    // The slider for the dark areas; see `DarkHair::darkAreas`.
    HWY_INLINE V darkAreasAt(int x, V green, V chroma) const {
        const DarkHair& hair = params_.hair;
        const V slider = hn::Set(d_, hair.sliderRestoredDarkAreasSlider);
        if (!hair.isLookedFor()) return slider;
        const V ofHair = hn::Set(d_, DarkHair::kDarkAreasOfHair);
        const V low = hn::Set(d_, 0.15), high = hn::Set(d_, 2.0);
        const M less = hn::Xor(hn::Lt(chroma, hn::Mul(slider, low)), hn::Lt(chroma, hn::Mul(ofHair, low)));
        const M more = hn::Xor(hn::Gt(chroma, hn::Mul(slider, high)), hn::Gt(chroma, hn::Mul(ofHair, high)));
        const M matters = hn::And(hn::Lt(green, hn::Set(d_, DarkHair::kDarkGreen)), hn::Or(less, more));
        if (hn::AllFalse(d_, matters)) return slider;

        return hn::IfThenElse(hn::And(matters, busyAt(x)), ofHair, slider);
    }

    // Which of the pixels from column x on lie in busy texture; see `DarkHair::isBusy`.
    HWY_INLINE M busyAt(int x) const {
        constexpr int kRadius = DarkHair::kTextureRadius, kReach = 2 * 8 - kRadius;  // what the loads come to
        const DarkHair& hair = params_.hair;
        alignas(64) double busy[8] = {};
        if (x < kRadius || x + kReach > hair.width) {
            for (int lane = 0; lane < static_cast<int>(hn::Lanes(d_)) && x + lane < hair.width; ++lane)
                busy[lane] = hair.isBusy(x + lane, y_) ? 1.0 : 0.0;
            return hn::Gt(hn::Load(d_, busy), hn::Zero(d_));
        }
        // The columns of the squares first, then the squares.
        const WordTag<D> words;
        std::int32_t sums[2 * 8], squares[2 * 8];
        const int lanes = static_cast<int>(hn::Lanes(d_));
        for (int column = 0; column < lanes + 2 * kRadius; column += lanes) {
            auto sum = hn::Zero(words), square = hn::Zero(words);
            for (int dy = -kRadius; dy <= kRadius; ++dy) {
                const int row = std::clamp(y_ + dy, 0, hair.height - 1);
                const auto level = levelAt(hair.pixels + pixelOffset(hair.width, x - kRadius + column, row));
                sum = hn::Add(sum, level);
                square = hn::Add(square, hn::Mul(level, level));
            }
            hn::StoreU(sum, words, sums + column);
            hn::StoreU(square, words, squares + column);
        }
        auto sum = hn::LoadU(words, sums), square = hn::LoadU(words, squares);
        for (int column = 1; column <= 2 * kRadius; ++column) {
            sum = hn::Add(sum, hn::LoadU(words, sums + column));
            square = hn::Add(square, hn::LoadU(words, squares + column));
        }
        const auto scatter = hn::Sub(hn::Mul(hn::Set(words, DarkHair::kTexturePixels), square), hn::Mul(sum, sum));
        return hn::Gt(hn::Div(hn::PromoteTo(d_, scatter), hn::Set(d_, DarkHair::kScatterToVariance)),
                      hn::Set(d_, hair.leastVariance()));
    }

    // The sum of the channels.
    HWY_INLINE hn::Vec<WordTag<D>> levelAt(const std::uint8_t* pixels) const {
        const WordTag<D> words;
        const auto all = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(pixels)), byte = hn::Set(words, 255);
        return hn::Add(hn::And(all, byte),
                       hn::Add(hn::And(hn::ShiftRight<8>(all), byte), hn::And(hn::ShiftRight<16>(all), byte)));
    }

    D d_;
    const GlowParams& params_;
    KeyLanes<D> key_;
    int y_;
    double floor_;
    alignas(64) std::int32_t pixels_[KeyedRun::kMaxPixels];
    alignas(64) std::int32_t gains_[KeyedRun::kMaxPixels];
};

void glowRowWide(const GlowParams& params, int y, std::int32_t* row) {
    GlowLanes<WideLanes> lanes(WideLanes(), params, y);
    for (const ColumnRun& part : params.key.screen.runs)
        lanes.work(part, row);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(glowRowWide);

void glowRow(const GlowParams& params, int y, std::int32_t* row) {
    HWY_DYNAMIC_DISPATCH(glowRowWide)(params, y, row);
}

}  // namespace tavrin
#endif

#include "key/CombineRow.h"

#include <algorithm>
#include <cstring>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "key/CombineRow.cpp"
#include <hwy/foreach_target.h>

#include "key/pixel/DecisionLanes-inl.h"
#include "key/pixel/FinishLanes-inl.h"
#include "key/pixel/LayerTone-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// Works off a row run by run.
template <class D>
class RowWorker {
    using V = Doubles<D>;
    using Colors = RgbLanes<D>;

  public:
    RowWorker(const CombineParams& params, const KeyOverrides& overrides, int y)
        : params_(params), overrides_(overrides), key_(d_, params.key), finish_(d_, params.finish) {
        run_.y = y;
    }

    // The key's alpha alone, for the second look at it: `to` has a byte for each pixel of the row.
    void keyAlpha(const ColumnRun& part, std::uint8_t* to) {
        begin(part);
        decide();
        for (int i = 0; i < run_.count; ++i)
            to[run_.x + i] = toByte(run_.alpha[i] * 255.0);
    }

    void work(const ColumnRun& part) {
        begin(part);
        load(params_.background, run_.background);

        params_.refined ? takeRefined() : decide();
        overrides_.guard(run_);
        const bool plain = params_.finish.plainBackground && !params_.finish.transparent && !overrides_.showsGuard();
        if (plain && !anySubject()) {
            passBackground();
        } else {
            finishForeground();
            overrides_.showGuard(run_, params_.finish.transparent);
            clearMargins();
            loadBackground();
            write();
        }
        keepAlpha();
        std::memcpy(params_.combined + offset_, combined_, bytes_);
    }

  private:
    void begin(const ColumnRun& part) {
        run_.x = part.x;
        run_.count = part.count;
        offset_ = pixelOffset(params_.size.width, run_.x, run_.y);
        bytes_ = static_cast<std::size_t>(run_.count) * kPixelBytes;
        load(params_.foreground, run_.foreground);
    }

    void decide() {
        key_.decide(run_);
        overrides_.correctHair(run_);
    }

    // What is beyond the run is written with it and read by nobody.
    void takeRefined() {
        load(params_.combined, combined_);
        const V whole = hn::Set(d_, 255.0);
        for (int i = 0; i < run_.count; i += lanes()) {
            const auto words = hn::Load(WordTag<D>(), combined_ + i);
            const Colors c = key_.rawColor(words);
            hn::Store(c.r, d_, run_.r + i);
            hn::Store(c.g, d_, run_.g + i);
            hn::Store(c.b, d_, run_.b + i);
            hn::Store(hn::Div(channelOf<3>(d_, words), whole), d_, run_.alpha + i);
        }
    }

    int lanes() const { return static_cast<int>(hn::Lanes(d_)); }

    // The last vector of a run may reach beyond it; there it finds zeros.
    void load(const std::uint8_t* pixels, std::int32_t* to) const {
        const int past = (run_.count + 7) / 8 * 8;
        std::fill(to + run_.count, to + past, 0);
        std::memcpy(to, pixels + offset_, bytes_);
    }

    // Only the alpha: the colours may be read meanwhile, by rows that sharpen.
    void keepAlpha() const {
        std::uint8_t* alpha = params_.background + offset_ + 3;
        for (int i = 0; i < run_.count; ++i, alpha += kPixelBytes)
            *alpha = static_cast<std::uint8_t>(static_cast<std::uint32_t>(run_.background[i]) >> 24);
    }

    bool anySubject() const {
        bool any = false;
        for (int i = 0; i < run_.count && !any; i += lanes())
            any = !hn::AllFalse(d_, hn::Gt(hn::Load(d_, run_.alpha + i), hn::Zero(d_)));
        return any;
    }

    // Nothing but background, and that as it is: most of a picture.
    void passBackground() {
        const WordTag<D> words;
        const auto opaque = hn::Set(words, static_cast<std::int32_t>(0xFF000000u));
        for (int i = 0; i < run_.count; i += lanes()) {
            const auto pixels = hn::Load(words, run_.background + i);
            hn::Store(hn::Or(pixels, opaque), words, combined_ + i);
            hn::Store(hn::AndNot(opaque, pixels), words, run_.background + i);
        }
    }

    // Colours of the subject where it has a share in the result; elsewhere black.
    void finishForeground() {
        adjustForeground(d_, params_.finish, run_);
        for (int i = 0; i < run_.count; i += lanes()) {
            const auto seen = hn::Gt(hn::Load(d_, run_.alpha + i), hn::Zero(d_));
            Colors c{hn::Zero(d_), hn::Zero(d_), hn::Zero(d_)};
            if (params_.finish.transparent) {
                c = finish_.foreground(loadLanes(d_, run_.r + i, run_.g + i, run_.b + i));
            } else if (!hn::AllFalse(d_, seen)) {
                c = keepLanes(d_, seen, finish_.foreground(loadLanes(d_, run_.r + i, run_.g + i, run_.b + i)));
            }
            hn::Store(c.r, d_, run_.r + i);
            hn::Store(c.g, d_, run_.g + i);
            hn::Store(c.b, d_, run_.b + i);
        }
    }

    // Neither the guard nor a view of the key brings a pixel in a margin back.
    void clearMargins() {
        for (int i = 0; i < run_.count; i += lanes()) {
            const auto margin = key_.inMargin(run_.x + i, run_.y);
            hn::Store(hn::IfThenElseZero(hn::Not(margin), hn::Load(d_, run_.alpha + i)), d_, run_.alpha + i);
        }
    }

    void loadBackground() {
        const LightMap& light = params_.finish.light;
        if (light.values) {
            std::memset(gain_, 0, sizeof gain_);
            std::memcpy(gain_, light.values + offset_ / kPixelBytes, bytes_);
        }
        if (!params_.finish.backgroundTone.active) return;
        for (int i = 0; i < run_.count; i += lanes()) {
            const Colors c = finish_.shiftedBackground(hn::Load(WordTag<D>(), run_.background + i));
            hn::Store(c.r, d_, behind_.r + i);
            hn::Store(c.g, d_, behind_.g + i);
            hn::Store(c.b, d_, behind_.b + i);
        }
        adjustBackground(d_, params_.finish, run_, gain_, behind_);
    }

    Colors backgroundAt(int i, hn::Vec<WordTag<D>> pixels) const {
        return finish_.background(params_.finish.backgroundTone.active
                                      ? loadLanes(d_, behind_.r + i, behind_.g + i, behind_.b + i)
                                      : finish_.shiftedBackground(pixels));
    }

    void write() {
        const WordTag<D> words;
        for (int i = 0; i < run_.count; i += lanes()) {
            const V alpha = hn::Load(d_, run_.alpha + i);
            const Colors front = loadLanes(d_, run_.r + i, run_.g + i, run_.b + i);
            const auto pixels = hn::Load(words, run_.background + i);

            hn::Vec<WordTag<D>> result;
            if (params_.finish.transparent) {
                result = finish_.transparentWords(front, alpha);
            } else {
                const auto shows = hn::Lt(alpha, hn::Set(d_, 1.0));
                const V gain =
                    params_.finish.light.values ? hn::PromoteTo(d_, hn::Load(words, gain_ + i)) : hn::Zero(d_);
                const Colors c = finish_.blend(front, keepLanes(d_, shows, backgroundAt(i, pixels)), alpha, gain);
                result = hn::Or(finish_.colorWords(c), hn::Set(words, static_cast<std::int32_t>(0xFF000000u)));
            }
            hn::Store(result, words, combined_ + i);
            const auto kept = toBytes(d_, hn::Mul(alpha, hn::Set(d_, 255.0)));
            hn::Store(hn::Or(hn::And(pixels, hn::Set(words, 0xFFFFFF)), hn::ShiftLeft<24>(kept)), words,
                      run_.background + i);
        }
    }

    D d_;
    const CombineParams& params_;
    const KeyOverrides& overrides_;
    KeyLanes<D> key_;
    FinishLanes<D> finish_;
    std::size_t offset_ = 0, bytes_ = 0;
    KeyedRun run_;
    LayerColors behind_;
    alignas(64) std::int32_t gain_[KeyedRun::kMaxPixels];
    alignas(64) std::int32_t combined_[KeyedRun::kMaxPixels];
};

template <class D>
void workRow(const CombineParams& params, const KeyOverrides& overrides, int y) {
    RowWorker<D> worker(params, overrides, y);
    for (const ColumnRun& part : params.key.screen.runs)
        worker.work(part);
}

void keyAlphaRowWide(const CombineParams& params, const KeyOverrides& overrides, int y, std::uint8_t* to) {
    RowWorker<WideLanes> worker(params, overrides, y);
    for (const ColumnRun& part : params.key.screen.runs)
        worker.keyAlpha(part, to);
}

void combineRowWide(const CombineParams& params, const KeyOverrides& overrides, int y) {
    workRow<WideLanes>(params, overrides, y);
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(combineRowWide);
HWY_EXPORT(keyAlphaRowWide);

void keyAlphaRow(const CombineParams& params, const KeyOverrides& overrides, int y, std::uint8_t* to) {
    HWY_DYNAMIC_DISPATCH(keyAlphaRowWide)(params, overrides, y, to);
}

void combineRow(const CombineParams& params, const KeyOverrides& overrides, int y) {
    HWY_DYNAMIC_DISPATCH(combineRowWide)(params, overrides, y);
}

void combineRowPlain(const CombineParams& params, const KeyOverrides& overrides, int y) {
    HWY_NAMESPACE::workRow<HWY_NAMESPACE::OneLane>(params, overrides, y);
}

}  // namespace tavrin
#endif

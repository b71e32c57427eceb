#include "core/raster/BoxLanes.h"

#include <algorithm>
#include <type_traits>
#include <vector>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/raster/BoxLanes.cpp"
#include <hwy/foreach_target.h>

#include "core/raster/OverLanes-inl.h"
#include "core/raster/TurnLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

// Slides the window along. The sums are whole numbers that doubles hold exactly, so their order does not matter.
template <class Sample>
class SlidingBox {
    static constexpr bool kBytes = std::is_same_v<Sample, std::uint8_t>;

  public:
    SlidingBox(const BoxLines<Sample>& lines, int radius)
        : lines_(lines), radius_(radius), sums_(static_cast<std::size_t>(lines.lanes), 0.0) {}

    // In the middle the sum is multiplied by the inverse of the window, at both edges it is divided by the number of
    // samples in it. A line shorter than the window has no middle and takes the mean of what the window meets.
    void run() {
        const int n = lines_.count, r = radius_;
        const double inverse = 1.0 / (2.0 * r + 1.0);
        for (int at = 0; at < r; ++at)
            enter(samplesAt(at));
        for (int at = 0; at < n; ++at) {
            if (at > r && at < n - r) {
                move(at, inverse);
                continue;
            }
            if (at < n - r) enter(samplesAt(at + r));
            if (at > r) leave(samplesAt(at - r - 1));
            divide(at, std::min(at, r) + std::min(n - 1 - at, r) + 1);
        }
    }

  private:
    const Sample* samplesAt(int at) const { return lines_.from + at * lines_.step; }

    template <class D>
    HWY_INLINE static hn::Vec<D> load(D d, const Sample* from) {
        const auto loaded = hn::LoadU(hn::Rebind<Sample, D>(), from);
        if constexpr (kBytes) {
            return hn::PromoteTo(d, hn::PromoteTo(hn::Rebind<std::int32_t, D>(), loaded));
        } else {
            return hn::PromoteTo(d, loaded);
        }
    }

    void enter(const Sample* samples) {
        double* const sums = sums_.data();
        overLanes<double, 8>(lines_.lanes, [=](auto d, int lane) HWY_ATTR {
            hn::StoreU(hn::Add(hn::LoadU(d, sums + lane), load(d, samples + lane)), d, sums + lane);
        });
    }

    void leave(const Sample* samples) {
        double* const sums = sums_.data();
        overLanes<double, 8>(lines_.lanes, [=](auto d, int lane) HWY_ATTR {
            hn::StoreU(hn::Sub(hn::LoadU(d, sums + lane), load(d, samples + lane)), d, sums + lane);
        });
    }

    void divide(int at, double count) {
        const double* const sums = sums_.data();
        const Target target(lines_, at);
        overLanes<double, 8>(lines_.lanes, [=](auto d, int lane) HWY_ATTR {
            target.write(d, lane, hn::Div(hn::LoadU(d, sums + lane), hn::Set(d, count)));
        });
    }

    // One step in the middle.
    void move(int at, double inverse) {
        double* const sums = sums_.data();
        const Sample *const entering = samplesAt(at + radius_), *const leaving = samplesAt(at - radius_ - 1);
        const Target target(lines_, at);
        overLanes<double, 8>(lines_.lanes, [=](auto d, int lane) HWY_ATTR {
            const auto change = hn::Sub(load(d, entering + lane), load(d, leaving + lane));
            const auto sum = hn::Add(hn::LoadU(d, sums + lane), change);
            hn::StoreU(sum, d, sums + lane);
            target.write(d, lane, hn::Mul(sum, hn::Set(d, inverse)));
        });
    }

    // Where the means of one position go.
    class Target {
      public:
        Target(const BoxLines<Sample>& lines, int at)
            : to_(lines.to + at * lines.toStep), kept_(lines.kept ? lines.kept + at * lines.step : nullptr) {}

        template <class D>
        HWY_INLINE void write(D, int lane, hn::Vec<D> mean) const {
            const hn::Rebind<Sample, D> samples;
            const auto whole = hn::DemoteTo(hn::Rebind<std::int32_t, D>(), mean);
            if constexpr (kBytes) {
                auto bytes = hn::DemoteTo(samples, whole);
                if (kept_) {
                    const auto blurred = hn::LoadU(samples, kBlurredLanes + lane % 4);
                    bytes = hn::Or(hn::And(blurred, bytes), hn::AndNot(blurred, hn::LoadU(samples, kept_ + lane)));
                }
                hn::StoreU(bytes, samples, to_ + lane);
            } else {
                hn::StoreU(whole, samples, to_ + lane);
            }
        }

      private:
        Sample* to_;
        const Sample* kept_;
    };

    static constexpr std::uint8_t kBlurredLanes[] = {255, 255, 255, 0, 255, 255, 255, 0, 255, 255, 255, 0};

    const BoxLines<Sample>& lines_;
    int radius_;
    std::vector<double> sums_;
};

// Calls `block(x, y)` for the whole blocks of words and `word(x, y)` for what is left at the right and below.
template <class ForBlock, class ForWord>
HWY_INLINE void overWords(int width, int rows, const ForBlock& block, const ForWord& word) {
    const int wholeWidth = width / 4 * 4, wholeRows = rows / 4 * 4;
    for (int x = 0; x < wholeWidth; x += 4) {
        for (int y = 0; y < wholeRows; y += 4)
            block(x, y);
    }
    for (int x = 0; x < width; ++x) {
        for (int y = x < wholeWidth ? wholeRows : 0; y < rows; ++y)
            word(x, y);
    }
}

void turnRowsWide(const void* words, std::ptrdiff_t rowStep, int width, int rows, void* turned) {
    const auto* const from = static_cast<const std::uint32_t*>(words);
    auto* const to = static_cast<std::uint32_t*>(turned);
    overWords(
        width, rows,
        [&](int x, int y)
            HWY_ATTR { WordBlock::load(from + y * rowStep + x, rowStep).turned().store(to + x * rows + y, rows); },
        [&](int x, int y) HWY_ATTR { std::memcpy(to + x * rows + y, from + y * rowStep + x, sizeof *to); });
}

void turnRowsBackWide(const void* turned, int width, int rows, std::uint32_t mask, void* words,
                      std::ptrdiff_t rowStep) {
    const auto* const from = static_cast<const std::uint32_t*>(turned);
    auto* const to = static_cast<std::uint32_t*>(words);
    overWords(
        width, rows,
        [&](int x, int y) HWY_ATTR {
            WordBlock::load(from + x * rows + y, rows).turned().store(to + y * rowStep + x, rowStep, mask);
        },
        [&](int x, int y) HWY_ATTR {
            std::uint32_t before, after;
            std::memcpy(&before, to + y * rowStep + x, sizeof before);
            std::memcpy(&after, from + x * rows + y, sizeof after);
            after = (after & mask) | (before & ~mask);
            std::memcpy(to + y * rowStep + x, &after, sizeof after);
        });
}

void slideBytes(const BoxLines<std::uint8_t>& lines, int radius) {
    SlidingBox<std::uint8_t>(lines, radius).run();
}

void slideInts(const BoxLines<std::int32_t>& lines, int radius) {
    SlidingBox<std::int32_t>(lines, radius).run();
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(slideBytes);
HWY_EXPORT(slideInts);
HWY_EXPORT(turnRowsWide);
HWY_EXPORT(turnRowsBackWide);

void boxMeans(const BoxLines<std::uint8_t>& lines, int radius) {
    HWY_DYNAMIC_DISPATCH(slideBytes)(lines, radius);
}

void boxMeans(const BoxLines<std::int32_t>& lines, int radius) {
    HWY_DYNAMIC_DISPATCH(slideInts)(lines, radius);
}

void turnRows(const void* words, std::ptrdiff_t rowStep, int width, int rows, void* turned) {
    HWY_DYNAMIC_DISPATCH(turnRowsWide)(words, rowStep, width, rows, turned);
}

void turnRowsBack(const void* turned, int width, int rows, std::uint32_t mask, void* words, std::ptrdiff_t rowStep) {
    HWY_DYNAMIC_DISPATCH(turnRowsBackWide)(turned, width, rows, mask, words, rowStep);
}

}  // namespace tavrin
#endif

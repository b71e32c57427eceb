#include "effects/sketch/SketchFlatten.h"

#include <algorithm>
#include <vector>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effects/sketch/SketchFlatten.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

constexpr int kReach = 3;
constexpr int kPadding = 32;             // a multiple of every vector
constexpr std::int16_t kOutside = 1000;  // farther from every mean than any nearness

using Lane = std::int16_t;
using LaneTag = HWY_CAPPED(std::int16_t, kPadding);
using Row = std::vector<Lane>;

int insideOf(int centre, int length) {
    return std::min(centre + kReach, length - 1) - std::max(centre - kReach, 0) + 1;
}

// The largest number of near pixels that leaves a block of `count` pixels uneven.
Lane mostOfUneven(int count) {
    int most = 0;
    while (!((most + 1) / static_cast<double>(count) > 0.6))
        ++most;
    return static_cast<Lane>(most);
}

// The rows that a run of rows looks at, each with a rim that is near to nothing, and what one row's blocks come to.
// Rows are padded to whole vectors.
class BlockRows {
  public:
    BlockRows(const FlattenParams& params, int first, int last)
        : params_(params),
          first_(first),
          padded_((params.width + kPadding - 1) / kPadding * kPadding),
          stride_(padded_ + 2 * kReach),
          rows_(static_cast<std::size_t>(stride_) * (last - first + 2 * kReach + 1), kOutside),
          columnSums_(stride_, 0),
          sums_(padded_, 0),
          counts_(padded_, 1),
          mostOfUneven_(padded_, 1),
          means_(padded_, 0),
          nearCounts_(padded_, 0),
          nearSums_(padded_, 0),
          nearMeans_(padded_, 0),
          flat_(padded_),
          negative_(padded_) {
        for (int y = std::max(first - kReach - 1, 0); y < std::min(last + kReach, params.height); ++y)
            std::copy_n(params.grey + static_cast<std::ptrdiff_t>(y) * params.width, params.width, rowAt(y) + kReach);
        for (int y = std::max(first - kReach - 1, 0); y < std::min(first + kReach, params.height); ++y)
            addToColumns<false>(y);
    }

    // Works off row y, the one after the last (or the first).
    void flatten(int y, std::uint8_t* flat, std::uint16_t* negative) {
        if (y + kReach < params_.height) addToColumns<false>(y + kReach);
        if (y - kReach - 1 >= 0) addToColumns<true>(y - kReach - 1);
        countBlocks(y);
        addUpBlocks();
        divide(sums_, counts_, means_);
        findNear(y);
        divide(nearSums_, nearCounts_, nearMeans_);
        choose(y);
        std::copy_n(flat_.begin(), params_.width, flat);
        std::copy_n(negative_.begin(), params_.width, negative);
    }

  private:
    static int lanes() { return static_cast<int>(hn::Lanes(LaneTag())); }

    // With the rim to its left.
    Lane* rowAt(int y) { return rows_.data() + static_cast<std::ptrdiff_t>(y - first_ + kReach + 1) * stride_; }

    template <bool kRemove>
    void addToColumns(int y) {
        const LaneTag d;
        const Lane* grey = rowAt(y) + kReach;
        for (int x = 0; x < padded_; x += lanes(), grey += lanes()) {
            Lane* sum = columnSums_.data() + kReach + x;
            const auto before = hn::LoadU(d, sum), value = hn::LoadU(d, grey);
            hn::StoreU(kRemove ? hn::Sub(before, value) : hn::Add(before, value), d, sum);
        }
        // Beyond the picture there is nothing to add.
        std::fill(columnSums_.begin() + kReach + params_.width, columnSums_.end(), Lane{0});
    }

    // How many pixels each block has; the same for most rows.
    void countBlocks(int y) {
        const int rowCount = insideOf(y, params_.height);
        if (rowCount == rowCount_) return;
        rowCount_ = rowCount;
        for (int x = 0; x < params_.width; ++x) {
            const int count = rowCount * insideOf(x, params_.width);
            mostOfUneven_[x] = x > 0 && count == counts_[x - 1] ? mostOfUneven_[x - 1] : mostOfUneven(count);
            counts_[x] = static_cast<Lane>(count);
        }
    }

    void addUpBlocks() {
        const LaneTag d;
        for (int x = 0; x < padded_; x += lanes()) {
            auto sum = hn::LoadU(d, columnSums_.data() + x);
            for (int column = 1; column <= 2 * kReach; ++column)
                sum = hn::Add(sum, hn::LoadU(d, columnSums_.data() + x + column));
            hn::StoreU(sum, d, sums_.data() + x);
        }
    }

    // Truncated quotients, 0 where the divisor is 0. The quotients of such small numbers are never so near below a
    // whole number that they would round up to it.
    void divide(const Row& sums, const Row& counts, Row& quotients) const {
        const HWY_CAPPED(float, 16) d;
        const hn::Rebind<Lane, decltype(d)> lanes16;
        const hn::RebindToSigned<decltype(d)> words;
        for (int x = 0; x < padded_; x += static_cast<int>(hn::Lanes(d))) {
            const auto number = [&](const Row& row) HWY_ATTR {
                return hn::ConvertTo(d, hn::PromoteTo(words, hn::LoadU(lanes16, row.data() + x)));
            };
            const auto quotient = hn::Div(number(sums), hn::Max(number(counts), hn::Set(d, 1.0F)));
            hn::StoreU(hn::DemoteTo(lanes16, hn::ConvertTo(words, quotient)), lanes16, quotients.data() + x);
        }
    }

    // Counts and adds up the near pixels of each block.
    void findNear(int y) {
        const LaneTag d;
        const auto tooFar = hn::Set(d, static_cast<Lane>(params_.nearness + 1)), one = hn::Set(d, Lane{1});
        for (int x = 0; x < padded_; x += lanes()) {
            const auto mean = hn::LoadU(d, means_.data() + x);
            auto count = hn::Zero(d), sum = hn::Zero(d);
            for (int dy = -kReach; dy <= kReach; ++dy) {
                const Lane* row = rowAt(y + dy) + x;
                for (int column = 0; column <= 2 * kReach; ++column) {
                    const auto grey = hn::LoadU(d, row + column);
                    const auto near = hn::Lt(hn::Abs(hn::Sub(grey, mean)), tooFar);
                    count = hn::IfThenElse(near, hn::Add(count, one), count);
                    sum = hn::IfThenElse(near, hn::Add(sum, grey), sum);
                }
            }
            hn::StoreU(count, d, nearCounts_.data() + x);
            hn::StoreU(sum, d, nearSums_.data() + x);
        }
    }

    void choose(int y) {
        const LaneTag d;
        const hn::RebindToUnsigned<LaneTag> shorts;
        const hn::Rebind<std::uint8_t, LaneTag> bytes;
        const auto top = hn::Set(d, Lane{255});
        for (int x = 0; x < padded_; x += lanes()) {
            const auto own = hn::LoadU(d, rowAt(y) + kReach + x), mean = hn::LoadU(d, means_.data() + x);
            const auto isFlat = hn::Gt(hn::LoadU(d, nearCounts_.data() + x), hn::LoadU(d, mostOfUneven_.data() + x));
            const auto nearMean = hn::LoadU(d, nearMeans_.data() + x);
            const auto sharp = hn::Min(hn::Max(hn::Sub(hn::Add(own, own), mean), hn::Zero(d)), top);
            const auto counted = hn::IfThenElse(isFlat, nearMean, sharp);
            hn::StoreU(hn::DemoteTo(bytes, hn::IfThenElse(isFlat, nearMean, own)), bytes, flat_.data() + x);
            hn::StoreU(hn::BitCast(shorts, hn::Mul(hn::Sub(top, counted), top)), shorts, negative_.data() + x);
        }
    }

    const FlattenParams& params_;
    int first_, padded_, stride_, rowCount_ = 0;
    Row rows_, columnSums_, sums_, counts_, mostOfUneven_, means_, nearCounts_, nearSums_, nearMeans_;
    std::vector<std::uint8_t> flat_;
    std::vector<std::uint16_t> negative_;
};

void flattenRowsWide(const FlattenParams& params, int first, int last, std::uint8_t* flat, std::uint16_t* negative) {
    BlockRows blocks(params, first, last);
    for (int y = first; y < last; ++y) {
        const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(y) * params.width;
        blocks.flatten(y, flat + row, negative + row);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(flattenRowsWide);

void flattenRows(const FlattenParams& params, int first, int last, std::uint8_t* flat, std::uint16_t* negative) {
    HWY_DYNAMIC_DISPATCH(flattenRowsWide)(params, first, last, flat, negative);
}

}  // namespace tavrin
#endif

#include "effects/SketchFlatten.h"

#include <algorithm>
#include <vector>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kReach = 3;
constexpr int kLanes = 16;               // pixels that are looked at together
constexpr std::int16_t kOutside = 1000;  // farther from every mean than any nearness

using Lane = std::int16_t;

int insideOf(int centre, int length) {
    return std::min(centre + kReach, length - 1) - std::max(centre - kReach, 0) + 1;
}

/// The rows that a run of rows looks at, each with a rim that is near to nothing, and the means of one row's blocks.
class BlockRows {
  public:
    BlockRows(const FlattenParams& params, int first, int last)
        : params_(params),
          first_(first),
          padded_((params.width + kLanes - 1) / kLanes * kLanes),
          stride_(padded_ + 2 * kReach),
          rows_(static_cast<std::size_t>(stride_) * (last - first + 2 * kReach), kOutside),
          columnSums_(static_cast<std::size_t>(params.width), 0),
          means_(static_cast<std::size_t>(padded_), 0) {
        for (int y = std::max(first - kReach, 0); y < std::min(last + kReach, params.height); ++y)
            std::copy_n(greyRow(y), params.width, rows_.begin() + (y - first + kReach) * stride_ + kReach);
        for (int y = std::max(first - kReach - 1, 0); y < std::min(first + kReach, params.height); ++y)
            addToColumns(y, 1);
    }

    /// Moves on to row y, the one after the last (or the first); its means stand then.
    void moveTo(int y) {
        if (y + kReach < params_.height) addToColumns(y + kReach, 1);
        if (y - kReach - 1 >= 0) addToColumns(y - kReach - 1, -1);
        const int rowCount = insideOf(y, params_.height);
        int sum = 0;
        for (int x = 0; x < std::min(kReach, params_.width); ++x)
            sum += columnSums_[x];
        for (int x = 0; x < params_.width; ++x) {
            if (x + kReach < params_.width) sum += columnSums_[x + kReach];
            if (x - kReach - 1 >= 0) sum -= columnSums_[x - kReach - 1];
            means_[x] = static_cast<Lane>(sum / (rowCount * insideOf(x, params_.width)));
        }
    }

    const std::vector<Lane>& means() const { return means_; }

    /// Counts and adds up the near pixels of the blocks around the pixels x to x + kLanes - 1 of row y.
    void findNear(int x, int y, Lane (&count)[kLanes], Lane (&sum)[kLanes]) const {
        const Lane nearness = static_cast<Lane>(params_.nearness);
        const Lane* mean = &means_[x];
        std::fill_n(count, kLanes, Lane{0});
        std::fill_n(sum, kLanes, Lane{0});
        for (int row = 0; row <= 2 * kReach; ++row) {
            for (int column = 0; column <= 2 * kReach; ++column) {
                const Lane* grey = &rows_[static_cast<std::size_t>(y - first_ + row) * stride_ + x + column];
                for (int i = 0; i < kLanes; ++i) {
                    const Lane away = static_cast<Lane>(grey[i] - mean[i]);
                    const Lane distance = std::max(away, static_cast<Lane>(-away));
                    const Lane near = static_cast<Lane>(distance <= nearness ? -1 : 0);
                    count[i] = static_cast<Lane>(count[i] - near);
                    sum[i] = static_cast<Lane>(sum[i] + (grey[i] & near));
                }
            }
        }
    }

  private:
    const std::uint8_t* greyRow(int y) const { return params_.grey + static_cast<std::ptrdiff_t>(y) * params_.width; }
    void addToColumns(int y, int sign) {
        const std::uint8_t* grey = greyRow(y);
        for (int x = 0; x < params_.width; ++x)
            columnSums_[x] += sign * grey[x];
    }

    const FlattenParams& params_;
    int first_, padded_, stride_;
    std::vector<Lane> rows_;
    std::vector<int> columnSums_;
    std::vector<Lane> means_;
};

}  // namespace

void flattenRows(const FlattenParams& params, int first, int last, std::uint8_t* picture, std::uint16_t* negative) {
    BlockRows blocks(params, first, last);
    Lane nearCount[kLanes], nearSum[kLanes];
    for (int y = first; y < last; ++y) {
        blocks.moveTo(y);
        const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(y) * params.width;
        const int rowCount = insideOf(y, params.height);
        for (int x = 0; x < params.width; ++x) {
            const int i = x % kLanes;
            if (i == 0) blocks.findNear(x, y, nearCount, nearSum);
            int value = params.grey[row + x], sharpened;
            if (nearCount[i] / static_cast<double>(rowCount * insideOf(x, params.width)) > 0.6) {
                value = sharpened = nearSum[i] / nearCount[i];
            } else {
                sharpened = std::clamp(2 * value - blocks.means()[x], 0, 255);
            }
            std::fill_n(picture + (row + x) * kPixelBytes, 3, static_cast<std::uint8_t>(value));
            negative[row + x] = static_cast<std::uint16_t>((255 - sharpened) * 255);
        }
    }
}

}  // namespace tavrin

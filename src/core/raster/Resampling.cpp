#include "core/raster/Resampling.h"

#include "core/raster/LineShares.h"
#include "core/raster/Pixels.h"

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/raster/Resampling.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "core/raster/OverLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <class D>
using Words = hn::Rebind<std::int32_t, D>;
template <class D>
using Bytes = hn::Rebind<std::uint8_t, D>;

/// Of a picture enlarged, and of one reduced to between one half and its size, as most are.
constexpr int kEnlargedTaps = 2, kReducedTaps = 3;

/// Weighted sums of rows, byte by byte.
void sumRows(const std::uint8_t* first, std::ptrdiff_t stride, const float* weights, int taps, std::size_t count,
             float* sums) {
    overLanes<float, 16>(count, [&](auto d, std::size_t i) HWY_ATTR {
        const auto term = [&](int row) HWY_ATTR {
            const auto bytes = hn::LoadU(Bytes<decltype(d)>(), first + row * stride + i);
            return hn::Mul(hn::ConvertTo(d, hn::PromoteTo(Words<decltype(d)>(), bytes)), hn::Set(d, weights[row]));
        };
        auto sum = term(0);
        for (int row = 1; row < taps; ++row)
            sum = hn::Add(sum, term(row));
        hn::StoreU(sum, d, sums + i);
    });
}

/// Weighted sums of neighbouring pixels, of which `sums` has those from column `left` on. `kTaps` is the number of
/// taps where it is known beforehand, else 0.
template <int kTaps>
void sumColumns(const float* sums, int left, const LineShares& shares, float* out) {
    const int taps = kTaps > 0 ? kTaps : shares.taps;
    const HWY_CAPPED(float, kPixelBytes) d;  // a pixel at a time, where the machine has that many lanes
    const float* weights = shares.weights.data();
    for (const int first : shares.first) {
        const float* pixel = sums + std::ptrdiff_t{kPixelBytes} * (first - left);
        for (std::size_t channel = 0; channel < kPixelBytes; channel += hn::Lanes(d)) {
            const auto term = [&](int tap) HWY_ATTR {
                return hn::Mul(hn::LoadU(d, pixel + kPixelBytes * tap + channel), hn::Set(d, weights[tap]));
            };
            auto sum = term(0);
            for (int tap = 1; tap < taps; ++tap)
                sum = hn::Add(sum, term(tap));
            hn::StoreU(sum, d, out + channel);
        }
        weights += taps;
        out += kPixelBytes;
    }
}

void roundToBytes(const float* values, std::size_t count, std::uint8_t* out) {
    overLanes<float, 16>(count, [&](auto d, std::size_t i) HWY_ATTR {
        const auto nearest = hn::NearestInt(hn::LoadU(d, values + i));
        hn::StoreU(hn::DemoteTo(Bytes<decltype(d)>(), nearest), Bytes<decltype(d)>(), out + i);
    });
}

/// Adds to the sums of a row what stays of the pixels that were there, where they are covered in part.
void keepUncovered(const LineShares& columns, float rowUncovered, const std::uint8_t* there, float* line) {
    const auto keep = [&](std::size_t column) {
        const float rest = 1.0F - (1.0F - rowUncovered) * (1.0F - columns.uncovered[column]);
        for (std::size_t i = column * kPixelBytes; rest > 0.0F && i < (column + 1) * kPixelBytes; ++i)
            line[i] += rest * static_cast<float>(there[i]);
    };
    const std::size_t last = columns.uncovered.size() - 1;
    if (rowUncovered > 0.0F) {
        for (std::size_t column = 1; column < last; ++column)
            keep(column);
    }
    keep(0);
    if (last > 0) keep(last);
}

/// The rows [first, last) of those that `rows` tells of. `out` is where the first one begins.
void resampleRows(const QImage& picture, const LineShares& rows, const LineShares& columns, int first, int last,
                  std::uint8_t* out, std::ptrdiff_t outStride) {
    const int left = columns.first.front(), right = columns.first.back() + columns.taps;
    const std::size_t taken = static_cast<std::size_t>(right - left) * kPixelBytes;
    const std::size_t made = columns.first.size() * kPixelBytes;
    std::vector<float> sums(taken), line(made);
    for (int y = first; y < last; ++y) {
        const auto row = static_cast<std::size_t>(y);
        std::uint8_t* const there = out + y * outStride;
        const std::uint8_t* top = picture.constScanLine(rows.first[row]) + std::ptrdiff_t{kPixelBytes} * left;
        sumRows(top, picture.bytesPerLine(), rows.weightsOf(row), rows.taps, taken, sums.data());
        if (columns.taps == kEnlargedTaps) {
            sumColumns<kEnlargedTaps>(sums.data(), left, columns, line.data());
        } else if (columns.taps == kReducedTaps) {
            sumColumns<kReducedTaps>(sums.data(), left, columns, line.data());
        } else {
            sumColumns<0>(sums.data(), left, columns, line.data());
        }
        keepUncovered(columns, rows.uncovered[row], there, line.data());
        roundToBytes(line.data(), made, there);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(resampleRows);

bool drawResampled(const QImage& picture, const QRectF& place, QImage& onto, const RunContext& run) {
    constexpr int kGrainRows = 16;
    const QRect part = place.toAlignedRect() & onto.rect();
    if (part.isEmpty()) return true;
    const LineShares rows = shareLine(picture.height(), {place.top(), picture.height() / place.height()}, part.top(),
                                      part.top() + part.height());
    const LineShares columns = shareLine(picture.width(), {place.left(), picture.width() / place.width()},
                                         part.left(), part.left() + part.width());
    std::uint8_t* const out = onto.scanLine(part.top()) + std::ptrdiff_t{kPixelBytes} * part.left();
    return runRowRanges(run, part.height(), kGrainRows, [&](int first, int last) {
        HWY_DYNAMIC_DISPATCH(resampleRows)(picture, rows, columns, first, last, out, onto.bytesPerLine());
    });
}

}  // namespace tavrin
#endif

#include "effects/smoothing/SmoothingTiles.h"

#include <algorithm>
#include <cstring>
#include <memory>

// This file is compiled once for each vector target.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effects/smoothing/SmoothingTiles.cpp"
#include <hwy/foreach_target.h>

#include "core/raster/Lanes-inl.h"
#include "core/raster/TurnLanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace tavrin {
namespace HWY_NAMESPACE {

constexpr int kSide = SmoothingTiles::kSide, kChannels = SmoothingTiles::kChannels;
constexpr std::ptrdiff_t kLine = SmoothingTiles::kLine, kTile = SmoothingTiles::kTile;

using FloatLanes = HWY_CAPPED(float, kSide);
using WordLanes = hn::RebindToSigned<FloatLanes>;

// Eight lines that are solved side by side. Pixel i of all of them is a line of a tile.
struct TileLines {
    float* first;
    std::ptrdiff_t tileStep;  // from a tile to the next one
    int count;                // pixels in a line

    float* at(int i) const { return first + i / kSide * tileStep + i % kSide * kLine; }
};

// Solves lines one vector of them after the other.
class LineSolver {
    using D = WideLanes;
    using V = Doubles<D>;
    using Colors = RgbLanes<D>;

  public:
    LineSolver(const SmoothingWeights& weights, int count)
        : likeness_(weights.likeness.data()),
          strength_(-weights.strength),
          work_(new double[static_cast<std::size_t>(count) * kWork]) {}

    void solve(const TileLines& lines) const {
        for (int lane = 0; lane < kSide; lane += static_cast<int>(hn::Lanes(d_))) {
            eliminate(lines, lane);
            substitute(lines, lane);
        }
    }

  private:
    static constexpr int kWork = 4 * kSide;  // doubles that the elimination keeps of a pixel of all lines

    HWY_INLINE Colors load(const float* pixel) const {
        const hn::Rebind<float, D> floats;
        const auto channel = [&](int c) HWY_ATTR { return hn::PromoteTo(d_, hn::LoadU(floats, pixel + c * kSide)); };
        return {channel(0), channel(1), channel(2)};
    }

    HWY_INLINE void store(const Colors& c, float* pixel) const {
        const auto channel = [&](V value, float* to) HWY_ATTR {
#if HWY_TARGET == HWY_SCALAR
            *to = static_cast<float>(hn::GetLane(value));  // where the library's own would not keep infinity
#else
            const hn::Rebind<float, D> floats;
            hn::StoreU(hn::DemoteTo(floats, value), floats, to);
#endif
        };
        channel(c.r, pixel);
        channel(c.g, pixel + kSide);
        channel(c.b, pixel + 2 * kSide);
    }

    HWY_INLINE V likeness(const Colors& a, const Colors& b) const {
        const V r = hn::Sub(a.r, b.r), g = hn::Sub(a.g, b.g), bl = hn::Sub(a.b, b.b);
        const V squares = hn::Add(hn::Add(hn::Mul(r, r), hn::Mul(g, g)), hn::Mul(bl, bl));
        const auto index = hn::DemoteTo(WordTag<D>(), clampLanes(d_, squares, 0.0, kMostDistance));
        return hn::GatherIndex(d_, likeness_, hn::PromoteTo(hn::RebindToSigned<D>(), index));
    }

    // Keeps of each pixel its share of the next one, and its colour without that.
    HWY_INLINE void eliminate(const TileLines& lines, int lane) const {
        const V zero = hn::Zero(d_), one = hn::Set(d_, 1.0), strength = hn::Set(d_, strength_);
        V back = zero, toNext = zero;
        Colors before{zero, zero, zero}, here = load(lines.at(0) + lane);
        double* out = work_.get() + lane;
        for (int i = 0; i < lines.count; ++i, out += kWork) {
            V on = zero;
            Colors next = here;
            if (i + 1 < lines.count) {
                next = load(lines.at(i + 1) + lane);
                on = hn::Mul(likeness(here, next), strength);
            }
            V pivot = hn::Sub(hn::Sub(hn::Sub(one, back), on), hn::Mul(back, toNext));
            if (i == 0) pivot = hn::IfThenElse(hn::Eq(pivot, zero), one, pivot);
            toNext = hn::Div(on, pivot);
            before = {hn::Div(hn::Sub(here.r, hn::Mul(back, before.r)), pivot),
                      hn::Div(hn::Sub(here.g, hn::Mul(back, before.g)), pivot),
                      hn::Div(hn::Sub(here.b, hn::Mul(back, before.b)), pivot)};
            hn::StoreU(toNext, d_, out);
            hn::StoreU(before.r, d_, out + kSide);
            hn::StoreU(before.g, d_, out + 2 * kSide);
            hn::StoreU(before.b, d_, out + 3 * kSide);
            back = on;
            here = next;
        }
    }

    HWY_INLINE void substitute(const TileLines& lines, int lane) const {
        const double* in = work_.get() + static_cast<std::ptrdiff_t>(lines.count - 1) * kWork + lane;
        Colors next = kept(in);
        store(next, lines.at(lines.count - 1) + lane);
        for (int i = lines.count - 2; i >= 0; --i) {
            in -= kWork;
            const V toNext = hn::LoadU(d_, in);
            const Colors c = kept(in);
            next = {hn::Sub(c.r, hn::Mul(toNext, next.r)), hn::Sub(c.g, hn::Mul(toNext, next.g)),
                    hn::Sub(c.b, hn::Mul(toNext, next.b))};
            store(next, lines.at(i) + lane);
        }
    }

    HWY_INLINE Colors kept(const double* in) const {
        return {hn::LoadU(d_, in + kSide), hn::LoadU(d_, in + 2 * kSide), hn::LoadU(d_, in + 3 * kSide)};
    }

    D d_;
    const double* likeness_;
    double strength_;
    std::unique_ptr<double[]> work_;
};

// Makes a tile's rows its columns.
HWY_INLINE void turnTile(float* tile) {
    constexpr int kHalf = kSide / 2;
    static_assert(kHalf == 4);
    for (int c = 0; c < kChannels; ++c, tile += kSide) {
        float *right = tile + kHalf, *below = tile + kLine * kHalf, *across = below + kHalf;
        const WordBlock upperRight = WordBlock::load(right, kLine), lowerLeft = WordBlock::load(below, kLine);
        WordBlock::load(tile, kLine).turned().store(tile, kLine);
        WordBlock::load(across, kLine).turned().store(across, kLine);
        lowerLeft.turned().store(right, kLine);
        upperRight.turned().store(below, kLine);
    }
}

void turnTileRow(const SmoothingTiles& tiles, int tileRow) {
    for (int column = 0; column < tiles.tileColumns(); ++column)
        turnTile(tiles.tile(tileRow, column));
}

void smoothTileRowWide(const SmoothingTiles& tiles, int tileRow, const SmoothingWeights& weights) {
    turnTileRow(tiles, tileRow);
    LineSolver(weights, tiles.width()).solve({tiles.tile(tileRow, 0), kTile, tiles.width()});
    turnTileRow(tiles, tileRow);
}

void smoothTileColumnWide(const SmoothingTiles& tiles, int tileColumn, const SmoothingWeights& weights) {
    LineSolver(weights, tiles.height()).solve({tiles.tile(0, tileColumn), tiles.tileRowStep(), tiles.height()});
}

// The 8 pixels that a line of a tile covers, as far as they are there.
struct PixelLine {
    int x, count;

    PixelLine(const SmoothingTiles& tiles, int tileColumn)
        : x(tileColumn * kSide), count(std::min(kSide, tiles.width() - x)) {}
};

HWY_INLINE void loadLine(const std::int32_t* words, float* line) {
    const FloatLanes d;
    const WordLanes integers;
    for (int i = 0; i < kSide; i += static_cast<int>(hn::Lanes(d))) {
        const auto pixels = hn::LoadU(integers, words + i), byte = hn::Set(integers, 255);
        hn::StoreU(hn::ConvertTo(d, hn::And(pixels, byte)), d, line + i);
        hn::StoreU(hn::ConvertTo(d, hn::And(hn::ShiftRight<8>(pixels), byte)), d, line + kSide + i);
        hn::StoreU(hn::ConvertTo(d, hn::And(hn::ShiftRight<16>(pixels), byte)), d, line + 2 * kSide + i);
    }
}

// Truncates to bytes as `toByte` does; alpha stays.
HWY_INLINE void storeLine(const float* line, std::int32_t* words) {
    const FloatLanes d;
    const WordLanes integers;
    for (int i = 0; i < kSide; i += static_cast<int>(hn::Lanes(d))) {
        const auto byte = [&](int channel) HWY_ATTR {
            const auto value = hn::LoadU(d, line + channel * kSide + i), top = hn::Set(d, 255.0F);
            const auto above = hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value);
            return hn::ConvertTo(integers, hn::IfThenElse(hn::Ge(above, top), top, above));
        };
        const auto alpha =
            hn::And(hn::LoadU(integers, words + i), hn::Set(integers, static_cast<std::int32_t>(0xFF000000u)));
        const auto colour = hn::Or(byte(0), hn::Or(hn::ShiftLeft<8>(byte(1)), hn::ShiftLeft<16>(byte(2))));
        hn::StoreU(hn::Or(alpha, colour), integers, words + i);
    }
}

void loadTileRowWide(const SmoothingTiles& tiles, int tileRow, const std::uint8_t* rgba) {
    std::int32_t words[kSide] = {};
    for (int column = 0; column < tiles.tileColumns(); ++column) {
        const PixelLine pixels(tiles, column);
        float* line = tiles.tile(tileRow, column);
        std::fill_n(words, kSide, 0);
        for (int row = 0; row < kSide; ++row, line += kLine) {
            const int y = tileRow * kSide + row;
            if (y < tiles.height()) {
                std::memcpy(words, rgba + pixelOffset(tiles.width(), pixels.x, y), pixelBytes(pixels.count, 1));
            } else {
                std::fill_n(words, kSide, 0);
            }
            loadLine(words, line);
        }
    }
}

void storeTileRowWide(const SmoothingTiles& tiles, int tileRow, std::uint8_t* rgba) {
    std::int32_t words[kSide] = {};
    for (int column = 0; column < tiles.tileColumns(); ++column) {
        const PixelLine pixels(tiles, column);
        const float* line = tiles.tile(tileRow, column);
        for (int y = tileRow * kSide; y < std::min((tileRow + 1) * kSide, tiles.height()); ++y, line += kLine) {
            std::uint8_t* to = rgba + pixelOffset(tiles.width(), pixels.x, y);
            std::memcpy(words, to, pixelBytes(pixels.count, 1));
            storeLine(line, words);
            std::memcpy(to, words, pixelBytes(pixels.count, 1));
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace tavrin
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace tavrin {

HWY_EXPORT(loadTileRowWide);
HWY_EXPORT(storeTileRowWide);
HWY_EXPORT(smoothTileRowWide);
HWY_EXPORT(smoothTileColumnWide);

void loadTileRow(const SmoothingTiles& tiles, int tileRow, const std::uint8_t* rgba) {
    HWY_DYNAMIC_DISPATCH(loadTileRowWide)(tiles, tileRow, rgba);
}

void storeTileRow(const SmoothingTiles& tiles, int tileRow, std::uint8_t* rgba) {
    HWY_DYNAMIC_DISPATCH(storeTileRowWide)(tiles, tileRow, rgba);
}

void smoothTileRow(const SmoothingTiles& tiles, int tileRow, const SmoothingWeights& weights) {
    HWY_DYNAMIC_DISPATCH(smoothTileRowWide)(tiles, tileRow, weights);
}

void smoothTileColumn(const SmoothingTiles& tiles, int tileColumn, const SmoothingWeights& weights) {
    HWY_DYNAMIC_DISPATCH(smoothTileColumnWide)(tiles, tileColumn, weights);
}

}  // namespace tavrin
#endif

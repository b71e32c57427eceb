#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/raster/Pixels.h"

namespace tavrin {

/// A picture of three floats a pixel in tiles of 8 by 8 pixels, tile after tile along a row of tiles. In a tile 8
/// pixels side by side have their reds together, then their greens and their blues, so that vectors take them as they
/// lie. Tiles at the right and lower border are filled up with zeros.
class SmoothingTiles {
  public:
    static constexpr int kSide = 8, kChannels = 3;
    static constexpr std::ptrdiff_t kLine = std::ptrdiff_t{kSide} * kChannels;  ///< floats of 8 pixels
    static constexpr std::ptrdiff_t kTile = kLine * kSide;

    /// With undefined contents; `data()` is null where memory was refused.
    SmoothingTiles(int width, int height)
        : width_(width),
          height_(height),
          rows_((height - 1) / kSide + 1),
          columns_((width - 1) / kSide + 1),
          buffer_(columns_ * kSide, rows_ * kSide * kChannels) {}

    int width() const { return width_; }
    int height() const { return height_; }
    int tileRows() const { return rows_; }
    int tileColumns() const { return columns_; }
    float* data() const { return reinterpret_cast<float*>(buffer_.data()); }
    float* tile(int row, int column) const {
        return data() + (static_cast<std::ptrdiff_t>(row) * columns_ + column) * kTile;
    }
    /// Floats from a tile to the one below it.
    std::ptrdiff_t tileRowStep() const { return columns_ * kTile; }

  private:
    int width_, height_, rows_, columns_;
    PixelBuffer buffer_;
};

/// What a line's solution depends on.
struct SmoothingWeights {
    /// How alike neighbours of a squared colour distance are: 1 for equal ones, towards 0 across an edge.
    const std::vector<double>& likeness;
    double strength;
};

/// The squared distance of black and white: the last index of the likeness.
inline constexpr int kMostDistance = 3 * 255 * 255;

// Each works on one row or column of tiles, with the vectors of this machine.

/// Reads and writes the first three bytes of the pixels of an RGBA picture of the tiles' size.
void loadTileRow(const SmoothingTiles& tiles, int tileRow, const std::uint8_t* rgba);
void storeTileRow(const SmoothingTiles& tiles, int tileRow, std::uint8_t* rgba);

/// Solves the tridiagonal systems of the lines of a row or column of tiles: the weight between neighbours is
/// -`strength` times their likeness, the diagonal 1 minus the weights on both sides (L. H. Thomas' elimination). A
/// first pivot of 0 counts as 1.
void smoothTileRow(const SmoothingTiles& tiles, int tileRow, const SmoothingWeights& weights);
void smoothTileColumn(const SmoothingTiles& tiles, int tileColumn, const SmoothingWeights& weights);

}  // namespace tavrin

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <QImage>

#include "core/RandomSource.h"
#include "core/state/SystemInfo.h"

namespace tavrin {

/// A texture stretched over one picture, fixed for a run. What depends on the texture's value alone is worked out
/// beforehand for all 256 values.
struct TextureParams {
    int width = 0, height = 0;              ///< of the picture under the texture
    const std::uint8_t* texture = nullptr;  ///< its pixels, 4 bytes each
    /// Where in `texture` a pixel of the picture finds its value: the sum of its column's and its row's offset. A
    /// texture that lies turned differs in these offsets only.
    std::vector<std::size_t> columnOffset, rowOffset;
    std::array<double, 256> shade{};  ///< texture value after brightness and contrast, at most 255
    std::array<int, 256> shift{};     ///< displacement in pixels, down and to the right
    bool white = false;               ///< the texture is inverted
    bool displaces = false;           ///< some shift is not 0, so a pixel may take another one's colour
    double gain = 1.0, brightness = 50.0, share = 0.0;
};

/// The settings and the pixels that `params` points into.
struct LoadedTexture {
    QImage picture;
    TextureParams params;
};

/// Reads the texture's file and fits it to a picture of `size`: its long side along the picture's.
/// @param leftOut what the alert says when the file cannot be read (NamedPictures.h)
/// @return nothing when the file cannot be read or the size is below 1
std::optional<LoadedTexture> loadTexture(SystemInfo& info, const ImageTexture& texture, const PassGeometry& size,
                                         const char* leftOut);

/// The texture at a position of the picture, 0 to 255: the greatest of its first three bytes.
int GetTexture(const TextureParams& params, int x, int y);

/// Lays the texture over pixel (x, y) of `buffer`; alpha stays. The colour comes from `copy`, displaced by the
/// texture: the unchanged picture, or `buffer` itself where displaced reads are to see what is already done. A shift
/// above 1 is drawn from `random`; one source for each row keeps a run independent of threads.
void SetTextureAtPoint(const TextureParams& params, std::uint8_t* buffer, const std::uint8_t* copy, int x, int y,
                       RandomSource& random);

/// Gives a finished picture the surface of `oImageTexture`: `buffer` (RGBA, rows packed, size of `res`) is changed
/// but for its last row and column. A texture that cannot be read leaves it as it was. A superseded run stops at the
/// next row, unless `bLightingForceCompute` is set.
/// @param res 1: full picture, otherwise preview
void AddTexture(SystemInfo& info, std::uint8_t* buffer, int res);

}  // namespace tavrin

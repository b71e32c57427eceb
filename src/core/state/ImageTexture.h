#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// A grey relief picture laid over a picture, a frame or a reflection.
struct ImageTexture {
    Field<bool> bHaveTexture = false;
    Field<std::string> sTextureFileName;
    Field<std::int32_t> iTextureBrightness = 60;     ///< 50 is neutral
    Field<std::int32_t> iTextureContrast = 50;       ///< 50 is neutral
    Field<std::int32_t> iTexturePercent = 70;        ///< mix into the result
    Field<std::int32_t> iTextureOffsetPercent = 10;  ///< strength of the displacement
    Field<bool> bWhite = false;                      ///< invert the texture
    Field<bool> bBackgroundOnly = false;
    Field<std::int32_t> iTextureType = 1;

    static std::span<const Leaf<ImageTexture>> leaves();
};

}  // namespace tavrin

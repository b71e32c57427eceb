#pragma once

#include "core/state/ImageTexture.h"
#include "core/state/Leaf.h"

namespace tavrin {

/// A border around the picture.
struct ImageFrame {
    ImageFrame() { oTexture.iTextureOffsetPercent = 0; }

    Field<std::int32_t> iFrameType = 0;  ///< 0 none, 1 square, 2 oval, 3 heart, 4 jagged
    Field<std::int32_t> iFrameColorRed = 0;
    Field<std::int32_t> iFrameColorGreen = 0;
    Field<std::int32_t> iFrameColorBlue = 0;
    Field<std::int32_t> iFrameMode = 1;  ///< 1 colour, 2 blurred picture, 3 adjusted background, 4 frame picture
    Field<std::int32_t> iFrameBlur = 20;
    Field<std::int32_t> iFrameThickness = 10;  ///< percent of the shorter side
    Field<bool> bFrameArch = false;
    Field<std::int32_t> iFrameFeather = 25;
    Field<std::int32_t> iFrameTransparency = 0;  ///< percent
    Field<std::string> sFrameImagePath;
    ImageTexture oTexture;  ///< texture on the frame; its leaves are a group of their own

    static std::span<const Leaf<ImageFrame>> leaves();
};

}  // namespace tavrin

#include "core/state/ImageTexture.h"

namespace tavrin {

std::span<const Leaf<ImageTexture>> ImageTexture::leaves() {
    using G = ImageTexture;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bHaveTexture),     TAVRIN_LEAF(G, sTextureFileName), TAVRIN_LEAF(G, iTextureBrightness),
        TAVRIN_LEAF(G, iTextureContrast), TAVRIN_LEAF(G, iTexturePercent),  TAVRIN_LEAF(G, iTextureOffsetPercent),
        TAVRIN_LEAF(G, bWhite),           TAVRIN_LEAF(G, bBackgroundOnly),  TAVRIN_LEAF(G, iTextureType),
    };
    return table;
}

}  // namespace tavrin

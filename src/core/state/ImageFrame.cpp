#include "core/state/ImageFrame.h"

namespace tavrin {

std::span<const Leaf<ImageFrame>> ImageFrame::leaves() {
    using G = ImageFrame;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iFrameType),
        TAVRIN_LEAF(G, iFrameColorRed),
        TAVRIN_LEAF(G, iFrameColorGreen),
        TAVRIN_LEAF(G, iFrameColorBlue),
        TAVRIN_LEAF(G, iFrameMode),
        TAVRIN_LEAF(G, iFrameBlur),
        TAVRIN_LEAF_NOT_STORED(G, iFrameThickness),
        TAVRIN_LEAF(G, bFrameArch),
        TAVRIN_LEAF(G, iFrameFeather),
        TAVRIN_LEAF(G, iFrameTransparency),
        TAVRIN_LEAF(G, sFrameImagePath),
    };
    return table;
}

}  // namespace tavrin

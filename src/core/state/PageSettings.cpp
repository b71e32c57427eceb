#include "core/state/PageSettings.h"

namespace tavrin {

std::span<const Leaf<OutputGeometry>> OutputGeometry::leaves() {
    using G = OutputGeometry;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, dOutputImageWidthInInches),
        TAVRIN_LEAF(G, dOutputImageHeightInInches),
        TAVRIN_LEAF(G, sImageSizeName),
        TAVRIN_LEAF(G, iSelecteImageSize),
        TAVRIN_LEAF(G, iOutputImageDPI),
        TAVRIN_LEAF(G, iOutputPixelWidth),
        TAVRIN_LEAF(G, iOutputPixelHeight),
        TAVRIN_LEAF(G, dOrgImageScale),
        TAVRIN_LEAF(G, dImageSliderScale),
        TAVRIN_LEAF(G, iOutputImageLowResDPI),
        TAVRIN_LEAF(G, iOutputPixelLowResWidth),
        TAVRIN_LEAF(G, iOutputPixelLowResHeight),
    };
    return table;
}

std::span<const Leaf<SelectionSettings>> SelectionSettings::leaves() {
    using G = SelectionSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iSelectedImageObject),
        TAVRIN_LEAF(G, iSelectedFontObject),
    };
    return table;
}

std::span<const Leaf<BlurSettings>> BlurSettings::leaves() {
    using G = BlurSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, dSliderBlur),
        TAVRIN_LEAF(G, dSliderForegroundBlur),
        TAVRIN_LEAF(G, iSliderForegroundThreshold),
        TAVRIN_LEAF(G, iSliderNoise),
    };
    return table;
}

std::span<const Leaf<ClipSettings>> ClipSettings::leaves() {
    using G = ClipSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iSliderClipTop),
        TAVRIN_LEAF(G, iSliderClipBottom),
        TAVRIN_LEAF(G, iSliderClipRight),
        TAVRIN_LEAF(G, iSliderClipLeft),
    };
    return table;
}

std::span<const Leaf<OverlaySettings>> OverlaySettings::leaves() {
    using G = OverlaySettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, bHaveFrameOverlay),      TAVRIN_LEAF(G, sFrameOverlay),
        TAVRIN_LEAF(G, bHaveForegroundOverlay), TAVRIN_LEAF(G, sForegroundOverlay),
        TAVRIN_LEAF(G, bHaveBackgroundOverlay), TAVRIN_LEAF(G, sBackgroundOverlay),
    };
    return table;
}

std::span<const Leaf<EventSettings>> EventSettings::leaves() {
    using G = EventSettings;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, iEventSaveMode),
        TAVRIN_LEAF(G, sEventEmail),
        TAVRIN_LEAF(G, iEventPrintCount),
    };
    return table;
}

}  // namespace tavrin

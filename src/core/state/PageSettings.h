#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// Size of the result in inches and in pixels, at full resolution and for the preview.
struct OutputGeometry {
    Field<double> dOutputImageWidthInInches = 0.0;
    Field<double> dOutputImageHeightInInches = 0.0;
    Field<std::string> sImageSizeName = "5x7 200 Vert";  ///< name of the selected size
    Field<std::int32_t> iSelecteImageSize = -1;          ///< index into the size list
    Field<std::int32_t> iOutputImageDPI = 0;
    Field<std::int32_t> iOutputPixelWidth = 0;
    Field<std::int32_t> iOutputPixelHeight = 0;
    Field<double> dOrgImageScale = 0.0;
    Field<double> dImageSliderScale = 0.0;
    Field<std::int32_t> iOutputImageLowResDPI = 0;
    Field<std::int32_t> iOutputPixelLowResWidth = 0;
    Field<std::int32_t> iOutputPixelLowResHeight = 0;

    static std::span<const Leaf<OutputGeometry>> leaves();
};

/// Selected items of the text and image lists; -1 is none.
struct SelectionSettings {
    Field<std::int32_t> iSelectedImageObject = -1;
    Field<std::int32_t> iSelectedFontObject = -1;

    static std::span<const Leaf<SelectionSettings>> leaves();
};

/// Background blur and final blur. The radii are in inches on paper.
struct BlurSettings {
    Field<double> dSliderBlur = 0.0;
    Field<double> dSliderForegroundBlur = 0.0;
    Field<std::int32_t> iSliderForegroundThreshold = 0;  ///< colour change up to which the final blur acts
    Field<std::int32_t> iSliderNoise = 0;

    static std::span<const Leaf<BlurSettings>> leaves();
};

/// Percent of the width or height cut away from each side of the subject.
struct ClipSettings {
    Field<std::int32_t> iSliderClipTop = 0;
    Field<std::int32_t> iSliderClipBottom = 0;
    Field<std::int32_t> iSliderClipRight = 0;
    Field<std::int32_t> iSliderClipLeft = 0;

    static std::span<const Leaf<ClipSettings>> leaves();
};

/// Three whole-picture overlays.
struct OverlaySettings {
    Field<bool> bHaveFrameOverlay = false;
    Field<std::string> sFrameOverlay;
    Field<bool> bHaveForegroundOverlay = false;
    Field<std::string> sForegroundOverlay;
    Field<bool> bHaveBackgroundOverlay = false;
    Field<std::string> sBackgroundOverlay;

    static std::span<const Leaf<OverlaySettings>> leaves();
};

/// What a guest chose at the event booth.
struct EventSettings {
    Field<std::int32_t> iEventSaveMode = 0;
    Field<std::string> sEventEmail;
    Field<std::int32_t> iEventPrintCount = 0;

    static std::span<const Leaf<EventSettings>> leaves();
};

}  // namespace tavrin

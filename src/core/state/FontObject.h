#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// One text, picture or label. The box `rectSize` is in points, from its own origin.
struct FontObject {
    Field<std::string> sFontName = "Arial";
    Field<bool> isImage = false;         ///< a picture; `sText` is its path
    Field<std::int32_t> iFontSize = 40;  ///< points at 72 dpi
    Field<double> rectSizeX = 0.0;
    Field<double> rectSizeY = 0.0;
    Field<double> rectSizeWidth = 100.0;
    Field<double> rectSizeHeight = 100.0;
    Field<std::string> sLabelSize = "Medium";
    Field<std::string> sLabelJust = "Left";
    Field<std::string> sLocation = "Top Center";
    Field<bool> bDropShadow = false;
    Field<double> dFontFillRed = 1.0;
    Field<double> dFontFillGreen = 1.0;
    Field<double> dFontFillBlue = 1.0;
    Field<double> dFontOutlineRed = 0.0;
    Field<double> dFontOutlineGreen = 0.0;
    Field<double> dFontOutlineBlue = 0.0;
    Field<double> dFontDropshadowGlowRed = 0.0;
    Field<double> dFontDropshadowGlowGreen = 0.0;
    Field<double> dFontDropshadowGlowBlue = 0.0;
    Field<bool> isItallic = false;
    Field<bool> isBold = false;
    Field<std::string> sLevel = "Frame Layer";
    Field<std::int32_t> iFontDropShadowRadius = 0;
    Field<std::int32_t> iFontDropShadowVert = 0;
    Field<std::int32_t> iFontDropShadowHorz = 0;
    Field<std::int32_t> iFontOutlineThickness = 0;  ///< 0 fill only, 3 outline only, other both
    Field<std::string> sText;
    Field<std::int32_t> iJustify = 0;  ///< 0 left, 1 centre, other right
    Field<std::string> sFontColor = "White";
    Field<std::int64_t> lFontColor = 0;
    Field<std::string> sFontOutlineColor;
    Field<std::int64_t> lFontOutlineColor = 0;
    Field<std::string> sFontShadowColor;
    Field<std::int64_t> lFontShadowColor = 0;
    Field<std::string> sFontGlowColor;
    Field<std::int64_t> lFontGlowColor = 0;
    Field<double> dHorzSizeScale = 0.0;
    Field<double> dVertSizeScale = 0.0;
    Field<double> dTextBackgroundSize = 0.0;
    Field<double> dGlobalScaleX = 1.0;
    Field<double> dGlobalScaleY = 1.0;
    Field<double> xPos = 0.0;
    Field<double> yPos = 0.0;
    Field<double> dInchWidth = 0.0;
    Field<double> dInchHeight = 0.0;
    Field<double> dInchBitmapWidth = 0.0;
    Field<double> dInchBitmapHeight = 0.0;
    Field<double> dInchXPos = 0.0;
    Field<double> dInchYPos = 0.0;
    Field<double> dInchXOffset = 0.0;
    Field<double> dInchYOffset = 0.0;
    Field<std::int32_t> iAngle = 0;
    Field<double> imageSizeWidth = 0.0;
    Field<double> imageSizeHeight = 0.0;
    Field<double> dTransparency = 1.0;  ///< opacity of a picture, 0 to 1

    static std::span<const Leaf<FontObject>> leaves();
};

}  // namespace tavrin

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tavrin {

/// The tools of the airbrush, by their place in the brush table. Places 0, 12, 18 and 19 hold no tool.
enum Brush : int {
    kBlendForeground = 1,
    kPaint = 2,
    kEraseForeground = 3,
    kRestoreForeground = 4,
    kBrightness = 5,
    kContrast = 6,
    kRemoveGreenSpill = 7,
    kRestoreBlack = 8,
    kMakeWhiter = 9,
    kBlendEdge = 10,
    kFilterColor = 11,
    kBlur = 13,
    kSmooth = 14,
    kCopy = 15,
    kRestoreHair = 16,
    kSelection = 17,  ///< no brush: it protects pixels from all the others
};

/// Settings of one tool, and how the panel shows it.
struct GUI_BrushInfo {
    std::int64_t lColor = 0;  ///< 0xFF000000, red in bits 16 to 23, green in 8 to 15, blue in 0 to 7
    std::uint8_t red = 0, green = 0, blue = 0;
    double dBrushSlider = 0.5;   ///< the tool's own slider, 0 to 1
    double dRadius = 0.25;       ///< 0 to 1; see `radiusInPixels`
    double dHardness = 0.5;      ///< share of the radius that has full strength, 0 to 1
    double dTransparency = 1.0;  ///< strength at the centre, 0 to 1
    bool bColorEnabled = false, bSliderEnabled = false, bCheckBoxEnabled = false;
    std::string sCheckBoxName, sSliderMin, sSliderMax, sSliderText, sBrushName;
    bool bCheckBoxValue = false;
    std::int32_t iHairColor = 0;  ///< kept with the others; no tool reads it

    /// Takes everything but the texts.
    void copySetting(const GUI_BrushInfo& from);
    void setColor(std::uint8_t r, std::uint8_t g, std::uint8_t b);
    /// Radius of its stamp in pixels of the picture, truncated; `scale` is 1 unless edits are played at another size.
    std::int32_t radiusInPixels(double scale = 1.0) const;
};

inline constexpr std::size_t kBrushes = 20;
using BrushTable = std::array<GUI_BrushInfo, kBrushes>;

/// The tools as they are when the program starts.
BrushTable makeBrushTable();

/// The tool of a panel button's key equivalent, as in 'e' for "Erase Foreground"; -1 when no button has it.
int brushOfKey(std::int64_t key);
/// The other way round; 0 for a place without a tool.
char keyOfBrush(int brush);

}  // namespace tavrin

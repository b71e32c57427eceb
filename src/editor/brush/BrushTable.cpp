#include "editor/brush/BrushTable.h"

#include <algorithm>

namespace tavrin {

namespace {

constexpr double kRadiusRange = 200.0;  // pixels of a full radius slider
constexpr double kLargestRadius = 2e7;  // beyond every picture, whatever a file scales it to

// The key equivalents by place in the table.
constexpr char kKeys[kBrushes + 1] =
    "\0bper67s3w2f\0"
    "45ch8\0\0";

struct Look {
    int brush;
    const char *name, *checkBox, *sliderText, *sliderMin, *sliderMax;
    bool slider;
};

// Two tools are called "Paint", one text has lost its end: people know the panel so.
constexpr Look kLooks[] = {
    {kBlendForeground, "Blend Foreground", "", "Blend", "Background", "Foreground", true},
    {kPaint, "Paint", "Keep Grayscale", "Tolerance", "Low", "High", false},
    {kEraseForeground, "Erase Foreground", "Erase only if green", "Not active for Erase", "", "", false},
    {kRestoreForeground, "Restore Foreground", "Restore Green Areas", "Not active for Restor", "", "", false},
    {kBrightness, "Brightness", "", "", "Darker", "Brighter", true},
    {kContrast, "Contrast", "", "Contrast", "Less", "More", true},
    {kRemoveGreenSpill, "Remove Green Spill", "", "Sample Radius", "10", "100", false},
    {kRestoreBlack, "Restore Black", "", "Tolerance", "Low", "High", true},
    {kMakeWhiter, "Make Whiter", "", "Tolerance", "Low", "High", true},
    {kBlendEdge, "Blend Edge", "", "Edge Sample", "1", "10", true},
    {kFilterColor, "Filter Color", "", "Tolerance", "Low", "High", false},
    {kBlur, "Blur", "", "Blur Radius", "1", "10", true},
    {kSmooth, "Smooth", "", "Smooth Radius", "1", "10", true},
    {kCopy, "Copy", "Lock Anchor", "Edge Sample", "2", "10", false},
    {kRestoreHair, "Restore Hair", "", "Blend", "Background", "Foreground", false},
    {kSelection, "Paint", "Invert Selection", "Tolerance", "Low", "High", true},
};

}  // namespace

void GUI_BrushInfo::copySetting(const GUI_BrushInfo& from) {
    lColor = from.lColor;
    red = from.red;
    green = from.green;
    blue = from.blue;
    dBrushSlider = from.dBrushSlider;
    dRadius = from.dRadius;
    dHardness = from.dHardness;
    dTransparency = from.dTransparency;
    bColorEnabled = from.bColorEnabled;
    bSliderEnabled = from.bSliderEnabled;
    bCheckBoxEnabled = from.bCheckBoxEnabled;
    bCheckBoxValue = from.bCheckBoxValue;
    iHairColor = from.iHairColor;
}

void GUI_BrushInfo::setColor(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    red = r;
    green = g;
    blue = b;
    lColor = 0xFF000000 | std::int64_t{r} << 16 | std::int64_t{g} << 8 | b;
}

std::int32_t GUI_BrushInfo::radiusInPixels(double scale) const {
    return static_cast<std::int32_t>(std::min(dRadius * kRadiusRange * scale, kLargestRadius));
}

BrushTable makeBrushTable() {
    BrushTable table;
    for (const Look& look : kLooks) {
        GUI_BrushInfo& brush = table[static_cast<std::size_t>(look.brush)];
        brush.sBrushName = look.name;
        brush.sCheckBoxName = look.checkBox;
        brush.bCheckBoxEnabled = *look.checkBox != '\0';
        brush.sSliderText = look.sliderText;
        brush.sSliderMin = look.sliderMin;
        brush.sSliderMax = look.sliderMax;
        brush.bSliderEnabled = look.slider;
    }
    for (const int brush : {kPaint, kSelection})
        table[static_cast<std::size_t>(brush)].setColor(40, 40, 150);
    for (const int brush : {kRemoveGreenSpill, kFilterColor, kRestoreHair})
        table[static_cast<std::size_t>(brush)].setColor(180, 140, 90);
    for (const int brush : {kPaint, kFilterColor, kRestoreHair, kSelection})
        table[static_cast<std::size_t>(brush)].bColorEnabled = true;
    for (const int brush : {kBlendEdge, kBlur, kSmooth, kSelection})
        table[static_cast<std::size_t>(brush)].dBrushSlider = 0.25;
    table[kRestoreForeground].bCheckBoxValue = true;
    return table;
}

int brushOfKey(std::int64_t key) {
    for (std::size_t brush = 1; brush < kBrushes; ++brush) {
        if (kKeys[brush] != '\0' && kKeys[brush] == key) return static_cast<int>(brush);
    }
    return -1;
}

char keyOfBrush(int brush) {
    return brush >= 0 && static_cast<std::size_t>(brush) < kBrushes ? kKeys[brush] : '\0';
}

}  // namespace tavrin

#include "core/state/ChangeFlags.h"

#include <charconv>
#include <unordered_map>

#include "core/state/SettingNames.h"

namespace tavrin {

namespace {

struct Rule {
    const char* setting;
    unsigned redo;
};

// Of a layer. The size of the source and its fit are found out with it, so another value does not last.
enum LayerPart { kSource, kPlacement };
constexpr struct {
    const char* setting;
    LayerPart part;
} kLayerRules[] = {
    {"sSourceImageFullPath", kSource},
    {"bFlipHorz", kSource},
    {"fRotate", kSource},
    {"fTilt", kSource},
    {"iOrgWidth", kSource},
    {"iOrgHeight", kSource},
    {"iOrgXoff", kPlacement},
    {"iOrgYoff", kPlacement},
    {"fScale", kPlacement},
    {"fOrgScale", kPlacement},
};

constexpr Rule kRules[] = {
    // What a layer leaves empty has the colour of the screen, as it is estimated from the source.
    {"bUseBlueLogic", kRedoForegroundSource | kRedoBackgroundLayer},
    {"iGlobalSmoothingMode", kRedoForegroundLayer},
    {"iGlobalSmoothingLambda", kRedoForegroundLayer},
    {"dSliderBlur", kRedoBackgroundLayer},
    {"bHaveBackgroundOverlay", kRedoBackgroundLayer},
    {kItemCount, kRedoBackgroundLayer},  // one of those that came or went may lie there
    {"sBackgroundOverlay", kRedoBackgroundLayer},
    // The preview of the background keeps the red line on which a reflection stands.
    {"bHaveReflection", kRedoBackgroundLayer},
    {"iSliderReflectionSkewBase", kRedoBackgroundLayer},
    {"iSliderClipTop", kRedoShadow},
    {"iSliderClipBottom", kRedoShadow},
    {"iSliderClipRight", kRedoShadow},
    {"iSliderClipLeft", kRedoShadow},
    {"combined.sliderRemoveGreenAreas", kRedoShadow},
    // These two are kept for the file alone.
    {"dOrgImageScale", kRedoNothing},
    {"dImageSliderScale", kRedoNothing},
};

using Table = std::unordered_map<std::string, unsigned>;

Table makeTable() {
    Table table;
    for (const auto& leaf : ShadowSettings::leaves())
        table[leaf.key] = kRedoBackgroundLayer;
    for (const auto& leaf : OutputGeometry::leaves())
        table[leaf.key] = kRedoOutputSize;
    for (const auto& [setting, part] : kLayerRules) {
        table[std::string("foreground.") + setting] = part == kSource ? kRedoForegroundSource : kRedoForegroundLayer;
        table[std::string("background.") + setting] = part == kSource ? kRedoBackgroundSource : kRedoBackgroundLayer;
    }
    for (const Rule& rule : kRules)
        table[rule.setting] = rule.redo;
    return table;
}

/// Items on the background are drawn with it.
bool liesOnBackground(const SystemInfo& info, const std::string& name) {
    constexpr std::string_view kItem = "text";
    if (!name.starts_with(kItem)) return false;
    std::size_t item = 0;
    const auto [end, error] = std::from_chars(name.data() + kItem.size(), name.data() + name.size(), item);
    if (error != std::errc() || end == name.data() + name.size() || *end != '.' || item >= info.oFontObject.size())
        return false;
    return info.oFontObject[item].sLevel.load().starts_with("Background");
}

}  // namespace

unsigned redoOf(const SystemInfo& info, const std::string& name) {
    static const Table table = makeTable();
    if (const auto rule = table.find(name); rule != table.end()) return rule->second;
    return liesOnBackground(info, name) ? kRedoBackgroundLayer : kRedoNothing;
}

void raiseFlags(SystemInfo& info, unsigned redo) {
    BitmapInfo &foreground = *info.pForegroundBitmapInfo, &background = *info.pBackgroundBitmapInfo;
    if ((redo & kRedoShadow) != 0 && info.iHaveShadow != 1) redo |= kRedoBackgroundLayer;
    if ((redo & kRedoForegroundSource) != 0) foreground.bOrgFileChange = true;
    if ((redo & kRedoBackgroundSource) != 0) background.bOrgFileChange = true;
    if ((redo & kRedoForegroundLayer) != 0) foreground.bScaleChange = true;
    if ((redo & kRedoBackgroundLayer) != 0) background.bScaleChange = true;
    if ((redo & kRedoOutputSize) != 0) info.bChangeImageSize = info.bNewOutputSize = true;
}

}  // namespace tavrin

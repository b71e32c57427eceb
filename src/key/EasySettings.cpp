#include "key/EasySettings.h"

namespace tavrin {

namespace {

// One value for each of the choices 1, 2 and 3 of a panel group.
using Choices = std::array<std::int32_t, 3>;

// A choice outside the group leaves the slider as it is.
void choose(Field<std::int32_t>& slider, std::int32_t choice, const Choices& values) {
    if (choice >= 1 && choice <= 3) slider = values[static_cast<std::size_t>(choice - 1)];
}

// What a hair colour asks for. The tints follow each other: a later box overrides an earlier one.
struct HairRecipe {
    Choices darkAreas;     // by shadows
    Choices transparency;  // by transparency
    std::int32_t tint, removeTint, restoreGreen, restoreMoreGreen;
};

HairRecipe recipeFor(std::int32_t hair) {
    switch (hair) {
        case 1:
            return {{60, 20, 10}, {115, 100, 85}, 80, 60, 100, 125};
        case 2:
            return {{80, 60, 20}, {120, 100, 90}, 100, 80, 110, 125};
        case 3:
        case 5:
            return {{80, 20, 10}, {120, 100, 90}, 90, 70, 120, 135};
        default:
            return {{80, 30, 15}, {120, 100, 90}, 100, 80, 110, 125};
    }
}

}  // namespace

void UpdateEZCombineSettings(SystemInfo& info) {
    LayerSettings& key = *info.pCombinedBitmapInfo;
    const std::int32_t hair = info.iMacroHairColor, shadows = info.iMacroShadows;
    const HairRecipe recipe = recipeFor(hair);

    key.sliderRemoveGreenAreas = 100;
    key.sliderWhiteAdjust = 40;
    key.sliderRestoredDarkAreas = 30;
    key.sliderTransparentcyAdjustment = 100;
    key.sliderWhiteBalance = 100;
    key.sliderAdjustBaseGreen = 100;

    choose(key.sliderRemoveGreenAreas, shadows, {100, 100, 90});
    choose(key.sliderRestoredDarkAreas, shadows, recipe.darkAreas);
    choose(key.sliderTransparentcyAdjustment, info.iMacroTransparency, recipe.transparency);
    if (hair == 1) key.sliderAdjustBaseGreen = 105;
    if (hair == 2) {
        choose(key.sliderRemoveGreenAreas, shadows, {140, 100, 90});
        choose(key.sliderAdjustBaseGreen, shadows, {110, 105, 105});
    }

    std::int32_t tint = recipe.tint;
    if (info.bMacroRemoveGreenTint) tint = recipe.removeTint;
    if (info.bMacroRestoreGreen) tint = recipe.restoreGreen;
    if (info.bMacroRestoreMoreGreen) tint = recipe.restoreMoreGreen;
    key.sliderGreenTintAreas = tint;
}

}  // namespace tavrin

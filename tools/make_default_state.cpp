// Writes the settings that a new user starts with: make_default_state FOLDER, where the list of output sizes is. How
// the values were found stands in docs/key-quality.md.

#include <cstdio>
#include <string>

#include "formats/ImageState.h"
#include "formats/Lists.h"
#include "key/EasySettings.h"
#include "session/OutputSizes.h"

namespace {

using namespace tavrin;

/// The simple panel as its reset leaves it and what that panel makes of the key sliders, then what measured better.
/// Hair detection is off, since under poor light it can cut into dark clothes; what it needs is set for when it is
/// turned on.
void chooseKey(SystemInfo& info) {
    info.iMacroHairColor = 6;  // automatic
    info.iMacroShadows = 1;
    info.iMacroTransparency = 2;
    UpdateEZCombineSettings(info);

    info.bAdvancedHairDetectionON = false;
    info.bAVPShadowRemoval = true;
    info.pCombinedBitmapInfo->sliderRemoveGreenAreas = 110;  // less veil on a screen that is unevenly lit
    info.bRefineKey = true;
    info.iBlendEdges = 0;  // the refined key leaves no rim to soften away
}

/// Off; its settings as they do well for green clothes once somebody turns it on.
void chooseGuard(SystemInfo& info) {
    info.iGreenProtectMode = 0;
    info.bShowGreenProtection = false;
    info.bRemoveInsideBaseGreen = true;
    info.iSliderBackgroundGreen = 30;
    info.iSliderProtectionRadius = 2;
    info.iSliderShirtProtection = 50;
}

std::string writeDefaultState(const std::string& folder) {
    SystemInfo info;
    std::vector<ImageSize> sizes;
    const std::string problem = loadImageSizes(sizes, folder + "ImageSize.xml", false);
    if (!problem.empty()) return problem;
    info.oImageSize = std::move(sizes);
    if (!chooseSizeByName(info, "5x7 200 Vert") || !useChosenSize(info).empty())
        return "The list lacks the size to start with.";
    chooseKey(info);
    chooseGuard(info);
    return saveImageStateToXML(info, folder + "Default.qlx");
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "make_default_state FOLDER\n");
        return 2;
    }
    const std::string problem = writeDefaultState(std::string(arguments[1]) + "/");
    if (!problem.empty()) std::fprintf(stderr, "%s\n", problem.c_str());
    return problem.empty() ? 0 : 1;
}

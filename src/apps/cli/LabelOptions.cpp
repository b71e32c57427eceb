#include "apps/cli/LabelOptions.h"

#include "apps/cli/Assignments.h"
#include "core/text/TextLayers.h"

namespace tavrin::cli {

void styleNote(SystemInfo& info, const std::string& text, const std::vector<std::string>& set) {
    FontObject& note = info.oFontLabelObject[1];
    const bool isStyled = note.sFontColor.load() != "Black" || note.bDropShadow ||
                          note.dFontFillRed + note.dFontFillGreen + note.dFontFillBlue > 0.0;
    note.sText = text;
    if (!isStyled && !setsAny(set, "label1.dFontFill") && !setsAny(set, "label1.bDropShadow"))
        note.sFontColor = kColorByGround;
}

void fitTitle(SystemInfo& info, int points, const std::vector<std::string>& set, double inches) {
    FontObject& title = info.oFontLabelObject[0];
    const bool isSized = setsAny(set, "label0.iFontSize=") || setsAny(set, "label0.sLabelSize=");
    if (points > 0 && !isSized) title.iFontSize = points;
    if (points == 0 && !isSized && !labelString(info, title).empty() && textProblem(info).empty())
        shrinkToFit(info, title, inches);
}

}  // namespace tavrin::cli

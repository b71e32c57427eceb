#include "apps/cli/PictureOptions.h"

#include <charconv>

#include "apps/cli/Assignments.h"
#include "apps/cli/Console.h"
#include "apps/cli/LabelOptions.h"
#include "apps/cli/Usage.h"
#include "core/NearestName.h"
#include "core/image/Location.h"
#include "core/state/SettingRanges.h"
#include "core/text/TextLayers.h"
#include "session/OutputSizes.h"
#include "session/SettingChanges.h"

namespace tavrin::cli {

namespace {

bool parseNumber(std::string_view text, double& value) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

Refusal applyInches(SystemInfo& info, const PictureOptions& options) {
    const std::size_t cross = options.inches.find_first_of("xX");
    double width = 0.0, height = 0.0;
    if (cross == std::string::npos || !parseNumber(std::string_view(options.inches).substr(0, cross), width) ||
        !parseNumber(std::string_view(options.inches).substr(cross + 1), height)) {
        return {kUsage, "--inches takes width x height, for example 8x10, not \"" + options.inches + "\"."};
    }
    chooseOwnSize(info, options.inches + " at " + std::to_string(options.dpi) + " dpi", width, height, options.dpi);
    return {};
}

Refusal applySize(SystemInfo& info, const PictureOptions& options, const LoadedState& loaded) {
    if (!options.inches.empty()) {
        if (Refusal refusal = applyInches(info, options); refusal.code != kDone) return refusal;
    } else if (options.sizeName.empty()) {
        return {loaded.sizeProblem.empty() ? kDone : kFailed, loaded.sizeProblem};
    } else if (!chooseSizeByName(info, options.sizeName)) {
        std::vector<std::string> names;
        for (const ImageSize& size : info.oImageSize)
            names.push_back(size.sName);
        return {kUsage, "There is no output size \"" + options.sizeName + "\"; did you mean \"" +
                            nearestName(options.sizeName, names) + "\"? \"tavrin-cli sizes\" lists all."};
    }
    const std::string problem = sizeProblem(selectedSize(info).value_or(ImageSize()));
    return {problem.empty() ? kDone : kUsage, problem};
}

void applyOverlays(SystemInfo& info, const PictureOptions& options) {
    const auto use = [&info](const std::string& overlay, const std::string& path) {
        if (path.empty()) return;
        changeSetting(info, "bHave" + overlay, "1");
        changeSetting(info, "s" + overlay, path);
    };
    use("BackgroundOverlay", options.backgroundOverlay);
    use("ForegroundOverlay", options.foregroundOverlay);
    use("FrameOverlay", options.frameOverlay);
}

/// A size or a colour that was given by its name gives the label its points or its fill. All else stays: a state file
/// may have styled the label in another way.
void applyLabelNames(SystemInfo& info, const PictureOptions& options) {
    for (std::size_t i = 0; i < info.oFontLabelObject.size(); ++i) {
        const std::string label = "label" + std::to_string(i);
        if (setsAny(options.set, label + ".sLabelSize=")) useLabelSize(info.oFontLabelObject[i]);
        if (setsAny(options.set, label + ".sFontColor=")) useLabelColor(info.oFontLabelObject[i]);
    }
}

std::string applySettings(SystemInfo& info, const PictureOptions& options) {
    applyKeyOptions(info, options.key);
    std::string problem = options.effects.apply(info);
    if (!problem.empty()) return problem;
    if (!options.title.empty()) info.oFontLabelObject[0].sText = options.title;
    if (!options.note.empty()) styleNote(info, options.note, options.set);
    applyOverlays(info, options);
    problem = applyAssignments(info, options.set);
    if (!problem.empty()) return problem;
    if (setsAny(options.set, "iSliderReflectionSkewBase=")) info.bReflectAtSubject = false;
    applyLabelNames(info, options);
    return applyAssignments(info, options.set);  // a number that was given beside a name wins
}

}  // namespace

bool PictureOptions::choosesScreen() const {
    if (key.screen.empty()) return !start.bare && start.recipe.empty() && !setsAny(set, "bUseBlueLogic=");
    return key.screen == "auto";
}

std::vector<PictureWarning> rangeWarnings(const PictureOptions& options) {
    std::vector<PictureWarning> warnings;
    for (const std::string& assignment : options.set) {
        const std::size_t equals = assignment.find('=');
        const std::string problem = rangeProblem(assignment.substr(0, equals), assignment.substr(equals + 1));
        if (!problem.empty()) warnings.push_back({"range", problem});
    }
    return warnings;
}

Refusal applyPictureOptions(SystemInfo& info, const PictureOptions& options, const LoadedState& loaded) {
    std::string problem = applySettings(info, options);
    if (problem.empty()) problem = options.place.apply(info, options.set, !loaded.isStart);
    if (!problem.empty()) return {kUsage, problem};
    const Refusal refusal = applySize(info, options, loaded);
    if (refusal.code == kDone && !options.title.empty())
        fitTitle(info, options.titleSize, options.set, selectedSize(info).value_or(ImageSize()).dWidth);
    return refusal;
}

void addPictureOptions(CLI::App& command, PictureOptions& options) {
    addStartOptions(command, options.start);
    CLI::Option* size = command.add_option("--size", options.sizeName, "Output size by its name in the list");
    CLI::Option* inches =
        command.add_option("--inches", options.inches, "Output size, width x height")->excludes(size);
    CLI::Option* dpi = command.add_option("--dpi", options.dpi, "Dots an inch, with --inches")->needs(inches);
    inches->needs(dpi);
    options.place.addTo(command);
    options.effects.addTo(command);
    command.add_option("--title", options.title, "Text of the title (label 0)");
    command
        .add_option("--title-size", options.titleSize, "Its size in points; without it a long title is made to fit")
        ->check(within(1, 1000));
    command.add_option("--note", options.note, "Text of the note (label 1)");
    command.add_option("--overlay-background", options.backgroundOverlay, "Picture over the background");
    command.add_option("--overlay-foreground", options.foregroundOverlay, "Picture over the subject");
    command.add_option("--overlay-frame", options.frameOverlay, "Picture over everything but text and frames");
    command.add_flag_callback("--no-location", leaveLocationsOut,
                              "Leave the place on earth, as the camera noted it, out of what is saved");
    command.add_option("--set", options.set, "A setting as field=value; may be given several times")->take_all();
    addKeyOptions(command, options.key);
}

}  // namespace tavrin::cli

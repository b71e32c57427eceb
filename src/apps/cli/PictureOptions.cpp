#include "apps/cli/PictureOptions.h"

#include <charconv>

#include "apps/cli/Assignments.h"
#include "apps/cli/Console.h"
#include "pipeline/OutputSize.h"

namespace tavrin::cli {

namespace {

bool parseNumber(std::string_view text, double& value) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

Refusal applySize(SystemInfo& info, const PictureOptions& options, bool fromStateFile) {
    if (options.inches.empty()) {
        const std::string name = options.sizeName.empty() ? info.sImageSizeName.load() : options.sizeName;
        if (selectSizeByName(info, name)) return {};
        // A state file may name a size that is not in the list and carry an index that is.
        if (options.sizeName.empty() && fromStateFile) return {};
        return {kUsage, "There is no output size \"" + name + "\"."};
    }
    const std::size_t cross = options.inches.find_first_of("xX");
    double width = 0.0, height = 0.0;
    if (cross == std::string::npos || !parseNumber(std::string_view(options.inches).substr(0, cross), width) ||
        !parseNumber(std::string_view(options.inches).substr(cross + 1), height)) {
        return {kUsage, "--inches takes width x height, for example 8x10, not \"" + options.inches + "\"."};
    }
    const std::string name = options.inches + " at " + std::to_string(options.dpi) + " dpi";
    if (!selectOwnSize(info, name, width, height, options.dpi)) return {kFailed, "The list of sizes is full."};
    return {};
}

}  // namespace

Refusal applyPictureOptions(SystemInfo& info, const PictureOptions& options, bool fromStateFile) {
    if (options.blue) info.bUseBlueLogic = true;
    const std::string problem = applyAssignments(info, options.set);
    return problem.empty() ? applySize(info, options, fromStateFile) : Refusal{kUsage, problem};
}

void addPictureOptions(CLI::App& command, PictureOptions& options) {
    CLI::Option* size = command.add_option("--size", options.sizeName, "Output size by its name in the list");
    CLI::Option* inches =
        command.add_option("--inches", options.inches, "Output size, width x height")->excludes(size);
    CLI::Option* dpi = command.add_option("--dpi", options.dpi, "Dots an inch, with --inches")->needs(inches);
    inches->needs(dpi);
    command.add_option("--set", options.set, "A setting as field=value; may be given several times")->take_all();
    command.add_flag("--blue", options.blue, "The screen is blue (same as --set bUseBlueLogic=1)");
}

}  // namespace tavrin::cli

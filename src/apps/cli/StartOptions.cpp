#include "apps/cli/StartOptions.h"

#include <fstream>
#include <iterator>

#include "core/files/StandardPath.h"
#include "core/text/TextLayers.h"
#include "formats/SafeFile.h"
#include "formats/SettingsFile.h"
#include "session/OutputSizes.h"
#include "session/Recipe.h"

namespace tavrin::cli {

namespace {

LoadedState startBare(SystemInfo& info) {
    LoadedState loaded;
    const std::string name = info.sImageSizeName;
    if (!chooseSizeByName(info, name)) loaded.sizeProblem = "There is no output size \"" + name + "\".";
    return loaded;
}

LoadedState startFromAccount(SystemInfo& info) {
    LoadedState loaded;
    QLXInfo settings;
    // At a look, an account without settings stays without.
    if (safeFileExists(Places::current().settingsFile())) loaded.problem = LoadQLXFile(settings);
    const std::string path = standardizePath(settings.sDefaultQLXFilePath);
    if (loaded.problem.empty() && path.empty())
        loaded.problem = "--my-defaults: this account has no default state yet; the window makes one.";
    return loaded.problem.empty() ? loadState(info, path) : loaded;
}

LoadedState startFromRecipe(SystemInfo& info, const std::string& path) {
    LoadedState loaded;
    std::ifstream file(path, std::ios::binary);
    const std::optional<Recipe> recipe = recipeOf({std::istreambuf_iterator<char>(file), {}});
    if (!recipe) {
        loaded.problem = path + " is no recipe that can be read.";
    } else if (loaded.problem = useSettings(info, recipe->settings); loaded.problem.empty()) {
        loaded.sizeProblem = chooseStoredSize(info, sizeIn(recipe->settings));
    }
    return loaded;
}

}  // namespace

LoadedState startSettings(SystemInfo& info, const StartOptions& options) {
    if (!options.recipe.empty()) return startFromRecipe(info, options.recipe);
    if (options.myDefaults) return startFromAccount(info);
    LoadedState loaded = options.bare ? startBare(info) : loadShippedState(info);
    updateLabelSettings(info);  // nobody has styled these labels by hand
    return loaded;
}

void addStartOptions(CLI::App& command, StartOptions& options) {
    CLI::Option* bare =
        command.add_flag("--bare", options.bare, "Start from the settings' own defaults, not from the shipped state");
    command.add_flag("--my-defaults", options.myDefaults, "Start from the default state of this account")
        ->excludes(bare);
    command.add_option("--recipe", options.recipe, "Start from all settings of a recipe that the window kept")
        ->excludes(bare)
        ->excludes("--my-defaults");
}

}  // namespace tavrin::cli

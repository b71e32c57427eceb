#include "apps/cli/KeyOptions.h"

#include <algorithm>
#include <iterator>

#include "apps/cli/Usage.h"

namespace tavrin::cli {

namespace {

// The place of a colour is its number.
constexpr const char* kHairColours[] = {"off", "red", "black", "blond", "brown", "gray", "auto"};
// The place of a word is the guard's mode.
constexpr const char* kClothes[] = {"off", "inside", "shirt"};

template <std::size_t Count>
int placeOf(const std::string& word, const char* const (&words)[Count]) {
    return static_cast<int>(std::find(std::begin(words), std::end(words), word) - std::begin(words));
}

template <std::size_t Count>
void addChoice(CLI::App& command, const std::string& name, std::string& value, const char* const (&words)[Count],
               const std::string& help) {
    command.add_option(name, value, help)->check(oneOf({std::begin(words), std::end(words)}))->type_name("NAME");
}

}  // namespace

void addKeyOptions(CLI::App& command, KeyOptions& options) {
    static constexpr const char* kScreens[] = {"auto", "green", "blue"};
    addChoice(command, "--screen", options.screen, kScreens,
              "Colour of the screen: auto, green or blue (default auto: as the portrait shows it)");
    command.add_flag_callback(
        "--blue", [&options] { options.screen = "blue"; }, "The screen is blue (same as --screen blue)");
    addChoice(command, "--hair", options.hair, kHairColours,
              "Care for hair: off, auto, red, black, blond, brown or gray");
    addChoice(command, "--protect-clothes", options.clothes, kClothes,
              "Keep clothes of the screen's hue: off, inside (what does not touch the border) or shirt (one colour)");
}

void applyKeyOptions(SystemInfo& info, const KeyOptions& options) {
    if (options.screen == "green" || options.screen == "blue") info.bUseBlueLogic = options.screen == "blue";
    if (!options.hair.empty()) {
        const int colour = placeOf(options.hair, kHairColours);
        info.bAdvancedHairDetectionON = colour > 0;
        if (colour > 0) info.iMacroHairColor = colour;
    }
    if (options.clothes.empty()) return;
    info.iGreenProtectMode = placeOf(options.clothes, kClothes);
    info.bShowGreenProtection = false;
}

std::string withAdvice(const PictureWarning& warning) {
    static constexpr std::pair<const char*, const char*> kAdvice[] = {
        {"clothes", "--protect-clothes inside or shirt keeps it."},
        {"holes", "--protect-clothes inside or shirt fills them."},
        {"other-screen", "--screen green or blue decides."},
        {"room", "--scale and --move leave it outside."},
        {"shades", "--scale and --move leave outside what is not the subject."},
    };
    for (const auto& [kind, advice] : kAdvice) {
        if (warning.kind == kind) return warning.text + " " + advice;
    }
    return warning.text;
}

}  // namespace tavrin::cli

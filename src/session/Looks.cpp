#include "session/Looks.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>

#include "core/Lines.h"
#include "core/state/SettingNames.h"
#include "formats/SafeFile.h"
#include "session/RecipeStore.h"
#include "session/TextItems.h"

namespace tavrin {

namespace {

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// Part of a setting of the central state, group by group; views and what belongs to one picture have none.
std::optional<LookPart> partOfState(const std::string& name) {
    static const std::map<std::string, LookPart> table = [] {
        std::map<std::string, LookPart> parts;
        const auto add = [&](auto leaves, LookPart part) {
            for (const auto& leaf : leaves)
                parts[leaf.key] = part;
        };
        add(GuardSettings::leaves(), LookPart::key);
        add(EasySettings::leaves(), LookPart::key);
        add(KeyOutputSettings::leaves(), LookPart::key);
        add(RefineSettings::leaves(), LookPart::key);
        add(OutputModeSettings::leaves(), LookPart::tone);
        add(SkinSettings::leaves(), LookPart::skin);
        add(GlobalSmoothingSettings::leaves(), LookPart::skin);
        add(StarFilterSettings::leaves(), LookPart::effects);
        add(BlurSettings::leaves(), LookPart::effects);
        add(ShadowSettings::leaves(), LookPart::effects);
        add(OverlaySettings::leaves(), LookPart::effects);
        add(CartoonSettings::leaves(), LookPart::effects);
        add(LightingSettings::leaves(), LookPart::effects);
        add(SilhouetteSettings::leaves(), LookPart::effects);
        add(ReflectionSettings::leaves(), LookPart::effects);
        add(ClipSettings::leaves(), LookPart::clip);
        for (const char* hair : {"bAdvancedHairDetectionON", "iMacroHairColor"})
            parts[hair] = LookPart::hair;
        return parts;
    }();
    const auto found = table.find(name);
    return found == table.end() ? std::nullopt : std::optional(found->second);
}

std::optional<LookPart> partOfLayer(const std::string& owner, const std::string& key) {
    if (isOneOf(key, {"sSourceImageFullPath", "iOrgWidth", "iOrgHeight", "fOrgScale"})) return {};
    if (owner == "combined") return LookPart::key;
    if (isOneOf(key, {"iOrgXoff",    "iOrgYoff",   "fScale",     "fTilt",           "fRotate",
                      "bFlipHorz",   "bFlipVert",  "dOrgScale",  "dOrgXOrg",        "dOrgYOrg",
                      "dImageScale", "dImageXOrg", "dImageYOrg", "iOrgScaleSlider", "iScaleViewScale",
                      "iComboXoff",  "iComboYoff", "iComboZoom", "fComboScale",     "iComboScaleSlider"}))
        return LookPart::place;
    return key.starts_with("slider") ? LookPart::key : LookPart::tone;
}

/// "" where there is none.
std::string bytesOfFile(const std::string& path) {
    return readSafeFile(path, kMostBytes).bytes;
}

}  // namespace

bool isUsuallyTaken(LookPart part) {
    return part != LookPart::place && part != LookPart::clip && part != LookPart::texts;
}

std::optional<LookPart> partOf(const std::string& setting) {
    if (setting == kItemCount) return LookPart::texts;
    const auto stop = setting.find('.');
    const std::string owner = stop == std::string::npos ? "" : setting.substr(0, stop);
    const std::string key = setting.substr(stop == std::string::npos ? 0 : stop + 1);
    if (key.starts_with("bShow")) return {};  // views
    if (owner.empty()) return partOfState(key);
    if (isOneOf(owner, {"foreground", "background", "combined"})) return partOfLayer(owner, key);
    if (owner.starts_with("text") && owner != "texture") return LookPart::texts;
    if (owner.starts_with("label")) return {};
    return LookPart::effects;  // textures and frames
}

SettingValues lookOf(const SystemInfo& info) {
    SettingValues look = settingsOf(info);
    std::erase_if(look, [](const auto& setting) { return !partOf(setting.first); });
    return look;
}

SettingValues partsOf(const SettingValues& look, const std::set<LookPart>& parts) {
    SettingValues some;
    for (const auto& setting : look)
        if (const auto part = partOf(setting.first); part && parts.contains(*part)) some.push_back(setting);
    return some;
}

std::vector<LookChange> changesBy(const SystemInfo& info, const SettingValues& look) {
    std::vector<LookChange> changes;
    for (const auto& [name, value] : look) {
        const auto part = partOf(name);
        const std::string before = fieldValue(info, name).value_or("");
        if (part && before != value) changes.push_back({*part, name, before, value});
    }
    return changes;
}

void takeLook(SettingEditor& editor, const std::string& label, const SettingValues& look) {
    editor.beginStep(label);
    for (const auto& [name, value] : look)
        if (name == kItemCount) setItemCount(editor, value);
    for (const auto& [name, value] : look)
        if (name != kItemCount && editor.value(name) != value) editor.set(name, value);
    editor.endStep();
}

PortraitPaste::PortraitPaste(std::vector<std::string> portraits, std::string label, const SettingValues& look)
    : portraits_(std::move(portraits)), label_(std::move(label)), look_(look) {}

std::string PortraitPaste::paste(const std::function<bool(std::size_t)>& goesOn) {
    std::string problems;
    done_.clear();
    std::size_t looked = 0;
    for (const std::string& portrait : portraits_) {
        if (goesOn && !goesOn(looked++)) break;
        const std::string file = recipeFile(portrait);
        if (file.empty()) {
            addLine(problems, portrait + ": there is no such file.");
            continue;
        }
        Recipe recipe = readRecipeFile(file).value_or(Recipe());
        std::string before = bytesOfFile(file);
        recipe.pasted.emplace_back(label_, look_);
        std::string after = bytesOf(recipe);
        const std::string problem = writeWhole(file, after);
        addLine(problems, problem);
        if (problem.empty()) done_.push_back({file, std::move(before), std::move(after)});
    }
    return problems;
}

std::string PortraitPaste::takeBack() {
    std::string problems;
    for (const Done& done : done_) {
        if (bytesOfFile(done.file) != done.after) continue;  // worked on since
        if (!done.before.empty()) {
            addLine(problems, writeWhole(done.file, done.before));
            continue;
        }
        std::error_code failed;
        std::filesystem::remove(done.file, failed);
        if (failed) addLine(problems, done.file + " cannot be removed.");
    }
    return problems;
}

}  // namespace tavrin

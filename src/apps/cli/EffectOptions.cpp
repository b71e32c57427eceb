#include "apps/cli/EffectOptions.h"

#include <cstdio>
#include <memory>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/Usage.h"
#include "session/SettingChanges.h"

namespace tavrin::cli {

namespace {

/// A group that is only switched on needs no name behind its option.
bool isSwitch(const PresetGroup& group) {
    return group.presets.size() == 2 && std::string(group.presets[1].name) == "on";
}

std::vector<std::string> wordsOf(const PresetGroup& group) {
    std::vector<std::string> words;
    for (const Preset& preset : group.presets)
        words.push_back(preset.name);
    return words;
}

std::string namesOf(const PresetGroup& group) {
    std::string names;
    for (const Preset& preset : group.presets)
        names += (names.empty() ? "" : ", ") + std::string(preset.name);
    return names + (group.applyFile ? ", or a picture file" : "");
}

int printText() {
    for (const PresetGroup& group : presetGroups()) {
        std::printf("--%-12s %s%s\n", group.name, group.description, group.inPreview ? "" : " (full picture only)");
        for (const Preset& preset : group.presets)
            std::printf("    %-12s %s\n", preset.name, preset.description);
        if (group.applyFile) std::printf("    %-12s %s\n", "FILE", "a picture of your own");
    }
    return kDone;
}

int printAsJson() {
    QJsonArray groups;
    for (const PresetGroup& group : presetGroups()) {
        QJsonArray presets;
        for (const Preset& preset : group.presets)
            presets.append(QJsonObject{{"name", preset.name}, {"description", preset.description}});
        groups.append(QJsonObject{{"option", QString("--") + group.name},
                                  {"description", group.description},
                                  {"presets", presets},
                                  {"takesFile", group.applyFile != nullptr},
                                  {"inPreview", group.inPreview},
                                  {"inShortPath", group.inShortPath}});
    }
    printJson(QJsonDocument(groups), false);
    return kDone;
}

}  // namespace

void EffectOptions::addTo(CLI::App& command) {
    for (const PresetGroup& group : presetGroups()) {
        Choice& choice = choices_.emplace_back(Choice{&group, ""});
        const std::string option = "--" + std::string(group.name), help = std::string(group.description) + ": ";
        if (isSwitch(group)) {
            command
                .add_flag_callback(
                    option, [&choice] { choice.name = "on"; }, group.description)
                ->group("Effects");
        } else {
            command.add_option(option, choice.name, help + namesOf(group))
                ->group("Effects")
                ->check(offering(wordsOf(group), group.applyFile != nullptr));
        }
    }
}

std::string EffectOptions::apply(SystemInfo& info) const {
    for (const Choice& choice : choices_) {
        if (choice.name.empty()) continue;
        const std::string problem = takeLook(info, *choice.group, choice.name);
        if (!problem.empty()) return problem;
    }
    return "";
}

std::string EffectOptions::leftOut(bool shortPath, bool preview) const {
    std::string names;
    for (const Choice& choice : choices_) {
        const bool drawn = (!shortPath || choice.group->inShortPath) && (!preview || choice.group->inPreview);
        if (choice.name.empty() || choice.name == "none" || drawn) continue;
        names += (names.empty() ? "--" : ", --") + std::string(choice.group->name);
    }
    if (names.empty()) return "";
    return (shortPath ? "--fast leaves out " : "--preview leaves out ") + names + ".";
}

void addEffectsCommand(CLI::App& app, int& result) {
    const auto json = std::make_shared<bool>(false);
    CLI::App* command = app.add_subcommand("effects", "List the effects that render has short options for");
    command->add_flag("--json", *json, "As JSON");
    command->callback([json, &result] { result = *json ? printAsJson() : printText(); });
}

}  // namespace tavrin::cli

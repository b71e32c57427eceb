#include "apps/cli/StateCommand.h"

#include <algorithm>
#include <memory>

#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Assignments.h"
#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "core/files/NameText.h"
#include "core/state/NamedFiles.h"
#include "core/state/SettingNames.h"
#include "core/state/SystemInfo.h"
#include "formats/ImageState.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

using Fields = std::vector<std::pair<std::string, std::string>>;

/// A state with what a file holds; null, after a line, when the file cannot be read.
std::unique_ptr<SystemInfo> loadState(const std::string& path) {
    auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    StoredSize stored;
    const std::string problem = LoadImageStateFromXML(*info, path, kLoadAll, &stored);
    info->dOutputImageHeightInInches = stored.height;  // the one setting that no load takes over
    if (problem.empty()) return info;
    complain(problem);
    return nullptr;
}

void printFields(const Fields& fields) {
    QJsonObject object;
    for (const auto& [name, value] : fields)
        object.insert(QString::fromStdString(name), textOfName(value));
    printJson(QJsonDocument(object), false);
}

int show(const std::string& path, bool json) {
    const auto info = loadState(path);
    if (!info) return kFailed;
    const Fields fields = listFields(*info);
    if (json) {
        printFields(fields);
        return kDone;
    }
    for (const auto& [name, value] : fields)
        printLine(name + "=" + value);
    return kDone;
}

const std::string* find(const Fields& fields, const std::string& name) {
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const auto& f) { return f.first == name; });
    return found == fields.end() ? nullptr : &found->second;
}

int diff(const std::string& one, const std::string& two) {
    const auto first = loadState(one), second = loadState(two);
    if (!first || !second) return kFailed;
    const Fields a = listFields(*first), b = listFields(*second);
    const auto print = [](const std::string& name, const std::string& left, const std::string& right) {
        printLine(name + ": " + left + " -> " + right);
    };
    for (const auto& [name, value] : a) {
        const std::string* other = find(b, name);
        if (!other || *other != value) print(name, value, other ? *other : "(none)");
    }
    for (const auto& [name, value] : b) {
        if (!find(a, name)) print(name, "(none)", value);
    }
    return kDone;
}

int set(const std::string& in, const std::string& out, const std::vector<std::string>& assignments) {
    const auto info = loadState(in);
    if (!info) return kFailed;
    std::string problem = applyAssignments(*info, assignments);
    if (!problem.empty()) {
        complain(problem);
        return kUsage;
    }
    if (problem = whyNoStateOver(*info, out); !problem.empty()) {
        complain(problem + ".");
        return kUsage;
    }
    problem = saveImageStateToXML(*info, out);
    if (problem.empty()) return kDone;
    complain(problem);
    return kFailed;
}

void addShow(CLI::App& state, int& result) {
    const auto path = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    CLI::App* command = state.add_subcommand("show", "Print every setting of a state file");
    command->add_option("file", *path, "State file (.qlx)")->required();
    command->add_flag("--json", *json, "As JSON");
    command->callback([=, &result] { result = show(*path, *json); });
}

void addDiff(CLI::App& state, int& result) {
    const auto one = std::make_shared<std::string>(), two = std::make_shared<std::string>();
    CLI::App* command = state.add_subcommand("diff", "Print the settings in which two state files differ");
    command->add_option("first", *one, "State file (.qlx)")->required();
    command->add_option("second", *two, "State file (.qlx)")->required();
    command->callback([=, &result] { result = diff(*one, *two); });
}

void addSet(CLI::App& state, int& result) {
    const auto in = std::make_shared<std::string>(), out = std::make_shared<std::string>();
    const auto assignments = std::make_shared<std::vector<std::string>>();
    CLI::App* command = state.add_subcommand("set", "Load a state file, change settings, save it");
    command->add_option("in", *in, "State file to load")->required();
    command->add_option("out", *out, "State file to write")->required();
    command->add_option("fields", *assignments, "Settings as field=value");
    command->callback([=, &result] { result = set(*in, *out, *assignments); });
}

}  // namespace

void addStateCommand(CLI::App& app, int& result) {
    CLI::App* state = app.add_subcommand("state", "Look into state files and change them");
    state->require_subcommand(1);
    state->footer(
        "\nExamples:\n  tavrin-cli state show school.qlx\n  tavrin-cli state diff old.qlx new.qlx\n"
        "  tavrin-cli state set school.qlx blue.qlx bUseBlueLogic=1 combined.sliderWhiteAdjust=20\n\n"
        "Every load and save swaps iForegroundOutputMode and iBackgroundOutputMode: that is the format.");
    addShow(*state, result);
    addDiff(*state, result);
    addSet(*state, result);
}

}  // namespace tavrin::cli

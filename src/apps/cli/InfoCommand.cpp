#include "apps/cli/InfoCommand.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/Streams.h"
#include "core/Printable.h"
#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "core/image/ImageReader.h"

namespace tavrin::cli {

namespace {

void printFact(const char* name, const std::string& value) {
    if (!value.empty()) std::printf("%-12s %s\n", name, printable(value).c_str());
}

std::string times(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

void printFacts(const PictureFacts& facts) {
    printFact("format", facts.format);
    printFact("size", times(facts.width, facts.height));
    if (facts.orientation > 1) {
        printFact("in the file",
                  times(facts.fileWidth, facts.fileHeight) + ", orientation " + std::to_string(facts.orientation));
    }
    printFact("channels", std::to_string(facts.channels) + " of " + std::to_string(facts.bitsPerChannel) + " bits" +
                              (facts.hasAlpha ? ", with alpha" : ""));
    printFact("colours", facts.colourSpace);
    printFact("profile", facts.hasProfile ? (facts.profileName.empty() ? "embedded" : facts.profileName) : "none");
    if (facts.dpi > 0.0) std::printf("%-12s %g\n", "dpi", facts.dpi);
    printFact("camera", facts.camera);
    printFact("taken", facts.taken);
}

QJsonObject describe(const std::string& name, const PictureFacts& facts) {
    if (!facts.error.empty()) return {{"file", textOfName(name)}, {"error", textOfName(facts.error)}};
    QJsonObject object{{"file", textOfName(name)},
                       {"format", textOfName(facts.format)},
                       {"width", facts.width},
                       {"height", facts.height},
                       {"orientation", facts.orientation},
                       {"channels", facts.channels},
                       {"bits", facts.bitsPerChannel},
                       {"alpha", facts.hasAlpha},
                       {"colours", textOfName(facts.colourSpace)},
                       {"hasProfile", facts.hasProfile}};
    if (!facts.profileName.empty()) object["profile"] = textOfName(facts.profileName);
    if (facts.dpi > 0.0) object["dpi"] = facts.dpi;
    if (!facts.camera.empty()) object["camera"] = textOfName(facts.camera);
    if (!facts.taken.empty()) object["taken"] = textOfName(facts.taken);
    return object;
}

/// All files that can be read are told; the others make it a failure.
int info(const std::vector<std::string>& names, bool json) {
    if (std::find(names.begin(), names.end(), kStream) != names.end()) {
        if (const std::string problem = Places::current().usePrivateTempFiles(); !problem.empty()) {
            complain(problem);
            return kFailed;
        }
    }
    QJsonArray all;
    int result = kDone;
    for (const std::string& name : names) {
        std::string path = name;
        if (const std::string problem = takeInput(path); !problem.empty()) {
            complain(problem);
            return kFailed;
        }
        const PictureFacts facts = readPictureFacts(path);
        all.append(describe(name, facts));
        if (!facts.error.empty()) {
            complain(name + ": " + facts.error + ".");
            result = kFailed;
        } else if (!json) {
            if (names.size() > 1) std::printf("%s%s\n", all.size() > 1 ? "\n" : "", printable(name + ":").c_str());
            printFacts(facts);
        }
    }
    if (json) printJson(QJsonDocument(all), false);
    return result;
}

}  // namespace

void addInfoCommand(CLI::App& app, int& result) {
    const auto paths = std::make_shared<std::vector<std::string>>();
    const auto json = std::make_shared<bool>(false);
    CLI::App* command = app.add_subcommand("info", "Print what the reader sees in picture files");
    command->add_option("images", *paths, "Picture files; - is the standard input")->required();
    command->add_flag("--json", *json, "As a JSON array");
    command->footer("\nExample:\n  tavrin-cli info portrait.jpg");
    command->callback([paths, json, &result] { result = info(*paths, *json); });
}

}  // namespace tavrin::cli

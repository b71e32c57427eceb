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
#include "farm/BatchReport.h"

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

/// What is wrong with the pixels behind a good header, as `render` will find it. A raw file would be developed for
/// seconds, and its reader mends nothing.
ReadPicture lookInto(const std::string& path, const PictureFacts& facts) {
    const bool isLookedInto = facts.error.empty() && facts.colourSpace != "camera";
    return isLookedInto ? readPicture(path) : ReadPicture{{}, {}, facts.error, {}};
}

QJsonObject describe(const std::string& name, const PictureFacts& facts, const ReadPicture& picture) {
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
    if (!picture.error.empty()) object["error"] = textOfName(picture.error);
    std::vector<PictureWarning> warnings;
    if (!picture.damage.empty()) warnings.push_back({"damaged", name + ": " + picture.damage + "."});
    object["warnings"] = describeWarnings(warnings);
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
        const ReadPicture picture = lookInto(path, facts);
        all.append(describe(name, facts, picture));
        if (!json && facts.error.empty()) {
            if (names.size() > 1) std::printf("%s%s\n", all.size() > 1 ? "\n" : "", printable(name + ":").c_str());
            printFacts(facts);
        }
        if (!picture.damage.empty()) warn(name + ": " + picture.damage + ".");
        if (picture.error.empty()) continue;
        complain(name + ": " + picture.error + ".");
        result = kFailed;
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

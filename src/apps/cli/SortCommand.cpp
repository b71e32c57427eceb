#include "apps/cli/SortCommand.h"

#include <atomic>
#include <memory>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "booth/ImageSorter.h"
#include "core/Interruption.h"
#include "core/files/NameText.h"

namespace tavrin::cli {

namespace {

std::atomic<bool> stopWanted = false;

QJsonObject describe(const std::string& folder, int found, const SortedImages& sorted) {
    QJsonArray failures;
    for (const std::string& line : sorted.failures)
        failures.append(textOfName(line));
    return {{"folder", textOfName(folder)}, {"photos", found},         {"landscape", sorted.landscape},
            {"portrait", sorted.portrait},  {"copied", sorted.copied}, {"alreadyThere", sorted.alreadyThere},
            {"stopped", sorted.stopped},    {"failures", failures}};
}

int sort(const std::string& folder, bool json) {
    Interruption::stopFirst([] { stopWanted = true; });
    ImageSorter sorter;
    const int found = sorter.selectImagerSortFolder(folder);
    const SortedImages sorted = sorter.sortImagesInFolder({}, &stopWanted);
    if (!sorted.problem.empty()) {
        complain(sorted.problem);
        return kFailed;
    }
    for (const std::string& line : sorted.failures)
        complain(line);
    if (json)
        printJson(QJsonDocument(describe(folder, found, sorted)), false);
    else if (!isQuiet())
        printLine(folder + ": " + std::to_string(sorted.landscape) + " to Landscape, " +
                  std::to_string(sorted.portrait) + " to Portrait; copied " + std::to_string(sorted.copied) +
                  ", there already " + std::to_string(sorted.alreadyThere) + ", problems " +
                  std::to_string(sorted.failures.size()));
    return sorted.failures.empty() && !sorted.stopped ? kDone : kFailed;
}

}  // namespace

void addSortCommand(CLI::App& app, int& result) {
    const auto folder = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    CLI::App* command =
        app.add_subcommand("sort", "Split a folder of photos into its subfolders Portrait and Landscape, by copies");
    command->add_option("folder", *folder, "Folder with the photos (JPEG, TIFF, PNG)")
        ->type_name("FOLDER")
        ->required();
    command->add_flag("--json", *json, "As JSON");
    command->footer(R"(
The originals stay, and nothing is written over. A photo that was taken with the camera turned by a quarter goes to
Portrait. Exit codes: 0 all copied or there already, 1 not all, 2 wrong usage.)");
    command->callback([folder, json, &result] { result = sort(*folder, *json); });
}

}  // namespace tavrin::cli

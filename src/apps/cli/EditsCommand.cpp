#include <array>
#include <cstdio>
#include <map>
#include <memory>

#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/EditOptions.h"
#include "apps/cli/Output.h"
#include "core/files/NameText.h"
#include "editor/EditRules.h"
#include "editor/brush/BrushTable.h"

namespace tavrin::cli {

namespace {

/// What is in a file, counted.
struct EditCounts {
    std::map<std::string, int> kinds;
    std::array<int, kBrushes> strokes{};
};

EditCounts countEdits(const EditFile& file) {
    EditCounts counts;
    int brush = kEraseForeground;  // with which every recording in a file begins
    for (const EditItem& item : file.items) {
        const std::string name = nameOfKind(item.kind);
        ++counts.kinds[name.empty() ? "unknown" : name];
        if (const int chosen = brushOfKey(item.V1); item.kind == kBrushChosen && chosen >= 0) brush = chosen;
        if (item.kind == kMouseDown) ++counts.strokes[static_cast<std::size_t>(brush)];
    }
    return counts;
}

std::string nameOfTool(const BrushTable& table, std::size_t brush) {
    return brush == kSelection ? "Selection" : table[brush].sBrushName;
}

QJsonObject describe(const EditFile& file, const EditCounts& counts) {
    QJsonObject kinds, strokes;
    for (const auto& [name, count] : counts.kinds)
        kinds[QString::fromStdString(name)] = count;
    const BrushTable table = makeBrushTable();
    for (std::size_t brush = 0; brush < kBrushes; ++brush) {
        if (counts.strokes[brush] > 0)
            strokes[QString::fromStdString(nameOfTool(table, brush))] = counts.strokes[brush];
    }
    QJsonObject object{{"file", textOfName(file.path)},
                       {"width", file.width},
                       {"height", file.height},
                       {"zoom", file.zoom},
                       {"items", static_cast<qint64>(file.items.size())},
                       {"leftOut", static_cast<qint64>(file.dropped)},
                       {"kinds", kinds},
                       {"strokes", strokes}};
    if (file.seed) object["seed"] = QString::number(*file.seed);
    return object;
}

void printCounts(const EditFile& file, const EditCounts& counts) {
    printLine(file.path + ": edits of a picture of " + std::to_string(file.width) + " x " +
              std::to_string(file.height) + " pixels");
    std::printf("%-28s %zu\n", "items", file.items.size());
    if (file.dropped > 0) std::printf("%-28s %zu\n", "left out, beyond the most", file.dropped);
    for (const auto& [name, count] : counts.kinds)
        std::printf("  %-26s %d\n", name.c_str(), count);
    const BrushTable table = makeBrushTable();
    for (std::size_t brush = 0; brush < kBrushes; ++brush) {
        if (counts.strokes[brush] > 0)
            std::printf("%-28s %d\n", ("strokes of " + nameOfTool(table, brush)).c_str(), counts.strokes[brush]);
    }
}

int editsInfo(const std::string& path, bool json) {
    const ReadEdits read = readEditFile(path);
    if (!read.problem.isEmpty()) {
        complain(englishText(read.problem));
        return kFailed;
    }
    const EditCounts counts = countEdits(read.file);
    if (json) {
        printJson(QJsonDocument(describe(read.file, counts)), false);
    } else {
        printCounts(read.file, counts);
    }
    return kDone;
}

}  // namespace

void addEditsCommand(CLI::App& app, int& result) {
    CLI::App* edits = app.add_subcommand("edits", "Work with files of airbrush edits");
    edits->require_subcommand(1);
    const auto path = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    CLI::App* info = edits->add_subcommand("info", "Tell what is in a file of edits");
    info->add_option("file", *path, "File of edits")->required();
    info->add_flag("--json", *json, "As JSON");
    info->footer(
        "\nExample:\n  tavrin-cli edits info anna.edits\n\n"
        "Exit codes: 0 the file can be played, 1 it cannot, 2 wrong usage.");
    info->callback([=, &result] { result = editsInfo(*path, *json); });
}

}  // namespace tavrin::cli

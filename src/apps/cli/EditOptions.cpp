#include "apps/cli/EditOptions.h"

#include "apps/cli/Console.h"
#include "core/files/Places.h"

namespace tavrin::cli {

CLI::Option* addScaleRadius(CLI::App& command, bool& on) {
    return command
        .add_flag("--edits-scale-radius", on, "Brushes grow with the picture where edits were made at another size")
        ->needs("--edits");
}

void addEditOptions(CLI::App& command, EditOptions& options) {
    command.add_option("--edits", options.file, "Play a file of airbrush edits on the finished picture")
        ->excludes("--preview");
    command.add_option("--edits-alpha", options.alpha, "Also write the alpha after the edits as a grey PNG")
        ->needs("--edits");
    addScaleRadius(command, options.scaleRadius);
}

Refusal readEdits(const EditOptions& options, EditFile& edits) {
    if (options.file.empty()) return {};
    ReadEdits read = readEditFile(options.file);
    edits = std::move(read.file);
    return read.problem.isEmpty() ? Refusal{} : Refusal{kFailed, englishText(read.problem)};
}

std::string editsUndoFolder() {
    return Places::current().tempFilesFolder() + "edits/";
}

}  // namespace tavrin::cli

#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "apps/cli/Refusal.h"
#include "editor/EditFile.h"

namespace tavrin::cli {

/// The airbrush's edits that are played on a picture.
struct EditOptions {
    std::string file;
    std::string alpha;  ///< where the alpha goes as they leave it
    bool scaleRadius = false;
};

void addEditOptions(CLI::App& command, EditOptions& options);
/// For the radius alone, which goes with `--edits` of the same command.
CLI::Option* addScaleRadius(CLI::App& command, bool& on);

/// Reads the file of edits, if there is one.
Refusal readEdits(const EditOptions& options, EditFile& edits);

/// A folder of this process for what the edits can undo.
std::string editsUndoFolder();

/// Adds "edits info".
void addEditsCommand(CLI::App& app, int& result);

}  // namespace tavrin::cli

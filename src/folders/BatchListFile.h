#pragma once

#include <string>
#include <vector>

#include "folders/BatchElement.h"
#include "folders/BatchNames.h"

namespace tavrin {

/// What a job of a list takes over where its lines say nothing.
struct BatchListDefaults {
    std::string foregroundPath, backgroundPath;
    std::string outputFolder;
    int outputFileType = 0, outputStyle = 0;
    bool outputTransparency = false, noGreenScreenProcessing = false, blueScreenProcessing = false;
    std::string betweenNames;       ///< what parts the names that make up a picture's
    bool skipTakenNumbers = false;  ///< a number under which a picture lies already is not given again
};

struct ParsedBatchList {
    std::vector<BatchElement> jobs;
    int refused = 0;       ///< jobs beyond the limit
    int unclosedLine = 0;  ///< where the first job was opened that is never closed, and so no job
};

/// Reads the jobs of a batch list. It looks like XML and is read line by line, and each line stands alone: `<image>`
/// opens a job, `</image>` closes it, between them a line holds at most one `<key>value</key>`; everything else is
/// passed over. Folders for the pictures are made on the way, as far as `makeFolder` does.
/// @param nextNumber of the next numbered picture; counted on
/// @param limit most jobs that are taken
ParsedBatchList parseBatchList(const std::string& text, const BatchListDefaults& defaults, int& nextNumber,
                               std::size_t limit, const MakeFolder& makeFolder);

}  // namespace tavrin

#include "editor/PlayEdits.h"

#include <cmath>

#include "editor/Editor.h"

namespace tavrin {

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string sizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

// A size within a pixel of the other one's shape is a rounding of it.
bool isOtherShape(const EditFile& file, const PassGeometry& size) {
    const double width = static_cast<double>(file.width) * size.height / file.height;
    return std::abs(width - size.width) > 1.0 + static_cast<double>(size.height) / file.height;
}

void warnOfFile(const EditFile& file, const PassGeometry& size, std::vector<std::string>& warnings) {
    const std::string made =
        file.path + " was made for a picture of " + sizeText(file.width, file.height) + " pixels";
    if (isOtherShape(file, size)) {
        warnings.push_back(made + ", and this one of " + sizeText(size.width, size.height) +
                           " has another shape: strokes may lie elsewhere.");
    }
    if (file.dropped > 0) {
        warnings.push_back(file.path + " has more than " + std::to_string(kMostEditItems) + " items: the last " +
                           counted(file.dropped, "was", "were") + " left out.");
    }
    if (file.unknown > 0) {
        warnings.push_back(file.path + " has " + counted(file.unknown, "item", "items") +
                           " of kinds that are not known here, left out.");
    }
}

}  // namespace

PlayedEdits playEdits(SystemInfo& info, const EditFile& file, bool scaleRadius,
                      const std::filesystem::path& undoFolder) {
    PlayedEdits played;
    const PassGeometry size = info.geometry(Resolution::full);
    const double scale = static_cast<double>(size.height) / file.height;
    Editor editor(info, undoFolder);
    editor.setScreenZoom(file.zoom * scale);
    if (scaleRadius) editor.setRadiusScale(scale);
    editor.undoFiles.keepFiles(file.undoes());
    if (const EditMessage problem = editor.EnterEditorMode(); !problem.isEmpty()) {
        played.problem = file.path + ": " + englishText(problem);
        return played;
    }
    warnOfFile(file, size, played.warnings);
    editor.recording.setSaved(file.items, editor.oBrushInfo, editor.iActiveButton);
    editor.startReplay();
    EditedRows changed;
    while (editor.OnReplayTimer(changed)) {
    }
    const EditMessage& undone = editor.undoFiles.problem;
    if (!undone.isEmpty()) played.warnings.push_back(englishText(undone));
    if (const int outside = editor.strokes - editor.strokesInside; outside > 0) {
        played.warnings.push_back(file.path + ": " + counted(static_cast<std::size_t>(outside), "stroke", "strokes") +
                                  " of " + std::to_string(editor.strokes) + " did not meet the picture.");
    }
    editor.DeselectColorRange();
    editor.ExitEditorMode();
    return played;
}

}  // namespace tavrin

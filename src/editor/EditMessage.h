#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// What there is to say about edits. `wordsOf` has the words of each.
enum class EditSays {
    nothing,
    verbatim,  ///< its own text: a name, a number, or the words of somebody else
    // Whole lines.
    noPicture,
    noSilhouette,
    stepNotKept,
    stepUnreadable,
    lastStepNotKept,
    recordingFull,
    strokesOutside,
    fileLine,
    fileProblem,
    // Why a file could not be written.
    diskFull,
    noFolder,
    notAFolder,
    mayNotWrite,
    onlyReadable,
    largerThanAllowed,
    // What is wrong with a file of edits, or a line of one.
    noSuchFile,
    noFileOfEdits,
    tooLarge,
    unreadable,
    doesNotBegin,
    lacksView,
    beginsWith,
    onlyVersion,
    viewTwice,
    viewTakes,
    zoomLate,
    zoomTakes,
    seedTakes,
    viewLate,
    itemIs,
    noWholeNumber,
    itemName,
    takesOne,
    takesMany,
    outOfRange,
    // Items.
    mouseDown,
    mouseUp,
    mouseDragged,
    brush,
    sliders,
    colour,
    pickedColour,
    selectionColour,
    checkBox,
    selectionBox,
    selection,
    key,
    redo,
    undo,
    zoomIn,
    zoomHome,
    radiusScale,
    visit,
    selectionFound,
    anchor,
    anchorOffset,
    // Their values.
    x,
    y,
    character,
    state,
    red,
    green,
    blue,
    slider,
    radius,
    hardness,
    transparency,
    tolerance,
    source,
    height,
    otherHeight,
    packedColour,
    toolColour,
    across,
    down,
    last = down
};

/// One thing to say, with what stands in the places of its words.
struct EditMessage {
    EditSays what = EditSays::nothing;
    std::vector<EditMessage> parts = {};  ///< of %1, %2 and so on
    std::string text = {};                ///< of `verbatim`

    bool isEmpty() const { return what == EditSays::nothing; }
    bool operator==(const EditMessage&) const = default;
};

EditMessage verbatim(std::string text);
EditMessage verbatim(long long number);

/// English words, with %1, %2 for parts; translations have them in the context "Edits". Empty for `verbatim`.
const char* wordsOf(EditSays what);

/// A message in English, as one plain line.
std::string englishText(const EditMessage& message);

}  // namespace tavrin

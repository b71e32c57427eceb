#include "editor/EditMessage.h"

#include <utility>

#include <QtGlobal>

namespace tavrin {

namespace {

struct Words {
    EditSays what;
    const char* words;
};

// In the order of the codes.
constexpr Words kWords[] = {
    {EditSays::nothing, ""},
    {EditSays::verbatim, ""},
    {EditSays::noPicture, QT_TRANSLATE_NOOP("Edits", "There is no full picture to edit.")},
    {EditSays::noSilhouette,
     QT_TRANSLATE_NOOP("Edits", "Nothing can be edited: the picture of the silhouette cannot be read.")},
    {EditSays::stepNotKept, QT_TRANSLATE_NOOP("Edits", "This step cannot be undone: %1.")},
    {EditSays::stepUnreadable, QT_TRANSLATE_NOOP("Edits", "This step stays: its file %1 cannot be read.")},
    {EditSays::lastStepNotKept,
     QT_TRANSLATE_NOOP("Edits", "The last stroke cannot be undone: its file could not be written.")},
    {EditSays::recordingFull,
     QT_TRANSLATE_NOOP(
         "Edits", "The recording is full: what is done from here on stays in the picture, but no replay has it.")},
    {EditSays::strokesOutside, QT_TRANSLATE_NOOP("Edits", "Strokes that did not meet the picture: %1 of %2.")},
    {EditSays::fileLine, QT_TRANSLATE_NOOP("Edits", "%1, line %2: %3.")},
    {EditSays::fileProblem, QT_TRANSLATE_NOOP("Edits", "%1: %2.")},
    {EditSays::diskFull, QT_TRANSLATE_NOOP("Edits", "the disk is full")},
    {EditSays::noFolder, QT_TRANSLATE_NOOP("Edits", "the folder %1 does not exist")},
    {EditSays::notAFolder, QT_TRANSLATE_NOOP("Edits", "%1 is not a folder")},
    {EditSays::mayNotWrite, QT_TRANSLATE_NOOP("Edits", "no permission to write into the folder %1")},
    {EditSays::onlyReadable, QT_TRANSLATE_NOOP("Edits", "the folder %1 can only be read")},
    {EditSays::largerThanAllowed, QT_TRANSLATE_NOOP("Edits", "the file would be larger than this disk allows")},
    {EditSays::noSuchFile, QT_TRANSLATE_NOOP("Edits", "there is no such file")},
    {EditSays::noFileOfEdits, QT_TRANSLATE_NOOP("Edits", "that is no file of edits")},
    {EditSays::tooLarge, QT_TRANSLATE_NOOP("Edits", "it is too large for a file of edits")},
    {EditSays::unreadable, QT_TRANSLATE_NOOP("Edits", "it cannot be read")},
    {EditSays::doesNotBegin, QT_TRANSLATE_NOOP("Edits", "it does not begin with \"%1\"")},
    {EditSays::lacksView, QT_TRANSLATE_NOOP("Edits", "it has no line \"view WIDTH HEIGHT\"")},
    {EditSays::beginsWith, QT_TRANSLATE_NOOP("Edits", "a file of edits begins with \"%1\"")},
    {EditSays::onlyVersion, QT_TRANSLATE_NOOP("Edits", "only version %1 of files of edits is known here")},
    {EditSays::viewTwice, QT_TRANSLATE_NOOP("Edits", "there is a view already")},
    {EditSays::viewTakes, QT_TRANSLATE_NOOP("Edits", "view takes width and height in pixels, each 1 to 100000")},
    {EditSays::zoomLate, QT_TRANSLATE_NOOP("Edits", "zoom stands before the first item")},
    {EditSays::zoomTakes, QT_TRANSLATE_NOOP("Edits", "zoom takes the pixels of a point of the view, 0.001 to 1000")},
    {EditSays::seedTakes, QT_TRANSLATE_NOOP("Edits", "seed takes a whole number from 0 on")},
    {EditSays::viewLate, QT_TRANSLATE_NOOP("Edits", "the line \"view WIDTH HEIGHT\" comes before the items")},
    {EditSays::itemIs, QT_TRANSLATE_NOOP("Edits", "an item is a kind and up to four values")},
    {EditSays::noWholeNumber, QT_TRANSLATE_NOOP("Edits", "\"%1\" is no whole number")},
    {EditSays::itemName, QT_TRANSLATE_NOOP("Edits", "%1 (%2)")},
    {EditSays::takesOne, QT_TRANSLATE_NOOP("Edits", "%1 takes 1 value")},
    {EditSays::takesMany, QT_TRANSLATE_NOOP("Edits", "%1 takes %2 values")},
    {EditSays::outOfRange, QT_TRANSLATE_NOOP("Edits", "%1 has %2 %3, and it goes from %4 to %5")},
    {EditSays::mouseDown, QT_TRANSLATE_NOOP("Edits", "mouse down")},
    {EditSays::mouseUp, QT_TRANSLATE_NOOP("Edits", "mouse up")},
    {EditSays::mouseDragged, QT_TRANSLATE_NOOP("Edits", "mouse dragged")},
    {EditSays::brush, QT_TRANSLATE_NOOP("Edits", "brush")},
    {EditSays::sliders, QT_TRANSLATE_NOOP("Edits", "sliders of the brush")},
    {EditSays::colour, QT_TRANSLATE_NOOP("Edits", "colour")},
    {EditSays::pickedColour, QT_TRANSLATE_NOOP("Edits", "colour from the picture")},
    {EditSays::selectionColour, QT_TRANSLATE_NOOP("Edits", "colour of the selection")},
    {EditSays::checkBox, QT_TRANSLATE_NOOP("Edits", "check box")},
    {EditSays::selectionBox, QT_TRANSLATE_NOOP("Edits", "check box of the selection")},
    {EditSays::selection, QT_TRANSLATE_NOOP("Edits", "selection")},
    {EditSays::key, QT_TRANSLATE_NOOP("Edits", "key")},
    {EditSays::redo, QT_TRANSLATE_NOOP("Edits", "redo")},
    {EditSays::undo, QT_TRANSLATE_NOOP("Edits", "undo")},
    {EditSays::zoomIn, QT_TRANSLATE_NOOP("Edits", "zoom in")},
    {EditSays::zoomHome, QT_TRANSLATE_NOOP("Edits", "zoom home")},
    {EditSays::radiusScale, QT_TRANSLATE_NOOP("Edits", "scale of the radius")},
    {EditSays::visit, QT_TRANSLATE_NOOP("Edits", "editor entered again")},
    {EditSays::selectionFound, QT_TRANSLATE_NOOP("Edits", "selection as it was found")},
    {EditSays::anchor, QT_TRANSLATE_NOOP("Edits", "anchor")},
    {EditSays::anchorOffset, QT_TRANSLATE_NOOP("Edits", "way to the anchor")},
    {EditSays::x, QT_TRANSLATE_NOOP("Edits", "x")},
    {EditSays::y, QT_TRANSLATE_NOOP("Edits", "y")},
    {EditSays::character, QT_TRANSLATE_NOOP("Edits", "the character")},
    {EditSays::state, QT_TRANSLATE_NOOP("Edits", "the state")},
    {EditSays::red, QT_TRANSLATE_NOOP("Edits", "red")},
    {EditSays::green, QT_TRANSLATE_NOOP("Edits", "green")},
    {EditSays::blue, QT_TRANSLATE_NOOP("Edits", "blue")},
    {EditSays::slider, QT_TRANSLATE_NOOP("Edits", "the slider")},
    {EditSays::radius, QT_TRANSLATE_NOOP("Edits", "the radius")},
    {EditSays::hardness, QT_TRANSLATE_NOOP("Edits", "the hardness")},
    {EditSays::transparency, QT_TRANSLATE_NOOP("Edits", "the transparency")},
    {EditSays::tolerance, QT_TRANSLATE_NOOP("Edits", "the tolerance")},
    {EditSays::source, QT_TRANSLATE_NOOP("Edits", "the source")},
    {EditSays::height, QT_TRANSLATE_NOOP("Edits", "the height")},
    {EditSays::otherHeight, QT_TRANSLATE_NOOP("Edits", "the other height")},
    {EditSays::packedColour, QT_TRANSLATE_NOOP("Edits", "the colour")},
    {EditSays::toolColour, QT_TRANSLATE_NOOP("Edits", "the tool's colour")},
    {EditSays::across, QT_TRANSLATE_NOOP("Edits", "the way across")},
    {EditSays::down, QT_TRANSLATE_NOOP("Edits", "the way down")},
};

constexpr bool isInOrder() {
    std::size_t at = 0;
    for (const Words& words : kWords) {
        if (static_cast<std::size_t>(words.what) != at++) return false;
    }
    return at == static_cast<std::size_t>(EditSays::last) + 1;
}
static_assert(isInOrder());

}  // namespace

EditMessage verbatim(std::string text) {
    return {EditSays::verbatim, {}, std::move(text)};
}

EditMessage verbatim(long long number) {
    return verbatim(std::to_string(number));
}

const char* wordsOf(EditSays what) {
    return kWords[static_cast<std::size_t>(what)].words;
}

std::string englishText(const EditMessage& message) {
    if (message.what == EditSays::verbatim) return message.text;
    std::string line;
    for (const char* c = wordsOf(message.what); *c != '\0'; ++c) {
        if (*c == '%' && c[1] >= '1' && c[1] <= '9') {
            const auto part = static_cast<std::size_t>(*++c - '1');
            if (part < message.parts.size()) line += englishText(message.parts[part]);
        } else {
            line += *c;
        }
    }
    return line;
}

}  // namespace tavrin

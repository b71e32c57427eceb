// The part of the door that plays what was done before, and hands it out.
#include <cmath>
#include <utility>

#include "editor/EditorDoor.h"

namespace tavrin {

void EditorDoor::replay() {
    push({[this] { return replayNow(); }});
}

void EditorDoor::play(EditFile file) {
    push({[this, file = std::move(file)] { return playNow(file); }});
}

EditedRows EditorDoor::replayNow() {
    if (!editor_.bShowCursor || replaying_ || waits_) return {};
    if (lost_.empty() && last_.items.empty()) return {};
    toPlay_.assign(lost_.begin(), lost_.end());
    if (lost_.empty()) toPlay_.push_back(last_);
    whole_ = visits_;
    if (editor_.recording.count() > 0) whole_.push_back(present());
    whole_.insert(whole_.end(), toPlay_.begin(), toPlay_.end());
    replaying_ = true;
    strokes_ = inside_ = 0;
    begin(toPlay_.front());
    push({[this] { return tick(); }, false, true});
    return {};
}

// Positions of the file come to the points that are recorded here. While nothing is, its own points are taken.
EditedRows EditorDoor::playNow(EditFile file) {
    if (!editor_.bShowCursor || replaying_ || waits_) return {};
    const double frame = file.height / file.zoom;
    if (visits_.empty() && editor_.recording.count() == 0) {
        frameHeight_ = frame;
        editor_.setScreenZoom(homeZoom());
    }
    if (file.seed && *file.seed != seed_) return makeAnew(file);
    lost_ = {visitOf(file)};
    return replayNow();
}

// What is in the picture goes with it, and comes back before the file's strokes.
EditedRows EditorDoor::makeAnew(const EditFile& file) {
    lost_ = std::exchange(visits_, {});
    if (editor_.recording.count() > 0) lost_.push_back(present());
    lost_.push_back(visitOf(file));
    last_ = lost_.back();
    editor_.recording.clear();
    waits_ = true;
    wantedSeed_ = file.seed;
    info_.StartUpdate();
    return {};
}

EditVisit EditorDoor::visitOf(const EditFile& file) const {
    const double frame = file.height / file.zoom;
    const auto scaled = [&](std::int64_t v) {
        return frame == frameHeight_ ? v : std::llround(static_cast<double>(v) * frameHeight_ / frame);
    };
    EditVisit visit;
    visit.height = file.height;
    for (EditItem item : file.items) {
        if (item.kind == kMouseDown || item.kind == kMouseDragged || item.kind == kKeyPressed ||
            item.kind == kAnchorOffset || (item.kind == kAnchor && item.V1 >= 0)) {
            item.V1 = scaled(item.V1);
            item.V2 = scaled(item.V2);
        }
        visit.items.push_back(item);
    }
    return visit;
}

void EditorDoor::offer(EditFile file) {
    push({[this, file = std::move(file)]() -> EditedRows {
        if (editor_.bShowCursor) return {};
        visits_.clear();
        editor_.recording.clear();
        frameHeight_ = file.height / file.zoom;
        lost_ = {visitOf(file)};
        last_ = lost_.back();
        portrait_ = info_.pForegroundBitmapInfo->sSourceImageFullPath.load();
        number_ = -1;
        return {};
    }});
}

// Behind strokes of this visit the way to the other tools is recorded, too.
void EditorDoor::playTools(const EditVisit& visit) {
    const int height = info_.geometry(Resolution::full).height;
    EditTools wanted = visit;
    if (visit.height > 0) wanted.anchor = scaled(visit.anchor, static_cast<double>(height) / visit.height);
    editor_.setScreenZoom(homeZoom());
    if (editor_.recording.count() == 0) {
        start_ = {wanted, {}, height};
        return editor_.putTools(wanted);
    }
    EditTools present = editor_.tools();
    if (editor_.selection.bSelected) present.selection.iSelectionMode = -1;  // so that it is taken off
    std::vector<EditItem> items = itemsTo(wanted, present, homeZoom());
    items.insert(items.begin(), {kZoomHome});
    for (const EditItem& item : items) {
        record(item);
        editor_.apply(item, EditOrigin::replay);
    }
}

void EditorDoor::begin(const EditVisit& visit) {
    strokes_ -= editor_.strokes;
    inside_ -= editor_.strokesInside;
    playTools(visit);
    const int height = info_.geometry(Resolution::full).height;
    scaled_ = scalesRadius_ && visit.height > 0 && visit.height != height;
    if (scaled_) editor_.apply({kRadiusScale, height, visit.height}, EditOrigin::live);
    editor_.recording.setSaved(scaled_ ? withScale(visit.items, height, visit.height) : visit.items, visit.brushes,
                               visit.iActiveButton);
    editor_.startReplay();
}

// What a hand does behind it has its own size again.
void EditorDoor::endPlaying() {
    strokes_ += editor_.strokes;
    inside_ += editor_.strokesInside;
    if (std::exchange(scaled_, false)) editor_.apply({kRadiusScale, 1, 1}, EditOrigin::live);
}

// Each visit began with an editor that was entered anew, and so it is played.
EditedRows EditorDoor::tick() {
    EditedRows changed;
    if (!replaying_) return changed;
    if (!editor_.OnReplayTimer(changed)) {
        endPlaying();
        if (!toPlay_.empty()) toPlay_.pop_front();
        replaying_ = !toPlay_.empty();
        if (!replaying_) {
            lost_.clear();
            if (strokes_ > inside_)
                problem_ = {EditSays::strokesOutside, {verbatim(strokes_ - inside_), verbatim(strokes_)}};
        } else {
            keepVisit();
            editor_.ExitEditorMode();
            problem_ = enterEditor();
            begin(toPlay_.front());
        }
    }
    if (replaying_) push({[this] { return tick(); }, false, true});
    return changed;
}

void EditorDoor::askForFile(std::function<void(const EditFile&)> take) {
    push({[this, take = std::move(take)]() -> EditedRows {
        std::vector<EditVisit> done = visits_;
        if (editor_.recording.count() > 0) done.push_back(present());
        if (done.empty()) done = lost_;
        const PassGeometry size = info_.geometry(Resolution::full);
        EditFile file = fileOf(done, size.width, size.height, homeZoom());
        file.seed = seed_;
        take(file);
        return {};
    }});
}

}  // namespace tavrin

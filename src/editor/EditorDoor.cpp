#include "editor/EditorDoor.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace tavrin {

namespace {

constexpr auto kShowEvery = std::chrono::milliseconds(25);  // what has been done by then is shown
// So many moves that wait are more than a tenth of a second of a hand's: showing costs time, too, and comes less
// often. So it is in a replay, whose strokes lie all over the picture.
constexpr std::size_t kBehind = 8;
constexpr auto kShowBehind = std::chrono::milliseconds(100);

}  // namespace

EditorDoor::EditorDoor(SystemInfo& info, CombineThread& loop, std::filesystem::path undoFolder,
                       std::function<void(const EditorFace&)> tell)
    : info_(info), loop_(loop), tell_(std::move(tell)), editor_(info, std::move(undoFolder)) {}

// Sliders that follow each other are one change: a selection takes longer than a hand's next move.
void EditorDoor::push(Piece piece) {
    const std::lock_guard lock(mutex_);
    if (letGo_) return;
    if (piece.sliders && !pieces_.empty() && pieces_.back().sliders) {
        pieces_.back() = std::move(piece);
    } else {
        pieces_.push_back(std::move(piece));
    }
    if (!std::exchange(scheduled_, true)) loop_.edit([this] { return work(); });
}

std::vector<ChangedRows> EditorDoor::work() {
    const auto begun = std::chrono::steady_clock::now();
    auto showEvery = kShowEvery;
    EditedRows changed;
    try {
        for (bool more = true; more;) {
            Piece piece;
            {
                const std::lock_guard lock(mutex_);
                scheduled_ = !pieces_.empty();
                if (!scheduled_) break;
                if (replaying_ || pieces_.size() > kBehind) showEvery = kShowBehind;
                piece = std::move(pieces_.front());
                pieces_.pop_front();
            }
            const EditedRows rows = piece.run();
            changed.add(rows.first, rows.last);
            more = std::chrono::steady_clock::now() - begun < showEvery;
            if (!more) loop_.edit([this] { return work(); });
        }
    } catch (...) {
        const std::lock_guard lock(mutex_);
        pieces_.clear();
        scheduled_ = false;
        throw;
    }
    tell_(face());
    if (changed.isEmpty()) return {};
    return {{Resolution::full, changed.first, changed.last}};
}

EditorFace EditorDoor::face() {
    EditorFace face;
    face.open = open_ = editor_.bShowCursor;
    face.iActiveButton = editor_.iActiveButton;
    face.brush = editor_.oBrushInfo[static_cast<std::size_t>(editor_.iActiveButton)];
    const GUI_BrushInfo& well = editor_.well() ? *editor_.well() : face.brush;
    face.red = well.red;
    face.green = well.green;
    face.blue = well.blue;
    face.iSelectionMode = editor_.selection.iSelectionMode;
    face.picksColor = editor_.picksColor();
    face.bShowAnchorCursor = editor_.bShowAnchorCursor;
    face.dAnchorOffsetX = editor_.dAnchorOffsetX;
    face.dAnchorOffsetY = editor_.dAnchorOffsetY;
    const UndoFiles& undo = editor_.undoFiles;
    face.canUndo = undo.canUndo && !replaying_;
    face.canRedo = undo.canRedo && !replaying_;
    face.scalesRadius = scalesRadius_;
    face.step = undo.iSaveSnapShot;
    if (std::exchange(stepSeen_, face.step) != face.step) undoBytes_ = undo.sizeOnDisk();
    face.undoBytes = undoBytes_;
    face.recorded = editor_.recording.count();
    face.replaying = replaying_ || waits_;
    if (isSamePortrait()) face.lost = strokesOf(overwritten());
    face.replayable = lost_.empty() ? strokesOf(last_) : strokesOf(lost_);
    if (problem_.isEmpty()) problem_ = std::exchange(editor_.undoFiles.problem, {});
    if (problem_.isEmpty() && face.recorded == kMostEditItems && !std::exchange(toldFull_, true))
        problem_ = {EditSays::recordingFull};
    face.problem = std::exchange(problem_, {});
    return face;
}

// What the present picture was made without.
std::vector<EditVisit> EditorDoor::overwritten() const {
    std::vector<EditVisit> gone;
    if (isAnother()) gone = visits_;
    if (isAnother() && editor_.recording.count() > 0) gone.push_back(present());
    return gone.empty() ? lost_ : gone;
}

void EditorDoor::enter() {
    push({[this] { return enterNow(); }});
}

EditVisit EditorDoor::present() const {
    EditVisit visit = start_;
    for (int i = 0; i < editor_.recording.count(); ++i)
        visit.items.push_back(editor_.recording.item(i));
    return visit;
}

// The recording of the visit that has ended is about to be moved aside.
void EditorDoor::keepVisit() {
    if (editor_.recording.count() == 0) return;
    visits_.push_back(present());
    last_ = visits_.back();
}

// Positions are recorded in points of a view that stays as high as it was, so that they mean the same place at every
// size. It is as high as the picture when there is nothing yet to keep.
double EditorDoor::homeZoom() const {
    return info_.geometry(Resolution::full).height / frameHeight_;
}

EditedRows EditorDoor::enterNow() {
    if (editor_.bShowCursor) return {};
    const std::string unfinished = info_.whyNotFinished(Resolution::full);
    if (!unfinished.empty()) problem_ = verbatim(unfinished);
    if (!unfinished.empty() || info_.iCurrentThreadCount <= info_.iNewThreadCount) return {};
    keepVisit();
    if (isAnother()) forgetOverwritten();
    number_ = info_.iCurrentThreadCount;
    wantedSeed_.reset();
    portrait_ = info_.pForegroundBitmapInfo->sSourceImageFullPath.load();
    problem_ = enterEditor();
    // A visit in which nothing was done does not cost the recording of the one before.
    if (editor_.recording.savedCount() == 0)
        editor_.recording.setSaved(last_.items, last_.brushes, last_.iActiveButton);
    return std::exchange(waits_, false) && !lost_.empty() ? replayNow() : EditedRows{};
}

// The present picture was made without them. Those of another portrait are none of this one's.
void EditorDoor::forgetOverwritten() {
    if (!visits_.empty()) {
        lost_ = std::exchange(visits_, {});
        last_ = lost_.back();
    }
    if (!isSamePortrait()) lost_.clear();
}

EditMessage EditorDoor::enterEditor() {
    const bool nothingYet = visits_.empty() && lost_.empty() && last_.items.empty();
    if (nothingYet || frameHeight_ <= 0.0) frameHeight_ = info_.geometry(Resolution::full).height;
    editor_.setScreenZoom(homeZoom());
    const EditMessage problem = editor_.EnterEditorMode();
    start_ = {editor_.tools(), {}, 0};
    start_.height = info_.geometry(Resolution::full).height;
    toldFull_ = false;
    stepSeen_ = -1;
    return problem;
}

// A replay comes to its end first, so that the picture has all of it.
void EditorDoor::leave() {
    push({[this]() -> EditedRows {
        waits_ = false;
        if (replaying_) {
            leave();
        } else if (editor_.bShowCursor) {
            editor_.ExitEditorMode();
        }
        return {};
    }});
}

// Who starts there makes the same picture.
void EditorDoor::beginPass() {
    if (wantedSeed_) info_.randomSeeds.startAt(*wantedSeed_);
    seed_ = info_.randomSeeds.upcoming();
}

// What waits was meant for the picture that goes. Of a replay all that it would have brought comes back, not its
// first part.
void EditorDoor::closeForPass() {
    {
        const std::lock_guard lock(mutex_);
        std::erase_if(pieces_, [](const Piece& piece) { return piece.ofPicture; });
    }
    editor_.ExitEditorMode();
    editor_.armEyeDropper(false);
    if (std::exchange(replaying_, false)) {
        visits_ = std::move(whole_);
        lost_.clear();
        editor_.recording.clear();
    }
    tell_(face());
}

void EditorDoor::apply(const EditItem& item) {
    push({[this, item]() -> EditedRows { return doNow(item); }, item.kind == kBrushSliders});
}

// What would do nothing is not recorded: played behind another visit it would take a stroke of that one.
EditedRows EditorDoor::doNow(const EditItem& item) {
    const std::int64_t key = item.kind == kKeyPressed ? item.V3 & 223 : 0;
    if (!editor_.bShowCursor || replaying_ || waits_) return {};
    if ((item.kind == kUndo || key == 'Z') && !editor_.undoFiles.canUndo) return {};
    if ((item.kind == kRedo || key == 'V') && !editor_.undoFiles.canRedo) return {};
    return editor_.apply(item, EditOrigin::live);
}

void EditorDoor::applyAt(std::int64_t kind, double x, double y, std::int64_t character) {
    push({[=, this]() -> EditedRows {
              const double up = info_.geometry(Resolution::full).height - std::floor(y);
              const auto point = [&](double pixels) {
                  return static_cast<std::int64_t>(std::floor(pixels / editor_.dScreenZoom));
              };
              return doNow({kind, point(std::floor(x)), point(up), character});
          },
          false, true});
}

// Of what no hand did.
void EditorDoor::record(const EditItem& item) {
    editor_.recording.AddReplayItem(item, editor_.oBrushInfo, editor_.iActiveButton);
}

void EditorDoor::armEyeDropper(bool on) {
    push({[this, on]() -> EditedRows {
              editor_.armEyeDropper(on && editor_.bShowCursor);
              return {};
          },
          false, true});
}

void EditorDoor::scaleRadius(bool on) {
    push({[this, on]() -> EditedRows {
        scalesRadius_ = on;
        return {};
    }});
}

void EditorDoor::look() {
    push({[]() -> EditedRows { return {}; }});
}

void EditorDoor::letGo() {
    const std::lock_guard lock(mutex_);
    letGo_ = true;
    pieces_.clear();
}

// Straight edits, so that they stand before and after the one that saves.
void EditorDoor::withoutPattern(const std::function<void()>& save) {
    const auto published = [](const EditedRows& rows) {
        return rows.isEmpty() ? std::vector<ChangedRows>{}
                              : std::vector<ChangedRows>{{Resolution::full, rows.first, rows.last}};
    };
    loop_.edit([this, published] {
        const EditedRows rows = isAnother() ? EditedRows{} : editor_.DeselectColorRange();
        patternOff_ = !rows.isEmpty();
        // It does not come back once the editor was left, which a replay does, too.
        if (patternOff_ && !editor_.bShowCursor) record(selectionItem(editor_.tools()));
        return published(rows);
    });
    save();
    loop_.edit([this, published] {
        const bool back = std::exchange(patternOff_, false) && editor_.bShowCursor;
        return published(back ? editor_.SelectColorRange() : EditedRows{});
    });
}

}  // namespace tavrin

#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

#include "editor/EditVisit.h"
#include "editor/Editor.h"
#include "pipeline/CombineThread.h"

namespace tavrin {

/// What a window shows of the editor, as it stood after the last item.
struct EditorFace {
    bool open = false;
    int iActiveButton = kEraseForeground;
    GUI_BrushInfo brush = makeBrushTable()[kEraseForeground];  ///< the active tool
    std::uint8_t red = 0, green = 0, blue = 0;                 ///< the colour well
    std::int64_t iSelectionMode = ColorSelection::kNone;
    bool picksColor = false;  ///< the next press takes a colour
    bool bShowAnchorCursor = false;
    double dAnchorOffsetX = 0.0, dAnchorOffsetY = 0.0;  ///< pixels of the picture, y downward
    bool canUndo = false, canRedo = false;
    std::int32_t step = 0;         ///< of undo, on which the picture stands
    std::uintmax_t undoBytes = 0;  ///< of all steps, on the disk
    int recorded = 0;              ///< items
    int replayable = 0;            ///< strokes that a replay would bring
    int lost = 0;                  ///< strokes that the present picture was made without
    bool replaying = false;        ///< or about to
    bool scalesRadius = false;
    EditMessage problem;  ///< what went wrong, once
};

/// The editor beside a running loop. All that is asked of it is done as an edit of the loop's, in turn, so it never
/// meets a pass; a pass closes it first. What was done is kept over visits and passes, so that a replay brings all of
/// it back. Whatever is not said to be the loop's thread's is for one thread, and returns at once.
class EditorDoor {
  public:
    /// @param tell is called on the loop's thread after whatever was done
    EditorDoor(SystemInfo& info, CombineThread& loop, std::filesystem::path undoFolder,
               std::function<void(const EditorFace&)> tell);

    void enter();
    void leave();
    void apply(const EditItem& item);
    /// An item with a place: pixels of the picture from its upper left corner, y downward.
    void applyAt(std::int64_t kind, double x, double y, std::int64_t character = 0);
    void armEyeDropper(bool on);
    /// Whether strokes that are played at another size of the picture become as much thicker.
    void scaleRadius(bool on);
    /// Plays what the last pass overwrote, visit by visit, or else the last visit's recording, a few items at a time.
    void replay();
    /// Plays a file of edits on the present picture. One that says where random numbers start has the picture made
    /// anew from there first, and all strokes come back with it.
    void play(EditFile file);
    /// Strokes that were kept with the portrait at hand: they count as overwritten.
    void offer(EditFile file);
    /// Hands over what was done to the present picture, or what a replay would bring; on the loop's thread.
    void askForFile(std::function<void(const EditFile&)> take);
    /// Does work that lets the picture out, and wants none of the selection's pattern in it.
    /// @param save asks the loop for its edit
    void withoutPattern(const std::function<void()>& save);
    /// Another picture was made: tells how it stands.
    void look();
    /// What is not yet begun is dropped: the window goes.
    void letGo();

    /// From any thread.
    bool isOpen() const { return open_; }
    /// The loop's thread: a pass begins, and closes the editor where that is open.
    void beginPass();
    void closeForPass();

  private:
    struct Piece {
        std::function<EditedRows()> run;
        bool sliders = false;    ///< one behind another takes its place
        bool ofPicture = false;  ///< means the picture that stands, and goes with it
    };

    void push(Piece piece);
    std::vector<ChangedRows> work();
    EditorFace face();
    bool isAnother() const { return number_ != info_.iCurrentThreadCount; }
    bool isSamePortrait() const { return portrait_ == info_.pForegroundBitmapInfo->sSourceImageFullPath.load(); }
    EditedRows doNow(const EditItem& item);
    void record(const EditItem& item);
    EditedRows enterNow();
    EditMessage enterEditor();
    void keepVisit();
    void forgetOverwritten();
    double homeZoom() const;
    EditedRows replayNow();
    EditedRows playNow(EditFile file);
    EditVisit visitOf(const EditFile& file) const;
    void playTools(const EditVisit& visit);
    EditedRows makeAnew(const EditFile& file);
    void begin(const EditVisit& visit);
    void endPlaying();
    EditedRows tick();
    EditVisit present() const;
    std::vector<EditVisit> overwritten() const;

    SystemInfo& info_;
    CombineThread& loop_;
    std::function<void(const EditorFace&)> tell_;
    std::atomic<bool> open_ = false, letGo_ = false;
    std::mutex mutex_;
    std::deque<Piece> pieces_;  // these two under the lock
    bool scheduled_ = false;

    Editor editor_;                  // what follows is the loop's thread's
    std::vector<EditVisit> visits_;  // whose strokes are in the picture, but for the one under way or just ended
    std::vector<EditVisit> lost_;    // whose strokes a pass has overwritten
    std::deque<EditVisit> toPlay_;   // the first one is being played
    std::vector<EditVisit> whole_;   // what will be in the picture when all of it was played
    EditVisit start_;                // the tools as the visit began, without items
    EditVisit last_;                 // what the last recording holds
    std::int32_t number_ = -1;       // of the picture that was entered
    std::string portrait_;           // and its source
    double frameHeight_ = 0.0;       // points of the view that recorded positions go by
    bool replaying_ = false, toldFull_ = false;
    int strokes_ = 0, inside_ = 0;  // of what is played; while a visit is, without its own
    bool waits_ = false;            // for the picture that is made anew, to play on it
    bool scalesRadius_ = false, scaled_ = false;
    bool patternOff_ = false;  // for as long as the picture goes out
    std::int32_t stepSeen_ = -1;
    std::uintmax_t undoBytes_ = 0;
    EditMessage problem_;
    std::uint64_t seed_ = 1;                   // where random numbers of the present pass began
    std::optional<std::uint64_t> wantedSeed_;  // and where they shall, until its picture stands
};

}  // namespace tavrin

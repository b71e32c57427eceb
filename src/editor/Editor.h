#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "editor/ColorSelection.h"
#include "editor/EditItem.h"
#include "editor/EditMessage.h"
#include "editor/EditRecording.h"
#include "editor/EditTools.h"
#include "editor/UndoFiles.h"
#include "editor/brush/Stamp.h"

namespace tavrin {

/// Who asks for an edit. What a person does is recorded; what a replay does was.
enum class EditOrigin { live, replay };

/// The airbrush: repairs the full combined picture of a state by hand, in place, and the alpha bytes of its
/// background. Mouse, keys, panel and replay come in by the one door `apply`.
///
/// It writes into the state's buffers, so all of it runs where nothing else does: as an edit of the processing loop,
/// or while no loop runs. A pass of the loop replaces or overwrites what was done, so the editor has to be left
/// before one.
class Editor {
  public:
    static constexpr int kItemsPerTick = 40;  ///< of a replay

    /// @param undoFolder the steps of undo lie there as files; leaving the editor empties it
    Editor(SystemInfo& info, std::filesystem::path undoFolder);

    /// Takes the state's pictures and freezes the key's settings. Nothing happens while it is on.
    /// @return nothing, or why nothing can be edited: there is no picture, or that of the silhouette is missing, with
    ///         which the editor is on and changes nothing
    EditMessage EnterEditorMode();
    /// The picture stays as it is, with the pattern of a selection that stands.
    void ExitEditorMode();

    /// Does what an item says; other kinds are passed over.
    /// @return the rows of the combined picture that changed
    EditedRows apply(const EditItem& item, EditOrigin origin);

    /// The next press of the mouse picks a colour.
    void armEyeDropper(bool on) { bSelectColorMode_ = on; }
    /// Picture pixels per point of the view at home zoom.
    void setScreenZoom(double home);
    /// Stamps are this much larger than their brushes tell; 1 unless edits are played at another size.
    void setRadiusScale(double scale) { radiusScale_ = scale; }
    bool picksColor() const { return bSelectColorMode_; }
    /// The colour well, which stamps take their colour from: nothing until somebody has set it.
    const std::optional<GUI_BrushInfo>& well() const { return well_; }
    EditTools tools() const;
    /// Puts the tools as they stood, but for the brush table.
    void putTools(const EditTools& tools);
    /// Takes the pattern of a selection off, before the picture goes out, and puts it on again. Also after the editor
    /// was left, as long as the picture is the one that was edited.
    EditedRows DeselectColorRange();
    EditedRows SelectColorRange();

    /// Begins to play the last recording. Brushes are put as they were when it began, at the first tick.
    void startReplay() { iReplayIndex_ = 0; }
    /// Plays the next items, and records them.
    /// @return whether there are more
    bool OnReplayTimer(EditedRows& changed);

    bool bShowCursor = false;  ///< the editor is on
    BrushTable oBrushInfo = makeBrushTable();
    int iActiveButton = kEraseForeground;  ///< place of the active tool
    EditRecording recording;
    UndoFiles undoFiles;
    ColorSelection selection;
    double dScreenZoom = 1.0, dZoom = 1.0;
    std::int32_t iXCursor = -1, iYCursor = -1;  ///< last stamp in picture pixels; after a press the mouse
    std::int32_t iMousePosX = 0, iMousePosY = 0;
    bool bShowAnchorCursor = false;
    double dAnchorOrgX = -1.0, dAnchorOrgY = -1.0, dAnchorOffsetX = 0.0, dAnchorOffsetY = 0.0;
    /// Presses of the mouse since the editor was entered, and those whose strokes met the picture.
    int strokes = 0, strokesInside = 0;

  private:
    struct Point {
        std::int32_t x, y;
    };

    EditMessage enterPicture();
    void enterAgain();
    bool isReady() const { return bShowCursor && key_.has_value(); }
    GUI_BrushInfo& active() { return oBrushInfo[static_cast<std::size_t>(iActiveButton)]; }
    void record(const EditItem& item) { recording.AddReplayItem(item, oBrushInfo, iActiveButton); }
    void act(const EditItem& item);
    void actLive(const EditItem& item);

    Point pixelAt(double x, double y) const;
    void ProcessBrushMove(double x, double y);
    void mouseDownReplay();
    void mouseDrageReplay(Point to);
    void walk(Point from, Point to);
    void mouseUpReplay();
    void pickColor();
    void keyDownReplay(std::int64_t character, Point mouse);
    void setAnchor();
    void takeColorOfPicture();
    void setWell(const EditItem& color);
    void putSelection(const EditItem& found);
    void putAnchor(const EditItem& place);

    void selectBrushRedu(std::int64_t key);
    void editSliderChangeRedue(const EditItem& sliders);
    void changeSelectionLive(std::int64_t slider, std::int64_t mode);
    void changeSelectionRedue(std::int64_t slider, std::int64_t tolerance);
    void updateSelectColor();
    void selectAgain();
    void undo();
    void redo();
    void writeSnapShotBack();
    void changedAll() { changed_.add(0, pixels_.iHeight); }

    SystemInfo& info_;
    EditorPixels pixels_;
    std::optional<EditorKey> key_;
    std::optional<StampPainter> painter_;
    std::optional<GUI_BrushInfo> well_;  // the colour well, once somebody has set it
    bool bSelectColorMode_ = false;
    bool picks_ = false;  // the press that holds picked a colour, and its drag draws nothing
    bool bAnchorFirstTime_ = false;
    bool strokeMet_ = true;  // the running stroke, or no stroke runs
    double homeZoom_ = 1.0, radiusScale_ = 1.0;
    double playedScale_ = 1.0;  // of the radius, by an item
    std::int32_t iReplayIndex_ = 0;
    EditedRows changed_;
};

}  // namespace tavrin

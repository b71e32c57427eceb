#pragma once

#include <vector>

#include "ui/WindowBridge.h"
#include "ui/bind/Command.h"
#include "ui/editor/BrushTool.h"
#include "ui/editor/EditorPage.h"

namespace tavrin {

/// The airbrush in a window: panel, brush and editor. It is on while its main tab is turned to and a full picture
/// stands; a pass of the loop closes it, and it comes back with the new picture.
class Airbrush : public QObject {
    Q_OBJECT

  public:
    Airbrush(Binder& binder, CombineThread& loop, WindowBridge& bridge, PictureView* view);

    EditorPage* page() const { return page_; }
    BrushCursor* cursor() const { return cursor_; }
    const EditorFace& face() const { return face_; }
    bool isOpen() const { return face_.open; }
    bool isReplaying() const { return face_.replaying; }
    /// A main tab was chosen: this one's, or another.
    void turnTo(bool airbrush);
    /// A full picture stands, or a pass begins.
    void setFinished(bool finished);
    void undo() { door_.apply({kUndo}); }
    void redo() { door_.apply({kRedo}); }
    /// The view was zoomed in by a step, or fitted, as a recording has it.
    void noteZoom(EditKind kind) { door_.apply({kind}); }
    void replay();
    void saveEdits(const QString& path);
    void loadEdits(const QString& path);
    /// Strokes that were kept with the portrait at hand, as the text of a file of edits, to be brought back when
    /// asked.
    void offer(const std::string& edits);
    void askForFileToSave();
    void askForFileToLoad();
    /// Does what lets the picture out, without the pattern of a selection.
    void withoutPattern(const std::function<void()>& save) { door_.withoutPattern(save); }
    /// The loop is about to end.
    void letGo() { door_.letGo(); }

  signals:
    /// The editor was entered or left.
    void modeChanged(bool open);
    /// What can be done changed.
    void changed();
    /// The picture has other pixels than after the last stroke.
    void edited();
    /// All strokes that the present picture has, or had.
    void strokesChanged(const EditFile& file);
    /// The present picture was made without so many strokes, which a replay brings back.
    void strokesLost(int strokes);
    void told(const QString& line);
    void failed(const QString& line, const QString& reason);

  private:
    void take(const EditorFace& face);
    void keepStrokes();
    void write(const QString& path, const EditFile& file);
    QString suggestedFile() const;

    SystemInfo& info_;
    PictureView* view_;
    EditorDoor door_;
    EditorPage* page_;
    BrushCursor* cursor_;
    BrushTool* tool_;
    EditorFace face_;
    bool turnedTo_ = false, finished_ = false;
    int lostTold_ = 0;
};

/// What the airbrush adds to the window's commands.
std::vector<Command> editorCommands(Airbrush& airbrush);

}  // namespace tavrin

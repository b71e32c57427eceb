#pragma once

#include <optional>

#include <QObject>
#include <QPointF>

#include "editor/EditorDoor.h"

class QKeyEvent;
class QMouseEvent;

namespace tavrin {

class BrushCursor;
class PictureView;

/// What mouse, pen and keys do on the picture while the editor is on.
class BrushTool : public QObject {
    Q_OBJECT

  public:
    /// What the pressure of a pen changes.
    enum class Pen { nothing, radius, strength };

    BrushTool(EditorDoor& door, PictureView* view, BrushCursor* cursor);

    /// How the editor stands now.
    void show(const EditorFace& face);
    void setPen(Pen pen) { pen_ = pen; }
    /// Changes the radius of the active tool by hundredths of the largest one.
    void growBrush(int by);
    /// Whether a key chooses a tool or acts on the picture; `onPicture`: the picture has the focus.
    bool takesKey(const QKeyEvent& event, bool onPicture) const;
    void key(const QKeyEvent& event, bool onPicture);

  signals:
    void strokeEnded();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void endStroke();
    void usePressure();
    QPointF pixelAt(const QPointF& view) const;
    void acts(char character);

    EditorDoor& door_;
    PictureView* view_;
    BrushCursor* cursor_;
    EditorFace face_;
    Pen pen_ = Pen::nothing;
    double pressure_ = 1.0;
    std::optional<EditItem> slidersBefore_;  // of a stroke that the pen's pressure changes
    EditItem slidersNow_;
    bool drawing_ = false, penDown_ = false;
    QPointF mouse_;
    std::optional<QPointF> lastEnd_;  // of a stroke, in pixels of the picture
};

}  // namespace tavrin

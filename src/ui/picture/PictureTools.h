#pragma once

#include <QTimer>

#include "ui/WindowBridge.h"
#include "ui/adjust/LayerDrag.h"
#include "ui/picture/ItemTool.h"
#include "ui/picture/MouseMode.h"
#include "ui/picture/PixelReader.h"
#include "ui/picture/StoryPanel.h"

namespace tavrin {

/// What the picture's own tools do: before and after, alpha, the read-out of a pixel and its story, and the drags of
/// the six mouse modes.
class PictureTools : public QObject {
    Q_OBJECT

  public:
    PictureTools(Binder& binder, CombineThread& loop, WindowBridge& bridge, PictureView* view);

    MouseMode* mouseMode() const { return mouseMode_; }
    ItemTool& items() { return items_; }
    StoryPanel* story() const { return story_; }
    /// A new full picture stands: what is shown beside or instead of it is made anew.
    void pictureFinished();
    /// The portrait as it was taken, for as long as it is held; the key's alpha; and the portrait left of a line.
    void showOriginal(bool on);
    void showAlpha(bool on);
    void showSplit(bool on);
    /// Clicks ask for a pixel's story.
    void ask(bool on);

  signals:
    /// Of the pixel under the pointer, as one line; "" when there is none.
    void readOut(const QString& line);

  private:
    enum class Other { before, original, alpha };

    void connectView();
    bool wants(Other other) const;
    void showOthers();
    void take(Other other, const QImage& picture);
    void makeOther(Other other);
    void drag(const QPointF& share, const QPointF& points);
    void endDrag();
    void tell(const PixelStory& story);

    SystemInfo& info_;
    Binder& binder_;
    CombineThread& loop_;
    WindowBridge& bridge_;
    PictureView* view_;
    MouseMode* mouseMode_;
    StoryPanel* story_;
    PixelReader reader_, asker_;  // a story that is asked for is not lost to the next read-out
    LayerDrag drag_;
    ItemTool items_;
    QTimer zoomRests_;
    QPoint pointed_{-1, -1};
    bool originalHeld_ = false, dragging_ = false;
};

}  // namespace tavrin

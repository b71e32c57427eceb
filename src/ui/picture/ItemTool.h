#pragma once

#include <QObject>
#include <QTimer>

#include "ui/bind/Binder.h"
#include "ui/views/PictureView.h"

namespace tavrin {

/// Texts and pictures that are selected on the picture itself: a frame with an icon to edit and one to delete, and
/// drags that move or scale. The frame goes by itself some seconds after the last touch.
class ItemTool : public QObject {
    Q_OBJECT

  public:
    static constexpr int kShowCount = 8;  ///< half seconds for which an untouched frame stays

    ItemTool(Binder& binder, PictureView* view);

    bool bShowTextCursor() const { return view_->selection().has_value(); }
    /// The item of the list that was selected last; -1 before.
    int iSelectedFontIndex() const { return iSelectedFontIndex_; }
    /// A press at points from the lower left corner of the picture's frame. `selects`: items are the mouse's target.
    void press(const QPoint& at, bool selects);
    /// A drag of the frame that is shown, since the press, in points to the right and up; 5 moves and 6 scales.
    void dragTo(int mode, const QPointF& points);
    void endDrag();
    void hideFrame();
    /// Shows the frame of an item that was selected elsewhere; -1: of none.
    void show(int row);
    void deleteTextItemRow(int row);

  signals:
    /// Another item is selected, or none (-1); or the selected one was changed.
    void selected(int index);
    /// The icon that edits was pressed.
    void editWanted(int index);

  private:
    void OnTextSelectTimer();
    void place();
    void showFrame();
    void askToDelete(int row);
    void beginDrag(int mode);
    void moveTo(const QPointF& points);
    void scaleTo(const QPointF& points);
    void set(const char* field, double value);
    ItemScale scale() const;
    bool hasItem() const;
    const FontObject& item() const;
    std::string name(const char* field) const;

    Binder& binder_;
    PictureView* view_;
    QTimer textSelectTimer_;
    int iSelectedFontIndex_ = -1, iTextShowCount_ = 0;
    bool dragging_ = false;
    ItemBox boxBefore_;
    double scaleBefore_ = 1.0;
};

}  // namespace tavrin

#pragma once

#include <string>

#include <QPointF>

#include "session/SettingEditor.h"

namespace tavrin {

/// A layer that is moved or scaled with the mouse on the picture: one step of undo from the press to the release.
class LayerDrag {
  public:
    explicit LayerDrag(SettingEditor& editor) : editor_(editor) {}

    bool isUnderWay() const { return mode_ != 0; }
    /// @param mode 1 moves and 2 scales the portrait, 3 and 4 the background
    void begin(int mode, const std::string& label);
    /// @param share way of the mouse since the press, to the right and up, in parts of the picture's width and
    /// height.
    ///              The layer goes with the pointer
    void dragTo(const QPointF& share);
    /// The layer's full buffer waits for this, so it is drawn again.
    void end();

  private:
    void scaleTo(double scale);

    SettingEditor& editor_;
    int mode_ = 0;
    int xBefore_ = 0, yBefore_ = 0;
    double scaleBefore_ = 1.0;
};

}  // namespace tavrin

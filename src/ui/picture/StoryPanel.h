#pragma once

#include <QFrame>

#include "ui/picture/StoryText.h"

class QFormLayout;

namespace tavrin {

/// A pixel's story, in a small panel over the corner of the picture that lies away from the pixel. Esc and its button
/// close it.
class StoryPanel : public QFrame {
    Q_OBJECT

  public:
    /// @param view the picture's view, over which it lies
    explicit StoryPanel(QWidget* view);

    /// @param at the pixel, in points of the view
    void show(const PixelStory& story, const QPointF& at);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QFormLayout* rows_;
};

}  // namespace tavrin

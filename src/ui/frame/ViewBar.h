#pragma once

#include <QSlider>
#include <QWidget>

#include "ui/frame/Commands.h"
#include "ui/views/PictureView.h"

namespace tavrin {

/// The zoom as a slider, even in steps of the same factor.
class ZoomSlider : public QSlider {
    Q_OBJECT

  public:
    explicit ZoomSlider(PictureView* view, QWidget* parent = nullptr);

  private:
    void showZoom();

    PictureView* view_;
};

/// The bar below the picture: zoom, what of the picture is shown, undo and redo.
class ViewBar : public QWidget {
    Q_OBJECT

  public:
    ViewBar(const Commands& commands, PictureView* view, QWidget* parent = nullptr);
};

}  // namespace tavrin

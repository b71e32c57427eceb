#pragma once

#include "ui/adjust/ScaleView.h"
#include "ui/bind/PanelPage.h"

namespace tavrin {

/// The controls of the key and of the two layers.
class AdjustPage : public PanelPage {
    Q_OBJECT

  public:
    explicit AdjustPage(Binder& binder, QWidget* parent = nullptr);

    /// The small maps of the layer and of the selected item.
    ScaleView* scaleView() const { return scaleView_; }
    TextScaleView* textScaleView() const { return textScaleView_; }

  private:
    QWidget* makeLayerSwitch();
    void chooseLayer(int layer);

    Binder& binder_;
    ScaleView* scaleView_;
    TextScaleView* textScaleView_;
};

}  // namespace tavrin

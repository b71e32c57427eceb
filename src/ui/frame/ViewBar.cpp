#include "ui/frame/ViewBar.h"

#include <cmath>

#include <QFrame>
#include <QHBoxLayout>

#include "ui/bind/WheelGuard.h"
#include "ui/frame/ActionButton.h"

namespace tavrin {

namespace {

constexpr int kSteps = 400;
constexpr double kLeastScale = 0.02;  // device pixels to a pixel of the picture
const double kRange = std::log(Zoom::kLargest / kLeastScale);

double scaleAt(int step) {
    return kLeastScale * std::exp(kRange * step / kSteps);
}

}  // namespace

ZoomSlider::ZoomSlider(PictureView* view, QWidget* parent) : QSlider(Qt::Horizontal, parent), view_(view) {
    setObjectName("sliderZoom");
    setProperty("handler", "zoomSlider");
    setAccessibleName(tr("Zoom"));
    setToolTip(tr("Smaller to the left, larger to the right"));
    setRange(0, kSteps);
    setSingleStep(5);
    setPageStep(30);
    setFixedWidth(110);
    new WheelGuard(this);
    connect(this, &QSlider::valueChanged, this, [this](int step) { view_->setPixelScale(scaleAt(step)); });
    connect(view_, &PictureView::zoomed, this, &ZoomSlider::showZoom);
    showZoom();
}

/// Where the zoom came from elsewhere it stands between two steps, and stays there.
void ZoomSlider::showZoom() {
    const QSignalBlocker quiet(this);
    setValue(qRound(kSteps * std::log(view_->zoom().pixelScale() / kLeastScale) / kRange));
}

ViewBar::ViewBar(const Commands& commands, PictureView* view, QWidget* parent) : QWidget(parent) {
    setObjectName("viewBar");
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(8, 3, 8, 3);
    line->setSpacing(2);
    const auto add = [&](std::initializer_list<const char*> ids, Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly) {
        for (const char* id : ids)
            line->addWidget(buttonOf(commands.action(id), this, style));
    };
    const auto divide = [&] {
        auto* rule = new QFrame(this);
        rule->setFrameShape(QFrame::VLine);
        rule->setFixedHeight(18);
        line->addSpacing(6);
        line->addWidget(rule);
        line->addSpacing(6);
    };
    commands.action("ZoomOut")->setIconText(QChar(0x2212));
    commands.action("ZoomIn")->setIconText("+");
    line->addStretch();
    add({"setZoomHome", "ZoomPixels", "ZoomOut"});
    line->addWidget(new ZoomSlider(view, this));
    add({"ZoomIn"});
    divide();
    add({"ShowSplit", "ShowAlpha", "ShowScreen", "ShowGuard", "AskPicture"}, Qt::ToolButtonTextBesideIcon);
    divide();
    add({"UndoButton", "RedoButton"});
    line->addStretch();
}

}  // namespace tavrin

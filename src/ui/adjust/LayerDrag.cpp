#include "ui/adjust/LayerDrag.h"

#include "core/state/ChangeFlags.h"
#include "ui/bind/Binder.h"

namespace tavrin {

void LayerDrag::begin(int mode, const std::string& label) {
    const SystemInfo& info = editor_.info();
    const BitmapInfo& layer = mode <= 2 ? *info.pForegroundBitmapInfo : *info.pBackgroundBitmapInfo;
    mode_ = mode;
    xBefore_ = layer.iOrgXoff;
    yBefore_ = layer.iOrgYoff;
    scaleBefore_ = layer.fScale;
    editor_.beginStep(label);
}

void LayerDrag::dragTo(const QPointF& share) {
    const std::string owner = mode_ <= 2 ? "foreground." : "background.";
    if (mode_ == 1 || mode_ == 3) {
        editor_.set(owner + "iOrgXoff", std::to_string(static_cast<int>(xBefore_ + 1000.0 * share.x())));
        editor_.set(owner + "iOrgYoff", std::to_string(static_cast<int>(yBefore_ + 1000.0 * share.y())));
    } else {
        scaleTo(scaleBefore_ + share.y());
    }
}

void LayerDrag::scaleTo(double scale) {
    constexpr double kLeast = 0.01;
    const bool tooSmall = scale < kLeast;
    if (mode_ == 4) editor_.set("background.fScale", settingText(kScale, scale));
    // A background that gets too small has always set the portrait to the least size, and stayed as small as it was.
    if (mode_ == 2 || tooSmall) editor_.set("foreground.fScale", settingText(kScale, tooSmall ? kLeast : scale));
}

void LayerDrag::end() {
    raiseFlags(editor_.info(), mode_ <= 2 ? kRedoForegroundLayer : kRedoBackgroundLayer);
    editor_.endStep();
    mode_ = 0;
}

}  // namespace tavrin

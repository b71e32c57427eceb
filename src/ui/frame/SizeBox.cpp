#include "ui/frame/SizeBox.h"

#include "session/OutputSizes.h"
#include "ui/bind/WheelGuard.h"

namespace tavrin {

SizeBox::SizeBox(SystemInfo& info, QWidget* parent) : QComboBox(parent), info_(info) {
    setObjectName("comboBoxImageSize");
    setProperty("handler", "comboBoxImageSizeChange:");
    setAccessibleName(tr("Output size"));
    setToolTip(tr("Size and resolution of the finished picture"));
    setMaxVisibleItems(24);
    new WheelGuard(this);
    reload();
    connect(this, &QComboBox::activated, this, &SizeBox::comboBoxImageSizeChange);
}

void SizeBox::reload() {
    clear();
    for (const ImageSize& size : info_.oImageSize)
        addItem(QString::fromStdString(size.sName));
    updateComboBoxImageSize();
}

void SizeBox::updateComboBoxImageSize() {
    const int listed = info_.iImageSizeCount();
    while (count() > listed)
        removeItem(listed);
    int index = info_.iSelecteImageSize;
    if (const auto own = selectedSize(info_); own && index == kOwnImageSize) {
        addItem(tr("%1 (this picture only)").arg(QString::fromStdString(own->sName)));
        index = listed;
    }
    setCurrentIndex(index);
}

/// The size that is selected already does nothing.
void SizeBox::comboBoxImageSizeChange(int index) {
    if (index == info_.iSelecteImageSize || !chooseSize(info_, index)) return;
    updateComboBoxImageSize();
    info_.StartUpdate();
    emit sizeChosen();
}

}  // namespace tavrin

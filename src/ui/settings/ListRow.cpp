#include "ui/settings/ListRow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include "ui/bind/WheelGuard.h"

namespace tavrin {

ListRow::ListRow(ListSetting setting, QWidget* parent)
    : QWidget(parent), setting_(std::move(setting)), list_(new QComboBox(this)) {
    setObjectName(QString(setting_.control) + "Row");
    setAccessibleName(setting_.label);
    setToolTip(setting_.toolTip);
    list_->setObjectName(setting_.control);
    list_->setProperty("handler", QString(setting_.control) + "Change:");
    list_->setAccessibleName(setting_.label);
    list_->setToolTip(setting_.toolTip);
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const ListSetting::Entry& entry : setting_.entries)
        list_->addItem(entry.text, entry.value);
    new WheelGuard(list_);
    connect(list_, &QComboBox::activated, this, [this](int index) {
        if (list_->itemData(index).toString() == setting_.present()) return;
        setting_.choose(list_->itemData(index).toString());
        if (!setting_.said.isEmpty()) emit told(setting_.said);
    });
    auto* label = new QLabel(setting_.label, this);
    label->setBuddy(list_);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 4);
    layout->addWidget(label, 2);
    layout->addWidget(list_, 3);  // the same for every list, so that they stand in line
    refresh();
}

void ListRow::refresh() {
    list_->setCurrentIndex(list_->findData(setting_.present()));
}

}  // namespace tavrin

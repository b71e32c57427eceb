#include "ui/editor/BrushSlider.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "ui/bind/Groove.h"
#include "ui/bind/NumberField.h"

namespace tavrin {

BrushSlider::BrushSlider(const char* name, QWidget* parent)
    : QWidget(parent),
      text_(new QLabel(this)),
      least_(new QLabel(this)),
      most_(new QLabel(this)),
      groove_(new Groove(this)),
      number_(new NumberField(0, this)) {
    groove_->setObjectName(name);
    groove_->setProperty("handler", "editSliderChange:");
    groove_->setRange(0, 100);
    number_->setObjectName(QString(name) + "Number");
    number_->setProperty("handler", "editSliderChange:");
    for (QLabel* end : {least_, most_})
        end->setForegroundRole(QPalette::PlaceholderText);
    most_->setAlignment(Qt::AlignRight);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    number_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(text_, 0, 0, 1, 2);
    layout->addWidget(number_, 0, 2, 2, 1);
    layout->addWidget(groove_, 1, 0, 1, 2);
    layout->addWidget(least_, 2, 0);
    layout->addWidget(most_, 2, 1);
    connect(groove_, &Groove::valueChanged, this, [this](int value) {
        number_->setNumber(value);
        emit moved();
    });
    connect(groove_, &Groove::stepped, this, &BrushSlider::step);
    connect(number_, &NumberField::stepped, this, &BrushSlider::step);
    connect(number_, &NumberField::entered, this, [this](double typed) {
        groove_->setValue(static_cast<int>(qBound(0.0, typed, 100.0)));
        number_->setNumber(groove_->value());
    });
}

void BrushSlider::setTexts(const QString& text, const QString& least, const QString& most) {
    text_->setText(text);
    least_->setText(least);
    most_->setText(most);
    const QString spoken = text.isEmpty() ? tr("%1 to %2").arg(least, most) : text;
    setAccessibleName(spoken);
    groove_->setAccessibleName(spoken);
    number_->setAccessibleName(tr("%1, number").arg(spoken));
}

void BrushSlider::setTip(const QString& tip) {
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(groove_)})
        part->setToolTip(tip);
}

int BrushSlider::value() const {
    return groove_->value();
}

void BrushSlider::showValue(int value) {
    if (groove_->isSliderDown()) return;
    const QSignalBlocker quiet(groove_);
    groove_->setValue(value);
    number_->setNumber(value);
}

void BrushSlider::step(int direction, Qt::KeyboardModifiers modifiers) {
    const int size = modifiers.testFlag(Qt::ShiftModifier) ? 1 : modifiers.testFlag(Qt::ControlModifier) ? 10 : 2;
    groove_->setValue(groove_->value() + direction * size);
}

}  // namespace tavrin

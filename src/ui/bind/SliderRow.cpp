#include "ui/bind/SliderRow.h"

#include <algorithm>
#include <cmath>

#include <QHBoxLayout>
#include <QLocale>
#include <QSignalBlocker>

#include "ui/bind/Groove.h"
#include "ui/bind/NumberField.h"

namespace tavrin {

SliderRow::SliderRow(const Binding& binding, QWidget* parent)
    : ControlRow(binding, parent),
      groove_(new Groove(this)),
      field_(new NumberField(binding.mapping->decimals, this)) {
    const QString name = translated(binding.label);
    groove_->setObjectName(binding.control);
    groove_->setRange(static_cast<int>(binding.minimum), static_cast<int>(binding.maximum));
    groove_->setAccessibleName(name);
    groove_->setAccessibleDescription(translated(binding.toolTip));
    field_->setObjectName(QString(binding.control) + "Number");
    field_->setAccessibleName(tr("%1, number").arg(name));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLabel(groove_));
    layout->addWidget(groove_, 1);
    layout->addWidget(field_);

    connect(groove_, &Groove::valueChanged, this, &SliderRow::moveGroove);
    connect(groove_, &Groove::sliderPressed, this, &ControlRow::began);
    connect(groove_, &Groove::sliderReleased, this, &ControlRow::ended);
    connect(groove_, &Groove::stepped, this, &SliderRow::step);
    connect(groove_, &Groove::resetWanted, this, &ControlRow::resetWanted);
    connect(field_, &NumberField::entered, this, &SliderRow::enter);
    connect(field_, &NumberField::stepped, this, &SliderRow::step);
    connect(field_, &NumberField::refused, this, [this, name](const QString& text) {
        emit told(tr("\"%1\" is no number; %2 stays as it was.").arg(text, name));
    });
}

QWidget* SliderRow::control() const {
    return groove_;
}

double SliderRow::stepFor(const Binding& binding, Qt::KeyboardModifiers modifiers) {
    const double range = binding.maximum - binding.minimum;
    if (modifiers.testFlag(Qt::ShiftModifier))
        return binding.mapping->decimals == 0 ? 1.0
                                              : std::abs(binding.mapping->toControl(0.1 / binding.mapping->shownBy) -
                                                         binding.mapping->toControl(0.0));
    return std::max(1.0, std::round(range / (modifiers.testFlag(Qt::ControlModifier) ? 10.0 : 50.0)));
}

double SliderRow::settingOf(double value) const {
    const double setting = binding_.mapping->toSetting(value);
    return binding_.mapping->decimals == 0 ? std::trunc(setting) : setting;
}

QString SliderRow::shownText(double value) const {
    return QLocale().toString(settingOf(value) * binding_.mapping->shownBy, 'g', 6);
}

void SliderRow::showValue(double setting) {
    const QSignalBlocker quiet(groove_);
    groove_->setValue(qRound(binding_.mapping->toControl(setting)));
    field_->setNumber(setting * binding_.mapping->shownBy);
}

void SliderRow::moveGroove(int value) {
    emit changed(settingOf(value));
}

void SliderRow::step(int direction, Qt::KeyboardModifiers modifiers) {
    take(binding_.mapping->toControl(settingShown()) + direction * stepFor(binding_, modifiers), false);
}

void SliderRow::enter(double shown) {
    take(binding_.mapping->toControl(shown / binding_.mapping->shownBy), true);
}

void SliderRow::take(double value, bool tellEnds) {
    const double held = std::clamp(value, binding_.minimum, binding_.maximum);
    if (tellEnds && held != value) {
        emit told(tr("%1 goes from %2 to %3; it was set to %4.")
                      .arg(translated(binding_.label), shownText(binding_.minimum), shownText(binding_.maximum),
                           shownText(held)));
    }
    emit changed(settingOf(held));
}

}  // namespace tavrin

#include "ui/bind/ControlRow.h"

#include <cmath>

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>

#include "ui/bind/SliderRow.h"

namespace tavrin {

ControlRow::ControlRow(const Binding& binding, QWidget* parent) : QWidget(parent), binding_(binding) {}

QString ControlRow::translated(const char* text) {
    return QCoreApplication::translate("Panel", text);
}

void ControlRow::showSetting(double setting) {
    setting_ = setting;
    showValue(setting);
    if (dot_) dot_->setVisible(isEnabled() && !isAtDefault());
}

bool ControlRow::isAtDefault() const {
    return std::abs(setting_ - binding_.reset) <= 1e-9;
}

QString ControlRow::valueText() const {
    for (const Choice& choice : binding_.choices)
        if (std::abs(setting_ - choice.value) <= 1e-9) return translated(choice.label);
    if (!binding_.choices.empty() || dynamic_cast<const BoxRow*>(this)) return {};
    return QLocale().toString(setting_ * binding_.mapping->shownBy, 'g', 6);
}

QToolButton* ControlRow::makeDot(QWidget* parent) {
    dot_ = new QToolButton(parent);
    dot_->setObjectName(QString(binding_.control) + "Reset");
    dot_->setProperty("dot", true);
    dot_->setText(QStringLiteral("\u2022"));
    dot_->setFocusPolicy(Qt::NoFocus);  // by keyboard the Delete key does it
    dot_->setToolTip(tr("Changed; a click puts the default back"));
    dot_->setAccessibleName(tr("Reset %1").arg(translated(binding_.label)));
    QSizePolicy kept = dot_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    dot_->setSizePolicy(kept);
    connect(dot_, &QToolButton::clicked, this, &ControlRow::resetWanted);
    return dot_;
}

QWidget* ControlRow::makeLabel(QWidget* buddy) {
    auto* holder = labelHolder_ = new QWidget(this);
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* label = new QLabel(translated(binding_.label), holder);
    label->setBuddy(buddy);
    label->setToolTip(translated(binding_.toolTip));
    label->installEventFilter(this);
    label_ = label;
    layout->addWidget(label);
    layout->addWidget(makeDot(holder));
    layout->addStretch();
    return holder;
}

int ControlRow::labelWidth() const {
    return labelHolder_ ? labelHolder_->sizeHint().width() : 0;
}

void ControlRow::setLabelWidth(int width) {
    if (labelHolder_) labelHolder_->setFixedWidth(width);
}

bool ControlRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == label_ && event->type() == QEvent::MouseButtonDblClick) {
        emit resetWanted();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

BoxRow::BoxRow(const Binding& binding, QWidget* parent) : ControlRow(binding, parent), box_(new QCheckBox(this)) {
    box_->setObjectName(binding.control);
    box_->setText(translated(binding.label));
    box_->setToolTip(translated(binding.toolTip));
    box_->setAccessibleName(box_->text());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box_);
    layout->addWidget(makeDot(this));
    layout->addStretch();
    connect(box_, &QCheckBox::toggled, this, [this](bool on) { emit changed(on ? 1.0 : 0.0); });
}

QWidget* BoxRow::control() const {
    return box_;
}

void BoxRow::showValue(double setting) {
    const QSignalBlocker quiet(box_);
    box_->setChecked(setting != 0.0);
}

ChoiceRow::ChoiceRow(const Binding& binding, QWidget* parent)
    : ControlRow(binding, parent), buttons_(new QButtonGroup(this)), segments_(new QWidget(this)) {
    segments_->setObjectName(binding.control);
    segments_->setAccessibleName(translated(binding.label));
    auto* row = new QHBoxLayout(segments_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < binding.choices.size(); ++i) {
        const Choice& choice = binding.choices[i];
        auto* button = new QToolButton(segments_);
        button->setObjectName(choice.control);
        button->setProperty("segment", true);
        button->setText(translated(choice.label));
        button->setToolTip(translated(binding.toolTip));
        button->setAccessibleName(tr("%1: %2").arg(translated(binding.label), translated(choice.label)));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        buttons_->addButton(button, static_cast<int>(i));
        row->addWidget(button);
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLabel(buttons_->button(0)));
    layout->addWidget(segments_, 1);
    connect(buttons_, &QButtonGroup::idToggled, this, [this](int id, bool on) {
        if (on) emit changed(binding_.choices[static_cast<std::size_t>(id)].value);
    });
}

QWidget* ChoiceRow::control() const {
    return segments_;
}

void ChoiceRow::showValue(double setting) {
    const QSignalBlocker quiet(buttons_);
    buttons_->setExclusive(false);
    for (std::size_t i = 0; i < binding_.choices.size(); ++i)
        buttons_->button(static_cast<int>(i))->setChecked(binding_.choices[i].value == setting);
    buttons_->setExclusive(true);
}

ControlRow* makeRow(const Binding& binding, QWidget* parent) {
    if (!binding.choices.empty()) return new ChoiceRow(binding, parent);
    if (binding.mapping == &kState) return new BoxRow(binding, parent);
    return new SliderRow(binding, parent);
}

}  // namespace tavrin

#include "ui/bind/NumberField.h"

#include <cmath>

#include <QKeyEvent>
#include <QLocale>
#include <QTimer>

namespace tavrin {

NumberField::NumberField(int decimals, QWidget* parent) : QLineEdit(parent), decimals_(decimals) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setMaxLength(12);
    connect(this, &QLineEdit::editingFinished, this, &NumberField::readText);
    setText(shown());
}

QSize NumberField::sizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("-1000.0")) + 14, fontMetrics().height() + 8};
}

QString NumberField::shown() const {
    const double whole = std::round(number_);
    const bool isWhole = decimals_ == 0 || std::abs(number_ - whole) < 0.5 * std::pow(10.0, -decimals_);
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(isWhole ? whole : number_, 'f', isWhole ? 0 : decimals_);
}

void NumberField::setNumber(double number) {
    number_ = number == 0.0 ? 0.0 : number;  // which knows no minus
    // A text that stays is not painted again, which counts while a slider is dragged.
    if (const QString now = shown(); now != text() && (!isModified() || !hasFocus())) setText(now);
}

/// With a comma or a full stop, whatever the locale: both are on every keyboard.
void NumberField::readText() {
    if (!isModified()) return;
    bool isNumber = false;
    const QString typed = text().trimmed();
    const double number = QString(typed).replace(',', '.').toDouble(&isNumber);
    setModified(false);
    setText(shown());
    if (!isNumber || !std::isfinite(number)) {
        emit refused(typed);
    } else {
        emit entered(number);
    }
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        readText();
        emit stepped(event->key() == Qt::Key_Up ? 1 : -1, event->modifiers());
    } else if (event->key() == Qt::Key_Escape && isModified()) {
        setModified(false);
        setText(shown());
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void NumberField::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void NumberField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    QTimer::singleShot(0, this, &QLineEdit::selectAll);  // after the click that brought the focus
}

}  // namespace tavrin

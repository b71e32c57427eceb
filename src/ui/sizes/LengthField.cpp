#include "ui/sizes/LengthField.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

LengthField::LengthField(const char* objectName, const QString& name, QWidget* parent)
    : QLineEdit(parent), name_(name) {
    setObjectName(objectName);
    setAccessibleName(name);
    setMaxLength(12);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { take(text, false); });
    connect(this, &QLineEdit::editingFinished, this, [this] { take(text(), true); });
}

void LengthField::setRange(double least, double most) {
    least_ = least;
    most_ = most;
}

void LengthField::setLength(const QString& text) {
    taken_ = text;
    setText(text);
}

QString LengthField::ends() const {
    return tr("%1 goes from %2 to %3.").arg(name_).arg(least_, 0, 'g', 5).arg(most_, 0, 'g', 5);
}

/// While it is typed a number may still be on its way, so only one that is too large is held then.
void LengthField::take(const QString& typed, bool ended) {
    bool isNumber = false;
    const QString plain = QString(typed).replace(',', '.').trimmed();
    const double number = plain.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        if (!ended) return;
        emit told(tr("\"%1\" is no number; %2 stays as it was.").arg(typed, name_));
        setText(taken_);
    } else if (number > most_ || (ended && number < least_)) {
        emit told(ends());
        setLength(QString::number(std::clamp(number, least_, most_), 'g', 6));
        emit lengthChanged();
    } else if (number >= least_ && plain != taken_) {
        taken_ = plain;
        emit lengthChanged();
    }
}

}  // namespace tavrin

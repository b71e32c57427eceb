#pragma once

#include <QString>

class QToolButton;

namespace tavrin {

/// A button with words, as wide as its place.
/// @param handler the operation behind it
QToolButton* makeButton(const char* name, const char* handler, const QString& text, const QString& toolTip);

/// Gives a control its name, the operation behind it, and what people are told of it.
/// @return the control
template <class Control>
Control* named(Control* control, const char* name, const char* handler, const QString& label,
               const QString& toolTip) {
    control->setObjectName(name);
    control->setProperty("handler", handler);
    control->setAccessibleName(label);
    control->setToolTip(toolTip);
    return control;
}

}  // namespace tavrin

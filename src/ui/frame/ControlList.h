#pragma once

#include <QJsonArray>

class QWidget;

namespace tavrin {

/// Every control below a widget that a person can work with, and what it drives: an object each with the keys
/// objectName, class, panel, label, toolTip, handler, setting, mapping, minimum, maximum, default, shortcut and
/// accessibleName. Menu entries are controls, too. What Qt makes for itself is left out.
QJsonArray listControls(const QWidget& window);

}  // namespace tavrin

#pragma once

#include <QAction>
#include <QToolButton>

namespace tavrin {

/// A flat button of a bar for an action: its icon and its words, or the icon alone where everybody knows that.
inline QToolButton* buttonOf(QAction* action, QWidget* parent,
                             Qt::ToolButtonStyle style = Qt::ToolButtonTextBesideIcon) {
    auto* button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setObjectName(action->objectName());
    button->setAccessibleName(action->text().section('\t', 0, 0).remove('&'));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolButtonStyle(action->icon().isNull() ? Qt::ToolButtonTextOnly : style);
    return button;
}

}  // namespace tavrin

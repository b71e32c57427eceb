#pragma once

#include <QAction>
#include <QToolButton>

namespace tavrin {

/// A flat button of a bar for an action, in words.
inline QToolButton* buttonOf(QAction* action, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setObjectName(action->objectName());
    button->setAccessibleName(action->text().section('\t', 0, 0).remove('&'));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return button;
}

}  // namespace tavrin

#include "ui/bind/WordButton.h"

#include <QToolButton>

namespace tavrin {

QToolButton* makeButton(const char* name, const char* handler, const QString& text, const QString& toolTip) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setProperty("handler", handler);
    button->setText(text);
    button->setAccessibleName(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

}  // namespace tavrin

#include "ui/effects/ActionRow.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tavrin {

ActionRow::ActionRow(const EffectActionRow& row, Binder& binder, QWidget* parent) : QWidget(parent) {
    setObjectName(row.name);
    setAccessibleName(tr("Start"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const EffectAction& action : row.actions) {
        auto* button = new QToolButton(this);
        button->setObjectName(action.control);
        button->setProperty("handler", action.handler);
        button->setText(ControlRow::translated(action.label));
        button->setAccessibleName(button->text());
        button->setToolTip(ControlRow::translated(action.toolTip));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, this, [&binder, &action] { runEffectAction(binder, action); });
        layout->addWidget(button);
    }
}

}  // namespace tavrin

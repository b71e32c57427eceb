#include "ui/effects/ActionRow.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tavrin {

ActionRow::ActionRow(const EffectActionRow& row, Binder& binder, QWidget* parent)
    : QWidget(parent), row_(row), binder_(binder) {
    setObjectName(row.name);
    setAccessibleName(tr("Start"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const EffectAction& action : row.actions) {
        auto* button = new QToolButton(this);
        button->setObjectName(action.control);
        button->setProperty("handler", action.handler);
        button->setProperty("segment", action.inForce != nullptr);
        button->setCheckable(action.inForce != nullptr);
        button->setText(ControlRow::translated(action.label));
        button->setAccessibleName(button->text());
        button->setToolTip(ControlRow::translated(action.toolTip));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, this, [this, &action] { runEffectAction(binder_, action); });
        layout->addWidget(button);
        buttons_.push_back(button);
    }
    connect(&binder, &Binder::shown, this, &ActionRow::refresh);
    refresh();
}

void ActionRow::refresh() {
    const SystemInfo& info = binder_.editor().info();
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        if (row_.actions[i].inForce) buttons_[i]->setChecked(row_.actions[i].inForce(info));
}

}  // namespace tavrin

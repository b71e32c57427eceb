#include "ui/frame/MouseMode.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

namespace tavrin {

MouseMode::MouseMode(QWidget* parent) : QWidget(parent) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    addPair({"radioEventMove", tr("Move"), tr("A drag on the picture moves the layer"), &scales_, false},
            {"radioEventScale", tr("Scale"), tr("A drag up makes the layer larger, a drag down smaller"), &scales_,
             true});
    line->addSpacing(8);
    addPair({"radioEventForeground", tr("Portrait"), tr("Drags act on the portrait"), &background_, false},
            {"radioEventBackground", tr("Background"), tr("Drags act on the background"), &background_, true});
}

void MouseMode::addPair(const Button& first, const Button& second) {
    auto* group = new QButtonGroup(this);
    for (const Button& entry : {first, second}) {
        auto* button = new QToolButton(this);
        button->setObjectName(entry.name);
        button->setProperty("segment", true);
        button->setProperty("handler", "radioButtonClicked:");
        button->setText(entry.text);
        button->setToolTip(entry.toolTip);
        button->setAccessibleName(tr("Mouse: %1").arg(entry.text));
        button->setCheckable(true);
        button->setChecked(!entry.on);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::toggled, this, [value = entry.value, on = entry.on](bool chosen) {
            if (chosen) *value = on;
        });
        group->addButton(button);
        layout()->addWidget(button);
    }
}

}  // namespace tavrin

#include "ui/picture/MouseMode.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tavrin {

MouseMode::MouseMode(SystemInfo& info, QWidget* parent) : QWidget(parent) {
    setObjectName("radioEventMoveGroup");
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    addButton(action_, {"radioEventMove", "1", tr("Move"), tr("A drag on the picture moves what is chosen beside")});
    addButton(action_, {"radioEventScale", "2", tr("Scale"), tr("A drag up makes it larger, a drag down smaller")});
    line->addSpacing(8);
    addButton(target_, {"radioEventForeground", "f", tr("Portrait"), tr("Drags act on the portrait")});
    addButton(target_, {"radioEventBackground", "b", tr("Background"), tr("Drags act on the background")});
    addButton(target_, {"radioEventMoveText", "t", tr("Text"),
                        tr("A click selects a text or picture item, and drags act on it")});
    info.iEventMouseMode = iEventMouseMode();
    for (const QButtonGroup* group : {&action_, &target_})
        connect(group, &QButtonGroup::idToggled, this, [this, &info] { info.iEventMouseMode = iEventMouseMode(); });
}

/// Numbers of a group count from 1; the first is chosen.
void MouseMode::addButton(QButtonGroup& group, const Button& entry) {
    auto* button = new QToolButton(this);
    button->setObjectName(entry.name);
    button->setProperty("segment", true);
    button->setProperty("handler", "radioButtonClicked:");
    button->setProperty("key", entry.key);
    button->setText(entry.text);
    button->setToolTip(entry.toolTip);
    button->setAccessibleName(tr("Mouse: %1").arg(entry.text));
    button->setCheckable(true);
    button->setChecked(group.buttons().isEmpty());
    button->setFocusPolicy(Qt::TabFocus);
    group.addButton(button, static_cast<int>(group.buttons().size()) + 1);
    layout()->addWidget(button);
}

}  // namespace tavrin

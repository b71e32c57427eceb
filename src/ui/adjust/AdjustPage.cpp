#include "ui/adjust/AdjustPage.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

#include "ui/adjust/AdjustGroups.h"
#include "ui/tiles/TileRow.h"

namespace tavrin {

AdjustPage::AdjustPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelAdjust", "TabAdjust", 0, QT_TRANSLATE_NOOP("Panel", "Adjust"),
                 QT_TRANSLATE_NOOP("Panel", "Key, light, colour and place of both layers")},
                parent),
      binder_(binder),
      scaleView_(new ScaleView(binder)),
      textScaleView_(new TextScaleView(binder)) {
    for (const BindingGroup& group : adjustGroups()) {
        if (group.name == std::string_view(kFirstLayerGroup)) addWidget(makeLayerSwitch());
        auto* box = new GroupBox(group, binder, nullptr, TileRow::rowsOf(group.name, binder));
        addGroup(box);
        if (group.name != std::string_view("groupPlace")) continue;
        box->addWidget(scaleView_);
        box->addWidget(textScaleView_);
    }
}

QWidget* AdjustPage::makeLayerSwitch() {
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 8, 0, 4);
    layout->setSpacing(0);
    auto* group = new QButtonGroup(line);
    const auto add = [&](const char* name, const QString& text, const QString& toolTip, int layer) {
        auto* button = new QToolButton(line);
        button->setObjectName(name);
        button->setProperty("segment", true);
        button->setProperty("handler",
                            layer == 0 ? "clickedForegroundRadiobutton:" : "clickedBackgroundRadiobutton:");
        button->setText(text);
        button->setToolTip(toolTip);
        button->setAccessibleName(tr("Adjust: %1").arg(text));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setChecked((binder_.editor().info().iActiveBitmap == 0) == (layer == 0));
        group->addButton(button, layer);
        layout->addWidget(button);
    };
    add("radioForeground", tr("Portrait"), tr("The controls below change the portrait"), 0);
    add("radioBackground", tr("Background"), tr("The controls below change the background"), 1);
    connect(group, &QButtonGroup::idToggled, this, [this](int layer, bool on) {
        if (on) chooseLayer(layer);
    });
    return line;
}

/// No setting changes by it, so no picture is asked for.
void AdjustPage::chooseLayer(int layer) {
    binder_.editor().info().iActiveBitmap = layer;
    binder_.UpdateAllUI();
    scaleView_->update();
}

}  // namespace tavrin

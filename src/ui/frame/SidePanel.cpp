#include "ui/frame/SidePanel.h"

#include <algorithm>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/adjust/AdjustGroups.h"

namespace tavrin {

SidePanel::SidePanel(Binder& binder, QWidget* parent)
    : QDockWidget(tr("Adjust"), parent), binder_(binder), search_(new QLineEdit), nothing_(new QLabel) {
    setObjectName("ControlPickerWindow");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    search_->setObjectName("searchControls");
    search_->setProperty("handler", "find");
    search_->setPlaceholderText(tr("Search the controls"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setToolTip(tr("Finds a control by words of its name, its tip or its setting"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, &SidePanel::find);
    column->addWidget(search_);

    auto* panel = new QWidget;
    panel->setObjectName("panelAdjust");
    auto* rows = new QVBoxLayout(panel);
    rows->setSpacing(4);
    for (const BindingGroup& group : adjustGroups()) {
        if (group.name == std::string_view(kFirstLayerGroup)) rows->addWidget(layerSwitch_ = makeLayerSwitch());
        groups_.push_back(new GroupBox(group, binder, panel));
        rows->addWidget(groups_.back());
        if (group.name == std::string_view("groupPlace")) addMaps(*groups_.back());
    }
    int labels = 0;
    for (const ControlRow* row : binder.rows())
        labels = std::max(labels, row->labelWidth());
    for (ControlRow* row : binder.rows())
        row->setLabelWidth(labels);
    nothing_->setText(tr("No control has these words."));
    nothing_->hide();
    rows->addWidget(nothing_);
    rows->addStretch();
    auto* scroll = new QScrollArea(whole);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(panel);
    scroll->setMinimumWidth(panel->minimumSizeHint().width() + 16);
    column->addWidget(scroll, 1);
    setWidget(whole);
}

void SidePanel::addMaps(GroupBox& place) {
    place.addWidget(scaleView_ = new ScaleView(binder_));
    place.addWidget(textScaleView_ = new TextScaleView(binder_));
}

QWidget* SidePanel::makeLayerSwitch() {
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
void SidePanel::chooseLayer(int layer) {
    binder_.editor().info().iActiveBitmap = layer;
    binder_.UpdateAllUI();
    scaleView_->update();
}

void SidePanel::find(const QString& text) {
    const QStringList words = text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    bool any = false;
    for (GroupBox* group : groups_)
        any = group->showMatching(words) || any;
    nothing_->setVisible(!any);
}

}  // namespace tavrin

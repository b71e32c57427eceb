#include "ui/frame/SidePanel.h"

#include <algorithm>

#include <QAction>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/adjust/AdjustGroups.h"

namespace tavrin {

namespace {

/// Of buttons to choose from, the one in force.
void giveFocus(const ControlRow* row) {
    QWidget* control = row->control();
    if (control->focusPolicy() == Qt::NoFocus) {
        QWidget* first = nullptr;
        for (auto* button : control->findChildren<QAbstractButton*>())
            if (!first || button->isChecked()) first = button;
        if (first) control = first;
    }
    control->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace

SidePanel::SidePanel(Binder& binder, QWidget* parent)
    : QDockWidget(tr("Adjust"), parent),
      binder_(binder),
      search_(new QLineEdit),
      nothing_(new QLabel),
      found_(new QWidget),
      scroll_(new QScrollArea) {
    setObjectName("ControlPickerWindow");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    search_->setObjectName("searchControls");
    search_->setProperty("handler", "find");
    search_->setPlaceholderText(tr("Search the controls"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setToolTip(tr("Finds controls and commands by words in any order; Enter goes to the first"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, &SidePanel::find);
    connect(search_, &QLineEdit::returnPressed, this, &SidePanel::goToFirstFound);
    column->addWidget(search_);
    auto* chips = new Chips(binder, whole);
    connect(chips, &Chips::wanted, this, &SidePanel::reveal);
    column->addWidget(chips);

    auto* panel = new QWidget;
    panel->setObjectName("panelAdjust");
    auto* rows = new QVBoxLayout(panel);
    rows->setSpacing(4);
    (new QVBoxLayout(found_))->setContentsMargins(0, 0, 0, 0);
    found_->hide();
    rows->addWidget(found_);
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
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(panel);
    scroll_->setMinimumWidth(panel->minimumSizeHint().width() + 16);
    column->addWidget(scroll_, 1);
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

/// Words with slips of the fingers count only where there is nothing without.
void SidePanel::find(const QString& text) {
    const QStringList words = searchWords(text);
    bool any = false;
    for (const Slips slips : {Slips::none, Slips::some}) {
        for (GroupBox* group : groups_)
            any = group->showMatching(words, slips) || any;
        any = showActions(words, slips) || any;
        if (any) break;
    }
    nothing_->setVisible(!any);
}

bool SidePanel::showActions(const QStringList& words, Slips slips) {
    constexpr int kMost = 6;
    for (QToolButton* old : found_->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly))
        delete old;
    int shown = 0;
    for (QAction* action : actions_) {
        if (words.isEmpty() || shown == kMost) break;
        const QString text = action->text().section('\t', 0, 0).remove('&');
        if (!hasWords(text + ' ' + action->toolTip() + ' ' + action->objectName(), words, slips)) continue;
        auto* button = new QToolButton(found_);
        button->setObjectName(action->objectName() + "Found");
        button->setProperty("handler", action->objectName());
        button->setText(text);
        button->setToolTip(action->toolTip());
        button->setEnabled(action->isEnabled());
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, action, &QAction::trigger, Qt::QueuedConnection);
        found_->layout()->addWidget(button);
        ++shown;
    }
    found_->setVisible(shown > 0);
    return shown > 0;
}

void SidePanel::goToFirstFound() {
    for (const GroupBox* group : groups_) {
        if (group->isHidden()) continue;
        for (const ControlRow* row : group->rows())
            if (!row->isHidden()) return giveFocus(row);
    }
    if (auto* button = found_->findChild<QToolButton*>(); button && !found_->isHidden()) button->setFocus();
}

void SidePanel::reveal(const ControlRow* row) {
    show();
    search_->clear();
    for (GroupBox* group : groups_)
        if (group->isAncestorOf(row)) group->setFolded(false);
    scroll_->widget()->layout()->activate();
    scroll_->ensureWidgetVisible(const_cast<ControlRow*>(row));
    giveFocus(row);
}

void SidePanel::resetAll() {
    SystemInfo& info = binder_.editor().info();
    const auto layer = info.iActiveBitmap.load();
    binder_.run(tr("Reset all"), [&](SettingEditor&) {
        for (const int one : {0, 1}) {
            info.iActiveBitmap = one;
            for (const GroupBox* group : groups_)
                if (group->group().reset) binder_.resetGroup(group->group());
        }
        info.iActiveBitmap = layer;
    });
}

}  // namespace tavrin

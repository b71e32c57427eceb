#include "ui/bind/PanelPage.h"

#include <algorithm>

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrin {

PanelPage::PanelPage(const PageTitle& title, QWidget* parent)
    : QWidget(parent),
      title_(title),
      column_(new QVBoxLayout(this)),
      heading_(new QLabel(ControlRow::translated(title.title), this)) {
    setObjectName(title.name);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(4);
    heading_->setProperty("pageTitle", true);
    heading_->hide();
    column_->addWidget(heading_);
}

GroupBox* PanelPage::addGroup(const BindingGroup& group, Binder& binder) {
    addGroup(new GroupBox(group, binder, this));
    return groups_.back();
}

void PanelPage::addGroup(GroupBox* group) {
    groups_.push_back(group);
    addWidget(group);
}

void PanelPage::addWidget(QWidget* widget) {
    column_->addWidget(widget);
}

void PanelPage::alignLabels() {
    int widest = 0;
    for (const GroupBox* group : groups_)
        for (const ControlRow* row : group->rows())
            widest = std::max(widest, row->labelWidth());
    for (const GroupBox* group : groups_)
        for (ControlRow* row : group->rows())
            row->setLabelWidth(widest);
}

bool PanelPage::showMatching(const QStringList& words, Slips slips) {
    bool any = false;
    for (GroupBox* group : groups_)
        any = group->showMatching(words, slips) || any;
    heading_->setVisible(!words.isEmpty());
    return any;
}

QWidget* PanelPage::firstShown() const {
    for (const GroupBox* group : groups_) {
        if (group->isHidden()) continue;
        for (QWidget* item : group->items())
            if (!item->isHidden()) return item;
    }
    return nullptr;
}

}  // namespace tavrin

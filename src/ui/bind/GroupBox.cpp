#include "ui/bind/GroupBox.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

QString foldKey(const BindingGroup& group) {
    return QString("folded/") + group.name;
}

}  // namespace

GroupBox::GroupBox(const BindingGroup& group, Binder& binder, QWidget* parent, const std::vector<QWidget*>& leads)
    : QWidget(parent), group_(group), binder_(binder), body_(new QWidget(this)) {
    setObjectName(group.name);
    auto* rows = new QVBoxLayout(body_);
    rows->setContentsMargins(0, 0, 0, 6);
    rows->setSpacing(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(makeHeader());
    layout->addWidget(body_);
    for (QWidget* lead : leads)
        addItem(lead);
    for (const Binding& binding : group.bindings) {
        rows_.push_back(makeRow(binding, body_));
        addItem(rows_.back());
        binder.bind(rows_.back());
    }
    setFolded(windowSettings().value(foldKey(group), group.foldedAtFirst).toBool());
}

QWidget* GroupBox::makeHeader() {
    auto* line = new QWidget(this);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    header_ = new QToolButton(line);
    header_->setObjectName(QString(group_.name) + "Fold");
    header_->setProperty("groupTitle", true);
    header_->setProperty("handler", group_.acts ? group_.acts->openAndClose : "fold");
    header_->setText(ControlRow::translated(group_.title));
    header_->setAccessibleName(header_->text());
    header_->setToolTip(tr("Fold the group away, or open it"));
    header_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    header_->setFocusPolicy(Qt::TabFocus);
    header_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(header_, &QToolButton::clicked, this, [this] { fold(!isFolded()); });
    layout->addWidget(header_, 1);
    if (!group_.reset) return line;
    auto* reset = new QToolButton(line);
    reset->setObjectName(group_.reset->name);
    reset->setProperty("quiet", true);
    reset->setProperty("handler", group_.reset->name);
    reset->setText(tr("reset"));
    reset->setAccessibleName(tr("Reset %1").arg(header_->text()));
    reset->setToolTip(tr("Put all defaults of this group back"));
    reset->setFocusPolicy(Qt::TabFocus);
    connect(reset, &QToolButton::clicked, this, [this] { binder_.resetGroup(group_); });
    layout->addWidget(reset);
    return line;
}

void GroupBox::setTitle(const QString& title) {
    header_->setText(title);
    header_->setAccessibleName(title);
}

bool GroupBox::isFolded() const {
    return body_->isHidden();
}

void GroupBox::fold(bool folded) {
    const bool closes = folded && !isFolded();
    setFolded(folded);
    windowSettings().setValue(foldKey(group_), folded);
    if (closes && group_.acts && group_.acts->closed)
        binder_.run(tr("Close %1").arg(ControlRow::translated(group_.title)), group_.acts->closed);
}

void GroupBox::setFolded(bool folded) {
    body_->setHidden(folded);
    header_->setArrowType(folded ? (layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow)
                                 : Qt::DownArrow);
    header_->setAccessibleDescription(folded ? tr("folded") : tr("open"));
}

void GroupBox::addItem(QWidget* item) {
    items_.push_back(item);
    addWidget(item);
}

void GroupBox::addStatus(QWidget* status) {
    static_cast<QVBoxLayout*>(body_->layout())->insertWidget(0, status);
}

QString GroupBox::nameOf(const QWidget& item) {
    const auto* row = qobject_cast<const ControlRow*>(&item);
    return row ? ControlRow::translated(row->binding().label) : item.accessibleName();
}

QString GroupBox::toldOf(const QWidget& item) const {
    QString text = ControlRow::translated(group_.title) + ' ' + nameOf(item) + ' ' + item.toolTip();
    if (const auto* row = qobject_cast<const ControlRow*>(&item)) {
        text += ' ' + ControlRow::translated(row->binding().toolTip);
        for (const Choice& choice : row->binding().choices)
            text += ' ' + ControlRow::translated(choice.label);
        return text;
    }
    for (const QWidget* part : item.findChildren<QWidget*>())
        text += ' ' + part->accessibleName() + ' ' + part->toolTip();
    return text;
}

QString GroupBox::wordsOf(const QWidget& item) const {
    if (const auto* row = qobject_cast<const ControlRow*>(&item))
        return toldOf(item) + ' ' + row->binding().control + ' ' + row->binding().setting;
    QString text = toldOf(item);
    for (const QWidget* part : item.findChildren<QWidget*>())
        text += ' ' + part->objectName();
    return text;
}

bool GroupBox::showMatching(const QStringList& words, Slips slips) {
    bool any = false;
    for (QWidget* item : items_) {
        const bool shown = hasWords(wordsOf(*item), words, slips);
        item->setVisible(shown);
        any = any || shown;
    }
    setVisible(any);
    setFolded(words.isEmpty() ? windowSettings().value(foldKey(group_), group_.foldedAtFirst).toBool() : false);
    return any;
}

}  // namespace tavrin

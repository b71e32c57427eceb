#include "ui/look/LookDialog.h"

#include <map>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/files/NameText.h"

namespace tavrin {

namespace {

QString titleOf(LookPart part) {
    switch (part) {
        case LookPart::key:
            return LookDialog::tr("Key");
        case LookPart::hair:
            return LookDialog::tr("Hair");
        case LookPart::tone:
            return LookDialog::tr("Light and colour");
        case LookPart::skin:
            return LookDialog::tr("Skin and smoothing");
        case LookPart::effects:
            return LookDialog::tr("Effects");
        case LookPart::texts:
            return LookDialog::tr("Texts");
        case LookPart::place:
            return LookDialog::tr("Place and size");
        case LookPart::clip:
            return LookDialog::tr("Clip");
    }
    return {};
}

}  // namespace

LookDialog::LookDialog(const QString& title, const std::vector<LookChange>& changes,
                       const std::function<QString(const std::string& setting)>& nameOf, QWidget* parent)
    : QDialog(parent), tree_(new QTreeWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("lookDialog");
    setWindowTitle(title);
    tree_->setObjectName("lookParts");
    tree_->setAccessibleName(tr("What the look changes"));
    tree_->setColumnCount(3);
    tree_->setHeaderLabels({tr("What"), tr("Now"), tr("Then")});
    std::map<LookPart, QTreeWidgetItem*> parts;
    for (const LookChange& change : changes) {
        QTreeWidgetItem*& part = parts[change.part];
        if (!part) {
            part = new QTreeWidgetItem(tree_);
            part->setData(0, Qt::UserRole, static_cast<int>(change.part));
            part->setCheckState(0, isUsuallyTaken(change.part) ? Qt::Checked : Qt::Unchecked);
        }
        const QString name = nameOf(change.setting);
        new QTreeWidgetItem(part, {name.isEmpty() ? QString::fromStdString(change.setting) : name,
                                   textOfName(change.before), textOfName(change.after)});
    }
    for (const auto& [kind, part] : parts)
        part->setText(0, tr("%1 (%2)").arg(titleOf(kind)).arg(part->childCount()));
    tree_->expandAll();
    tree_->resizeColumnToContents(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Take What Is Ticked"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("One step of undo brings all of it back."), this));
    layout->addWidget(tree_);
    layout->addWidget(buttons);
    resize(560, 480);
}

std::set<LookPart> LookDialog::parts() const {
    std::set<LookPart> parts;
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* part = tree_->topLevelItem(i);
        if (part->checkState(0) == Qt::Checked)
            parts.insert(static_cast<LookPart>(part->data(0, Qt::UserRole).toInt()));
    }
    return parts;
}

}  // namespace tavrin

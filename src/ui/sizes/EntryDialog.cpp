#include "ui/sizes/EntryDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/sizes/LengthField.h"

namespace tavrin {

EntryDialog::EntryDialog(const char* name, const char* handler, const QString& title, QWidget* parent)
    : QDialog(parent), form_(new QFormLayout), told_(new QLabel) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
    told_->setWordWrap(true);
    told_->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* finish = buttons->button(QDialogButtonBox::Ok);
    finish->setObjectName(QString(name) + "Done");
    finish->setProperty("handler", handler);
    finish->setText(tr("Done"));
    finish->setToolTip(tr("Takes what is entered here"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(finish, &QPushButton::clicked, this, [this] {
        const QString problem = take_();
        problem.isEmpty() ? accept() : tell(problem);
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form_);
    column->addWidget(told_);
    column->addWidget(buttons);
}

LengthField* EntryDialog::addLength(const char* name, const QString& label, const QString& toolTip) {
    auto* field = new LengthField(name, label);
    field->setProperty("handler", objectName());
    field->setToolTip(toolTip);
    connect(field, &LengthField::told, this, &EntryDialog::tell);
    addRow(label, field);
    return field;
}

void EntryDialog::addRow(const QString& label, QWidget* field) {
    form_->addRow(label, field);
}

void EntryDialog::run(std::function<QString()> take) {
    take_ = std::move(take);
    open();
}

void EntryDialog::tell(const QString& line) {
    told_->setText(line);
    told_->show();
}

}  // namespace tavrin

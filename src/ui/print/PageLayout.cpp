#include "ui/print/PageLayout.h"

#include <algorithm>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "ui/WindowSettings.h"

namespace tavrin {

PageLayout PageLayout::kept() {
    const QSettings settings = windowSettings();
    return {settings.value("print/paper").toString(), settings.value("print/landscape", false).toBool()};
}

void PageLayout::keep() const {
    QSettings settings = windowSettings();
    settings.setValue("print/paper", paper);
    settings.setValue("print/landscape", landscape);
}

Paper PageLayout::among(const PrinterPapers& papers) const {
    const auto found = std::ranges::find(papers.papers, paper.toStdString(), &Paper::name);
    Paper meant = found != papers.papers.end() ? *found : papers.usual;
    if (found == papers.papers.end() && !paper.isEmpty()) {
        // Another printer's paper, or one without a name in the list.
        if (const std::optional<Paper> known = paperOf(paper.toStdString())) meant = *known;
    }
    return landscape ? meant.turned() : meant;
}

PageLayoutDialog::PageLayoutDialog(const PrinterPapers& papers, QWidget* parent)
    : QDialog(parent),
      paper_(new QComboBox(this)),
      upright_(new QRadioButton(tr("Upright"), this)),
      onSide_(new QRadioButton(tr("On its side"), this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("pageLayoutPanel");
    setWindowTitle(tr("Page Layout"));
    setModal(true);
    const PageLayout layout = PageLayout::kept();
    paper_->setObjectName("comboPaper");
    paper_->setAccessibleName(tr("Paper"));
    paper_->setToolTip(tr("The paper in the printer; the sheet is printed in its middle"));
    paper_->addItem(tr("As the printer has it (%1)").arg(QString::fromStdString(papers.usual.name)), QString());
    for (const Paper& paper : papers.papers)
        paper_->addItem(QString::fromStdString(paper.name), QString::fromStdString(paper.name));
    paper_->setCurrentIndex(std::max(0, paper_->findData(layout.paper)));
    upright_->setObjectName("radioPaperUpright");
    upright_->setToolTip(tr("The paper is higher than wide"));
    onSide_->setObjectName("radioPaperOnSide");
    onSide_->setToolTip(tr("The paper is wider than high"));
    (layout.landscape ? onSide_ : upright_)->setChecked(true);
    auto* radios = new QHBoxLayout;
    radios->addWidget(upright_);
    radios->addWidget(onSide_);
    auto* form = new QFormLayout(this);
    form->addRow(tr("Paper"), paper_);
    form->addRow(QString(), radios);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("pageLayoutDone");
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Done"));
    buttons->button(QDialogButtonBox::Ok)->setToolTip(tr("Takes this paper for all that is printed"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PageLayoutDialog::take);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    for (QWidget* control :
         {static_cast<QWidget*>(paper_), static_cast<QWidget*>(upright_), static_cast<QWidget*>(onSide_)})
        control->setProperty("handler", "runPageLayout:");
}

void PageLayoutDialog::take() {
    PageLayout{paper_->currentData().toString(), onSide_->isChecked()}.keep();
    emit changed();
    accept();
}

}  // namespace tavrin

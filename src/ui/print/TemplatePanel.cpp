#include "ui/print/TemplatePanel.h"

#include <algorithm>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/sizes/TemplateView.h"

namespace tavrin {

const TemplateFamily& batchTemplates() {
    static const TemplateFamily family = {"MyBatchPrinterTemplatePanel",
                                          "imageViewBatchPrinterTemplate",
                                          "comboBatchPrinterTemplate",
                                          "hideBatchPrinterTemplate",
                                          "changeBatchSelectedTemplate",
                                          "updateBatchPrinterTemplateCombobox",
                                          "SelectBatchPrintTemplate",
                                          &QLXInfo::iSelectedBatchPrinterTemplate,
                                          &QLXInfo::sSelectedBatchPrinterTemplate};
    return family;
}

const TemplateFamily& eventTemplates() {
    static const TemplateFamily family = {"MyEventPrinterTemplatePanel",
                                          "imageViewEventPrinterTemplate",
                                          "comboEventPrinterTemplate",
                                          "hideEventPrinterTemplate",
                                          "changeEventSelectedTemplate",
                                          "updateEventPrinterTemplateCombobox",
                                          nullptr,
                                          &QLXInfo::iEventModeSelectedTemplate,
                                          &QLXInfo::sEventModeSelectedTemplate};
    return family;
}

TemplatePanel::TemplatePanel(const TemplateFamily& family, SystemInfo& info, std::function<QImage()> picture,
                             QWidget* parent)
    : QDialog(parent),
      family_(family),
      info_(info),
      view_(new TemplateView(info, std::move(picture), this)),
      combo_(new QComboBox(this)) {
    setObjectName(family.panel);
    setWindowTitle(tr("Print Page"));
    view_->setObjectName(family.view);
    view_->setMinimumSize(320, 400);
    combo_->setObjectName(family.combo);
    combo_->setProperty("handler", QString(family.change) + ':');
    combo_->setAccessibleName(tr("Page"));
    combo_->setToolTip(tr("The print page: where the picture lies on the sheet, and how often"));
    combo_->setMaxVisibleItems(24);
    auto* buttons = new QDialogButtonBox(this);
    // What is chosen holds at once, so both buttons only hide the panel.
    for (const auto& [name, text] : {std::pair{family.choose, tr("Select")}, {family.hide, tr("Close")}}) {
        if (!name) continue;
        QPushButton* button = buttons->addButton(text, QDialogButtonBox::AcceptRole);
        button->setObjectName(name);
        button->setProperty("handler", QString(name) + ':');
        button->setAccessibleName(text);
        button->setToolTip(tr("The page in the list is printed on"));
        connect(button, &QPushButton::clicked, this, &QWidget::hide);
    }
    auto* column = new QVBoxLayout(this);
    column->addWidget(combo_);
    column->addWidget(view_, 1);
    column->addWidget(buttons);
    connect(combo_, &QComboBox::activated, this, &TemplatePanel::changeSelectedTemplate);
    updatePrinterTemplateCombobox();
}

QString TemplatePanel::title() const {
    return combo_->currentText();
}

void TemplatePanel::updatePrinterTemplateCombobox() {
    QLXInfo& settings = *info_.oQLXInfo;
    combo_->clear();
    for (const PrinterPage& page : info_.oPrinterPages)
        combo_->addItem(QString::fromStdString(page.sPageTitle));
    const int index = std::max(0, combo_->findText(QString::fromStdString(settings.*family_.title),
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive));
    settings.*family_.index = index;
    combo_->setCurrentIndex(index);
    view_->setTemplate(combo_->count() > 0 ? index : -1);
    view_->refresh();
}

void TemplatePanel::showPrinterTemplate() {
    updatePrinterTemplateCombobox();
    show();
    raise();
    activateWindow();
}

void TemplatePanel::changeSelectedTemplate(int index) {
    QLXInfo& settings = *info_.oQLXInfo;
    settings.*family_.index = index;
    settings.*family_.title = combo_->itemText(index).toStdString();
    view_->setTemplate(index);
    emit templateChosen(title());
}

void TemplatePanel::refresh() {
    view_->refresh();
}

}  // namespace tavrin

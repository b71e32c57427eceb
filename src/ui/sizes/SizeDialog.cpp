#include "ui/sizes/SizeDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLabel>

#include "ui/bind/WheelGuard.h"
#include "ui/sizes/LengthField.h"

namespace tavrin {

namespace {

constexpr int kResolutions[] = {100, 150, 200, 240, 250, 300, 360, 400, 600};
constexpr double kLeast = 0.1, kMostInches = 200.0;

QComboBox* makeCombo(const char* name, const QString& spoken, const QString& toolTip) {
    auto* combo = new QComboBox;
    combo->setObjectName(name);
    combo->setProperty("handler", "comboBoxSelectionDidChange:");
    combo->setAccessibleName(spoken);
    combo->setToolTip(toolTip);
    new WheelGuard(combo);
    return combo;
}

}  // namespace

SizeDialog::SizeDialog(const SystemInfo& info, std::int32_t index, QWidget* parent)
    : EntryDialog("panelAddEditImageSizes",
                  "clickedImageSizesCreateDone:", index < 0 ? tr("New Output Size") : tr("Output Size"), parent),
      iImageSizeSelected_(index),
      width_(addLength("textImageSizeWidth", tr("Width"), tr("How wide the printed picture is"))),
      height_(addLength("textImageSizeHeight", tr("Height"), tr("How high the printed picture is"))),
      centimetres_(new QCheckBox(tr("Centimetres"))),
      dpi_(makeCombo("comboBoxDPI", tr("Dots an inch"), tr("How fine the picture is; 300 is usual for prints"))),
      page_(makeCombo("comboBoxImageSizeDefaultTemplate", tr("Print page"),
                      tr("The page that this size is printed on"))),
      name_(new QLabel) {
    const SizeEntry entry = index < 0 ? SizeEntry{"1", "2", false, kResolutions[0], kDefaultTemplate}
                                      : sizeEntryOf(info.oImageSize[static_cast<std::size_t>(index)]);
    addUnit(entry.centimetres);
    addChoices(info, entry);
    addRow(tr("Name"), name_);
    width_->setLength(QString::fromStdString(entry.width));
    height_->setLength(QString::fromStdString(entry.height));
    updateImageSizeName();
    run([this, &info] {
        const std::string problem = whyNoImageSize(info, iImageSizeSelected_, this->entry());
        if (problem.empty()) emit entered(iImageSizeSelected_, this->entry());
        return QString::fromStdString(problem);
    });
}

void SizeDialog::addUnit(bool centimetres) {
    centimetres_->setObjectName("checkboxCM");
    centimetres_->setProperty("handler", "updateImageSizeName");
    centimetres_->setToolTip(tr("Width and height are in centimetres; otherwise in inches"));
    centimetres_->setChecked(centimetres);
    addRow(QString(), centimetres_);
    const auto setRanges = [this](bool on) {
        for (LengthField* field : {width_, height_})
            field->setRange(kLeast, on ? kMostInches * 2.54 : kMostInches);
    };
    setRanges(centimetres);
    connect(centimetres_, &QCheckBox::toggled, this, [this, setRanges](bool on) {
        setRanges(on);
        updateImageSizeName();
    });
    for (LengthField* field : {width_, height_})
        connect(field, &LengthField::lengthChanged, this, &SizeDialog::updateImageSizeName);
}

void SizeDialog::addChoices(const SystemInfo& info, const SizeEntry& entry) {
    for (const int dpi : kResolutions)
        dpi_->addItem(QString::number(dpi));
    dpi_->setEditable(true);
    dpi_->lineEdit()->setObjectName("comboBoxDPIText");
    dpi_->setValidator(new QIntValidator(1, 4800, dpi_));
    dpi_->setCurrentText(QString::number(entry.dotsPerInch));
    connect(dpi_, &QComboBox::currentTextChanged, this, &SizeDialog::updateImageSizeName);
    page_->addItem(tr("A page of its own"), kDefaultTemplate);
    for (const PrinterPage& page : info.oPrinterPages)
        page_->addItem(QString::fromStdString(page.sPageTitle), QString::fromStdString(page.sPageTitle));
    page_->setCurrentIndex(std::max(0, page_->findData(QString::fromStdString(entry.page))));
    addRow(tr("Dots an inch"), dpi_);
    addRow(tr("Print page"), page_);
}

SizeEntry SizeDialog::entry() const {
    return {width_->length(), height_->length(), centimetres_->isChecked(), dpi_->currentText().toInt(),
            page_->currentData().toString().toStdString()};
}

void SizeDialog::updateImageSizeName() {
    name_->setText(QString::fromStdString(imageSizeName(entry())));
}

}  // namespace tavrin

// What the panel of print pages asks for: a page's name and size, and a place for a picture.
#include <array>

#include <QCheckBox>
#include <QLineEdit>

#include "delivery/print/SheetLayout.h"
#include "ui/sizes/EntryDialog.h"
#include "ui/sizes/LengthField.h"
#include "ui/sizes/TemplatesPanel.h"

namespace tavrin {

namespace {

constexpr double kMostInches = 100.0, kCentimetres = 2.54;

}  // namespace

void TemplatesPanel::openPageDialog(std::int32_t index) {
    const PageEntry entry =
        index < 0 ? PageEntry() : pageEntryOf(info_.oPrinterPages[static_cast<std::size_t>(index)]);
    auto* dialog = new EntryDialog("panelAddEditTemplate",
                                   "hideAddEditTemplate:", index < 0 ? tr("New Print Page") : tr("Print Page"), this);
    auto* title = new QLineEdit(QString::fromStdString(entry.title));
    title->setObjectName("textTemplateTitle");
    title->setProperty("handler", "hideAddEditTemplate:");
    title->setAccessibleName(tr("Name"));
    title->setToolTip(tr("What the page is called in lists"));
    dialog->addRow(tr("Name"), title);
    LengthField* width = dialog->addLength("textTemplateWidth", tr("Width"), tr("How wide the page is"));
    LengthField* height = dialog->addLength("textTemplateHeight", tr("Height"), tr("How high the page is"));
    auto* centimetres = new QCheckBox(tr("Centimetres"));
    centimetres->setObjectName("checkboxTemplateCM");
    centimetres->setProperty("handler", "hideAddEditTemplate:");
    centimetres->setToolTip(tr("Width and height are in centimetres; otherwise in inches"));
    centimetres->setChecked(entry.centimetres);
    dialog->addRow(QString(), centimetres);
    const auto setRanges = [width, height](bool on) {
        for (LengthField* field : {width, height})
            field->setRange(0.1, on ? kMostInches * kCentimetres : kMostInches);
    };
    setRanges(entry.centimetres);
    connect(centimetres, &QCheckBox::toggled, dialog, setRanges);
    width->setLength(QString::fromStdString(entry.width));
    height->setLength(QString::fromStdString(entry.height));
    dialog->run([this, index, title, width, height, centimetres] {
        const PageEntry typed{title->text().trimmed().toStdString(), width->length(), height->length(),
                              centimetres->isChecked()};
        const std::string problem = whyNoPrinterPage(info_, index, typed);
        if (!problem.empty()) return QString::fromStdString(problem);
        change(index < 0 ? tr("New print page") : tr("Edit print page"), [this, index, typed] {
            const std::string kept = putPrinterPage(info_, index, typed);
            choosePrinterPage(info_, index < 0 ? info_.iPrinterPageCount() - 1 : index);
            emit pageChosen();
            return kept;
        });
        return QString();
    });
}

void TemplatesPanel::openSlotDialog(std::size_t slot, const SlotEntry& entry) {
    const PrinterPage* page = present();
    const double most = kMostInches * (page->bCentimeters ? kCentimetres : 1.0);
    auto* dialog =
        new EntryDialog("panelImageLocations", "doneChangingImageLocation:", tr("Place for a Picture"), this);
    const std::array<LengthField*, 4> fields = {
        dialog->addLength("textImageLocationX", tr("Left"), tr("From the left edge of the page")),
        dialog->addLength("textImageLocationY", tr("Bottom"), tr("From the lower edge of the page")),
        dialog->addLength("textImageLocationWidth", tr("Width"), tr("How wide the picture is printed")),
        dialog->addLength("textImageLocationHeight", tr("Height"), tr("How high the picture is printed"))};
    const std::string texts[] = {entry.x, entry.y, entry.width, entry.height};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i]->setRange(i < 2 ? -most : 0.1, most);
        fields[i]->setLength(QString::fromStdString(texts[i]));
    }
    dialog->run([this, index = this->page(), slot, fields] {
        const SlotEntry typed{fields[0]->length(), fields[1]->length(), fields[2]->length(), fields[3]->length()};
        const PrinterPage& page = info_.oPrinterPages[static_cast<std::size_t>(index)];
        if (!isOnPage(page, slotOf(page, typed)))
            return tr("The place is larger than the page or lies beside it, so nothing would be printed there.");
        change(tr("Place on the page"), [this, index, slot, typed] { return putSlot(info_, index, slot, typed); });
        return QString();
    });
}

}  // namespace tavrin

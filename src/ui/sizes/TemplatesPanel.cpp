#include "ui/sizes/TemplatesPanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/bind/WheelGuard.h"
#include "ui/sizes/ListStep.h"

namespace tavrin {

TemplatesPanel::TemplatesPanel(SettingEditor& editor, HeldLoop& loop, std::function<QImage()> picture,
                               QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      info_(editor.info()),
      loop_(loop),
      combo_(new QComboBox(this)),
      view_(new TemplateView(info_, std::move(picture), this)),
      slots_(new QTableWidget(0, 4, this)) {
    setObjectName("panelPrinterTemplates");
    setAccessibleName(tr("Print pages"));
    setToolTip(tr("Pages to print on, and the places for pictures on them"));
    new QVBoxLayout(this);
    layout()->setContentsMargins(0, 0, 0, 4);
    addPageControls();
    layout()->addWidget(view_);
    addSlotControls();
    refresh();
}

QToolButton* TemplatesPanel::addButton(QHBoxLayout& line, const char* handler, const QString& text,
                                       const QString& toolTip, void (TemplatesPanel::*clicked)()) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString(handler).remove(':'));
    button->setProperty("handler", handler);
    button->setText(text);
    button->setAccessibleName(toolTip);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, clicked);
    line.addWidget(button);
    return button;
}

void TemplatesPanel::addPageControls() {
    combo_->setObjectName("comboEditTemplate");
    combo_->setProperty("handler", "changeEditSelectedTemplate:");
    combo_->setAccessibleName(tr("Print page"));
    combo_->setToolTip(tr("The page to print on"));
    combo_->setMaxVisibleItems(24);
    new WheelGuard(combo_);
    connect(combo_, &QComboBox::activated, this, &TemplatesPanel::changeSelectedTemplate);
    layout()->addWidget(combo_);
    auto* line = new QHBoxLayout;
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    addButton(*line, "addCustomTemplate:", tr("New..."), tr("Adds a page of your own"),
              &TemplatesPanel::addCustomTemplate);
    editPage_ = addButton(*line, "editCustomTemplate:", tr("Edit..."),
                          tr("Changes name and size of the page; one of the program's becomes your own"),
                          &TemplatesPanel::editCustomTemplate);
    deletePage_ = addButton(*line, "deleteTemplate:", tr("Delete"), tr("Takes a page of your own out of the list"),
                            &TemplatesPanel::deleteTemplate);
    line->addStretch();
    addButton(*line, "showPrinterTemplate:", tr("Print..."), tr("Prints the picture on this page"),
              &TemplatesPanel::showPrinterTemplate);
}

void TemplatesPanel::addSlotControls() {
    slots_->setObjectName("myImagesForTemplateTableView");
    slots_->setAccessibleName(tr("Places for pictures on the page"));
    slots_->setToolTip(tr("Where pictures lie, counted from the lower left corner of the page"));
    slots_->setSelectionBehavior(QAbstractItemView::SelectRows);
    slots_->setSelectionMode(QAbstractItemView::SingleSelection);
    slots_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    slots_->setTabKeyNavigation(false);
    slots_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    slots_->verticalHeader()->hide();
    slots_->setMinimumHeight(120);
    connect(slots_, &QTableWidget::itemSelectionChanged, this, &TemplatesPanel::showButtons);
    connect(slots_, &QTableWidget::itemActivated, this, &TemplatesPanel::editTemplateImageLocation);
    layout()->addWidget(slots_);
    auto* line = new QHBoxLayout;
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    addSlot_ = addButton(*line, "addImageLocationToTemplate:", tr("Add Place..."),
                         tr("Adds a place for a picture to the page"), &TemplatesPanel::addImageLocationToTemplate);
    editSlot_ = addButton(*line, "editTemplateImageLocation:", tr("Edit..."), tr("Moves or sizes the selected place"),
                          &TemplatesPanel::editTemplateImageLocation);
    deleteSlot_ =
        addButton(*line, "deleteTemplateImageLocation:", tr("Delete"), tr("Takes the selected place off the page"),
                  &TemplatesPanel::deleteTemplateImageLocation);
    line->addStretch();
}

void TemplatesPanel::refresh() {
    updatePrinterTemplateCombobox();
    showSlots();
    view_->setTemplate(page());
    showButtons();
}

void TemplatesPanel::updatePrinterTemplateCombobox() {
    combo_->clear();
    for (const PrinterPage& page : info_.oPrinterPages)
        combo_->addItem(QString::fromStdString(page.sPageTitle));
    combo_->setCurrentIndex(info_.oQLXInfo->iSelectedPrinterTemplate);
}

std::int32_t TemplatesPanel::page() const {
    const std::int32_t index = info_.oQLXInfo->iSelectedPrinterTemplate;
    return index < info_.iPrinterPageCount() ? index : -1;
}

const PrinterPage* TemplatesPanel::present() const {
    return page() < 0 ? nullptr : &info_.oPrinterPages[static_cast<std::size_t>(page())];
}

int TemplatesPanel::slot() const {
    const QList<QTableWidgetItem*> items = slots_->selectedItems();
    return items.isEmpty() ? -1 : items.first()->row();
}

void TemplatesPanel::showSlots() {
    const PrinterPage* page = present();
    const int row = slot();
    const QString unit = page && page->bCentimeters ? tr("cm") : tr("in");
    slots_->setHorizontalHeaderLabels({tr("Left, %1").arg(unit), tr("Bottom, %1").arg(unit),
                                       tr("Width, %1").arg(unit), tr("Height, %1").arg(unit)});
    slots_->setRowCount(page ? static_cast<int>(page->iPrinterPageImageCount()) : 0);
    for (int i = 0; i < slots_->rowCount(); ++i) {
        const SlotEntry entry = slotEntryOf(*page, page->oPrinterPageImages[static_cast<std::size_t>(i)]);
        int column = 0;
        for (const std::string& text : {entry.x, entry.y, entry.width, entry.height})
            slots_->setItem(i, column++, new QTableWidgetItem(QString::fromStdString(text)));
    }
    if (slots_->rowCount() > 0) slots_->selectRow(std::clamp(row, 0, slots_->rowCount() - 1));
}

/// Pages that came with the program come back with the next start, so they stay.
void TemplatesPanel::showButtons() {
    const PrinterPage* page = present();
    editPage_->setEnabled(page);
    deletePage_->setEnabled(page && page->bCustom);
    addSlot_->setEnabled(page && page->iPrinterPageImageCount() < PrinterPage::kMaxImages);
    editSlot_->setEnabled(page && slot() >= 0);
    deleteSlot_->setEnabled(page && slot() >= 0);
}

void TemplatesPanel::changeSelectedTemplate(int index) {
    choosePrinterPage(info_, index);
    refresh();
    emit pageChosen();
}

void TemplatesPanel::deleteTemplate() {
    change(tr("Delete print page"), [this, index = page()] { return deletePrinterPage(info_, index); });
}

void TemplatesPanel::addImageLocationToTemplate() {
    const PrinterPage* page = present();
    if (!page) return;
    const PageEntry whole = pageEntryOf(*page);
    openSlotDialog(page->iPrinterPageImageCount(), {"0", "0", whole.width, whole.height});
}

void TemplatesPanel::editTemplateImageLocation() {
    const PrinterPage* page = present();
    if (!page || slot() < 0) return;
    const auto place = static_cast<std::size_t>(slot());
    openSlotDialog(place, slotEntryOf(*page, page->oPrinterPageImages[place]));
}

void TemplatesPanel::deleteTemplateImageLocation() {
    if (slot() < 0) return;
    change(tr("Delete place on the page"), [this, index = page(), place = static_cast<std::size_t>(slot())] {
        return deleteSlot(info_, index, place);
    });
}

void TemplatesPanel::change(const QString& label, std::function<std::string()> work) {
    changeLists(editor_, loop_, {label, std::move(work), [this](const std::string& problem) {
                                     refresh();
                                     emit listChanged();
                                     if (!problem.empty())
                                         emit failed(tr("The print pages cannot be kept."),
                                                     QString::fromStdString(problem));
                                 }});
}

}  // namespace tavrin

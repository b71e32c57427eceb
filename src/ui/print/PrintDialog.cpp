#include "ui/print/PrintDialog.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include "core/files/NameText.h"
#include "delivery/print/Caption.h"
#include "session/PrintPages.h"
#include "ui/ReasonText.h"
#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

constexpr int kMostCopies = 999;

}  // namespace

PrintDialog::PrintDialog(SystemInfo& info, PrintDesk& desk, std::function<QImage()> picture, QWidget* parent)
    : QDialog(parent), info_(info), desk_(desk), view_(new TemplateView(info, std::move(picture), this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("MyPrinterTemplatePanel");
    setWindowTitle(tr("Print"));
    view_->setObjectName("imageViewPrinterTemplate");
    view_->setMinimumSize(260, 320);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addPrinter(*form);
    addSheet(*form);
    addLook(*form);
    addColours(*form);
    told_ = new QLabel(this);
    told_->setObjectName("printTold");
    told_->setWordWrap(true);
    told_->hide();
    auto* right = new QVBoxLayout;
    right->addLayout(form);
    right->addStretch();
    right->addWidget(told_);
    right->addWidget(makeButtons());
    auto* row = new QHBoxLayout(this);
    row->addWidget(view_, 1);
    row->addLayout(right);
    connect(&desk_, &PrintDesk::printersKnown, this, &PrintDialog::showPrinters);
    connect(&desk_, &PrintDesk::papersKnown, this, &PrintDialog::takePapers);
    updatePrinterTemplateCombobox();
    showSheet();
    desk_.askPrinters();
    desk_.askPapers({});
}

/// A control with a name, a label for those who cannot see it, and a tip.
template <class Control>
Control* PrintDialog::named(Control* control, const char* name, const QString& label, const QString& toolTip) {
    control->setObjectName(name);
    control->setAccessibleName(label);
    control->setToolTip(toolTip);
    control->setProperty("handler", "printImage:");
    return control;
}

void PrintDialog::addPrinter(QFormLayout& form) {
    printer_ = named(new QComboBox(this), "comboPrinter", tr("Printer"), tr("The printer to print on"));
    printer_->addItem(tr("Looking for printers..."), QString());
    printer_->setEnabled(false);
    state_ = new QLabel(this);
    state_->setObjectName("printerState");
    state_->setWordWrap(true);
    state_->setAlignment(Qt::AlignTop);
    state_->setMinimumHeight(2 * state_->fontMetrics().lineSpacing());  // the dialog has its size before it is known
    copies_ = named(new QSpinBox(this), "printCopies", tr("Copies"), tr("How often the sheet is printed"));
    copies_->setRange(1, kMostCopies);
    copies_->setValue(std::max(1, info_.iEventPrintCount.load()));
    form.addRow(tr("Printer"), printer_);
    form.addRow(QString(), state_);
    form.addRow(tr("Copies"), copies_);
    connect(printer_, &QComboBox::activated, this, &PrintDialog::choosePrinter);
}

void PrintDialog::addSheet(QFormLayout& form) {
    page_ = named(new QComboBox(this), "comboPrinterTemplate", tr("Page"),
                  tr("The print page: where the picture lies on the sheet, and how often"));
    page_->setProperty("handler", "changeSelectedTemplate:");
    page_->setMaxVisibleItems(24);
    alone_ = named(new QCheckBox(tr("Only the picture, at its own size"), this), "printAlone",
                   tr("Only the picture, at its own size"), tr("The sheet is the picture itself, without a page"));
    alone_->setProperty("handler", "PrintMe:");
    layout_ = named(new QToolButton(this), "runPageLayout", tr("Page Layout"),
                    tr("Chooses the paper to print on and how it lies"));
    layout_->setText(tr("Page Layout..."));
    layout_->setProperty("handler", "runPageLayout:");
    layout_->setFocusPolicy(Qt::TabFocus);
    paperText_ = new QLabel(this);
    paperText_->setObjectName("printPaper");
    auto* paper = new QHBoxLayout;
    paper->addWidget(paperText_, 1);
    paper->addWidget(layout_);
    form.addRow(tr("Page"), page_);
    form.addRow(QString(), alone_);
    form.addRow(tr("Paper"), paper);
    connect(page_, &QComboBox::activated, this, &PrintDialog::changeSelectedTemplate);
    connect(alone_, &QCheckBox::toggled, this, &PrintDialog::showSheet);
    connect(layout_, &QToolButton::clicked, this, &PrintDialog::runPageLayout);
}

void PrintDialog::addLook(QFormLayout& form) {
    const QSettings settings = windowSettings();
    fit_ = named(new QComboBox(this), "printFit", tr("Picture"),
                 tr("What becomes of a picture that has not the shape of its place on the page"));
    fit_->addItems({tr("Stretched to its place"), tr("Cut to fill its place"), tr("Whole, with grey sides")});
    fit_->setCurrentIndex(std::clamp(settings.value("print/fit", 0).toInt(), 0, 2));
    cutMarks_ = named(new QCheckBox(tr("Cut marks"), this), "printCutMarks", tr("Cut marks"),
                      tr("Thin lines beside the pictures' corners, to cut along"));
    cutMarks_->setChecked(settings.value("print/cutMarks", false).toBool());
    mirrored_ = named(new QCheckBox(tr("Mirrored"), this), "printMirrored", tr("Mirrored"),
                      tr("Left and right exchanged, for transfer paper that is ironed on"));
    mirrored_->setChecked(settings.value("print/mirrored", false).toBool());
    caption_ = named(new QLineEdit(settings.value("print/caption").toString(), this), "printCaption", tr("Caption"),
                     tr("A line beside the pictures, where the page has room. <<filename>>, <<filenumber>>, <<date>> "
                        "and <<time>> are replaced"));
    caption_->setPlaceholderText(tr("none"));
    form.addRow(tr("Picture"), fit_);
    auto* boxes = new QHBoxLayout;
    boxes->addWidget(cutMarks_);
    boxes->addWidget(mirrored_);
    boxes->addStretch();
    form.addRow(QString(), boxes);
    form.addRow(tr("Caption"), caption_);
    connect(fit_, &QComboBox::activated, this, &PrintDialog::showSheet);
    for (QCheckBox* box : {cutMarks_, mirrored_})
        connect(box, &QCheckBox::toggled, this, &PrintDialog::showSheet);
    connect(caption_, &QLineEdit::textEdited, this, &PrintDialog::showSheet);
}

void PrintDialog::addColours(QFormLayout& form) {
    const QSettings settings = windowSettings();
    profile_ = named(new QLineEdit(this), "printProfilePath", tr("Colour profile"),
                     tr("The ICC profile of the printer and its paper; without one the printer gets sRGB"));
    profile_->setReadOnly(true);
    profile_->setPlaceholderText(tr("none"));
    auto* choose = named(new QToolButton(this), "printProfile", tr("Choose the colour profile"),
                         tr("Chooses the ICC profile of the printer and its paper"));
    choose->setText(tr("Choose..."));
    clearProfile_ = named(new QToolButton(this), "printProfileClear", tr("Take no colour profile"),
                          tr("Takes no colour profile"));
    clearProfile_->setText(QStringLiteral("\u00d7"));
    intent_ = named(new QComboBox(this), "printIntent", tr("Intent"),
                    tr("What becomes of colours that the printer does not have"));
    intent_->addItems({tr("Perceptual"), tr("Relative colorimetric"), tr("Saturation"), tr("Absolute colorimetric")});
    intent_->setCurrentIndex(std::clamp(settings.value("print/intent", 1).toInt(), 0, 3));
    auto* line = new QHBoxLayout;
    line->addWidget(profile_, 1);
    line->addWidget(choose);
    line->addWidget(clearProfile_);
    form.addRow(tr("Colour profile"), line);
    form.addRow(tr("Intent"), intent_);
    connect(choose, &QToolButton::clicked, this, &PrintDialog::askForProfile);
    connect(clearProfile_, &QToolButton::clicked, this, [this] { setProfile({}); });
    setProfile(settings.value("print/profile").toString());
}

QWidget* PrintDialog::makeButtons() {
    auto* buttons = new QDialogButtonBox(this);
    print_ = named(buttons->addButton(tr("Print"), QDialogButtonBox::AcceptRole), "PrintTemplate", tr("Print"),
                   tr("Makes the sheet and sends it to the printer"));
    print_->setProperty("handler", "PrintTemplate:");
    print_->setDefault(true);
    print_->setEnabled(false);  // until the printers are known
    auto* pdf =
        named(buttons->addButton(tr("Save as PDF..."), QDialogButtonBox::ActionRole), "printToPdf", tr("Save as PDF"),
              tr("Saves the sheet on its paper as a file, with all pixels of the picture"));
    auto* close = named(buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole), "hidePrinterTemplate",
                        tr("Cancel"), tr("Prints nothing"));
    close->setProperty("handler", "hidePrinterTemplate:");
    connect(print_, &QPushButton::clicked, this, &PrintDialog::PrintTemplate);
    connect(pdf, &QPushButton::clicked, this, [this] {
        SheetPlan sheet;
        if (plan(sheet)) emit pdfWanted(sheet);
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

/// The printer of the last time, else the usual one, else the first.
void PrintDialog::showPrinters(const PrinterList& list) {
    printers_ = list.printers;
    const QString wanted = printer_->isEnabled() ? printer_->currentData().toString()
                                                 : windowSettings().value("print/printer").toString();
    printer_->clear();
    for (const Printer& one : printers_) {
        const QString name = textOfName(one.name), more = QString::fromStdString(one.description);
        printer_->addItem(more.isEmpty() || more == name ? name : tr("%1 (%2)").arg(name, more), name);
    }
    printer_->setEnabled(!printers_.empty());
    if (printers_.empty()) {
        printer_->addItem(tr("No printers"), QString());
        state_->setText(list.problem.empty()
                            ? tr("There are no printers on this machine. Add one in the desktop's settings, or save "
                                 "the sheet as a PDF.")
                            : reasonText(list.problem));
        print_->setEnabled(false);
        return;
    }
    print_->setEnabled(true);
    const auto usual = std::ranges::find_if(printers_, &Printer::isDefault);
    int index = printer_->findData(wanted);
    if (index < 0) index = usual == printers_.end() ? 0 : static_cast<int>(usual - printers_.begin());
    printer_->setCurrentIndex(index);
    choosePrinter();
}

void PrintDialog::choosePrinter() {
    const auto index = static_cast<std::size_t>(printer_->currentIndex());
    if (index >= printers_.size()) return;
    const Printer& one = printers_[index];
    state_->setText(reasonText(one.trouble.empty() ? one.state : one.trouble));
    desk_.askPapers(printer_->currentData().toString());
}

void PrintDialog::takePapers(const QString& printer, const PrinterPapers& papers) {
    if (printer != printer_->currentData().toString()) return;
    papers_ = papers;
    showPaper();
}

void PrintDialog::updatePrinterTemplateCombobox() {
    page_->clear();
    for (const PrinterPage& page : info_.oPrinterPages)
        page_->addItem(QString::fromStdString(page.sPageTitle));
    const int index = page_->findText(QString::fromStdString(info_.oQLXInfo->sSelectedPrinterTemplate));
    info_.oQLXInfo->iSelectedPrinterTemplate = std::max(0, index);
    page_->setCurrentIndex(std::max(0, index));
}

void PrintDialog::changeSelectedTemplate(int index) {
    choosePrinterPage(info_, index);
    showSheet();
    emit pageChosen();
}

void PrintDialog::refresh() {
    view_->refresh();
}

PrinterPage PrintDialog::page() const {
    const int index = page_->currentIndex();
    if (!alone_->isChecked()) return index < 0 ? PrinterPage() : info_.oPrinterPages[static_cast<std::size_t>(index)];
    constexpr double kHundredths = 100.0;
    PrinterPage page;
    PrinterPageImage slot;
    slot.iWidth = page.iPageWidth = static_cast<std::int64_t>(info_.dOutputImageWidthInInches * kHundredths);
    slot.iHeight = page.iPageHeight = static_cast<std::int64_t>(info_.dOutputImageHeightInInches * kHundredths);
    page.sPageTitle = info_.sImageSizeName.load();
    page.oPrinterPageImages = {slot};
    return page;
}

SheetLook PrintDialog::look() const {
    return {static_cast<SlotFit>(fit_->currentIndex()), cutMarks_->isChecked(), mirrored_->isChecked(),
            caption_->text().trimmed().toStdString()};
}

void PrintDialog::showSheet() {
    page_->setEnabled(!alone_->isChecked());
    SheetLook shown = look();
    shown.caption = captionText(shown.caption, info_.pForegroundBitmapInfo->sSourceImageFullPath);
    view_->setLook(shown);
    view_->setPage(page());
    showPaper();
}

/// What is printed on, and what that does to the sheet.
void PrintDialog::showPaper() {
    const Paper on = paper();
    paperText_->setText(PageLayout::kept().landscape ? tr("%1, on its side").arg(QString::fromStdString(on.name))
                                                     : QString::fromStdString(on.name));
    const PrinterPage sheet = page();
    constexpr int kPixels = 6;  // of 600 dpi in a hundredth of an inch
    const int width = static_cast<int>(sheet.iPageWidth * kPixels),
              height = static_cast<int>(sheet.iPageHeight * kPixels);
    if (isCutOff(on, width, height)) {
        tell(isCutOff(on.turned(), width, height)
                 ? tr("The sheet is larger than the paper; what stands over is cut off.")
                 : tr("The sheet is larger than the paper as it lies; turn the paper in Page Layout."));
    } else if (!caption_->text().trimmed().isEmpty() && !captionRoom(sheet, 600)) {
        tell(tr("This page has no room for a caption; it is left out."));
    } else {
        tell({});
    }
}

void PrintDialog::runPageLayout() {
    auto* dialog = new PageLayoutDialog(papers_, this);
    connect(dialog, &PageLayoutDialog::changed, this, &PrintDialog::showPaper);
    dialog->open();
}

void PrintDialog::askForProfile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Select the Colour Profile"), profile_->text(),
                                                      tr("Colour profiles (*.icc *.icm)"));
    if (!path.isEmpty()) setProfile(path);
}

void PrintDialog::setProfile(const QString& path) {
    profile_->setText(path);
    clearProfile_->setEnabled(!path.isEmpty());
    intent_->setEnabled(!path.isEmpty());
}

/// @return false when something is wrong, which was told
bool PrintDialog::plan(SheetPlan& plan) {
    plan.page = page();
    plan.look = look();
    plan.paper = paper();
    const auto& places = plan.page.oPrinterPageImages;
    if (std::ranges::none_of(places, [&](const PrinterPageImage& slot) { return isOnPage(plan.page, slot); })) {
        tell(tr("This page has no place for a picture."));
        return false;
    }
    keep();
    if (profile_->text().isEmpty()) return true;
    std::string problem;
    plan.profile =
        PrinterProfile::load(nameOfText(profile_->text()), static_cast<Intent>(intent_->currentIndex()), problem);
    if (!problem.empty()) tell(reasonText(problem));
    return problem.empty();
}

void PrintDialog::keep() const {
    QSettings settings = windowSettings();
    if (printer_->isEnabled()) settings.setValue("print/printer", printer_->currentData());
    settings.setValue("print/fit", fit_->currentIndex());
    settings.setValue("print/cutMarks", cutMarks_->isChecked());
    settings.setValue("print/mirrored", mirrored_->isChecked());
    settings.setValue("print/caption", caption_->text().trimmed());
    settings.setValue("print/profile", profile_->text());
    settings.setValue("print/intent", intent_->currentIndex());
}

void PrintDialog::PrintTemplate() {
    PrintOrder order;
    if (!plan(order.plan)) return;
    order.printer = nameOfText(printer_->currentData().toString());
    info_.iEventPrintCount = copies_->value();
    order.copies = copiesToPrint(info_);
    emit printWanted(order);
    accept();
}

void PrintDialog::tell(const QString& line) {
    told_->setText(line);
    told_->setVisible(!line.isEmpty());
}

}  // namespace tavrin

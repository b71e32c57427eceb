#include "ui/print/BatchPrintPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "ui/ReasonText.h"
#include "ui/bind/WordButton.h"
#include "ui/print/PageLayout.h"

namespace tavrin {

void BatchPrintBridge::showBatchPrintCounts(const std::string& files, const std::string& processed) {
    emit counted(QString::fromStdString(files), QString::fromStdString(processed));
}

void BatchPrintBridge::showBatchPrintState(BatchPrintState state, const std::string& detail) {
    const bool isName = state == BatchPrintState::printing;
    emit stateShown(static_cast<int>(state), isName ? textOfName(detail) : QString::fromStdString(detail));
}

BatchPrintPanel::BatchPrintPanel(SystemInfo& info, PrintDesk& desk, std::function<QImage()> picture, QWidget* parent)
    : QWidget(parent),
      info_(info),
      desk_(desk),
      template_(new TemplatePanel(batchTemplates(), info, std::move(picture), this)),
      folder_(new QLineEdit(this)),
      page_(new QLineEdit(this)),
      printer_(new QComboBox(this)),
      printerState_(new QLabel(this)),
      files_(new QLabel(this)),
      processed_(new QLabel(this)),
      status_(new QLabel(this)),
      watch_(new QCheckBox(tr("Watch the folder"), this)),
      engine_(info, &bridge_) {
    setObjectName("batchPrintPanel");
    setAccessibleName(tr("Print a folder"));
    setToolTip(tr("Prints every photo of a folder on the chosen page, and those that arrive while it is watched"));
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 4);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(tr("Photos"), makeFolderRow());
    named(printer_, "comboBoxPrinterNames", "changedPrinterName:", tr("Printer"), tr("The printer to print on"));
    form->addRow(tr("Printer"), printer_);
    printerState_->setObjectName("batchPrinterState");
    printerState_->setWordWrap(true);
    form->addRow(QString(), printerState_);
    form->addRow(tr("Page"), makePageRow());
    named(watch_, "buttonBatchPrintWatchState", "changeWatchBatchPrint:", watch_->text(),
          tr("The run goes on and prints photos as they arrive in the folder"));
    form->addRow(QString(), watch_);
    form->addRow(QString(), makeRunRow());
    connectEngine();
    showSettings();
}

QToolButton* BatchPrintPanel::addButton(const char* handler, const QString& text, const QString& toolTip,
                                        void (BatchPrintPanel::*clicked)()) {
    auto* button = named(new QToolButton(this), handler, "", text, toolTip);
    button->setProperty("handler", QString(handler) + ':');
    button->setText(text);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, clicked);
    return button;
}

namespace {

QWidget* inALine(const std::vector<QWidget*>& parts, QWidget* parent) {
    auto* line = new QWidget(parent);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (QWidget* part : parts)
        layout->addWidget(part, qobject_cast<QLineEdit*>(part) ? 1 : 0);
    return line;
}

}  // namespace

QWidget* BatchPrintPanel::makeFolderRow() {
    named(folder_, "textBatchPrintFolder", "updateBatchPrintUI", tr("Photos"),
          tr("The folder whose photos are printed"));
    folder_->setReadOnly(true);
    folder_->setPlaceholderText(tr("none"));
    return inALine({folder_, addButton("chooseBatchPrintFolder", tr("Choose..."),
                                       tr("Chooses the folder whose photos are printed"),
                                       &BatchPrintPanel::chooseBatchPrintFolder)},
                   this);
}

QWidget* BatchPrintPanel::makePageRow() {
    named(page_, "textSelectedPrinterTemplate", "updateBatchPrinterTemplateCombobox", tr("Page"),
          tr("The print page that every photo is printed on"));
    page_->setReadOnly(true);
    page_->setPlaceholderText(tr("none"));
    return inALine({page_, addButton("showBatchPrinterTemplate", tr("Choose..."),
                                     tr("Shows the print pages and chooses the one to print on"),
                                     &BatchPrintPanel::showBatchPrinterTemplate)},
                   this);
}

QWidget* BatchPrintPanel::makeRunRow() {
    auto* run = new QWidget(this);
    auto* column = new QVBoxLayout(run);
    column->setContentsMargins(0, 0, 0, 0);
    start_ = addButton("clickedButtonStartBatchPrint", tr("Start"), tr("Prints the photos that were not printed yet"),
                       &BatchPrintPanel::clickedButtonStartBatchPrint);
    stop_ = addButton("clickedButtonStopBatchPrint", tr("Stop"), tr("Ends the run after the photo in hand"),
                      &BatchPrintPanel::clickedButtonStopBatchPrint);
    auto* clear =
        addButton("clickedButtonClearHistory", tr("Print All Again"),
                  tr("Forgets which photos of the folder were printed"), &BatchPrintPanel::clickedButtonClearHistory);
    start_->setObjectName("buttonBatchPrintStart");
    stop_->setObjectName("buttonBatchPrintStop");
    stop_->setEnabled(false);
    QWidget* buttons = inALine({start_, stop_, clear}, run);
    static_cast<QHBoxLayout*>(buttons->layout())->addStretch();
    files_->setObjectName("textBatchPrintFileCount");
    processed_->setObjectName("textBatchPrintProcessedCount");
    auto* all = new QLabel(tr("Photos:"), run);
    auto* printed = new QLabel(tr("Printed:"), run);
    QWidget* counts = inALine({all, files_, printed, processed_}, run);
    static_cast<QHBoxLayout*>(counts->layout())->insertSpacing(2, 12);
    static_cast<QHBoxLayout*>(counts->layout())->addStretch();
    status_->setObjectName("textBatchPrintStatus");
    status_->setWordWrap(true);
    for (QWidget* part : {buttons, counts, static_cast<QWidget*>(status_)})
        column->addWidget(part);
    return run;
}

void BatchPrintPanel::connectEngine() {
    const auto queued = Qt::QueuedConnection;
    bridge_.findFolder = [this]() -> std::optional<std::string> {
        const QString folder =
            QFileDialog::getExistingDirectory(this, tr("Folder of Photos to Print"), folder_->text());
        if (folder.isEmpty()) return std::nullopt;
        return nameOfText(folder);
    };
    connect(
        &bridge_, &BatchPrintBridge::counted, this,
        [this](const QString& files, const QString& processed) {
            files_->setText(files);
            processed_->setText(processed);
        },
        queued);
    connect(
        &bridge_, &BatchPrintBridge::stateShown, this,
        [this](int state, const QString& detail) { showState(static_cast<BatchPrintState>(state), detail); }, queued);
    connect(
        &bridge_, &BatchPrintBridge::enabled, this,
        [this](bool start, bool stop) {
            start_->setEnabled(start);
            stop_->setEnabled(stop);
        },
        queued);
    connect(
        &bridge_, &BatchPrintBridge::failed, this,
        [this](const QString& line) {
            emit failed(tr("Not everything of the folder is printed."), reasonText(line.toStdString()));
        },
        queued);
    connect(&bridge_, &BatchPrintBridge::sheetsChanged, &desk_, &PrintDesk::followUp, queued);
    connect(&bridge_, &BatchPrintBridge::settingsShown, this, &BatchPrintPanel::showSettings);
    connect(&desk_, &PrintDesk::printersKnown, this, &BatchPrintPanel::takePrinters);
    connect(printer_, &QComboBox::activated, this,
            [this] { engine_.changedPrinterName(nameOfText(printer_->currentData().toString())); });
    connect(watch_, &QCheckBox::clicked, this, [this](bool on) { engine_.changeWatchBatchPrint(on); });
    connect(template_, &TemplatePanel::templateChosen, this, [this](const QString& title) {
        page_->setText(title);
        emit changed();
    });
}

void BatchPrintPanel::takePrinters(const PrinterList& list) {
    std::vector<std::string> names;
    printer_->clear();
    for (const Printer& one : list.printers) {
        names.push_back(one.name);
        printer_->addItem(textOfName(one.name), textOfName(one.name));
        const QString state = reasonText(one.trouble.empty() ? one.state : one.trouble);
        printer_->setItemData(printer_->count() - 1, state, Qt::ToolTipRole);
    }
    printer_->setEnabled(!names.empty());
    engine_.updateBatchPrintUI(names);
    if (names.empty())
        printerState_->setText(list.problem.empty() ? tr("There are no printers on this machine.")
                                                    : reasonText(list.problem));
}

/// The printer's state is that of the last time that it was asked.
void BatchPrintPanel::showSettings() {
    const QLXInfo& settings = *info_.oQLXInfo;
    folder_->setText(textOfName(settings.sBatchPrintFolder));
    folder_->setToolTip(folder_->text().isEmpty() ? tr("The folder whose photos are printed") : folder_->text());
    page_->setText(template_->title());
    watch_->setChecked(settings.bWatchPrintFolder);
    printer_->setCurrentIndex(printer_->findData(textOfName(settings.sSelectedBatchPrinterName)));
    printerState_->setText(printer_->currentData(Qt::ToolTipRole).toString());
}

void BatchPrintPanel::showState(BatchPrintState state, const QString& detail) {
    switch (state) {
        case BatchPrintState::stopped:
            return status_->setText(tr("Batch Print Stopped"));
        case BatchPrintState::printing:
            return status_->setText(tr("Printing %1").arg(detail));
        case BatchPrintState::watching:
            return status_->setText(tr("Waiting for photos that arrive"));
        case BatchPrintState::held:
            return status_->setText(tr("Waiting: %1").arg(detail));
    }
}

void BatchPrintPanel::refresh() {
    template_->updatePrinterTemplateCombobox();
    page_->setText(template_->title());
}

void BatchPrintPanel::showBatchPrinterTemplate() {
    template_->showPrinterTemplate();
}

/// The run ends at once without photos; why there are none is said here.
void BatchPrintPanel::clickedButtonStartBatchPrint() {
    const QString folder = textOfName(standardizePath(info_.oQLXInfo->sBatchPrintFolder));
    if (folder.isEmpty()) return emit told(tr("Choose the folder whose photos are to be printed."));
    if (!QFileInfo(folder).isDir()) return emit told(tr("The folder %1 is not there.").arg(folder));
    BatchPrintTools tools;
    tools.service = desk_.makeService();
    tools.paper = [layout = PageLayout::kept()](const PrinterPapers& papers) { return layout.among(papers); };
    engine_.clickedButtonStartBatchPrint(std::move(tools));
}

void BatchPrintPanel::clickedButtonStopBatchPrint() {
    engine_.clickedButtonStopBatchPrint();
}

void BatchPrintPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
    if (!engine_.isRunning()) desk_.askPrinters();
}

}  // namespace tavrin

// How the main window prints.
#include <QFileDialog>
#include <QFileInfo>

#include "core/files/NameText.h"
#include "ui/frame/MainWindow.h"
#include "ui/print/PrintDialog.h"

namespace tavrin {

std::vector<Command> printCommands(MainWindow& w) {
    return {{"mainButtonPrint", "|&File", MainWindow::tr("&Print..."),
             MainWindow::tr("Prints the finished picture, or saves the sheet as a PDF"), "document-print/print",
             QKeySequence::Print, [&w] { return w.finished_; }, [&w](bool) { w.printImage(); }},
            {"PageLayout",
             "&File",
             MainWindow::tr("Page La&yout..."),
             MainWindow::tr("Chooses the paper to print on and how it lies"),
             "",
             {},
             {},
             [&w](bool) { w.runPageLayout(); }}};
}

void MainWindow::connectPrinting() {
    connect(printing_, &PrintDesk::told, messages_, &MessageBar::tell);
    connect(printing_, &PrintDesk::failed, messages_, &MessageBar::fail);
    connect(folderPrint_, &BatchPrintPanel::changed, this, &MainWindow::keepSettings);
    connect(folderPrint_, &BatchPrintPanel::told, messages_, &MessageBar::tell);
    connect(folderPrint_, &BatchPrintPanel::failed, messages_, &MessageBar::fail);
    connect(templates_, &TemplatesPanel::printWanted, this, &MainWindow::printImage);
    printing_->followUp();  // what the last start left
}

void MainWindow::printImage() {
    if (!finished_) return messages_->tell(tr("The picture is not finished yet."));
    if (auto* open = findChild<PrintDialog*>()) return open->activateWindow();
    auto* dialog = new PrintDialog(
        info_, *printing_, [this] { return view_->fullPicture(); }, this);
    connect(dialog, &PrintDialog::pageChosen, this, [this] {
        keepSettings();
        templates_->refresh();
    });
    connect(dialog, &PrintDialog::printWanted, this, [this](const PrintOrder& order) {
        takeForSheet([this, order](const SheetPicture& picture) { printing_->print(order, picture); });
    });
    connect(dialog, &PrintDialog::pdfWanted, this, [this, dialog](const SheetPlan& plan) {
        const QFileInfo target(suggestedName());
        const QString path =
            QFileDialog::getSaveFileName(dialog, tr("Save the Sheet"),
                                         target.path() + '/' + target.completeBaseName() + ".pdf", tr("PDF (*.pdf)"));
        if (path.isEmpty()) return;
        takeForSheet([this, plan, path](const SheetPicture& picture) { printing_->savePdf(plan, picture, path); });
    });
    dialog->setModal(true);
    dialog->show();
}

void MainWindow::runPageLayout() {
    (new PageLayoutDialog({usualPapers(), usualPaper(), ""}, this))->open();
}

/// The finished picture as it stands, turned on sheets as the output is.
void MainWindow::takeForSheet(std::function<void(const SheetPicture&)> take) {
    takeFinished([&] {
        return files_->takePicture([this, take](const QImage& pixels) {
            if (pixels.isNull()) return messages_->tell(tr("The picture is not finished yet."));
            take({pixels, "", info_.pForegroundBitmapInfo->sSourceImageFullPath,
                  static_cast<double>(info_.iOutputPixelWidth) / info_.iOutputPixelHeight});
        });
    });
}

}  // namespace tavrin

// The photo booth in the window.
#include <QMessageBox>

#include "core/files/Places.h"
#include "core/files/TempFiles.h"
#include "ui/booth/EventPage.h"
#include "ui/booth/EventSetupPanel.h"
#include "ui/frame/MainWindow.h"
#include "ui/mail/PhoneTextView.h"
#include "ui/print/TemplatePanel.h"

namespace tavrin {

void MainWindow::connectEvent() {
    connect(panel_, &SidePanel::mainTabSelected, this, &MainWindow::showEventMode);
    connect(booth_, &EventBooth::guestLeaves, this, [this] {
        leaveWaysOfSaving();
        keeping_->leavePortrait();
        keeping_->forgetEdits();
    });
    connect(booth_, &EventBooth::stateReplaced, this, [this] {
        editor_.forgetSteps();
        showState();
    });
    connect(booth_, &EventBooth::layoutChanged, this, &MainWindow::showState);
    connect(booth_, &EventBooth::settingsToKeep, this, &MainWindow::keepSettings);
    connect(booth_, &EventBooth::titleChanged, this, [this](const QString& title) {
        setWindowTitle(title);
        commands_->refresh();
    });
    connect(booth_, &EventBooth::leavesEventMode, this, [this] {
        info_.bHaveGallery = info_.bHaveAdjGallery = false;
        ClearTempFiles(Places::current().tempFilesFolder());
    });
    connect(booth_, &EventBooth::told, messages_, &MessageBar::tell);
    connect(booth_, &EventBooth::failed, messages_, &MessageBar::fail);
    connect(booth_, &EventBooth::alerted, this, &MainWindow::showAlert);
    connect(booth_, &EventBooth::jobAlerted, this, &MainWindow::showJobAlert);
    connect(booth_, &EventBooth::carrierWanted, this, [this] {
        auto* carriers = new PhoneTextView(info_, this);
        carriers->setAttribute(Qt::WA_DeleteOnClose);
        connect(carriers, &PhoneTextView::chosen, booth_, &EventBooth::eventModeSaveText);
        carriers->open();
    });
    connect(booth_->page(), &EventPage::setupWanted, this, &MainWindow::ShowEventSetup);
    showEventMode();
}

/// One box for all of them, beside which the booth goes on.
void MainWindow::showJobAlert(const QString& message, const QString& reason) {
    auto* box = findChild<QMessageBox*>("eventAlert");
    if (!box) {
        box = new QMessageBox(QMessageBox::Warning, "Tavrin", message, QMessageBox::Ok, this);
        box->setObjectName("eventAlert");
        box->setWindowModality(Qt::NonModal);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setAttribute(Qt::WA_ShowWithoutActivating);
    }
    box->setText(message);
    box->setInformativeText(reason);
    box->show();
}

/// The strips of the booth stand where the strip of pictures is else.
void MainWindow::showEventMode() {
    const bool showing = panel_->page() == booth_->page();
    info_.bEventModeShowing = showing;
    strip_->setVisible(!showing);
    booth_->foregroundSelector()->parentWidget()->setVisible(showing);
    booth_->setShowing(showing);
}

void MainWindow::ShowEventSetup() {
    auto* setup = new EventSetupPanel(*info_.oQLXInfo, this);
    setup->setAttribute(Qt::WA_DeleteOnClose);
    connect(setup, &EventSetupPanel::settingsToKeep, this, &MainWindow::keepSettings);
    connect(setup, &EventSetupPanel::folderChosen, booth_,
            [this](int which) { booth_->settingsChanged(which == 0, which == 1 || which == 2); });
    connect(printing_, &PrintDesk::printersKnown, setup, [setup](const PrinterList& printers) {
        QStringList names;
        for (const auto& printer : printers.printers)
            names << QString::fromStdString(printer.name);
        setup->setPrinters(names);
    });
    printing_->askPrinters();
    auto* pages = new TemplatePanel(
        eventTemplates(), info_, [this] { return view_->fullPicture(); }, setup);
    pages->updatePrinterTemplateCombobox();
    setup->showTemplate(pages->title());
    connect(setup, &EventSetupPanel::templateWanted, pages, &TemplatePanel::showPrinterTemplate);
    connect(pages, &TemplatePanel::templateChosen, this, &MainWindow::keepSettings);
    connect(pages, &TemplatePanel::templateChosen, setup, &EventSetupPanel::showTemplate);
    setup->show();
}

}  // namespace tavrin

#include "ui/booth/EventSetupPanel.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "ui/bind/ControlRow.h"
#include "ui/bind/WordButton.h"

namespace tavrin {

namespace {

struct FolderWords {
    Field<std::string> QLXInfo::*path;
    const char *name, *handler, *label, *toolTip;
};

constexpr FolderWords kFolders[] = {
    {&QLXInfo::sEventModeForegroundFolder, "textEventForegroundFolder", "chooseEventForegroundFolder:",
     QT_TRANSLATE_NOOP("Panel", "Portraits"), QT_TRANSLATE_NOOP("Panel", "Where the camera puts the portraits")},
    {&QLXInfo::sEventModeBackgroundVertFolder, "textEventBackgroundFolder",
     "chooseEventBackgroundFolder:", QT_TRANSLATE_NOOP("Panel", "Backgrounds, portrait layout"),
     QT_TRANSLATE_NOOP("Panel", "A state file of the same name beside a background is its recipe")},
    {&QLXInfo::sEventModeBackgroundHorzFolder, "textEventHorzBackgroundFolder",
     "chooseEventHorzBackgroundFolder:", QT_TRANSLATE_NOOP("Panel", "Backgrounds, landscape layout"),
     QT_TRANSLATE_NOOP("Panel", "A state file of the same name beside a background is its recipe")},
    {&QLXInfo::sEventModeOutputFolder, "textEventOutputFolder",
     "chooseEventOutputFolder:", QT_TRANSLATE_NOOP("Panel", "Pictures"),
     QT_TRANSLATE_NOOP("Panel", "Where the finished pictures go, and a ticket for each press")},
};

}  // namespace

EventSetupPanel::EventSetupPanel(QLXInfo& settings, QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      title_(named(new QLineEdit, "textEventEmailTitle", "HideEventSetup:", tr("Title of the mails"),
                   tr("Subject of what the guests get"))),
      page_(named(new QLineEdit, "textFieledEventSelectedTemplate", "showEventPrinterTemplate:", tr("Print page"),
                  tr("How the pictures lie on the sheet"))),
      body_(named(new QPlainTextEdit, "myEventEmailTextView", "HideEventSetup:", tr("Text of the mails"),
                  tr("What the guests read"))),
      printers_(named(new QComboBox, "comboBoxEventPrinterNames", "HideEventSetup:", tr("Printer"),
                      tr("Prints of the booth come from here"))) {
    setObjectName("MyEventSetupPanel");
    setWindowTitle(tr("Setup of the Booth"));
    auto* grid = new QGridLayout(this);
    for (int which = 0; which < static_cast<int>(std::size(kFolders)); ++which)
        folders_.push_back({kFolders[which].path, addFolder(grid, which)});
    const auto add = [&](QWidget* control, const QString& label) {
        const int row = grid->rowCount();
        auto* words = new QLabel(label, this);
        words->setBuddy(control);
        grid->addWidget(words, row, 0, Qt::AlignTop);
        grid->addWidget(control, row, 1);
    };
    add(title_, title_->accessibleName());
    body_->setTabChangesFocus(true);
    body_->setFixedHeight(90);
    add(body_, body_->accessibleName());
    page_->setReadOnly(true);
    add(page_, page_->accessibleName());
    QToolButton* choosePage = makeButton("buttonEventTemplate", "showEventPrinterTemplate:", tr("Choose..."),
                                         tr("Shows the print pages with the picture in them"));
    connect(choosePage, &QToolButton::clicked, this, &EventSetupPanel::templateWanted);
    choosePage->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    grid->addWidget(choosePage, grid->rowCount() - 1, 2);
    add(printers_, printers_->accessibleName());
    QToolButton* close = makeButton("buttonHideEventSetup", "HideEventSetup:", tr("Done"),
                                    tr("Keeps all of this and closes the panel"));
    connect(close, &QToolButton::clicked, this, &EventSetupPanel::HideEventSetup);
    grid->addWidget(close, grid->rowCount(), 1, 1, 2);
    resize(640, sizeHint().height());
    updateEventUI();
}

QLineEdit* EventSetupPanel::addFolder(QGridLayout* grid, int which) {
    const FolderWords& words = kFolders[which];
    const QString label = ControlRow::translated(words.label);
    auto* shown = named(new QLineEdit, words.name, words.handler, label, ControlRow::translated(words.toolTip));
    shown->setReadOnly(true);
    auto* name = new QLabel(label, this);
    name->setBuddy(shown);
    QToolButton* ask =
        makeButton((std::string(words.name) + "Button").c_str(), words.handler, tr("Choose..."), shown->toolTip());
    ask->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    ask->setAccessibleName(tr("%1: choose a folder").arg(label));
    connect(ask, &QToolButton::clicked, this, [this, which] { choose(which); });
    grid->addWidget(name, which, 0);
    grid->addWidget(shown, which, 1);
    grid->addWidget(ask, which, 2);
    return shown;
}

void EventSetupPanel::choose(int which) {
    const FolderField& field = folders_[static_cast<std::size_t>(which)];
    auto* dialog = new QFileDialog(this, tr("Choose a Folder: %1").arg(field.shown->accessibleName()),
                                   textOfName(standardizePath(settings_.*field.path)));
    dialog->setObjectName("eventFolderDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this, [this, which](const QString& folder) {
        settings_.*folders_[static_cast<std::size_t>(which)].path = nameOfText(folder);
        updateEventUI();
        emit folderChosen(which);
    });
    dialog->open();
}

void EventSetupPanel::updateEventUI() {
    for (const FolderField& field : folders_)
        field.shown->setText(textOfName(settings_.*field.path));
    title_->setText(QString::fromStdString(settings_.sEventModeEmailTitle));
    body_->setPlainText(QString::fromStdString(settings_.sEventModeEmailBody));
}

void EventSetupPanel::showTemplate(const QString& title) {
    page_->setText(title);
}

void EventSetupPanel::setPrinters(const QStringList& names) {
    const QString wanted = QString::fromStdString(settings_.sEventModePrinterName);
    printers_->clear();
    printers_->addItems(names);
    hasPrinters_ = !names.isEmpty();
    settings_.iEventModePrinterName = static_cast<std::int32_t>(names.indexOf(wanted));
    if (!hasPrinters_) return;
    if (!names.contains(wanted)) {
        settings_.sEventModePrinterName = names.first().toStdString();
        emit settingsToKeep();
    }
    printers_->setCurrentText(QString::fromStdString(settings_.sEventModePrinterName));
}

void EventSetupPanel::HideEventSetup() {
    close();
}

/// However it is closed, what it shows is kept.
void EventSetupPanel::done(int result) {
    settings_.sEventModeEmailTitle = title_->text().toStdString();
    settings_.sEventModeEmailBody = body_->toPlainText().toStdString();
    if (hasPrinters_) settings_.sEventModePrinterName = printers_->currentText().toStdString();
    emit settingsToKeep();
    QDialog::done(result);
}

}  // namespace tavrin

#include "ui/print/WaitingSheets.h"

#include <algorithm>
#include <set>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/files/NameText.h"
#include "ui/ReasonText.h"

namespace tavrin {

namespace {

using Stage = QueuedSheet::Stage;

QString stageText(Stage stage) {
    switch (stage) {
        case Stage::waiting:
            return WaitingSheets::tr("waits");
        case Stage::sending:
            return WaitingSheets::tr("is being sent");
        case Stage::atPrinter:
            return WaitingSheets::tr("at the printer");
        case Stage::unsure:
            return WaitingSheets::tr("may have been printed");
    }
    return {};
}

}  // namespace

WaitingSheets::WaitingSheets(PrintDesk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), table_(new QTableWidget(0, 3, this)) {
    setObjectName("waitingSheetsPanel");
    setAccessibleName(tr("Sheets that are not printed yet"));
    setToolTip(tr("Sheets on their way to a printer, and those that could not be printed"));
    table_->setObjectName("waitingSheets");
    table_->setAccessibleName(tr("Sheets that are not printed yet"));
    table_->setToolTip(tr("Each sheet with its printer and how it stands; rest on one to read why"));
    table_->setHorizontalHeaderLabels({tr("Sheet"), tr("Printer"), tr("State")});
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->setMinimumHeight(110);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 4);
    column->addWidget(table_);
    auto* line = new QHBoxLayout;
    column->addLayout(line);
    again_ = addButton("sendSheetAgain", tr("Send Again"),
                       tr("Sends the selected sheets to their printers once more"), &WaitingSheets::sendAgain);
    discard_ = addButton("discardSheet", tr("Discard"), tr("Forgets the selected sheets; they are not printed"),
                         &WaitingSheets::discard);
    for (QToolButton* button : {again_, discard_})
        line->addWidget(button);
    line->addStretch();
    connect(table_, &QTableWidget::itemSelectionChanged, this, &WaitingSheets::showButtons);
    connect(&desk_, &PrintDesk::sheetsChanged, this, &WaitingSheets::show);
    show();
}

QToolButton* WaitingSheets::addButton(const char* name, const QString& text, const QString& toolTip,
                                      void (WaitingSheets::*clicked)()) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setProperty("handler", name);
    button->setText(text);
    button->setAccessibleName(toolTip);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, clicked);
    return button;
}

void WaitingSheets::show() {
    std::set<std::string> kept;
    for (const QueuedSheet& sheet : selected())
        kept.insert(sheet.id);
    const auto& sheets = desk_.sheets();
    const QSignalBlocker quiet(table_);
    table_->clearSelection();
    table_->setRowCount(static_cast<int>(sheets.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const QueuedSheet& sheet = sheets[static_cast<std::size_t>(row)];
        const QString why = reasonText(sheet.reason);
        const QString texts[] = {QString::fromStdString(sheet.job.title), textOfName(sheet.job.printer),
                                 why.isEmpty() ? stageText(sheet.stage) : stageText(sheet.stage) + ": " + why};
        for (int i = 0; i < 3; ++i) {
            auto* item = new QTableWidgetItem(texts[i]);
            item->setToolTip(texts[i]);
            item->setData(Qt::UserRole, QString::fromStdString(sheet.id));
            table_->setItem(row, i, item);
            item->setSelected(kept.contains(sheet.id) || sheets.size() == 1);
        }
    }
    showButtons();
}

std::vector<QueuedSheet> WaitingSheets::selected() const {
    std::set<std::string> ids;
    for (const QTableWidgetItem* item : table_->selectedItems())
        ids.insert(item->data(Qt::UserRole).toString().toStdString());
    std::vector<QueuedSheet> sheets = desk_.sheets();
    std::erase_if(sheets, [&ids](const QueuedSheet& sheet) { return !ids.contains(sheet.id); });
    return sheets;
}

void WaitingSheets::showButtons() {
    const std::vector<QueuedSheet> sheets = selected();
    const bool isFree = std::ranges::none_of(sheets, [](const auto& sheet) { return sheet.stage == Stage::sending; });
    for (QToolButton* button : {again_, discard_})
        button->setEnabled(!sheets.empty() && isFree);
}

/// What may have been printed is never sent without a word.
void WaitingSheets::sendAgain() {
    std::vector<QueuedSheet> unsure;
    for (const QueuedSheet& sheet : selected())
        sheet.stage == Stage::unsure ? unsure.push_back(sheet) : desk_.sendAgain(sheet.id);
    if (!unsure.empty()) askAbout(unsure);
}

void WaitingSheets::askAbout(const std::vector<QueuedSheet>& unsure) {
    auto* box = new QMessageBox(QMessageBox::Question, "Tavrin",
                                tr("What is selected may have been printed already. Print it once more?"),
                                QMessageBox::NoButton, this);
    box->setObjectName("sendUnsureSheet");
    box->setInformativeText(reasonText(unsure.front().reason));
    box->addButton(tr("Print Once More"), QMessageBox::AcceptRole);
    box->setDefaultButton(box->addButton(tr("Cancel"), QMessageBox::RejectRole));
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this, [this, box, unsure](QAbstractButton* button) {
        if (box->buttonRole(button) != QMessageBox::AcceptRole) return;
        for (const QueuedSheet& sheet : unsure)
            desk_.sendAgain(sheet.id);
    });
    box->open();
}

void WaitingSheets::discard() {
    for (const QueuedSheet& sheet : selected())
        desk_.discard(sheet.id);
}

}  // namespace tavrin

#include "ui/sizes/SizesPanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/sizes/ListStep.h"
#include "ui/sizes/SizeDialog.h"

namespace tavrin {

SizesPanel::SizesPanel(SettingEditor& editor, HeldLoop& loop, QWidget* parent)
    : QWidget(parent), editor_(editor), info_(editor.info()), loop_(loop), table_(new QTableWidget(0, 3, this)) {
    setObjectName("panelImageSizes");
    setAccessibleName(tr("Output sizes"));
    setToolTip(tr("Sizes of your own; two stars mark them"));
    table_->setObjectName("tableImageSizes");
    table_->setAccessibleName(accessibleName());
    table_->setToolTip(toolTip());
    table_->setHorizontalHeaderLabels({tr("Name"), tr("Pixels"), tr("Print page")});
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->hide();
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->setMinimumHeight(190);
    connect(table_, &QTableWidget::itemSelectionChanged, this, &SizesPanel::showButtons);
    connect(table_, &QTableWidget::itemActivated, this, &SizesPanel::clickedEditImageSizes);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 4);
    column->addWidget(table_);
    auto* line = new QHBoxLayout;
    column->addLayout(line);
    QToolButton* add = addButton("buttonAddImageSizes", "clickedAddImageSizes:", tr("Add..."),
                                 tr("Adds an output size of your own"));
    edit_ = addButton("buttonEditImageSizes", "clickedEditImageSizes:", tr("Edit..."),
                      tr("Changes the size that is selected; one of the program's becomes your own"));
    delete_ = addButton("buttonDeleteImageSizes", "clickedDeleteImageSizes:", tr("Delete"),
                        tr("Takes a size of your own out of the list; pictures that have it keep it"));
    for (QToolButton* button : {add, edit_, delete_})
        line->addWidget(button);
    line->addStretch();
    connect(add, &QToolButton::clicked, this, &SizesPanel::clickedAddImageSizes);
    connect(edit_, &QToolButton::clicked, this, &SizesPanel::clickedEditImageSizes);
    connect(delete_, &QToolButton::clicked, this, &SizesPanel::clickedDeleteImageSizes);
    refresh();
}

QToolButton* SizesPanel::addButton(const char* name, const char* handler, const QString& text,
                                   const QString& toolTip) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setProperty("handler", handler);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void SizesPanel::refresh() {
    const std::int32_t row = selected();
    table_->setRowCount(info_.iImageSizeCount());
    for (int i = 0; i < info_.iImageSizeCount(); ++i) {
        const ImageSize& size = info_.oImageSize[static_cast<std::size_t>(i)];
        const QString texts[] = {QString::fromStdString(size.sName),
                                 tr("%1 x %2")
                                     .arg(static_cast<int>(size.dWidth * size.dotsPerInch))
                                     .arg(static_cast<int>(size.dHeight * size.dotsPerInch)),
                                 QString::fromStdString(size.sDefaultPrinterPage)};
        for (int column = 0; column < 3; ++column)
            table_->setItem(i, column, new QTableWidgetItem(texts[column]));
    }
    table_->selectRow(row >= 0 ? std::min(row, info_.iImageSizeCount() - 1) : info_.iSelecteImageSize.load());
    showButtons();
}

std::int32_t SizesPanel::selected() const {
    const QList<QTableWidgetItem*> items = table_->selectedItems();
    return items.isEmpty() ? -1 : items.first()->row();
}

/// What came with the program comes back with the next start, so it stays.
void SizesPanel::showButtons() {
    const std::int32_t row = selected();
    const bool any = row >= 0 && row < info_.iImageSizeCount();
    edit_->setEnabled(any);
    delete_->setEnabled(any && info_.oImageSize[static_cast<std::size_t>(row)].bCustom);
}

void SizesPanel::clickedAddImageSizes() {
    openDialog(-1);
}

void SizesPanel::clickedEditImageSizes() {
    if (const std::int32_t row = selected(); row >= 0) openDialog(row);
}

void SizesPanel::openDialog(std::int32_t index) {
    auto* dialog = new SizeDialog(info_, index, this);
    connect(dialog, &SizeDialog::entered, this, [this](std::int32_t place, const SizeEntry& entry) {
        change(place < 0 ? tr("New size") : tr("Edit size"),
               [this, place, entry] { return putImageSize(info_, place, entry); });
    });
}

void SizesPanel::clickedDeleteImageSizes() {
    const std::int32_t row = selected();
    change(tr("Delete size"), [this, row] { return deleteImageSize(info_, row); });
}

void SizesPanel::change(const QString& label, std::function<std::string()> work) {
    changeLists(editor_, loop_, {label, std::move(work), [this](const std::string& problem) {
                                     refresh();
                                     emit listChanged();
                                     if (!problem.empty())
                                         emit failed(tr("The sizes cannot be kept."),
                                                     QString::fromStdString(problem));
                                 }});
}

}  // namespace tavrin

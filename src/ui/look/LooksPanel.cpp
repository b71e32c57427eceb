#include "ui/look/LooksPanel.h"

#include <QFile>
#include <QGridLayout>
#include <QIcon>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/files/NameText.h"

namespace tavrin {

LooksPanel::LooksPanel(LookDesk& desk, QWidget* parent)
    : QDockWidget(tr("My Looks"), parent), desk_(desk), list_(new QListWidget) {
    setObjectName("panelLooks");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    list_->setObjectName("lookList");
    list_->setProperty("handler", "takeLook");
    list_->setAccessibleName(windowTitle());
    list_->setToolTip(tr("A double click or Enter takes the look; the pictures stay"));
    list_->setIconSize(QSize(48, 48));
    list_->setFrameShape(QFrame::NoFrame);
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    column->addWidget(list_, 1);
    column->addWidget(makeButtons());
    setWidget(whole);
    connect(list_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) { desk_.take(item->text()); });
    connect(&desk, &LookDesk::changed, this, &LooksPanel::refresh);
    refresh();
}

QWidget* LooksPanel::makeButtons() {
    auto* grid = new QWidget;
    auto* layout = new QGridLayout(grid);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* id, const QString& text, const QString& toolTip, int place,
                         std::function<void(const QString& name)> run, bool needsLook) {
        auto* button = new QToolButton(grid);
        button->setObjectName(id);
        button->setProperty("handler", id);
        button->setText(text);
        button->setToolTip(toolTip);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, this, [this, run] {
            const QListWidgetItem* item = list_->currentItem();
            run(item ? item->text() : QString());
        });
        if (needsLook) {
            button->setEnabled(false);
            connect(list_, &QListWidget::currentRowChanged, button,
                    [button](int row) { button->setEnabled(row >= 0); });
        }
        layout->addWidget(button, place / 3, place % 3);
    };
    LookDesk* desk = &desk_;
    add(
        "lookTake", tr("Take..."), tr("Shows what the look changes, and takes what is ticked"), 0,
        [desk](const QString& name) { desk->take(name); }, true);
    add(
        "lookSave", tr("Save as..."), tr("Keeps the present settings under a name"), 1,
        [desk](const QString&) { desk->saveAs(); }, false);
    add(
        "lookRename", tr("Rename..."), tr("Gives the look another name"), 2,
        [desk](const QString& name) { desk->rename(name); }, true);
    add(
        "lookDelete", tr("Delete"), tr("Deletes the look; undo brings it back"), 3,
        [desk](const QString& name) { desk->remove(name); }, true);
    add(
        "lookImport", tr("Import..."), tr("Takes a look or a state file into the list"), 4,
        [desk](const QString&) { desk->askForImport(); }, false);
    add(
        "lookExport", tr("Export..."), tr("Writes the look to a file, for another machine"), 5,
        [desk](const QString& name) { desk->exportTo(name); }, true);
    return grid;
}

void LooksPanel::refresh() {
    const QString current = list_->currentItem() ? list_->currentItem()->text() : QString();
    list_->clear();
    for (const std::string& look : lookNames()) {
        const QString name = textOfName(look);
        auto* item = new QListWidgetItem(name, list_);
        if (const QString picture = lookPictureFile(name); QFile::exists(picture)) item->setIcon(QIcon(picture));
        if (name == current) list_->setCurrentItem(item);
    }
}

}  // namespace tavrin

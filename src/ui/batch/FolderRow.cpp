#include "ui/batch/FolderRow.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "core/files/NameText.h"
#include "ui/bind/ControlRow.h"

namespace tavrin {

const std::vector<FolderSetting>& batchFolders() {
    static const std::vector<FolderSetting> folders = {
        {"BatchForegroundFolder", &QLXInfo::sLastBatchForeground, &BatchEngine::chooseBatchForegroundFolder,
         &BatchEngine::clearBatchForegroundFolder, QT_TRANSLATE_NOOP("Panel", "Portraits"),
         QT_TRANSLATE_NOOP("Panel", "The folder with the portraits; without one the present portrait is taken")},
        {"BatchBackgroundFolder", &QLXInfo::sLastBatchBackground, &BatchEngine::chooseBatchBackgroundFolder,
         &BatchEngine::clearBatchBackgroundFolder, QT_TRANSLATE_NOOP("Panel", "Backgrounds"),
         QT_TRANSLATE_NOOP("Panel",
                           "Every portrait is laid over every background of this folder; without one over "
                           "the present background")},
        {"BatchQLXFolder", &QLXInfo::sLastBatchQLX, &BatchEngine::chooseBatchQLXFolder,
         &BatchEngine::clearBatchQLXFolder, QT_TRANSLATE_NOOP("Panel", "States"),
         QT_TRANSLATE_NOOP("Panel",
                           "State files, each of which makes pictures of its own; without a folder the "
                           "present settings are taken")},
        {"BatchOutputFolder", &QLXInfo::sLastBatchOutput, &BatchEngine::chooseBatchOutputFolder,
         &BatchEngine::clearBatchOutputFolder, QT_TRANSLATE_NOOP("Panel", "Finished pictures"),
         QT_TRANSLATE_NOOP("Panel", "The folder into which the pictures go")}};
    return folders;
}

FolderRow::FolderRow(const FolderSetting& setting, const QLXInfo& settings, QWidget* parent)
    : QWidget(parent),
      setting_(setting),
      settings_(settings),
      shown_(new QLineEdit(this)),
      clear_(new QToolButton(this)) {
    const QString stem = setting.stem, toolTip = ControlRow::translated(setting.toolTip);
    setObjectName(stem + "Row");
    setAccessibleName(label());
    setToolTip(toolTip);
    shown_->setObjectName(stem + "Path");
    shown_->setProperty("handler", "updateBatchUI");
    shown_->setReadOnly(true);
    shown_->setAccessibleName(label());
    shown_->setPlaceholderText(tr("none"));
    auto* button = new QToolButton(this);
    button->setObjectName("choose" + stem);
    button->setText(tr("Choose..."));
    button->setAccessibleName(tr("Choose: %1").arg(label()));
    button->setToolTip(toolTip);
    clear_->setObjectName("clear" + stem);
    clear_->setText(QStringLiteral("\u00d7"));
    clear_->setAccessibleName(tr("Take none: %1").arg(label()));
    clear_->setToolTip(tr("Take none"));
    for (QToolButton* one : {button, clear_}) {
        one->setProperty("handler", one->objectName() + ":");
        one->setFocusPolicy(Qt::TabFocus);
    }
    connect(button, &QToolButton::clicked, this, &FolderRow::chooseWanted);
    connect(clear_, &QToolButton::clicked, this, &FolderRow::clearWanted);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 4);
    layout->setSpacing(4);
    auto* title = new QLabel(label(), this);
    title->setBuddy(button);
    layout->addWidget(title, 0, 0, 1, 3);
    layout->addWidget(shown_, 1, 0);
    layout->addWidget(button, 1, 1);
    layout->addWidget(clear_, 1, 2);
    refresh();
}

QString FolderRow::folder() const {
    return textOfName(settings_.*setting_.path);
}

QString FolderRow::label() const {
    return ControlRow::translated(setting_.label);
}

void FolderRow::refresh() {
    const QString path = folder();
    if (shown_->text() != path) shown_->setText(path);
    shown_->setToolTip(path.isEmpty() ? ControlRow::translated(setting_.toolTip) : path);
    clear_->setEnabled(!path.isEmpty());
}

QString FolderRow::problem() const {
    const QFileInfo info(folder());
    const bool isOutput = setting_.path == &QLXInfo::sLastBatchOutput;
    if (folder().isEmpty()) return isOutput ? tr("Choose a folder for the finished pictures.") : QString();
    if (!info.isDir()) return tr("The folder %1 is not there.").arg(folder());
    if (isOutput && !info.isWritable()) return tr("Nothing may be written into the folder %1.").arg(folder());
    if (!isOutput && !info.isReadable()) return tr("The folder %1 may not be read.").arg(folder());
    return {};
}

}  // namespace tavrin

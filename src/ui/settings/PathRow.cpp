#include "ui/settings/PathRow.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "ui/FileFilters.h"
#include "ui/bind/ControlRow.h"

namespace tavrin {

PathRow::PathRow(const PathSetting& setting, QLXInfo& settings, QWidget* parent)
    : QWidget(parent),
      setting_(setting),
      settings_(settings),
      shown_(new QLineEdit(this)),
      clear_(new QToolButton(this)) {
    const QString name = ControlRow::translated(setting.label), toolTip = ControlRow::translated(setting.toolTip);
    setObjectName(QString(setting.control) + "Row");
    setAccessibleName(name);
    setToolTip(toolTip);
    shown_->setObjectName(QString(setting.control) + "Path");
    shown_->setProperty("handler", "showPath");
    shown_->setReadOnly(true);
    shown_->setAccessibleName(name);
    shown_->setPlaceholderText(tr("none"));
    auto* button = new QToolButton(this);
    button->setObjectName(setting.control);
    button->setProperty("handler", setting.handler);
    button->setText(tr("Choose..."));
    button->setAccessibleName(tr("Choose: %1").arg(name));
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, &PathRow::ask);
    clear_->setObjectName(QString(setting.control) + "Clear");
    clear_->setProperty("handler", "clearPath");
    clear_->setText(QStringLiteral("\u00d7"));
    clear_->setAccessibleName(tr("Take none: %1").arg(name));
    clear_->setToolTip(tr("Take none"));
    clear_->setFocusPolicy(Qt::TabFocus);
    connect(clear_, &QToolButton::clicked, this, [this] { choose({}); });
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 4);
    layout->setSpacing(4);
    auto* label = new QLabel(name, this);
    label->setBuddy(button);
    layout->addWidget(label, 0, 0, 1, 3);
    layout->addWidget(shown_, 1, 0);
    layout->addWidget(button, 1, 1);
    layout->addWidget(clear_, 1, 2);
    refresh();
}

void PathRow::refresh() {
    const QString path = textOfName(settings_.*setting_.path);
    shown_->setText(path);
    shown_->setToolTip(path.isEmpty() ? ControlRow::translated(setting_.toolTip) : path);
    clear_->setEnabled(!path.isEmpty());
}

/// The dialog begins at the present path.
void PathRow::ask() {
    const QString last = textOfName(standardizePath(settings_.*setting_.path));
    const QString title = ControlRow::translated(setting_.title);
    const QString path =
        setting_.kind == PathSetting::Kind::folder
            ? QFileDialog::getExistingDirectory(this, title, last)
            : QFileDialog::getOpenFileName(
                  this, title, last, setting_.kind == PathSetting::Kind::state ? stateFilter() : pictureFilter());
    if (!path.isEmpty()) choose(path);
}

void PathRow::choose(const QString& path) {
    settings_.*setting_.path = nameOfText(path);
    refresh();
    emit changed();
}

}  // namespace tavrin

#include "ui/settings/SettingsPage.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tavrin {

namespace {

using Kind = PathSetting::Kind;

const BindingGroup kStartGroup{"groupStart", QT_TRANSLATE_NOOP("Panel", "At the start"), nullptr, {}};
const BindingGroup kFolderGroup{"groupFolders", QT_TRANSLATE_NOOP("Panel", "Folders"), nullptr, {}};
const BindingGroup kSavingGroup{"groupSaving", QT_TRANSLATE_NOOP("Panel", "Saving"), nullptr, {}};
const BindingGroup kHabitGroup{"groupHabits", QT_TRANSLATE_NOOP("Panel", "Habits"), nullptr, {}};

const BindingGroup kSizeGroup{"groupSizes", QT_TRANSLATE_NOOP("Panel", "Output sizes"), nullptr, {}};

const PathSetting kStartFiles[] = {
    {"settingsForegroundFile", "clickedSettingsForegroundFile:", &QLXInfo::sStartupFileForegroundPath, Kind::picture,
     QT_TRANSLATE_NOOP("Panel", "Portrait"),
     QT_TRANSLATE_NOOP("Panel", "The portrait that stands there at the start"),
     QT_TRANSLATE_NOOP("Panel", "Select Startup Foreground File")},
    {"settingsBackgroundFile", "clickedSettingsBackgroundFile:", &QLXInfo::sStartupFileBackgroundPath, Kind::picture,
     QT_TRANSLATE_NOOP("Panel", "Background"),
     QT_TRANSLATE_NOOP("Panel", "The background that stands there at the start"),
     QT_TRANSLATE_NOOP("Panel", "Select Startup Background File")},
    {"settingsStartupQLXFile", "clickedSettingsStartupQLXFile:", &QLXInfo::sDefaultQLXFilePath, Kind::state,
     QT_TRANSLATE_NOOP("Panel", "Settings"),
     QT_TRANSLATE_NOOP("Panel", "The state file whose settings every start, and every reset of a layer, begins with"),
     QT_TRANSLATE_NOOP("Panel", "Select Startup QLX File")}};

const PathSetting kFolders[] = {
    {"settingsPickDirectory", "clickedSettingsPickDirectory:", &QLXInfo::sPickDirectory, Kind::folder,
     QT_TRANSLATE_NOOP("Panel", "Backgrounds to choose from"),
     QT_TRANSLATE_NOOP("Panel", "The folder whose pictures the strip offers as backgrounds"),
     QT_TRANSLATE_NOOP("Panel", "Folder of the Backgrounds")}};

}  // namespace

SettingsPage::SettingsPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelSettings", "TabSettings", 7, QT_TRANSLATE_NOOP("Panel", "Settings"),
                 QT_TRANSLATE_NOOP("Panel", "Start-up files, folders, names of saved files and habits")},
                parent),
      binder_(binder),
      settings_(*binder.editor().info().oQLXInfo) {
    addPaths(addGroup(kStartGroup, binder), kStartFiles);
    addPaths(addGroup(kFolderGroup, binder), kFolders);
    addGroup(kSavingGroup, binder)->addItem(makePrefix());
    habits_ = addGroup(kHabitGroup, binder);
}

void SettingsPage::addPaths(GroupBox* group, std::span<const PathSetting> settings) {
    for (const PathSetting& setting : settings) {
        auto* row = new PathRow(setting, settings_);
        group->addItem(row);
        connect(row, &PathRow::changed, this, &SettingsPage::changed);
        if (setting.path == &QLXInfo::sPickDirectory)
            connect(row, &PathRow::changed, this, &SettingsPage::pickDirectoryChanged);
    }
}

QWidget* SettingsPage::makePrefix() {
    auto* line = new QWidget;
    line->setObjectName("settingsPrefixRow");
    line->setAccessibleName(tr("Prefix of saved pictures"));
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 4);
    prefix_ = new QLineEdit(line);
    prefix_->setObjectName("settingsPrefix");
    prefix_->setProperty("handler", "controlTextDidChange:");
    prefix_->setAccessibleName(line->accessibleName());
    prefix_->setToolTip(tr("The names that are proposed for saved pictures begin with this"));
    prefix_->setText(QString::fromStdString(settings_.sPrefix));
    connect(prefix_, &QLineEdit::textEdited, this, &SettingsPage::controlTextDidChange);
    auto* label = new QLabel(tr("Prefix"), line);
    label->setBuddy(prefix_);
    layout->addWidget(label);
    layout->addWidget(prefix_, 1);
    return line;
}

void SettingsPage::controlTextDidChange(const QString& prefix) {
    if (prefix.contains('/')) {
        emit told(tr("A prefix is part of a file's name, so it has no \"/\"."));
        prefix_->setText(QString::fromStdString(settings_.sPrefix));
        return;
    }
    settings_.sPrefix = prefix.toStdString();
    emit changed();
}

void SettingsPage::addList(ListSetting setting) {
    auto* row = new ListRow(std::move(setting));
    connect(row, &ListRow::told, this, &SettingsPage::told);
    habits_->addItem(row);
}

void SettingsPage::addBox(QAction* action) {
    auto* box = new QCheckBox(QString(action->text()).remove('&'));
    box->setObjectName("checkbox" + action->objectName());
    box->setProperty("handler", action->objectName());
    box->setAccessibleName(box->text());
    box->setToolTip(action->toolTip());
    box->setChecked(action->isChecked());
    connect(box, &QCheckBox::toggled, action, &QAction::setChecked);
    connect(action, &QAction::toggled, box, &QCheckBox::setChecked);
    habits_->addItem(box);
}

void SettingsPage::addSizes(QWidget* sizes) {
    addGroup(kSizeGroup, binder_)->addItem(sizes);
}

void SettingsPage::refresh() {
    for (PathRow* row : findChildren<PathRow*>())
        row->refresh();
    for (ListRow* row : findChildren<ListRow*>())
        row->refresh();
    if (!prefix_->hasFocus()) prefix_->setText(QString::fromStdString(settings_.sPrefix));
}

}  // namespace tavrin

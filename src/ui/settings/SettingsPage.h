#pragma once

#include "ui/bind/PanelPage.h"
#include "ui/settings/ListRow.h"
#include "ui/settings/PathRow.h"

class QAction;
class QLineEdit;

namespace tavrin {

/// What belongs to the installation and not to one picture: what stands there at the start, folders, names of saved
/// files, habits.
class SettingsPage : public PanelPage {
    Q_OBJECT

  public:
    explicit SettingsPage(Binder& binder, QWidget* parent = nullptr);

    /// Adds a list to choose from.
    void addList(ListSetting setting);
    /// Adds a box that is on while a command is.
    void addBox(QAction* action);
    /// Adds the list of output sizes.
    void addSizes(QWidget* sizes);
    /// Shows what stands in the settings now.
    void refresh();

  signals:
    /// A setting was changed and is to be kept.
    void changed();
    /// There are other backgrounds to choose from.
    void pickDirectoryChanged();
    /// One plain sentence for the person at the control.
    void told(const QString& line);

  private:
    void addPaths(GroupBox* group, std::span<const PathSetting> settings);
    QWidget* makePrefix();
    void controlTextDidChange(const QString& prefix);

    Binder& binder_;
    QLXInfo& settings_;
    QLineEdit* prefix_ = nullptr;
    GroupBox* habits_ = nullptr;
};

}  // namespace tavrin

#pragma once

#include <utility>
#include <vector>

#include "ui/bind/Command.h"
#include "ui/bind/PanelPage.h"

class QAction;
class QLabel;
class QProgressBar;

namespace tavrin {

class PictureRow;

/// Everything that is added to the picture: shadow, frames, light, drawings, textures, skin and the rest. A group is
/// a panel of its own, which is opened and closed.
class EffectsPage : public PanelPage {
    Q_OBJECT

  public:
    explicit EffectsPage(Binder& binder, QWidget* parent = nullptr);

    /// Opens the panel of a group and turns to it.
    void openPanel(const QString& group);
    /// How far the smoothing of skin is, in percent; below 0 it is done.
    void showSmoothProgress(double percent);
    /// Adds the buttons of the freeze, which are commands of the window.
    void addFreeze(QAction* freeze, QAction* clear);
    /// Adds the button of the overlays that belong together, a command of the window.
    void addOverlaySet(QAction* load);
    /// The slots of the overlays, from the lowest.
    const std::vector<PictureRow*>& overlays() const { return slots_; }

  signals:
    void wanted(const QWidget* item);

  private:
    GroupBox* makeGroup(const BindingGroup& group);
    std::vector<QWidget*> leadsOf(const BindingGroup& group) const;
    void addFiles(GroupBox* box);
    void addStatuses(GroupBox* box);
    void addActions(GroupBox* group, const std::vector<std::pair<QAction*, const char*>>& actions);
    void askForFramePicture(GroupBox* frame, PictureRow* picture);
    void refresh();

    Binder& binder_;
    QLabel *shadowType_, *guardStatus_, *frozen_;
    QProgressBar* progress_;
    GroupBox *overlays_, *freeze_;
    std::vector<PictureRow*> slots_;
};

/// The commands that open the panels.
std::vector<Command> effectCommands(EffectsPage& page);

}  // namespace tavrin

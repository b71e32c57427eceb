#include "ui/effects/EffectsPage.h"

#include <map>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include "ui/effects/ActionRow.h"
#include "ui/effects/EffectFiles.h"
#include "ui/effects/EffectGroups.h"
#include "ui/effects/ShadowKind.h"
#include "ui/tiles/TileRow.h"

namespace tavrin {

namespace {

constexpr int kFramePicture = 4;  // of `iFrameMode`

QLabel* makeStatus(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QProgressBar* makeProgress() {
    auto* bar = new QProgressBar;
    bar->setObjectName("progressBar");
    bar->setAccessibleName(EffectsPage::tr("Progress of the smoothing of skin"));
    bar->setMaximumHeight(8);
    bar->setTextVisible(false);
    bar->hide();
    return bar;
}

bool isTexture(std::string_view group) {
    return group.starts_with("MyEffectsTexture");
}

}  // namespace

/// The groups are made in the order in which `UpdateAllUI` shows them, and stand in another one.
EffectsPage::EffectsPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelEffects", "TabEffects", 1, QT_TRANSLATE_NOOP("Panel", "Effects"),
                 QT_TRANSLATE_NOOP("Panel", "Shadow, frames, light, drawings, textures, skin")},
                parent),
      binder_(binder),
      shadowType_(makeStatus("textShadowType", {})),
      guardStatus_(makeStatus("textGreenGuardStatus", tr("The green guard is on."))),
      frozen_(makeStatus("textFreeze", tr("The picture is frozen into the background."))),
      progress_(makeProgress()) {
    static const BindingGroup freeze{"groupFreeze", QT_TRANSLATE_NOOP("Panel", "Freeze"), nullptr, {}, true};
    std::map<std::string, GroupBox*> made;
    for (const BindingGroup& group : effectGroups())
        made[group.name] = makeGroup(group);
    for (const char* name : effectsFromTopToBottom())
        addGroup(made.at(name));
    static const BindingGroup overlays{"groupOverlays", QT_TRANSLATE_NOOP("Panel", "Overlays"), nullptr, {}, true};
    overlays_ = PanelPage::addGroup(overlays, binder);
    for (QWidget* row : TileRow::rowsOf(overlays.name, binder))
        overlays_->addItem(row);
    for (const PictureSetting& slot : overlaySlots()) {
        slots_.push_back(new PictureRow(slot, binder));
        overlays_->addItem(slots_.back());
    }
    freeze_ = PanelPage::addGroup(freeze, binder);
    freeze_->addStatus(frozen_);
    connect(&binder, &Binder::shown, this, &EffectsPage::refresh);
    refresh();
}

GroupBox* EffectsPage::makeGroup(const BindingGroup& group) {
    auto* box = new GroupBox(group, binder_, nullptr, leadsOf(group));
    addFiles(box);
    addStatuses(box);
    return box;
}

std::vector<QWidget*> EffectsPage::leadsOf(const BindingGroup& group) const {
    std::vector<QWidget*> leads = TileRow::rowsOf(group.name, binder_);
    const std::string_view name = group.name;
    for (const EffectActionRow& row : effectActions())
        if (name == row.group) leads.push_back(new ActionRow(row, binder_));
    for (const GroupPicture& picture : effectPictures())
        if (name == picture.group && isTexture(name)) leads.push_back(new PictureRow(picture.setting, binder_));
    return leads;
}

void EffectsPage::addStatuses(GroupBox* box) {
    const std::string_view name = box->group().name;
    if (name == "groupShadow") box->addStatus(shadowType_);
    if (name == "myGreenGuardPanel") box->addStatus(guardStatus_);
    if (name == "MyEffectsSmoothPanel") box->addStatus(progress_);
}

/// Pictures and colours that are a choice among others stand below the controls.
void EffectsPage::addFiles(GroupBox* box) {
    const std::string_view name = box->group().name;
    for (const GroupColour& colour : effectColours())
        if (name == colour.group) box->addItem(new ColourRow(colour.setting, binder_));
    for (const GroupPicture& picture : effectPictures()) {
        if (name != picture.group || isTexture(name)) continue;
        auto* row = new PictureRow(picture.setting, binder_);
        box->addItem(row);
        if (name != "MyEffectsSilhouettePanel") askForFramePicture(box, row);
    }
    if (name != "MyEffectsFrame1Panel") return;
    auto* texture = new QToolButton;
    texture->setObjectName("addFrameTexture");
    texture->setProperty("handler", "clickedEffectsAddFrameTexture:");
    texture->setText(tr("Texture..."));
    texture->setAccessibleName(texture->text());
    texture->setToolTip(tr("Opens the texture of the picture; that of the frame stands below"));
    texture->setFocusPolicy(Qt::StrongFocus);
    connect(texture, &QToolButton::clicked, this, [this] { openPanel("MyEffectsTexturePanel"); });
    box->addItem(texture);
}

/// A frame of a picture wants one. Without an answer the frame stays as it was chosen, with nothing to show.
void EffectsPage::askForFramePicture(GroupBox* frame, PictureRow* picture) {
    for (ControlRow* row : frame->rows()) {
        if (!std::string_view(row->binding().control).starts_with("radioFrameMode")) continue;
        connect(row, &ControlRow::changed, picture, [picture](double mode) {
            if (mode == kFramePicture && !picture->hasFile()) picture->choose();
        });
    }
}

void EffectsPage::addFreeze(QAction* freeze, QAction* clear) {
    addActions(freeze_, {{freeze, "buttonFreeze"}, {clear, "buttonFreezeClear"}});
}

void EffectsPage::addOverlaySet(QAction* load) {
    addActions(overlays_, {{load, "buttonOverlaySet"}});
}

/// A line of buttons that do what these actions do.
void EffectsPage::addActions(GroupBox* group, const std::vector<std::pair<QAction*, const char*>>& actions) {
    auto* line = new QWidget;
    line->setAccessibleName(ControlRow::translated(group->group().title));
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& [action, name] : actions) {
        auto* button = new QToolButton(line);
        button->setDefaultAction(action);
        button->setObjectName(name);
        button->setAccessibleName(action->text().remove('&'));
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        layout->addWidget(button);
    }
    group->addItem(line);
}

void EffectsPage::openPanel(const QString& group) {
    for (GroupBox* box : groups()) {
        if (box->objectName() != group) continue;
        box->fold(false);
        if (!box->items().empty()) emit wanted(box->items().front());
    }
}

void EffectsPage::showSmoothProgress(double percent) {
    progress_->setVisible(percent >= 0.0);
    progress_->setValue(static_cast<int>(percent));
}

void EffectsPage::refresh() {
    const SystemInfo& info = binder_.editor().info();
    shadowType_->setText(shadowTitle(info));
    guardStatus_->setVisible(info.iGreenProtectMode != 0);
    frozen_->setVisible(info.bBackgroundFrozen);
}

std::vector<Command> effectCommands(EffectsPage& page) {
    std::vector<Command> commands;
    for (const GroupBox* box : page.groups()) {
        const QString group = box->objectName(), title = ControlRow::translated(box->group().title);
        // The operation that opens it; the one that closes it is the title's.
        const PanelActs* acts = box->group().acts;
        const QString open = QString(acts ? acts->openAndClose : "fold").section(':', 0, 0);
        const QString id = open == "fold" ? "open" + group.mid(5) + "Panel" : open;
        commands.push_back({joined(id.toUtf8(), ""),
                            QT_TRANSLATE_NOOP("Menu", "E&ffects"),
                            title,
                            EffectsPage::tr("Opens the controls: %1").arg(title),
                            "",
                            {},
                            {},
                            [&page, group](bool) { page.openPanel(group); }});
    }
    return commands;
}

}  // namespace tavrin

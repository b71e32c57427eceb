#include "ui/strip/Results.h"

#include <algorithm>
#include <utility>

namespace tavrin {

namespace {

bool isOneOf(const std::string& name, std::initializer_list<const char*> names) {
    return std::ranges::any_of(names, [&](const char* other) { return name == other; });
}

/// All but what belongs to the portrait that is open.
SettingValues withoutPortrait(SettingValues settings, bool isFramed) {
    std::erase_if(settings, [&](const auto& setting) {
        const std::string& name = setting.first;
        return isOneOf(name, {"foreground.sSourceImageFullPath", "foreground.iOrgWidth", "foreground.iOrgHeight",
                              "foreground.fOrgScale"}) ||
               (isFramed && isOneOf(name, {"foreground.fScale", "foreground.iOrgXoff", "foreground.iOrgYoff"}));
    });
    return settings;
}

SettingValues withoutBackground(SettingValues settings) {
    std::erase_if(settings, [](const auto& setting) {
        return isOneOf(setting.first, {"background.sSourceImageFullPath", "background.iOrgWidth",
                                       "background.iOrgHeight", "background.fOrgScale"});
    });
    return settings;
}

std::vector<SideWish> wishesFor(const std::vector<std::string>& portraits, const SideWish& like) {
    std::vector<SideWish> wishes(portraits.size(), like);
    for (std::size_t i = 0; i < portraits.size(); ++i)
        wishes[i].portrait = portraits[i];
    return wishes;
}

}  // namespace

Results::Results(const SystemInfo& info, QObject* parent)
    : QObject(parent),
      info_(info),
      maker_([&info] { return info.iCurrentThreadCount > info.iNewThreadCount; },
             [this](SidePictures::Made made) {
                 QMetaObject::invokeMethod(
                     this, [this, made = std::move(made)] { take(made); }, Qt::QueuedConnection);
             }) {}

void Results::follow(CombineThread& loop) {
    loop.edit([this]() -> std::vector<ChangedRows> {
        QMetaObject::invokeMethod(
            this, [this, scene = sceneOf(info_)]() mutable { takeScene(std::move(scene)); }, Qt::QueuedConnection);
        return {};
    });
}

void Results::takeScene(Scene scene) {
    hasScene_ = !scene.isFrozen;
    SettingValues look = withoutPortrait(scene.settings, isFramed_), place = withoutBackground(scene.settings);
    const bool isNew = scene.settings != all_, newLook = look != look_, newPlace = place != place_;
    all_ = scene.settings;
    look_ = std::move(look);
    place_ = std::move(place);
    if (newLook) previews_.clear();
    maker_.setScene(std::move(scene), ++number_);
    if (newLook) emit portraitsChanged();
    if (newPlace) emit backgroundsChanged();
    if (isNew) emit looksChanged();
    tellWishes();
}

/// Where somebody looks comes first.
void Results::tellWishes() {
    if (!hasScene_) return;
    std::vector<SideWish> all = looks_;
    std::ranges::copy(backgrounds_, std::back_inserter(all));
    std::vector<SideWish> next = wishesFor(next_, {"", "", 0, isFramed_, false});
    std::erase_if(next, [this](const SideWish& wish) { return previews_.contains(wish.portrait); });
    std::ranges::move(next, std::back_inserter(all));
    std::ranges::copy(portraits_, std::back_inserter(all));
    maker_.want(std::move(all));
}

void Results::wantPortraits(const std::vector<std::string>& portraits, int side) {
    portraits_ = wishesFor(portraits, {"", "", side, isFramed_, true});
    tellWishes();
}

void Results::wantNext(const std::vector<std::string>& portraits) {
    std::erase_if(previews_,
                  [&](const auto& entry) { return std::ranges::find(portraits, entry.first) == portraits.end(); });
    next_ = portraits;
    tellWishes();
}

/// Recipes on the disk are other ones.
void Results::forget() {
    previews_.clear();
    emit portraitsChanged();
    tellWishes();
}

void Results::wantBackgrounds(const std::vector<std::string>& backgrounds, int side) {
    const std::string portrait = info_.pForegroundBitmapInfo->sSourceImageFullPath;
    backgrounds_ = wishesFor(std::vector(backgrounds.size(), portrait), {"", "", side, false, false});
    for (std::size_t i = 0; i < backgrounds.size(); ++i)
        backgrounds_[i].background = backgrounds[i];
    tellWishes();
}

void Results::wantLooks(const std::vector<SettingValues>& looks, int side) {
    const std::string portrait = info_.pForegroundBitmapInfo->sSourceImageFullPath;
    std::vector<SideWish> wishes = wishesFor(std::vector(looks.size(), portrait), {"", "", side, false, false});
    for (std::size_t i = 0; i < looks.size(); ++i)
        wishes[i].look = looks[i];
    if (wishes == looks_) return;
    looks_ = std::move(wishes);
    tellWishes();
}

void Results::take(const SidePictures::Made& made) {
    if (made.scene != number_) return;  // settings have changed meanwhile, and it is made again
    const auto isThis = [&](const SideWish& wish) { return wish == made.wish; };
    if (std::erase_if(backgrounds_, isThis) > 0)
        return emit backgroundMade(made.wish.background, made.picture, QString::fromStdString(made.problem));
    if (std::erase_if(looks_, isThis) > 0)
        return emit lookMade(made.wish, made.picture, QString::fromStdString(made.problem + made.missing));
    if (made.wish.side == 0) {
        previews_[made.wish.portrait] = made.picture;  // null: not tried again
        return;
    }
    if (std::erase_if(portraits_, isThis) > 0) emit portraitMade(made.wish.portrait, made.picture);
}

std::optional<QImage> Results::previewOf(const std::string& portrait) const {
    const auto found = previews_.find(portrait);
    if (found == previews_.end() || found->second.isNull() || info_.iCurrentThreadCount <= info_.iNewThreadCount)
        return {};
    if (withoutPortrait(settingsOf(info_), isFramed_) != look_) return {};
    return found->second;
}

}  // namespace tavrin

#include "session/SidePictures.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "core/BackgroundThread.h"
#include "core/files/StandardPath.h"
#include "core/image/SmallPicture.h"
#include "core/raster/BitmapContext.h"
#include "core/state/SettingNames.h"
#include "pipeline/PreviewMaker.h"
#include "pipeline/SubjectPlace.h"
#include "session/Looks.h"
#include "session/OutputSizes.h"
#include "session/RecipeStore.h"
#include "session/Sources.h"

namespace tavrin {

namespace {

constexpr int kDraftSide = 640;           // a preview has about 300,000 pixels
constexpr std::size_t kFewestForTwo = 4;  // or what both have to make first would cost more than it brings
constexpr auto kLookAgain = std::chrono::milliseconds(20);

/// The toolkit's own scaling starts threads for many pixels, and they would keep this one's priority.
QImage scaledWithin(const QImage& picture, int side) {
    const QSize size = picture.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    QImage result(size, QImage::Format_RGBA8888_Premultiplied);
    if (result.isNull()) throw std::bad_alloc();
    result.fill(Qt::transparent);
    QImage carriesAlpha = picture;  // as the engine's buffers do
    carriesAlpha.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    BitmapContext(result.bits(), size.width(), size.height()).drawImage(carriesAlpha, QRectF({0, 0}, size));
    return result;
}

/// The first alert that is about a file of a look.
std::string missingOf(const SettingValues& look, const std::string& alerts) {
    for (const auto& [name, value] : look) {
        const std::string file = lastPathComponent(value);
        const auto at = value.find('/') == std::string::npos ? std::string::npos : alerts.find(file);
        if (at == std::string::npos) continue;
        const auto first = alerts.rfind('\n', at) + 1;  // 0 without one
        return alerts.substr(first, alerts.find('\n', at) - first);
    }
    return "";
}

/// The maker of the last picture: while only background or look change the portrait is not read and drawn again.
struct LastMaker {
    const std::function<bool()>& goesOn;
    std::uint64_t scene = 0;
    SideWish wish;
    SettingValues before;  // of the settings that the last look changed
    std::unique_ptr<PreviewMaker> maker;

    /// @return false when it was given up
    bool make(const Scene& from, SidePictures::Made& made) {
        try {
            prepare(from, made.scene, made.wish);
            wear(made.wish.look);
            made.picture = maker->over(made.wish.background);
            if (maker->wasGivenUp()) return false;
            made.problem = maker->problem();
            made.missing = missingOf(made.wish.look, maker->alerts());
            if (const int side = made.wish.side; side > 0 && !made.picture.isNull())
                made.picture = scaledWithin(made.picture, side);
        } catch (const std::bad_alloc&) {
            made.problem = kNoMemory;
        }
        return true;
    }

    void prepare(const Scene& from, std::uint64_t number, SideWish wanted) {
        wanted.side = 0;
        wanted.look.clear();
        wanted.background.clear();
        if (maker && number == scene && wanted == wish) return;
        maker.reset();  // its memory goes to the next one
        maker = std::make_unique<PreviewMaker>(stateFor(from, wanted), goesOn);
        before.clear();
        scene = number;
        wish = std::move(wanted);
    }

    /// The look before is taken off, and this one put on.
    void wear(const SettingValues& look) {
        const auto isEffect = [](const auto& setting) { return partOf(setting.first) == LookPart::effects; };
        const bool leavesSubject = std::ranges::all_of(before, isEffect) && std::ranges::all_of(look, isEffect);
        maker->change(
            [&](SystemInfo& info) {
                static_cast<void>(useSettings(info, before));
                before.clear();
                for (const auto& [name, value] : look)
                    before.emplace_back(name, fieldValue(info, name).value_or(""));
                static_cast<void>(useSettings(info, look));
            },
            leavesSubject);
    }
};

/// What is shown of the key belongs to the picture that is open.
void leaveViews(SystemInfo& info) {
    info.bShowOrgImage = info.bShowGreenProtection = info.bShowSkinSelection = false;
    info.pCombinedBitmapInfo->bShowSelectedAreas = false;
}

std::optional<Recipe> recipeFor(const Scene& scene, const SideWish& wish) {
    const Recipe present{scene.settings, {}, {}};
    if (wish.portrait == present.portrait()) return {};
    return loadRecipe(wish.portrait);
}

/// Only portraits are read through the one who reads ahead: it holds what it was asked for.
std::function<ReadPicture(const std::string&)> readerFor(const Scene& scene, const SideWish& wish) {
    return [read = scene.readSource, portrait = wish.portrait, isDraft = wish.isDraft, foreground = scene.foreground,
            background = scene.background](const std::string& path) {
        for (const Scene::Source& known : {foreground, background})
            if (path == known.file && !known.pixels.isNull()) return ReadPicture{known.pixels, {}, {}, {}};
        if (isDraft) return readSmallPicture(path, kDraftSide);
        return path == portrait && read ? read(path) : readPicture(path);
    };
}

}  // namespace

Scene sceneOf(const SystemInfo& info) {
    const auto sourceOf = [](const BitmapInfo& record) {
        const bool isAsRead =
            record.sSourceProblem.load().empty() && record.fRotate + record.fTilt == 0.0 && !record.bFlipHorz;
        return Scene::Source{record.sSourceImageFullPath, isAsRead ? record.orgImage : QImage()};
    };
    return {settingsOf(info),
            info,
            info.placedLast,
            info.readSource,
            sourceOf(*info.pForegroundBitmapInfo),
            sourceOf(*info.pBackgroundBitmapInfo),
            info.bBackgroundFrozen};
}

std::unique_ptr<SystemInfo> stateFor(const Scene& scene, const SideWish& wish) {
    auto info = std::make_unique<SystemInfo>();
    static_cast<StartUpPictures&>(*info) = scene.pictures;
    const std::optional<Recipe> recipe = recipeFor(scene, wish);
    const bool isKnown = recipe && !recipe->settings.empty();
    const SettingValues& settings = isKnown ? recipe->settings : scene.settings;
    static_cast<void>(useSettings(*info, settings));
    const bool isPresent = info->pForegroundBitmapInfo->sSourceImageFullPath.load() == wish.portrait;
    if (isPresent) {
        info->placedLast = scene.placedLast;
    } else {
        openPortrait(*info, wish.portrait);
        if (wish.isFramed) wantPlace(*info, PlaceRule::subject);
    }
    if (recipe)
        for (const auto& [label, look] : recipe->pasted)
            static_cast<void>(useSettings(*info, look));
    static_cast<void>(chooseStoredSize(*info, sizeIn(settings)));
    leaveViews(*info);
    info->readSource = readerFor(scene, wish);
    return info;
}

SidePictures::SidePictures(std::function<bool()> isIdle, std::function<void(Made)> done)
    : isIdle_(std::move(isIdle)),
      done_(std::move(done)),
      thread_([this](const std::stop_token& ended) { work(ended, 1); }),
      second_([this](const std::stop_token& ended) { work(ended, kFewestForTwo); }) {}

SidePictures::~SidePictures() = default;

void SidePictures::setScene(Scene scene, std::uint64_t number) {
    std::lock_guard lock(mutex_);
    scene_ = std::move(scene);
    number_ = number;
    wishes_.clear();
    ++wanted_;
}

void SidePictures::want(std::vector<SideWish> wishes) {
    std::lock_guard lock(mutex_);
    wishes_ = std::move(wishes);
    ++wanted_;
    changed_.notify_all();
}

/// @param fewest wishes that have to wait for this thread to take one
void SidePictures::work(const std::stop_token& ended, std::size_t fewest) {
    becomeBackgroundThread();
    LastMaker last{isIdle_, 0, {}, {}, {}};
    std::unique_lock lock(mutex_);
    while (!ended.stop_requested()) {
        const auto isNeeded = [this, fewest] { return wishes_.size() >= fewest; };
        if (!isNeeded()) last.maker.reset();
        if (!changed_.wait(lock, ended, isNeeded)) return;
        if (!isIdle_()) {
            changed_.wait_for(lock, ended, kLookAgain, [] { return false; });
            continue;
        }
        const Scene scene = scene_;
        Made made{wishes_.front(), number_, {}, {}, {}};
        const std::uint64_t wanted = wanted_;
        wishes_.erase(wishes_.begin());
        lock.unlock();
        const bool isMade = last.make(scene, made);
        const SideWish again = isMade ? SideWish() : made.wish;
        if (isMade) {
            const std::lock_guard one(telling_);
            done_(std::move(made));
        }
        lock.lock();
        if (!isMade && wanted == wanted_) wishes_.insert(wishes_.begin(), again);
    }
}

}  // namespace tavrin

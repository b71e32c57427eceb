#include "session/SidePictures.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "core/BackgroundThread.h"
#include "core/image/SmallPicture.h"
#include "core/raster/BitmapContext.h"
#include "pipeline/PreviewMaker.h"
#include "pipeline/SubjectPlace.h"
#include "session/OutputSizes.h"
#include "session/RecipeStore.h"
#include "session/Sources.h"

namespace tavrin {

namespace {

constexpr int kDraftSide = 640;  // a preview has about 300,000 pixels
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

/// The maker of the last picture: while only the background changes the portrait is not keyed again.
struct LastMaker {
    std::uint64_t scene = 0;
    SideWish wish;
    std::unique_ptr<PreviewMaker> maker;

    void make(const Scene& from, SidePictures::Made& made) {
        try {
            prepare(from, made.scene, made.wish);
            made.picture = maker->over(made.wish.background);
            made.problem = maker->problem();
            if (const int side = made.wish.side; side > 0 && !made.picture.isNull())
                made.picture = scaledWithin(made.picture, side);
        } catch (const std::bad_alloc&) {
            made.problem = kNoMemory;
        }
    }

    void prepare(const Scene& from, std::uint64_t number, SideWish wanted) {
        wanted.background.clear();
        if (maker && number == scene && wanted == wish) return;
        maker.reset();  // its memory goes to the next one
        maker = std::make_unique<PreviewMaker>(stateFor(from, wanted));
        scene = number;
        wish = std::move(wanted);
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
    return [read = scene.readSource, portrait = wish.portrait, isDraft = wish.isDraft, known = scene.backgroundFile,
            pixels = scene.background](const std::string& path) {
        if (path == known && !pixels.isNull()) return ReadPicture{pixels, {}, {}, {}};
        if (isDraft) return readSmallPicture(path, kDraftSide);
        return path == portrait && read ? read(path) : readPicture(path);
    };
}

}  // namespace

Scene sceneOf(const SystemInfo& info) {
    const BitmapInfo& record = *info.pBackgroundBitmapInfo;
    const bool isAsRead =
        record.sSourceProblem.load().empty() && record.fRotate + record.fTilt == 0.0 && !record.bFlipHorz;
    return {settingsOf(info),
            info,
            info.placedLast,
            info.readSource,
            record.sSourceImageFullPath,
            isAsRead ? record.orgImage : QImage(),
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
      thread_([this](const std::stop_token& ended) { work(ended); }) {}

SidePictures::~SidePictures() = default;

void SidePictures::setScene(Scene scene, std::uint64_t number) {
    std::lock_guard lock(mutex_);
    scene_ = std::move(scene);
    number_ = number;
    wishes_.clear();
}

void SidePictures::want(std::vector<SideWish> wishes) {
    std::lock_guard lock(mutex_);
    wishes_ = std::move(wishes);
    changed_.notify_all();
}

void SidePictures::work(const std::stop_token& ended) {
    becomeBackgroundThread();
    LastMaker last;
    std::unique_lock lock(mutex_);
    while (!ended.stop_requested()) {
        if (wishes_.empty()) last.maker.reset();
        if (!changed_.wait(lock, ended, [this] { return !wishes_.empty(); })) return;
        if (!isIdle_()) {
            changed_.wait_for(lock, ended, kLookAgain, [] { return false; });
            continue;
        }
        const Scene scene = scene_;
        Made made{wishes_.front(), number_, {}, {}};
        wishes_.erase(wishes_.begin());
        lock.unlock();
        last.make(scene, made);
        done_(std::move(made));
        lock.lock();
    }
}

}  // namespace tavrin

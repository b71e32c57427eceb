#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <QImage>

#include "session/Recipe.h"

namespace tavrin {

/// What a state makes its pictures from, taken at one moment.
struct Scene {
    SettingValues settings;
    StartUpPictures pictures;
    LayerPlace placedLast;
    std::function<ReadPicture(const std::string&)> readSource;  ///< of portraits
    /// A source with its pixels, shared with its layer; null where they were turned.
    struct Source {
        std::string file;
        QImage pixels;
    };
    Source foreground, background;
    bool isFrozen = false;  ///< its background is a picture that no file has
};
/// For the loop's thread.
Scene sceneOf(const SystemInfo& info);

/// A picture that nobody has open.
struct SideWish {
    std::string portrait;
    std::string background;   ///< "" for that of the scene, or of the portrait's own recipe
    int side = 0;             ///< most pixels each way; 0: the preview as the loop makes it
    bool isFramed = false;    ///< a portrait without a recipe is placed around its subject
    bool isDraft = false;     ///< its sources are decoded small: quick, and nearly the same
    SettingValues look = {};  ///< settings that it has in place of the scene's
    bool operator==(const SideWish&) const = default;
};

/// Makes pictures beside the one under work, on a thread of its own with a low priority and while the loop has
/// nothing to do: portraits that are not open, as they would be, and one portrait over many backgrounds and with many
/// looks, keyed once. Many of them have a second thread, which keys once more. A picture under work is given up
/// within a piece of rows when the loop has something to do, and begun again after it.
class SidePictures {
  public:
    struct Made {
        SideWish wish;
        std::uint64_t scene = 0;  ///< number of its scene
        QImage picture;           ///< null on failure
        std::string problem;
        std::string missing;  ///< what names a file that the look wants and that cannot be read, "" without any
    };
    /// @param isIdle whether the loop has nothing to do; asked on these threads, as `done` is called on them, one
    /// call
    ///               at a time
    SidePictures(std::function<bool()> isIdle, std::function<void(Made)> done);
    ~SidePictures();
    SidePictures(const SidePictures&) = delete;
    SidePictures& operator=(const SidePictures&) = delete;

    /// What is wanted from now on is made like this. What waits is forgotten.
    void setScene(Scene scene, std::uint64_t number);
    /// Wants these, the first one first, and no longer what was wanted before and is not begun.
    void want(std::vector<SideWish> wishes);

  private:
    void work(const std::stop_token& ended, std::size_t fewest);

    const std::function<bool()> isIdle_;
    const std::function<void(Made)> done_;
    std::mutex mutex_;  // of what follows
    std::condition_variable_any changed_;
    Scene scene_;
    std::uint64_t number_ = 0;
    std::vector<SideWish> wishes_;
    std::uint64_t wanted_ = 0;  // counts what was told from outside
    std::mutex telling_;
    std::jthread thread_, second_;  // the last, so that they end first
};

/// A state as it would be with the portrait of a wish open; nothing of it is read yet.
std::unique_ptr<SystemInfo> stateFor(const Scene& scene, const SideWish& wish);

}  // namespace tavrin

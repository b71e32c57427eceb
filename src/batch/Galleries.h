#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "core/state/SystemInfo.h"
#include "pipeline/IdleJob.h"

namespace tavrin {

/// What the galleries ask of a window; the default does nothing. Called on the processing thread, and by whoever
/// calls `leave`.
class GalleryInterface {
  public:
    virtual ~GalleryInterface() = default;
    /// So many of all pictures stand.
    virtual void galleryStepped(int /*done*/, int /*all*/) {}
    /// A run came to its end. @param problem why there is no page, as one plain line; "" otherwise
    virtual void galleryEnded(const std::string& /*problem*/) {}
    /// The page `sGalleryToViewPath` is to be shown.
    virtual void showGalleryViewer() {}
};

/// Two pages of small pictures to choose from by eye: the portrait with twelve settings of the key, and the portrait
/// over every photo of the pick folder. An idle job of the loop sends each alternative through it, stopping behind
/// the preview, saves what came of the one before, and at the end writes the page and puts back what was there.
///
/// What begins a run and its steps belong to the processing thread; `leave` and `backgrounds` to any.
class Galleries : public IdleJob {
  public:
    /// @param view not owned; null is fine
    explicit Galleries(SystemInfo& info, GalleryInterface* view = nullptr);

    /// For who asks from another thread: a number to show a gallery by. Only the newest holds, and none behind
    /// `leave`.
    int ask();
    /// Shows the page that is there, or begins to make one. Nothing happens while a gallery is made.
    /// @param number of `ask`; 0 holds always
    /// @return false when the number does not hold any more, and nothing was done
    bool showAdjustGallery(int number = 0);
    bool showGallery(int number = 0);

    bool isOn() const override { return info_.bProcessingGallery || info_.bProcessingAdjGallery; }
    void step() override;
    /// Ends a run before its time: all is as it was before it, but for a background that was chosen meanwhile, and
    /// there is no page. The caller asks for the pass. Nothing happens without a run.
    /// @return whether there was one
    bool leave();

    /// The pictures of the last whole page of backgrounds, by the numbers of its links.
    std::vector<std::string> backgrounds() const;
    static std::string adjustPage();
    static std::string backgroundPage();

  private:
    /// The settings that the presets write.
    struct Kept {
        std::int32_t dark = 0, tint = 0, white = 0, base = 0, through = 0;
        bool blueLogic = false, bright = false;
    };

    /// Photos of the gallery under work.
    std::int32_t iGalleryCount() const { return static_cast<std::int32_t>(info_.myGalleryNames.size()); }
    void SetupAdjustGallery();
    void LoadGalleryNamesToProcess();
    void NextAdjustmentToProcess();
    void NextGalleryImageToProcess();
    void addPicture(const std::string& name, const char* upright, const char* wide, int index);
    std::string writePage(const std::string& path);
    void putBackSettings();
    void putBackState();
    void putBackBackground();

    SystemInfo& info_;
    GalleryInterface& view_;
    Kept kept_;
    int asked_ = 0;                         ///< under the lock
    mutable std::mutex mutex_;              ///< a step, or the end of a run from outside
    std::vector<std::string> backgrounds_;  ///< under it
};

}  // namespace tavrin

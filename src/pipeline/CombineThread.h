#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "core/state/SystemInfo.h"
#include "pipeline/KeyedPicture.h"
#include "pipeline/Layers.h"

namespace tavrin {

/// The processing loop: turns changed settings into pictures, first a whole pass over the preview buffers, then
/// the same work at full resolution, which any newer request abandons. When there is nothing to do it gives the
/// registered idle work its turn.
///
/// A pass that cannot be made, say for want of memory, publishes nothing and leaves no picture to save; its reason is
/// told (`SystemInfo::pictures`). One with files missing is made without them.
class CombineThread {
  public:
    /// What an iteration came to.
    enum class Turn {
        worked,    ///< a pass ended, was superseded, or a count was caught up
        dragging,  ///< the mouse is held: a ghost picture was made, the next iteration follows at once
        idle,      ///< nothing to do; idle work had its turn
    };

    explicit CombineThread(SystemInfo& info) : info_(info) {}
    /// Cancels the thread and waits for it.
    ~CombineThread();
    CombineThread(const CombineThread&) = delete;
    CombineThread& operator=(const CombineThread&) = delete;

    /// Work for idle moments, called in the order of registration, on the loop's thread, and only when a finished
    /// picture stands in the buffers. Register before the thread starts.
    void addIdleWork(std::function<void()> work) { idleWork_.push_back(std::move(work)); }

    /// Runs a job on the loop's thread before the next pass, and asks for that pass: for changes that no stage may
    /// meet half done, such as loading a whole state. It waits while newer requests keep coming. Callable from any
    /// thread.
    void post(std::function<void()> job);

    void StartMainThread();
    /// The loop itself; returns when the thread was cancelled.
    void combineThread();
    /// One iteration, without the sleep of an idle one.
    Turn iterate();
    /// Iterates on the caller's thread until idle: one whole pass for the present settings.
    void runUntilIdle();

  private:
    bool hasPosted();
    void runPosted();
    void runForOthers(const std::function<void()>& work);
    Turn runPass();
    Turn makePictures();
    void tellFailure();
    bool updateLayers();
    bool updateSources();
    void updateSource(BitmapInfo& record, ReadPicture picture);
    void updateForegroundScale();
    void updateBackground();
    void makePreview();
    void makeFullPicture();
    std::optional<LayerFill> scaleLayer(BitmapInfo& record);
    bool drawDueLayers();
    void forgetKeyed();

    SystemInfo& info_;
    std::optional<LayerFill> foregroundDue_, backgroundDue_;  // set while a full buffer waits
    KeyedPicture keyedPreview_{Resolution::preview}, keyedFull_{Resolution::full};
    std::string toldFailure_;  // not told again until a picture was made
    std::vector<std::function<void()>> idleWork_;
    std::mutex postedMutex_;
    std::vector<std::function<void()>> posted_;
    std::jthread thread_;
    std::stop_token cancelled_;
};

}  // namespace tavrin

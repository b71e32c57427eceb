#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "core/state/SystemInfo.h"
#include "pipeline/IdleJob.h"
#include "pipeline/KeyedPicture.h"
#include "pipeline/Layers.h"

namespace tavrin {

/// Rows [first, last) of a combined picture (`res` 1: the full one, otherwise the preview) that an edit changed.
struct ChangedRows {
    int res = 1;
    int first = 0, last = 0;
};

/// The processing loop: turns changed settings into pictures, first a whole pass over the preview buffers, then
/// the same work at full resolution, which any newer request abandons. All that reads or changes the buffers, or
/// replaces lists of the state, is a job of the loop's: `post` with a pass to follow, `edit` without one, and idle
/// jobs when there is nothing else to do.
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
    /// Cancels the thread and waits for it; edits that wait are done.
    ~CombineThread();
    CombineThread(const CombineThread&) = delete;
    CombineThread& operator=(const CombineThread&) = delete;

    /// What an edit came to: the rows of the combined pictures that it changed; empty when it only looked.
    using Edit = std::function<std::vector<ChangedRows>()>;

    /// A job for idle moments, not owned, which ends after the loop. It has its turn when a finished picture stands
    /// in the buffers and no job before it in the order of registration is on. Register before the thread starts.
    void addIdleJob(IdleJob& job) { idleJobs_.push_back(&job); }

    /// Runs a job on the loop's thread before the next pass, and asks for that pass: for changes that no stage may
    /// meet half done, such as loading a whole state. It waits while newer requests keep coming. Callable from any
    /// thread.
    void post(std::function<void()> job);

    /// Runs a job on the loop's thread as soon as no pass is under work, in the order in which they came, and asks
    /// for none: for saving, and for painting into the picture that stands. A pass asked for later waits for it, so
    /// it finds the picture of the moment in which it was asked for (`whyNotFinished` tells whether there is one).
    /// The rows that it changed are published. Callable from any thread; what still waits when the loop is cancelled
    /// is done before the thread ends.
    void edit(Edit job);

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
    void runEdits();
    void runEdit(const Edit& edit);
    void stepIdleJob();
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
    KeyedPicture keyedPreview_{kLowRes}, keyedFull_{kFullRes};
    std::string toldFailure_;  // not told again until a picture was made
    std::vector<IdleJob*> idleJobs_;
    std::mutex jobsMutex_;
    std::vector<std::function<void()>> posted_;  // these two under the lock
    std::vector<Edit> edits_;
    std::jthread thread_;
    std::stop_token cancelled_;
};

}  // namespace tavrin

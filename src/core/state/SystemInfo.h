#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "core/RandomSource.h"
#include "core/image/ImageReader.h"
#include "core/raster/Rows.h"
#include "core/state/BitmapInfo.h"
#include "core/state/EffectSettings.h"
#include "core/state/Interface.h"
#include "core/state/KeySettings.h"
#include "core/state/PageSettings.h"
#include "core/state/PlaceState.h"
#include "core/state/QLXInfo.h"
#include "core/state/RunState.h"

namespace tavrin {

/// Size and resolution of the buffers of one half of a pass.
struct PassGeometry {
    int width = 0, height = 0, dpi = 0;
};

/// Every setting that a state file or a command line can name.
class Settings : public GuardSettings,
                 public GlobalSmoothingSettings,
                 public StarFilterSettings,
                 public OutputGeometry,
                 public EasySettings,
                 public SelectionSettings,
                 public BlurSettings,
                 public ClipSettings,
                 public OutputModeSettings,
                 public ShadowSettings,
                 public OverlaySettings,
                 public CartoonSettings,
                 public KeyOutputSettings,
                 public EventSettings,
                 public SkinSettings,
                 public LightingSettings,
                 public SilhouetteSettings,
                 public ReflectionSettings,
                 public RefineSettings {
  public:
    /// The leaves of all groups, in the order of the state file.
    static std::span<const Leaf<Settings>> leaves();
};

/// The central state: every setting, every record and every list of the running program. Whoever changes a
/// picture writes a field, raises the record's flag when a stage before the key must run again, and calls
/// `StartUpdate`. The groups, and what their fields mean, stand in the headers above.
///
/// Two live at run time: the one that the interface edits and the processing thread serves, and the one of event
/// mode, which has no thread and is driven by `loadAndCombineFiles`. They share nothing.
class SystemInfo : public Settings,
                   public ScreenColor,
                   public HairColors,
                   public ViewState,
                   public PageState,
                   public TextState,
                   public StageState,
                   public StartUpPictures,
                   public LoopState,
                   public PlaceState,
                   public ReplayState,
                   public ModeState {
  public:
    /// A state with all defaults and three empty records. Files are read by `startSystem` of the pipeline.
    SystemInfo();
    SystemInfo(const SystemInfo&) = delete;
    SystemInfo& operator=(const SystemInfo&) = delete;

    PassGeometry geometry(Resolution resolution) const;
    /// The buffer of a record, of that size.
    PixelView pixels(const BitmapInfo& record, Resolution resolution) const;

    /// Asks for a new picture. Callable from any thread, never waits.
    void StartUpdate();
    /// Wakes the processing thread without asking for a picture. Callable from any thread, never waits.
    void wakeLoop();
    /// Waits until `StartUpdate` or `wakeLoop` was called since the last wait, at most `limit`. For the processing
    /// thread.
    void waitForUpdate(std::chrono::milliseconds limit);

    /// A newer picture is wanted than the one under work, or the work has been overtaken.
    bool isStale() const { return iCurrentThreadCount != iNewThreadCount; }
    /// What the rows of a stage listen to: they stop when the state is stale.
    RunContext rowsWhileCurrent() const;

    /// As above for the stages that `bLightingForceCompute` keeps going.
    RunContext rowsWhileWanted() const;
    bool isSuperseded() const { return !bLightingForceCompute && isStale(); }

    /// Hands rows [first, last) of the combined picture to the interface, if there is one and nothing newer is
    /// wanted.
    void publishFull(int firstRow, int lastRow);
    /// Hands the whole combined preview to the interface, if there is one.
    void publishLowRes();
    /// Hands rows [first, last) of the combined picture of a resolution, which stands and was changed there, to the
    /// interface, if there is one. Rows that the picture does not have are left out.
    void publishEdited(Resolution resolution, int firstRow, int lastRow);

    /// Why the combined picture of a resolution must not go out as that of the present sources and settings, as one
    /// plain line without a full stop; empty when it may. Callable from any thread.
    std::string whyNotFinished(Resolution resolution) const;

    /// Shows an alert in the interface; without one message and reason go to the standard error stream.
    void alert(const std::string& message, const std::string& reason);

    RandomSeeds randomSeeds;
    SystemInfo* const pMySystemInfo = this;
    Interface* pInterface = nullptr;  ///< the window, not owned; null is fine
    /// How the files of the layers are read. A batch puts in pictures that were decoded ahead; empty: `readPicture`.
    std::function<ReadPicture(const std::string&)> readSource;

    const std::unique_ptr<BitmapInfo> pForegroundBitmapInfo, pBackgroundBitmapInfo, pCombinedBitmapInfo;
    const std::unique_ptr<QLXInfo> oQLXInfo;
    const std::unique_ptr<ImageTexture> oImageTexture, oReflectionTexture;
    const std::unique_ptr<ImageFrame> oFrame, oFrameOverlay;

  private:
    void publish(PublishedRows rows, const RunContext& run);

    std::mutex wakeMutex_;
    std::condition_variable wake_;
    bool woken_ = false;
};

}  // namespace tavrin

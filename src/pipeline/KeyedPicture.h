#pragma once

#include <span>
#include <string>

#include "core/raster/Pixels.h"
#include "core/state/SystemInfo.h"
#include "pipeline/Stages.h"

namespace tavrin {

/// The combined picture of one resolution as the stages of the key left it, kept from one pass to the next: a pass
/// whose change comes later takes it up again instead of keying. It is the picture that those stages would make, byte
/// for byte, and everything else that they write stands as they left it. Kept only for a view that shows pixels,
/// since elsewhere nobody moves a control twice. For the processing thread.
class KeyedPicture {
  public:
    explicit KeyedPicture(Resolution resolution) : resolution_(resolution) {}

    /// Puts the kept picture into the combined buffer. At full size the copy stops when the state is stale.
    /// @return false when there is none for the present settings, and nothing was done
    bool restore(SystemInfo& info);

    /// Runs the stages of the key and keeps their picture, if all of them came to their end.
    void make(std::span<const Stage> stages, SystemInfo& info);

    /// The layers have changed, or may have: the next pass keys again.
    void forget();
    /// Forgets, and gives the memory back.
    void release();

  private:
    bool keep(SystemInfo& info);

    const Resolution resolution_;
    bool kept_ = false;
    PixelBuffer pixels_;
    int width_ = 0, height_ = 0;
    std::string inputs_;    // of the last finished run on these layers
    std::string findings_;  // as that run left them
    SkinColor skin_;        // the same
};

}  // namespace tavrin

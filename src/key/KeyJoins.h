#pragma once

#include "key/CombineParams.h"
#include "key/GreenGuard.h"
#include "key/HairCorrection.h"

namespace tavrin {

/// What may overrule the key's decision, in this order: the hair correction, then the green guard. Fixed for a run.
class KeyJoins {
  public:
    /// Builds the guard's bitmap when `iGreenProtectMode` is not 0, and the constants of the hair correction.
    KeyJoins(const SystemInfo& info, const CombineParams& params, bool hiRes);

    /// The run was overtaken while the guard was being built, and its pixel loop must not start.
    bool isSuperseded() const { return superseded_; }

    /// May explain the pixel as a mix of the screen and a hair colour, or make it opaque with the raw colour.
    void overrule(KeyedPixel& pixel, int x, int y) const;
    /// Where the guard's bitmap is shown instead of the subject: its colour and alpha 1.
    void showGuard(Rgb& foreground, double& alpha, int x, int y) const;
    bool showsGuard() const { return showGuard_; }

  private:
    std::uint8_t guardByte(int x, int y) const {
        return guard_
            .bitmap()[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
    }

    int width_;
    HairParams hair_;
    GreenGuard guard_;
    bool guarded_ = false, superseded_ = false, removeInside_ = false, showGuard_ = false;
    int mode_ = 0;
    Rgb caption_{0.0, 0.0, 0.0};
};

}  // namespace tavrin

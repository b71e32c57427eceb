#pragma once

#include "key/guard/GreenGuard.h"
#include "key/hair/HairCorrection.h"
#include "key/pixel/CombineParams.h"
#include "key/pixel/KeyedRun.h"

namespace tavrin {

/// What may overrule the key's decision, in this order: the hair correction, then the green guard. Fixed for a run.
class KeyOverrides {
  public:
    /// Builds the guard's bitmap when `iGreenProtectMode` is not 0, and the constants of the hair correction.
    KeyOverrides(const SystemInfo& info, const CombineParams& params, Resolution resolution);

    /// The run was overtaken while the guard was being built, and its pixel loop must not start.
    bool isSuperseded() const { return superseded_; }

    /// May explain pixels as a mix of the screen and a hair colour.
    void correctHair(KeyedRun& run) const;
    /// May make pixels opaque with the raw colour.
    void guard(KeyedRun& run) const;
    /// Where the guard's bitmap is shown instead of the subject: its colours, unless `alphaOnly`, and alpha 1.
    void showGuard(KeyedRun& run, bool alphaOnly) const;
    bool showsGuard() const { return showGuard_; }
    /// The byte of the guard's bitmap at a pixel; 0 without a guard.
    std::uint8_t guardAt(int x, int y) const { return guarded_ ? guardByte(x, y) : std::uint8_t{0}; }

  private:
    void correctHairAt(KeyedRun& run, int i) const;
    void takeRaw(KeyedRun& run, int i) const;
    std::uint8_t guardByte(int x, int y) const {
        return guard_
            .bitmap()[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
    }

    int width_;
    bool blueLogic_;
    HairParams hair_;
    GreenGuard guard_;
    bool guarded_ = false, superseded_ = false, removeInside_ = false, showGuard_ = false;
    int mode_ = 0;
    Rgb caption_{0.0, 0.0, 0.0};
};

}  // namespace tavrin

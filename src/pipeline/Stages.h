#pragma once

#include <span>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Resolution argument of the stages.
inline constexpr int kLowRes = 0, kFullRes = 1;

/// One step of a pass.
struct Stage {
    const char* name;
    bool (*when)(const SystemInfo&);
    void (*run)(SystemInfo&, int res);
};

/// What changes the foreground after it was scaled; run at both resolutions in turn.
std::span<const Stage> foregroundStages();
/// What is laid on the background before the key, the same at both resolutions.
std::span<const Stage> backgroundStages();
/// The key and all that follows, for the preview and for the full picture. The orders differ on purpose.
std::span<const Stage> previewStages();
std::span<const Stage> fullStages();
/// The shorter list of the synchronous path, full resolution.
std::span<const Stage> fastStages();

/// Runs the stages that are due, in order.
void runStages(std::span<const Stage> stages, SystemInfo& info, int res);

/// The preset hair colours of the simple key panel win over what was detected.
void applyHairPreset(SystemInfo& info);

}  // namespace tavrin

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// One step of a pass: all that its author must know stands in its row.
struct Stage {
    const char* name;  ///< as it goes on after "there is not enough memory for the"
    bool (*when)(const SystemInfo&);
    void (*run)(SystemInfo&, Resolution resolution);
    /// Settings that it reads, with blanks between, by their names in SettingNames.h; "text." is all of every text. A
    /// setting that stages of `finish` alone name does not key again. One that nobody names does: that costs time,
    /// never a wrong picture. So a stage of `key` must name what a stage of `finish` reads too, and may leave out the
    /// others.
    std::string_view reads = {};
    /// Whether a run of a stage of `key` reads a file, which may change without any setting knowing. None: never.
    bool (*readsFile)(const SystemInfo&) = nullptr;
};

/// The stages of the combined picture, in two parts. The picture after the first is kept from one pass to the next
/// (KeyedPicture.h), so a setting that no stage of `key` reads redoes only `finish`.
struct StageOrder {
    std::span<const Stage> key;     ///< the key, and what belongs to the subject
    std::span<const Stage> finish;  ///< what is laid over it, and what changes the whole
};

/// What changes the foreground after it was scaled; run at both resolutions in turn.
std::span<const Stage> foregroundStages();
/// What is laid on the background before the key, the same at both resolutions.
std::span<const Stage> backgroundStages();
/// The key and all that follows, for the preview and for the full picture. The orders differ on purpose.
StageOrder previewStages();
StageOrder fullStages();
/// What finishes a preview with a drawing, for whoever looks at one of it: the loop's preview shows none. The order
/// is the full picture's, whose stages `skin` and `edges` exist at full size only.
std::span<const Stage> drawnPreviewStages();
/// The shorter list of the synchronous path, full resolution.
std::span<const Stage> fastStages();

/// What a stage listens to: a preview always ends, a full picture is given up for a newer request.
RunContext whileCurrent(const SystemInfo& info, Resolution resolution);

/// Memory was refused: "Memory not allocated!" on the error stream, and the pass under work fails, since there is no
/// memory for `what`.
void failForMemory(SystemInfo& info, const std::string& what);

/// Runs the stages that are due, in order. One that gets no memory fails the pass; those after it run all the same.
void runStages(std::span<const Stage> stages, SystemInfo& info, Resolution resolution);
/// As above, but no further stage is begun when the state is stale: for pictures that the next pass makes anew.
void runStagesWhileCurrent(std::span<const Stage> stages, SystemInfo& info, Resolution resolution);

/// The preset hair colours of the simple key panel win over what was detected.
void applyHairPreset(SystemInfo& info);

}  // namespace tavrin

#pragma once

#include "core/state/RunState.h"
#include "editor/EditItem.h"
#include "editor/brush/BrushTable.h"

namespace tavrin {

/// What was done in the editor, in the two blocks of a state: the recording in progress, and the last one, which a
/// replay reads. The brushes are kept as they were before the first item.
class EditRecording {
  public:
    explicit EditRecording(ReplayState& state) : state_(state) {}

    /// Appends an item; from the 5,001st on it is dropped, while the edit itself goes on.
    void AddReplayItem(const EditItem& item, const BrushTable& brushes, int iActiveButton);
    void clear() { state_.iReplayBufferCount = 0; }
    /// Moves the recording aside, for a replay, and begins a new one.
    void moveAside();
    /// Puts a list in the place of the last recording, at most `kMostEditItems` of it, made with these brushes.
    void setSaved(const std::vector<EditItem>& items, const BrushTable& brushes, int iActiveButton);

    std::int32_t savedCount() const { return state_.iReplayBufferSavedCount; }
    EditItem savedItem(std::int32_t index) const;
    std::int32_t count() const { return state_.iReplayBufferCount; }
    EditItem item(std::int32_t index) const;

    BrushTable oBrushInfoReplaySaveSettings = makeBrushTable();
    int iReplayiActiveButton = kEraseForeground;

  private:
    ReplayState& state_;
};

/// Takes the settings of all brushes, not their texts.
void copySettings(BrushTable& to, const BrushTable& from);

}  // namespace tavrin

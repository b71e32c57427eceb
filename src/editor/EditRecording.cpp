#include "editor/EditRecording.h"

#include <algorithm>
#include <cstring>

namespace tavrin {

namespace {

static_assert(kMostEditItems * sizeof(EditItem) == ReplayState::kReplayBytes);

EditItem itemAt(const std::vector<std::uint8_t>& block, std::int32_t index) {
    EditItem item;
    std::memcpy(&item, block.data() + static_cast<std::size_t>(index) * sizeof(EditItem), sizeof(EditItem));
    return item;
}

void putItem(std::vector<std::uint8_t>& block, std::int32_t index, const EditItem& item) {
    std::memcpy(block.data() + static_cast<std::size_t>(index) * sizeof(EditItem), &item, sizeof(EditItem));
}

}  // namespace

void copySettings(BrushTable& to, const BrushTable& from) {
    for (std::size_t brush = 0; brush < kBrushes; ++brush)
        to[brush].copySetting(from[brush]);
}

void EditRecording::AddReplayItem(const EditItem& item, const BrushTable& brushes, int iActiveButton) {
    const std::int32_t at = state_.iReplayBufferCount;
    if (at == 0) {
        copySettings(oBrushInfoReplaySaveSettings, brushes);
        iReplayiActiveButton = iActiveButton;
    }
    if (at >= kMostEditItems) return;
    putItem(state_.pReplayBuffer, at, item);
    state_.iReplayBufferCount = at + 1;
}

void EditRecording::moveAside() {
    const auto bytes = static_cast<std::size_t>(count()) * sizeof(EditItem);
    std::memcpy(state_.pReplaySavedBuffer.data(), state_.pReplayBuffer.data(), bytes);
    state_.iReplayBufferSavedCount = count();
    state_.iReplayBufferCount = 0;
}

void EditRecording::setSaved(const std::vector<EditItem>& items, const BrushTable& brushes, int iActiveButton) {
    const auto most = static_cast<std::size_t>(kMostEditItems);
    const auto saved = static_cast<std::int32_t>(std::min(items.size(), most));
    for (std::int32_t i = 0; i < saved; ++i)
        putItem(state_.pReplaySavedBuffer, i, items[static_cast<std::size_t>(i)]);
    state_.iReplayBufferSavedCount = saved;
    copySettings(oBrushInfoReplaySaveSettings, brushes);
    iReplayiActiveButton = iActiveButton;
}

EditItem EditRecording::savedItem(std::int32_t index) const {
    return itemAt(state_.pReplaySavedBuffer, index);
}

EditItem EditRecording::item(std::int32_t index) const {
    return itemAt(state_.pReplayBuffer, index);
}

}  // namespace tavrin

#include "session/TextItems.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/state/SettingNames.h"

namespace tavrin {

namespace {

/// For a list that is as long before as after.
void putList(SettingEditor& editor, const std::vector<FontObject>& items) {
    for (std::size_t row = 0; row < items.size(); ++row)
        replaceItem(editor, row, items[row]);
}

std::vector<FontObject> listOf(const SettingEditor& editor) {
    const ItemList& items = editor.info().oFontObject;
    return {items.begin(), items.end()};
}

}  // namespace

std::string addItem(SettingEditor& editor, const FontObject& item) {
    const std::size_t row = editor.info().oFontObject.size();
    if (row >= TextState::kMaxFontObjects)
        return "There is room for " + std::to_string(TextState::kMaxFontObjects) + " texts and pictures.";
    editor.beginStep("");
    editor.set(kItemCount, std::to_string(row + 1));
    replaceItem(editor, row, item);
    editor.endStep();
    return "";
}

void setItemCount(SettingEditor& editor, const std::string& count) {
    std::size_t wanted = 0;
    std::from_chars(count.data(), count.data() + count.size(), wanted);
    editor.beginStep("");
    // Those that go are made plain before: taking that back gives each what it had.
    for (std::size_t row = wanted; row < editor.info().oFontObject.size(); ++row)
        replaceItem(editor, row, FontObject());
    editor.set(kItemCount, count);
    editor.endStep();
}

void replaceItem(SettingEditor& editor, std::size_t row, const FontObject& item) {
    const auto before = listFields(editor.info().oFontObject[row]), after = listFields(item);
    const std::string prefix = "text" + std::to_string(row) + '.';
    editor.beginStep("");
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (after[i] != before[i]) editor.set(prefix + after[i].first, after[i].second);
    }
    editor.endStep();
}

void removeItem(SettingEditor& editor, std::size_t row) {
    std::vector<FontObject> items = listOf(editor);
    if (row >= items.size()) return;
    std::rotate(items.begin() + static_cast<std::ptrdiff_t>(row),
                items.begin() + static_cast<std::ptrdiff_t>(row) + 1, items.end());
    editor.beginStep("");
    putList(editor, items);
    setItemCount(editor, std::to_string(items.size() - 1));
    editor.endStep();
}

void moveItem(SettingEditor& editor, std::size_t from, std::size_t to) {
    std::vector<FontObject> items = listOf(editor);
    if (from >= items.size() || to >= items.size()) return;
    const auto first = items.begin() + static_cast<std::ptrdiff_t>(std::min(from, to));
    const auto last = items.begin() + static_cast<std::ptrdiff_t>(std::max(from, to)) + 1;
    std::rotate(first, from < to ? first + 1 : last - 1, last);
    editor.beginStep("");
    putList(editor, items);
    editor.endStep();
}

}  // namespace tavrin

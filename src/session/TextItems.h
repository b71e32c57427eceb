#pragma once

#include <cstddef>
#include <string>

#include "session/SettingEditor.h"

namespace tavrin {

// The list of text and picture items, changed by a person at the window. A change holds settings alone, so it can be
// taken back and done again, also after the program was started anew.

/// Adds an item behind the last one.
/// @return "" when done; otherwise one plain line, and nothing is changed
std::string addItem(SettingEditor& editor, const FontObject& item);

/// Makes the list longer by plain items, or shorter.
void setItemCount(SettingEditor& editor, const std::string& count);

/// Gives an item of the list what another one is.
void replaceItem(SettingEditor& editor, std::size_t row, const FontObject& item);

/// Takes an item out of the list, which closes up. A row that is not there changes nothing.
void removeItem(SettingEditor& editor, std::size_t row);

/// Moves an item to another row: what stands later in the list is drawn later. Rows that are not there change
/// nothing.
void moveItem(SettingEditor& editor, std::size_t from, std::size_t to);

}  // namespace tavrin

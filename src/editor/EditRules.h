#pragma once

#include <string>

#include "editor/EditItem.h"
#include "editor/EditMessage.h"

namespace tavrin {

/// What an item is called in English, as in "mouse down"; empty for a kind that nobody knows.
std::string nameOfKind(std::int64_t kind);

/// Why an item with so many values cannot be played, as words behind the place of its line; empty when it can, and
/// for kinds that nobody knows, which are passed over.
EditMessage whyNoItem(const EditItem& item, int values);

}  // namespace tavrin

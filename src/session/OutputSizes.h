#pragma once

#include <string>

#include "formats/ImageState.h"
#include "pipeline/OutputSize.h"

namespace tavrin {

// The ways to choose an output size. Each selects the size and the print page that suits it, and asks the loop for
// buffers of it when they are of another; only `useChosenSize` puts it into force by itself.

/// Chooses an entry of the list by its place.
/// @return false when there is none, and nothing is changed
bool chooseSize(SystemInfo& info, std::int32_t index);

/// Chooses the entry of that name, the last one where several have it.
/// @return false when there is none, and nothing is changed
bool chooseSizeByName(SystemInfo& info, const std::string& name);

/// Gives the picture a size of its own, which enters no list.
void chooseOwnSize(SystemInfo& info, const std::string& name, double widthInches, double heightInches, int dpi);

/// Chooses what a state file tells about its size, for which place, name, inches and resolution may not agree: lists
/// differ from machine to machine. The entry of that name counts, else the one of those inches and dots an inch, else
/// the picture gets a size of its own. The place in the list counts where the file tells no inches.
/// @return "" or why there is no such size, as one plain line; nothing is changed then
std::string chooseStoredSize(SystemInfo& info, const StoredSize& stored);

/// Puts the chosen size into force at once (`ChangeImageSize`): for a state whose loop does not run yet, or that none
/// serves.
/// @return "" or why it makes no picture, as one plain line
std::string useChosenSize(SystemInfo& info);

}  // namespace tavrin

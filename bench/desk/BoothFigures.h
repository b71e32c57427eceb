#pragma once

#include <string>

#include "desk/StripFigures.h"

namespace tavrin::bench {

/// Event mode on the present picture: how long a new portrait takes to its small picture, a press to the operator's
/// free hands and to the finished picture. Turns to the event page and leaves it again.
/// @param folder gets the portraits and pictures of the event
void measureBooth(const Desk& desk, const std::string& folder);

}  // namespace tavrin::bench

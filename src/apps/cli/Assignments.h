#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin::cli {

/// Carries out settings written as field=value, in order.
/// @return "" when done; otherwise one plain line about the first that cannot be
std::string applyAssignments(SystemInfo& info, const std::vector<std::string>& assignments);

}  // namespace tavrin::cli

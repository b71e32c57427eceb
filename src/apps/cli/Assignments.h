#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin::cli {

/// Carries out settings written as field=value, in order.
/// @return "" when done; otherwise one plain line about the first that cannot be
std::string applyAssignments(SystemInfo& info, const std::vector<std::string>& assignments);

/// Whether one of these settings begins so: "label1.bDropShadow=" is that one, "label1." any of the label.
bool setsAny(const std::vector<std::string>& assignments, const std::string& start);

}  // namespace tavrin::cli

#pragma once

#include <string>

namespace tavrin {

/// What a number of a setting should lie between, by its name as `setField` takes it. Settings without known bounds
/// take any number, and a number beyond its bounds is taken too: states in the field hold such.
/// @return "" when it does or is none; otherwise one plain line that names the setting and its bounds
std::string rangeProblem(const std::string& name, const std::string& value);

}  // namespace tavrin

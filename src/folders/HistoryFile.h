#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tavrin {

/// Reads an XML property list whose root is an array of strings; entries of another kind are passed over.
/// @return nothing when there is no such file or it is no property list with an array
std::optional<std::vector<std::string>> readHistory(const std::string& path);

/// Writes such a list whole; the file appears under its name only when it is complete, see `AtomicFile`.
/// @return "" when done, else what is wrong as one plain line
std::string writeHistory(const std::string& path, const std::vector<std::string>& keys);

}  // namespace tavrin

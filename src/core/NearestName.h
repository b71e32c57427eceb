#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// Number of single letters to change, put in or take out to make one word of the other (Levenshtein 1966), capitals
/// or not.
std::size_t editDistance(const std::string& a, const std::string& b);

/// The name most like a wrong one, the first where several are; "" when there are no names.
std::string nearestName(const std::string& wrong, const std::vector<std::string>& names);

}  // namespace tavrin

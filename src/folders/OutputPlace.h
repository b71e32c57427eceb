#pragma once

#include <string>

namespace tavrin {

/// Why a picture may not go to its place: a link would lead it out of the folder that was named for the pictures. A
/// link that leads nowhere is replaced and leads nothing anywhere.
/// @param folder of all pictures; a list may put single ones elsewhere
/// @return "" or words behind the picture's name
std::string whyOutside(const std::string& folder, const std::string& picture);

}  // namespace tavrin

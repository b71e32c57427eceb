#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

// Output sizes of the user's own. What changes a list keeps it in the user's file and returns "", or what is wrong
// with keeping it, one line for each file; the list is changed all the same. The lists have no lock: call these where
// nothing else walks them.

/// In the place of a page's title: a page is made for the size.
inline constexpr const char* kDefaultTemplate = "Use Default Template";

/// An output size as somebody enters it.
struct SizeEntry {
    std::string width, height;  ///< as typed
    bool centimetres = false;   ///< of both; else inches
    std::int32_t dotsPerInch = 0;
    std::string page;  ///< title of the print page that suits it, or kDefaultTemplate
};

/// The number that a text begins with, with a point or a comma; 0 when it is none.
double typedNumber(const std::string& text);

/// The name that an entry gets, such as "5x7 300 Vert **". The stars tell that it is the user's.
std::string imageSizeName(const SizeEntry& entry);
/// What somebody edits of an entry of the list. One of the list's own that lacks texts gets them.
SizeEntry sizeEntryOf(const ImageSize& size);

/// @param index of the entry that is edited; -1 for a new one
/// @return why it makes no size, or "" when it does
std::string whyNoImageSize(const SystemInfo& info, std::int32_t index, const SizeEntry& entry);
/// Puts an entry into the list, a new one at its end. The size in force follows at the next pass when it is the one
/// that is edited. An entry that came with the program becomes the user's.
std::string putImageSize(SystemInfo& info, std::int32_t index, const SizeEntry& entry);
/// Takes an entry out of the list. A picture that has this size keeps it as its own.
std::string deleteImageSize(SystemInfo& info, std::int32_t index);

}  // namespace tavrin
